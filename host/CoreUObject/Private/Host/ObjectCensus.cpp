// SPDX-License-Identifier: MIT
#include "Host/ObjectCensus.h"

#include "UObject/ObjectAccess.h"

namespace Host
{
namespace
{

template <typename VisitorType>
void ForEachCounted(VisitorType Visitor)
{
	for (int32 Index = 0; Index < GUObjectArray.GetObjectArrayNum(); ++Index)
	{
		const FUObjectItem* Item = GUObjectArray.IndexToObject(Index);
		UObject* const Object = static_cast<UObject*>(Item->Object);
		if (Object && !Item->HasAnyFlags(EInternalObjectFlags::Native) && !Object->IsTemplate())
		{
			Visitor(Object);
		}
	}
}

} // namespace

FObjectCensus TakeObjectCensus()
{
	FObjectCensus Census;
	ForEachCounted(
		[&Census](const UObject* Object)
		{
			++Census.Counts.FindOrAdd(Object->GetClass()->GetName());
			++Census.Total;
		});
	return Census;
}

FString CompareObjectCensus(const FObjectCensus& Before, const FObjectCensus& After)
{
	TArray<FString> Names;
	Before.Counts.GenerateKeyArray(Names);
	for (const auto& Pair : After.Counts)
	{
		Names.AddUnique(Pair.Key);
	}
	Names.Sort();
	FString Result;
	for (const FString& Name : Names)
	{
		const int32 Difference = After.Counts.FindRef(Name) - Before.Counts.FindRef(Name);
		if (Difference != 0)
		{
			Result += Result.IsEmpty() ? TEXT("") : TEXT(", ");
			Result += FString::Printf(TEXT("%s %+d"), *Name, Difference);
		}
	}
	return Result;
}

FString ListObjectsOfClass(const FString& ClassName)
{
	FString Result;
	ForEachCounted(
		[&](const UObject* Object)
		{
			if (Object->GetClass()->GetName() == ClassName)
			{
				Result += Object->GetPathName() + TEXT("\n");
			}
		});
	return Result;
}

} // namespace Host
