// SPDX-License-Identifier: MIT
/** Properties that hold many values: TArray, TSet and TMap. */
#pragma once

#include "UObject/PropertyBase.h"

namespace Host
{
/** What C++ can do with an array of one element type. */
struct FArrayOps
{
	int32 (*Num)(const void* Array);
	void* (*GetElement)(void* Array, int32 Index);
	/** New elements are default values. */
	void (*SetNum)(void* Array, int32 Count);
	void (*Insert)(void* Array, int32 Index);
	void (*RemoveAt)(void* Array, int32 Index, int32 Count);
	void (*Construct)(void* Dest);
	void (*Destroy)(void* Dest);
	void (*Copy)(void* Dest, const void* Src);
};

/** What C++ can do with a set or a map of one kind. A set has no values. */
struct FMapOps
{
	using FVisitor = void (*)(const void* Key, void* Value, void* Context);

	int32 (*Num)(const void* Map);
	void (*ForEach)(void* Map, FVisitor Visitor, void* Context);
	/** Adds a key with a default value and returns the value; null of a set. */
	void* (*Add)(void* Map, const void* Key);
	/** @return null when the key is absent; of a set some pointer that is not null when it is present */
	const void* (*Find)(const void* Map, const void* Key);
	void (*Remove)(void* Map, const void* Key);
	void (*Empty)(void* Map);
	void (*Construct)(void* Dest);
	void (*Destroy)(void* Dest);
	void (*Copy)(void* Dest, const void* Src);
	int32 Size;
};
} // namespace Host

class COREUOBJECT_API FArrayProperty : public FProperty
{
	DECLARE_FIELD(FArrayProperty, FProperty)

	/** @param InInner  property of one element; owned from now on */
	FArrayProperty(FProperty* InInner, const Host::FArrayOps& InOps);
	virtual ~FArrayProperty() override;

	/** Property of the elements. */
	FProperty* Inner;

	virtual FString GetCPPType() const override { return FString(TEXT("TArray<")) + Inner->GetCPPType() + TEXT(">"); }
	virtual void InitializeValue(void* Dest) const override { Ops.Construct(Dest); }
	virtual void DestroyValue(void* Dest) const override { Ops.Destroy(Dest); }
	virtual void CopySingleValue(void* Dest, const void* Src) const override { Ops.Copy(Dest, Src); }
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags) const override;
	/** Writes "(a,b,c)". */
	virtual void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue,
		UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportText_Direct(
		const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags) const override;
	virtual bool ContainsObjectReference() const override { return Inner->ContainsObjectReference(); }
	virtual void AddReferences(
		void* Value, const UObject* ReferencingObject, FReferenceCollector& Collector) const override;
	virtual void LinkParts() override;

private:
	friend class FScriptArrayHelper;

	const Host::FArrayOps& Ops;
};

/** Works on the array that an FArrayProperty describes. */
class COREUOBJECT_API FScriptArrayHelper
{
public:
	/** @param InArray  address of the TArray itself */
	FScriptArrayHelper(const FArrayProperty* InProperty, const void* InArray)
		: Ops(InProperty->Ops)
		, Array(const_cast<void*>(InArray))
	{
	}

	int32 Num() const { return Ops.Num(Array); }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Num(); }
	/** Address of an element; null for an index out of range. */
	uint8* GetRawPtr(int32 Index = 0) const
	{
		return IsValidIndex(Index) ? static_cast<uint8*>(Ops.GetElement(Array, Index)) : nullptr;
	}
	/** Appends a default value and returns its index. */
	int32 AddValue()
	{
		Ops.SetNum(Array, Num() + 1);
		return Num() - 1;
	}
	void Resize(int32 Count) { Ops.SetNum(Array, Count); }
	void EmptyValues() { Ops.SetNum(Array, 0); }
	void InsertValues(int32 Index, int32 Count = 1)
	{
		for (int32 Done = 0; Done < Count; ++Done)
		{
			Ops.Insert(Array, Index);
		}
	}
	void RemoveValues(int32 Index, int32 Count = 1) { Ops.RemoveAt(Array, Index, Count); }

private:
	const Host::FArrayOps& Ops;
	void* Array;
};

/** Common parts of sets and maps. */
class COREUOBJECT_API FMapPropertyBase : public FProperty
{
	DECLARE_FIELD(FMapPropertyBase, FProperty)

	FMapPropertyBase(FProperty* InKey, FProperty* InValue, const Host::FMapOps& InOps);
	virtual ~FMapPropertyBase() override;

	int32 Num(const void* Map) const { return Ops.Num(Map); }
	/** Calls `Visitor` for each pair in order. */
	void ForEach(void* Map, Host::FMapOps::FVisitor Visitor, void* Context) const
	{
		Ops.ForEach(Map, Visitor, Context);
	}

	virtual void InitializeValue(void* Dest) const override { Ops.Construct(Dest); }
	virtual void DestroyValue(void* Dest) const override { Ops.Destroy(Dest); }
	virtual void CopySingleValue(void* Dest, const void* Src) const override { Ops.Copy(Dest, Src); }
	/** The order of the elements does not count. */
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags) const override;
	/** Writes "((key, value),...)" of a map and "(key,...)" of a set. */
	virtual void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue,
		UObject* Parent, int32 PortFlags) const override;
	virtual const TCHAR* ImportText_Direct(
		const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags) const override;
	virtual bool ContainsObjectReference() const override;
	/** Elements whose key became null are removed. */
	virtual void AddReferences(
		void* Value, const UObject* ReferencingObject, FReferenceCollector& Collector) const override;
	virtual void LinkParts() override;

protected:
	const TCHAR* ImportPair(const TCHAR* Buffer, void* Map, UObject* OwnerObject, int32 PortFlags) const;

	FProperty* Key;
	/** Null of a set. */
	FProperty* Value;
	const Host::FMapOps& Ops;
};

class COREUOBJECT_API FSetProperty : public FMapPropertyBase
{
	DECLARE_FIELD(FSetProperty, FMapPropertyBase)

	FSetProperty(FProperty* InElement, const Host::FMapOps& InOps)
		: FMapPropertyBase(InElement, nullptr, InOps)
		, ElementProp(InElement)
	{
	}

	FProperty* ElementProp;

	virtual FString GetCPPType() const override { return FString(TEXT("TSet<")) + Key->GetCPPType() + TEXT(">"); }
};

class COREUOBJECT_API FMapProperty : public FMapPropertyBase
{
	DECLARE_FIELD(FMapProperty, FMapPropertyBase)

	FMapProperty(FProperty* InKey, FProperty* InValue, const Host::FMapOps& InOps)
		: FMapPropertyBase(InKey, InValue, InOps)
		, KeyProp(InKey)
		, ValueProp(InValue)
	{
	}

	FProperty* KeyProp;
	FProperty* ValueProp;

	virtual FString GetCPPType() const override
	{
		return FString(TEXT("TMap<")) + Key->GetCPPType() + TEXT(",") + Value->GetCPPType() + TEXT(">");
	}
};
