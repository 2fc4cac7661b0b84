// SPDX-License-Identifier: MIT
#include "UObject/PropertyContainers.h"

#include "UObject/GCObject.h"
#include "UObject/PropertyObjects.h"
#include "UObject/PropertyText.h"

#include <vector>

namespace
{

/** Gives a part the owner of the whole, and the whole the marks of a part that refers to objects. */
void LinkPart(FProperty& Whole, FProperty& Part)
{
	constexpr EPropertyFlags Shared = CPF_Edit | CPF_EditConst | CPF_InstancedReference | CPF_ExportObject;
	Part.NamePrivate = Whole.NamePrivate;
	Part.PropertyFlags |= Whole.PropertyFlags & Shared;
	Part.LinkParts();
	if (Part.HasAnyPropertyFlags(CPF_InstancedReference))
	{
		Whole.PropertyFlags |= CPF_InstancedReference | CPF_ExportObject;
		Whole.SetMetaData(TEXT("EditInline"), TEXT("true"));
	}
}

/** Room for one value of a property. */
class FValue
{
public:
	explicit FValue(const FProperty& InProperty)
		: Property(InProperty)
		, Memory(::operator new(InProperty.ElementSize))
	{
		Property.InitializeValue(Memory);
	}
	~FValue()
	{
		Property.DestroyValue(Memory);
		::operator delete(Memory);
	}
	FValue(const FValue&) = delete;
	FValue& operator=(const FValue&) = delete;

	void* Get() const { return Memory; }

private:
	const FProperty& Property;
	void* Memory;
};

/** Goes on over a comma; stays on the end of the list. Null for anything else. */
const TCHAR* NextElement(const TCHAR* At)
{
	if (!At)
	{
		return nullptr;
	}
	At = Host::SkipBlanks(At);
	return *At == TEXT(',') ? At + 1 : (*At == TEXT(')') ? At : nullptr);
}

} // namespace

// Arrays

FArrayProperty::FArrayProperty(FProperty* InInner, const Host::FArrayOps& InOps)
	: Inner(InInner)
	, Ops(InOps)
{
	ElementSize = sizeof(TArray<uint8>);
}

FArrayProperty::~FArrayProperty()
{
	delete Inner;
}

bool FArrayProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	const FScriptArrayHelper First(this, A);
	const FScriptArrayHelper Second(this, B);
	bool bSame = First.Num() == Second.Num();
	for (int32 Index = 0; bSame && Index < First.Num(); ++Index)
	{
		bSame = Inner->Identical(First.GetRawPtr(Index), Second.GetRawPtr(Index), PortFlags);
	}
	return bSame;
}

void FArrayProperty::ExportTextItem_Direct(
	FString& ValueStr, const void* PropertyValue, const void*, UObject* Parent, int32 PortFlags) const
{
	const FScriptArrayHelper Helper(this, PropertyValue);
	ValueStr += TEXT('(');
	for (int32 Index = 0; Index < Helper.Num(); ++Index)
	{
		ValueStr += Index ? TEXT(",") : TEXT("");
		Inner->ExportTextItem_Direct(ValueStr, Helper.GetRawPtr(Index), nullptr, Parent, PortFlags | PPF_Delimited);
	}
	ValueStr += TEXT(')');
}

const TCHAR* FArrayProperty::ImportText_Direct(
	const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags) const
{
	const TCHAR* At = Host::SkipBlanks(Buffer);
	if (*At != TEXT('('))
	{
		return nullptr;
	}
	// Elements go into a new array first, so that a mistake in the middle leaves the old one as it was.
	const FValue Fresh(*this);
	FScriptArrayHelper Helper(this, Fresh.Get());
	At = Host::SkipBlanks(At + 1);
	while (At && *At != TEXT(')'))
	{
		const int32 Index = Helper.AddValue();
		At = NextElement(Inner->ImportText_Direct(At, Helper.GetRawPtr(Index), OwnerObject, PortFlags | PPF_Delimited));
		At = At ? Host::SkipBlanks(At) : nullptr;
	}
	if (!At)
	{
		return nullptr;
	}
	CopySingleValue(PropertyPtr, Fresh.Get());
	return At + 1;
}

void FArrayProperty::AddReferences(void* Value, const UObject* ReferencingObject, FReferenceCollector& Collector) const
{
	const FScriptArrayHelper Helper(this, Value);
	for (int32 Index = 0; Index < Helper.Num(); ++Index)
	{
		Inner->AddReferences(Helper.GetRawPtr(Index), ReferencingObject, Collector);
	}
}

void FArrayProperty::LinkParts()
{
	LinkPart(*this, *Inner);
}

// Sets and maps

FMapPropertyBase::FMapPropertyBase(FProperty* InKey, FProperty* InValue, const Host::FMapOps& InOps)
	: Key(InKey)
	, Value(InValue)
	, Ops(InOps)
{
	ElementSize = InOps.Size;
}

FMapPropertyBase::~FMapPropertyBase()
{
	delete Key;
	delete Value;
}

bool FMapPropertyBase::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	struct FContext
	{
		const FMapPropertyBase& Map;
		const void* Other;
		uint32 PortFlags;
		bool bSame;
	} Context{*this, B, PortFlags, Ops.Num(A) == Ops.Num(B)};
	Ops.ForEach(
		const_cast<void*>(A),
		[](const void* PairKey, void* PairValue, void* Erased)
		{
			FContext& Comparison = *static_cast<FContext*>(Erased);
			const FMapPropertyBase& Map = Comparison.Map;
			const void* Found = Map.Ops.Find(Comparison.Other, PairKey);
			Comparison.bSame &= Found && (!Map.Value || Map.Value->Identical(PairValue, Found, Comparison.PortFlags));
		},
		&Context);
	return Context.bSame;
}

