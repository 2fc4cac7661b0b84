// SPDX-License-Identifier: MIT
#include "Host/ObjectSystem.h"

#include "UObject/ObjectAccess.h"
#include "UObject/ObjectDestruction.h"

namespace Host
{
namespace
{

template <typename FilterType>
std::vector<UObject*> Select(FilterType Filter)
{
	std::vector<UObject*> Result;
	for (int32 Index = 0; Index < GUObjectArray.GetObjectArrayNum(); ++Index)
	{
		UObject* const Object = static_cast<UObject*>(GUObjectArray.IndexToObject(Index)->Object);
		if (Object && Filter(Object))
		{
			Result.push_back(Object);
		}
	}
	return Result;
}

bool IsType(const UObject* Object)
{
	return Object->IsA<UField>() || Object->IsA<UPackage>();
}

} // namespace

void InitObjectSystem()
{
	EnsureIntrinsicClasses();
	RegisterAllTypes();
	GetTransientPackage();
}

void TeardownObjectSystem()
{
	EnsureIntrinsicClasses();
	// Objects that destructors make anew go with the next round.
	for (std::vector<UObject*> Objects; !(Objects = Select([](UObject* Object) { return !IsType(Object); })).empty();)
	{
		for (UObject* Object : Objects)
		{
			FObjectAccess::ItemOf(Object).SetFlags(EInternalObjectFlags::Unreachable);
			if (Object->HasAnyFlags(RF_ClassDefaultObject))
			{
				FObjectAccess::DefaultObjectOf(Object->GetClass()) = nullptr;
			}
		}
		DestroyObjects(Objects);
	}
	const std::vector<UObject*> Types = Select([](UObject*) { return true; });
	for (UObject* Type : Types)
	{
		Type->ConditionalBeginDestroy();
		Type->ConditionalFinishDestroy();
	}
	FObjectAccess::Unregister(Types);
	for (UObject* Type : Types)
	{
		FObjectAccess::Delete(Type);
	}
	GUObjectArray.TrimFreePlaces();
}

} // namespace Host
