// SPDX-License-Identifier: MIT
/** Properties that hold structs and enumerations. */
#pragma once

#include "UObject/PropertyBase.h"

/** An enumeration of 1, 2, 4 or 8 bytes. */
class COREUOBJECT_API FEnumProperty : public FProperty
{
	DECLARE_FIELD(FEnumProperty, FProperty)

	/** @param InEnum  null when the enumeration is not reflected; values are then written as numbers */
	FEnumProperty(UEnum* InEnum, int32 Size)
		: Enum(InEnum)
	{
		ElementSize = Size;
	}

	UEnum* GetEnum() const { return Enum; }
	int64 GetValue(const void* Data) const;
	void SetValue(void* Data, int64 Value) const;

	virtual FString GetCPPType() const override;
	virtual void InitializeValue(void* Dest) const override { SetValue(Dest, 0); }
	virtual void DestroyValue(void*) const override {}
	virtual void CopySingleValue(void* Dest, const void* Src) const override { SetValue(Dest, GetValue(Src)); }
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags) const override;
	virtual void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue,
		UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportText_Direct(
		const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags) const override;

private:
	UEnum* Enum;
};

namespace Host
{
/** What C++ can do with a value of a struct type. */
struct FStructOps
{
	int32 Size;
	int32 Alignment;
	const char* CppName;
	void (*Construct)(void* Dest);
	void (*Destroy)(void* Dest);
	void (*Copy)(void* Dest, const void* Src);
	/** Null when the type has no operator==. */
	bool (*Equals)(const void* A, const void* B);
};
} // namespace Host

/** A struct. */
class COREUOBJECT_API FStructProperty : public FProperty
{
	DECLARE_FIELD(FStructProperty, FProperty)

	FStructProperty(UScriptStruct* InStruct, const Host::FStructOps& InOps)
		: Struct(InStruct)
		, Ops(InOps)
	{
		ElementSize = InOps.Size;
	}

	/** Null when the type is not reflected; its values are then copied but not written as text. */
	UScriptStruct* Struct;

	virtual FString GetCPPType() const override;
	virtual void InitializeValue(void* Dest) const override { Ops.Construct(Dest); }
	virtual void DestroyValue(void* Dest) const override { Ops.Destroy(Dest); }
	virtual void CopySingleValue(void* Dest, const void* Src) const override { Ops.Copy(Dest, Src); }
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags) const override;
	virtual void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue,
		UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportText_Direct(
		const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags) const override;
	virtual bool ContainsObjectReference() const override;
	virtual void AddReferences(
		void* Value, const UObject* ReferencingObject, FReferenceCollector& Collector) const override;

private:
	const Host::FStructOps& Ops;
};
