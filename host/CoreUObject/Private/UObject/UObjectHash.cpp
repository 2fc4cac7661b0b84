// SPDX-License-Identifier: MIT
#include "UObject/UObjectHash.h"

#include "UObject/ObjectAccess.h"

#include <unordered_map>
#include <vector>

namespace
{

/** Calls `Visitor` for each live object in the order of the object array. */
template <typename VisitorType>
void ForEachLiveObject(EObjectFlags ExcludeFlags, EInternalObjectFlags ExcludeInternalFlags, VisitorType Visitor)
{
	ExcludeInternalFlags |= EInternalObjectFlags::Unreachable;
	for (int32 Index = 0; Index < GUObjectArray.GetObjectArrayNum(); ++Index)
	{
		const FUObjectItem* Item = GUObjectArray.IndexToObject(Index);
		UObject* const Object = static_cast<UObject*>(Item->Object);
		if (Object && !Item->HasAnyFlags(ExcludeInternalFlags) && !Object->HasAnyFlags(ExcludeFlags))
		{
			Visitor(Object);
		}
	}
}

} // namespace

void GetObjectsOfClass(const UClass* ClassToLookFor, TArray<UObject*>& Results, bool bIncludeDerivedClasses,
	EObjectFlags ExcludeFlags, EInternalObjectFlags ExclusionInternalFlags)
{
	if (!ClassToLookFor)
	{
		return;
	}
	ForEachLiveObject(ExcludeFlags, ExclusionInternalFlags,
		[&](UObject* Object)
		{
			if (bIncludeDerivedClasses ? Object->IsA(ClassToLookFor) : Object->GetClass() == ClassToLookFor)
			{
				Results.Add(Object);
			}
		});
}

void GetObjectsWithOuter(const UObject* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects,
	EObjectFlags ExclusionFlags, EInternalObjectFlags ExclusionInternalFlags)
{
	// One pass collects the children of every object, so that nested ones need no further passes.
	std::unordered_map<const UObject*, std::vector<UObject*>> Children;
	ForEachLiveObject(ExclusionFlags, ExclusionInternalFlags,
		[&](UObject* Object)
		{
			if (bIncludeNestedObjects ? Object->IsIn(Outer) : Object->GetOuter() == Outer)
			{
				Children[Object->GetOuter()].push_back(Object);
			}
		});
	const int32 First = Results.Num();
	const auto Append = [&](const UObject* Parent)
	{
		const auto Found = Children.find(Parent);
		if (Found != Children.end())
		{
			for (UObject* Child : Found->second)
			{
				Results.Add(Child);
			}
		}
	};
	Append(Outer);
	for (int32 Index = First; bIncludeNestedObjects && Index < Results.Num(); ++Index)
	{
		Append(Results[Index]);
	}
}

void GetDerivedClasses(const UClass* ClassToLookFor, TArray<UClass*>& Results, bool bRecursive)
{
	Host::RegisterAllTypes();
	ForEachLiveObject(RF_NoFlags, EInternalObjectFlags::None,
		[&](UObject* Object)
		{
			if (Object->IsA<UClass>())
			{
				UClass* const Class = static_cast<UClass*>(Object);
				const bool bDerived = Class != ClassToLookFor && Class->IsChildOf(ClassToLookFor);
				if (bDerived && (bRecursive || Class->GetSuperClass() == ClassToLookFor))
				{
					Results.Add(Class);
				}
			}
		});
}
