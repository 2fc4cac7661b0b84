// SPDX-License-Identifier: MIT
/** What all properties have in common: where the value lies, its flags, and how it is copied, compared and written. */
#pragma once

#include "UObject/Class.h"

class FReferenceCollector;

/**
 * A member marked UPROPERTY, or a part of one (the elements of an array).
 *
 * "Container" is the object or struct that holds the member, "value" is the member itself.
 */
class COREUOBJECT_API FProperty : public FField
{
	DECLARE_FIELD(FProperty, FField)

	/** Elements of a C array, otherwise 1. */
	int32 ArrayDim = 1;
	/** Bytes of one element. */
	int32 ElementSize = 0;
	EPropertyFlags PropertyFlags = CPF_None;

	bool HasAnyPropertyFlags(EPropertyFlags FlagsToCheck) const { return EnumHasAnyFlags(PropertyFlags, FlagsToCheck); }
	bool HasAllPropertyFlags(EPropertyFlags FlagsToCheck) const { return EnumHasAllFlags(PropertyFlags, FlagsToCheck); }
	EPropertyFlags GetPropertyFlags() const { return PropertyFlags; }
	void SetPropertyFlags(EPropertyFlags NewFlags) { PropertyFlags |= NewFlags; }

	/** Bytes of the member. */
	int32 GetSize() const { return ArrayDim * ElementSize; }
	int32 GetOffset_ForInternal() const { return Offset_Internal; }
	/** Address of the member in its container. */
	template <typename ValueType>
	ValueType* ContainerPtrToValuePtr(void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return reinterpret_cast<ValueType*>(
			static_cast<uint8*>(ContainerPtr) + Offset_Internal + ElementSize * ArrayIndex);
	}
	template <typename ValueType>
	const ValueType* ContainerPtrToValuePtr(const void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return reinterpret_cast<const ValueType*>(
			static_cast<const uint8*>(ContainerPtr) + Offset_Internal + ElementSize * ArrayIndex);
	}

	/** Type as written in C++, such as "float" or "TArray<UMeshComponent*>". */
	virtual FString GetCPPType() const = 0;

	/** Constructs one value in raw memory. */
	virtual void InitializeValue(void* Dest) const = 0;
	virtual void DestroyValue(void* Dest) const = 0;
	/** Copies one value. */
	virtual void CopySingleValue(void* Dest, const void* Src) const = 0;
	/** Copies the member, all elements of a C array. */
	void CopyCompleteValue(void* Dest, const void* Src) const;
	void CopyCompleteValue_InContainer(void* DestContainer, const void* SrcContainer) const;
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = PPF_None) const = 0;
	bool Identical_InContainer(const void* A, const void* B, int32 ArrayIndex = 0, uint32 PortFlags = PPF_None) const;

	/**
	 * Appends one value as text.
	 *
	 * @param DefaultValue  not looked at; null is usual
	 * @param Parent  object that holds the value; null is allowed
	 * @param PortFlags  PPF_Delimited puts texts into quotes
	 */
	virtual void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue,
		UObject* Parent, int32 PortFlags) const = 0;
	void ExportTextItem_InContainer(
		FString& ValueStr, const void* Container, const void* DefaultValue, UObject* Parent, int32 PortFlags) const;
	/**
	 * Reads one value from text, as ExportTextItem_Direct writes it.
	 *
	 * @return behind what was read; null when the text is no such value, which then is unchanged
	 */
	virtual const TCHAR* ImportText_Direct(
		const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags) const = 0;
	const TCHAR* ImportText_InContainer(
		const TCHAR* Buffer, void* Container, UObject* OwnerObject, int32 PortFlags) const;

	/** Whether values refer to objects that the collection has to follow. */
	virtual bool ContainsObjectReference() const { return false; }
	/** Reports the references of one value. */
	virtual void AddReferences(void* Value, const UObject* ReferencingObject, FReferenceCollector& Collector) const;
	/** Takes the owner and flags of the outer property, for parts such as the elements of an array. */
	virtual void LinkParts() {}

protected:
	friend class Host::FTypeBuilder;

	int32 Offset_Internal = 0;
};
