// SPDX-License-Identifier: MIT
/** Where packages come from that are not in memory. */
#pragma once

#include "Containers/UnrealString.h"

class UObject;

namespace Host
{

/** Packages on disk. Called on the game thread. */
struct IPackageStore
{
	virtual ~IPackageStore() = default;

	/** @param LongPackageName  such as "/Game/Shirts/Blue" */
	virtual bool Exists(const FString& LongPackageName) = 0;
	/**
	 * Makes the package with its objects.
	 *
	 * @return its main object, which has the package's short name, or null when there is no such package or it is
	 * damaged
	 */
	virtual UObject* Load(const FString& LongPackageName) = 0;
};

/** Sets the store that is asked for packages which are not in memory; not owned, null for none. */
COREUOBJECT_API void SetPackageStore(IPackageStore* Store);
COREUOBJECT_API IPackageStore* GetPackageStore();

/**
 * Makes the files of a directory packages.
 *
 * @param Root  start of their names, with or without a slash at the end, such as "/Game/"; mounted again, it moves
 */
COREUOBJECT_API void MountContent(const FString& Root, const FString& Directory);
COREUOBJECT_API void UnmountContent(const FString& Root);
/** Mounted roots with a slash at the end, in alphabetical order. */
COREUOBJECT_API TArray<FString> GetContentRoots();

/**
 * Path of a package's file without extension, or of a folder.
 *
 * @return false, with `OutPath` unchanged, when nothing is mounted for the name
 */
COREUOBJECT_API bool LongPackageNameToPath(const FString& LongPackageName, FString& OutPath);
/** Name of the package whose file lies at the path; an extension is dropped. @return false outside of all mounts */
COREUOBJECT_API bool PathToLongPackageName(const FString& Path, FString& OutLongPackageName);

} // namespace Host
