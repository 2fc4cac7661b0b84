// SPDX-License-Identifier: MIT
/** Properties that refer to objects and classes. */
#pragma once

#include "UObject/PropertyBase.h"
#include "UObject/WeakObjectPtr.h"

/** Any reference to an object. */
class COREUOBJECT_API FObjectPropertyBase : public FProperty
{
	DECLARE_FIELD(FObjectPropertyBase, FProperty)

	/** Class that the referenced object must have. */
	UClass* PropertyClass = nullptr;

	virtual UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const = 0;
	virtual void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const = 0;
	UObject* GetObjectPropertyValue_InContainer(const void* ContainerAddress, int32 ArrayIndex = 0) const
	{
		return GetObjectPropertyValue(ContainerPtrToValuePtr<void>(ContainerAddress, ArrayIndex));
	}
	void SetObjectPropertyValue_InContainer(void* ContainerAddress, UObject* Value, int32 ArrayIndex = 0) const
	{
		SetObjectPropertyValue(ContainerPtrToValuePtr<void>(ContainerAddress, ArrayIndex), Value);
	}

	virtual FString GetCPPType() const override;
	virtual void DestroyValue(void*) const override {}
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags) const override;
	/** Writes the path of the object, or None. */
	virtual void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue,
		UObject* Parent, int32 PortFlags) const override;
	/** Reads None or a path; the object is looked up and, when necessary, loaded. */
	virtual const TCHAR* ImportText_Direct(
		const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags) const override;
};

/** A pointer or a TObjectPtr; keeps the object alive. */
class COREUOBJECT_API FObjectProperty : public FObjectPropertyBase
{
	DECLARE_FIELD(FObjectProperty, FObjectPropertyBase)

	FObjectProperty() { ElementSize = sizeof(UObject*); }

	virtual UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const override
	{
		return *static_cast<UObject* const*>(PropertyValueAddress);
	}
	virtual void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const override
	{
		*static_cast<UObject**>(PropertyValueAddress) = Value;
	}
	virtual void InitializeValue(void* Dest) const override { SetObjectPropertyValue(Dest, nullptr); }
	virtual void CopySingleValue(void* Dest, const void* Src) const override
	{
		SetObjectPropertyValue(Dest, GetObjectPropertyValue(Src));
	}
	virtual bool ContainsObjectReference() const override { return true; }
	virtual void AddReferences(
		void* Value, const UObject* ReferencingObject, FReferenceCollector& Collector) const override;
	/** References to a class that is instanced by default are instanced and edited in line. */
	virtual void LinkParts() override;
};

/** A UClass pointer or a TSubclassOf. */
class COREUOBJECT_API FClassProperty : public FObjectProperty
{
	DECLARE_FIELD(FClassProperty, FObjectProperty)

	/** Class that the referenced class must be or derive from. */
	UClass* MetaClass = nullptr;
};

/** A TWeakObjectPtr. */
class COREUOBJECT_API FWeakObjectProperty : public FObjectPropertyBase
{
	DECLARE_FIELD(FWeakObjectProperty, FObjectPropertyBase)

	FWeakObjectProperty() { ElementSize = sizeof(FWeakObjectPtr); }

	virtual UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const override
	{
		return static_cast<const FWeakObjectPtr*>(PropertyValueAddress)->Get();
	}
	virtual void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const override
	{
		*static_cast<FWeakObjectPtr*>(PropertyValueAddress) = Value;
	}
	virtual void InitializeValue(void* Dest) const override { ::new (Dest) FWeakObjectPtr(); }
	virtual void CopySingleValue(void* Dest, const void* Src) const override
	{
		*static_cast<FWeakObjectPtr*>(Dest) = *static_cast<const FWeakObjectPtr*>(Src);
	}
};
