// SPDX-License-Identifier: MIT
/** Questions about names of packages. */
#pragma once

#include "Containers/UnrealString.h"

class FText;

/** A long package name begins with a mounted root: "/Game/Shirts/Blue". An object path goes on with ".Blue". */
struct COREUOBJECT_API FPackageName
{
	/** Everything before the last slash: "/Game/A/B" gives "/Game/A"; empty when there is no second slash. */
	static FString GetLongPackagePath(const FString& InLongPackageName);
	/** What stands behind the last slash. */
	static FString GetShortName(const FString& LongName);
	static FString GetLongPackageAssetName(const FString& InLongPackageName) { return GetShortName(InLongPackageName); }
	/** "/Game/A.B:C" gives "/Game/A". */
	static FString ObjectPathToPackageName(const FString& InObjectPath);
	/** "/Game/A.B:C" gives "B:C", and so does "B:C". */
	static FString ObjectPathToObjectName(const FString& InObjectPath);

	/**
	 * Whether there is a saved package of that name.
	 *
	 * @param OutFilename  receives the path without extension when there is one; may be null
	 */
	static bool DoesPackageExist(
		const FString& LongPackageName, FString* OutFilename = nullptr, bool InAllowTextFormats = true);

	/**
	 * Whether a package may have that name: a mounted root, and no character that is not allowed.
	 *
	 * @param bIncludeReadOnlyRoots  also accepts the roots that hold no content of the user: /Engine, /Script, /Temp
	 * @param OutReason  receives why not; may be null
	 */
	static bool IsValidLongPackageName(
		const FString& InLongPackageName, bool bIncludeReadOnlyRoots = false, FText* OutReason = nullptr);
	/** The same without the root: only what the text itself shows. */
	static bool IsValidTextForLongPackageName(const FString& InLongPackageName, FText* OutReason = nullptr);

	/** Path of the file of a package. @return false when nothing is mounted for the name */
	static bool TryConvertLongPackageNameToFilename(
		const FString& InLongPackageName, FString& OutFilename, const FString& InExtension = FString());
	/** Name of the package of a file. @return false when the file lies outside of all mounts */
	static bool TryConvertFilenameToLongPackageName(const FString& InFilename, FString& OutPackageName);
};