void FMapPropertyBase::ExportTextItem_Direct(
	FString& ValueStr, const void* PropertyValue, const void*, UObject* Parent, int32 PortFlags) const
{
	struct FContext
	{
		const FMapPropertyBase& Map;
		FString& Out;
		UObject* Parent;
		int32 PortFlags;
		bool bFirst;
	} Context{*this, ValueStr, Parent, PortFlags | PPF_Delimited, true};
	ValueStr += TEXT('(');
	Ops.ForEach(
		const_cast<void*>(PropertyValue),
		[](const void* PairKey, void* PairValue, void* Erased)
		{
			FContext& Export = *static_cast<FContext*>(Erased);
			const FMapPropertyBase& Map = Export.Map;
			Export.Out += Export.bFirst ? TEXT("") : TEXT(",");
			Export.Out += Map.Value ? TEXT("(") : TEXT("");
			Export.bFirst = false;
			Map.Key->ExportTextItem_Direct(Export.Out, PairKey, nullptr, Export.Parent, Export.PortFlags);
			if (Map.Value)
			{
				Export.Out += TEXT(", ");
				Map.Value->ExportTextItem_Direct(Export.Out, PairValue, nullptr, Export.Parent, Export.PortFlags);
				Export.Out += TEXT(")");
			}
		},
		&Context);
	ValueStr += TEXT(')');
}

const TCHAR* FMapPropertyBase::ImportPair(const TCHAR* Buffer, void* Map, UObject* OwnerObject, int32 PortFlags) const
{
	const FValue NewKey(*Key);
	const TCHAR* At = Host::SkipBlanks(Buffer);
	if (!Value)
	{
		At = Key->ImportText_Direct(At, NewKey.Get(), OwnerObject, PortFlags);
		if (At)
		{
			Ops.Add(Map, NewKey.Get());
		}
		return At;
	}
	At = *At == TEXT('(') ? Key->ImportText_Direct(At + 1, NewKey.Get(), OwnerObject, PortFlags) : nullptr;
	At = At ? Host::SkipBlanks(At) : nullptr;
	if (!At || *At != TEXT(','))
	{
		return nullptr;
	}
	At = Value->ImportText_Direct(Host::SkipBlanks(At + 1), Ops.Add(Map, NewKey.Get()), OwnerObject, PortFlags);
	At = At ? Host::SkipBlanks(At) : nullptr;
	return At && *At == TEXT(')') ? At + 1 : nullptr;
}

const TCHAR* FMapPropertyBase::ImportText_Direct(
	const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags) const
{
	const TCHAR* At = Host::SkipBlanks(Buffer);
	if (*At != TEXT('('))
	{
		return nullptr;
	}
	const FValue Fresh(*this);
	At = Host::SkipBlanks(At + 1);
	while (At && *At != TEXT(')'))
	{
		At = NextElement(ImportPair(At, Fresh.Get(), OwnerObject, PortFlags | PPF_Delimited));
		At = At ? Host::SkipBlanks(At) : nullptr;
	}
	if (!At)
	{
		return nullptr;
	}
	CopySingleValue(PropertyPtr, Fresh.Get());
	return At + 1;
}

bool FMapPropertyBase::ContainsObjectReference() const
{
	return Key->ContainsObjectReference() || (Value && Value->ContainsObjectReference());
}

void FMapPropertyBase::AddReferences(void* Map, const UObject* ReferencingObject, FReferenceCollector& Collector) const
{
	struct FChange
	{
		UObject* Old;
		UObject* New;
	};
	struct FContext
	{
		const FMapPropertyBase& Map;
		const FObjectProperty* ObjectKey;
		const UObject* ReferencingObject;
		FReferenceCollector& Collector;
		std::vector<FChange> Changes;
	} Context{*this, CastField<FObjectProperty>(Key), ReferencingObject, Collector, {}};
	Ops.ForEach(
		Map,
		[](const void* PairKey, void* PairValue, void* Erased)
		{
			FContext& Report = *static_cast<FContext*>(Erased);
			if (Report.ObjectKey)
			{
				// The collector may change the reference, but a key has its place by its value.
				UObject* const Old = Report.ObjectKey->GetObjectPropertyValue(PairKey);
				UObject* Object = Old;
				Report.Collector.AddReferencedObject(Object, Report.ReferencingObject, Report.ObjectKey);
				if (Object != Old)
				{
					Report.Changes.push_back({Old, Object});
				}
			}
			if (Report.Map.Value && Report.Map.Value->ContainsObjectReference())
			{
				Report.Map.Value->AddReferences(PairValue, Report.ReferencingObject, Report.Collector);
			}
		},
		&Context);
	for (const FChange& Change : Context.Changes)
	{
		if (Change.New)
		{
			void* const NewValue = Ops.Add(Map, &Change.New);
			if (Value)
			{
				Value->CopySingleValue(NewValue, Ops.Find(Map, &Change.Old));
			}
		}
		Ops.Remove(Map, &Change.Old);
	}
}

void FMapPropertyBase::LinkParts()
{
	LinkPart(*this, *Key);
	if (Value)
	{
		LinkPart(*this, *Value);
	}
}
