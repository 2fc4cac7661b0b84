// SPDX-License-Identifier: MIT
/** Making or replacing an object of a name. */
#pragma once

#include "CoreMinimal.h"
#include "Misc/PackageName.h"
#include "ObjectTools.h"
#include "PackageTools.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace ZEFEditorUtils
{

/** The package that an object beside `Outer` goes to: the transient one stays, otherwise one named after the object. */
inline UPackage* FindPackageBeside(UObject* Outer, const FString& LongPackageName)
{
	return Outer == GetTransientPackage() ? GetTransientPackage() : CreatePackage(*LongPackageName);
}

/**
 * Makes an object of class TObject beside `Outer`. One of that class and name is constructed over; one of another
 * class is deleted first.
 *
 * @return the object, or null when an object of another class has the name and is still referenced
 */
template <class TObject>
TObject* CreateAssetObject(UObject* Outer, const FString& Name, EObjectFlags Flags)
{
	const FString LongPackageName = UPackageTools::SanitizePackageName(
		FPackageName::GetLongPackagePath(Outer->GetOutermost()->GetName()) + TEXT("/") + Name);
	UPackage* Package = FindPackageBeside(Outer, LongPackageName);
	const FString ObjectName = ObjectTools::SanitizeObjectName(Name);

	UObject* const OfClass = StaticFindObject(TObject::StaticClass(), Package, *ObjectName);
	UObject* const OfAnyClass = StaticFindObject(UObject::StaticClass(), Package, *ObjectName);
	if (OfClass != nullptr)
	{
		OfClass->PreEditChange(nullptr);
	}
	else if (OfAnyClass != nullptr)
	{
		if (!ObjectTools::DeleteSingleObject(OfAnyClass, true))
		{
			return nullptr;
		}
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS, true);
		Package = FindPackageBeside(Outer, LongPackageName);
	}

	FStaticConstructObjectParameters Params(TObject::StaticClass());
	Params.Outer = Package;
	Params.Name = FName(*ObjectName);
	Params.SetFlags = Flags | RF_Public;
	return static_cast<TObject*>(StaticConstructObject_Internal(Params));
}

} // namespace ZEFEditorUtils
