// SPDX-License-Identifier: MIT
/** Operations on paths of files and folders. */
#pragma once

#include "Containers/UnrealString.h"

/** Paths use "/"; a "\" in an argument counts as one where a path is cut. Folders of the project end with a "/". */
class CORE_API FPaths
{
public:
	static FString ProjectDir();
	static FString ProjectContentDir();
	static FString ProjectConfigDir();
	static FString ProjectSavedDir();
	static FString ProjectPluginsDir();

	static bool FileExists(const FString& InPath);
	static bool DirectoryExists(const FString& InPath);

	/** Everything before the last "/": "/A/B.png" gives "/A". */
	static FString GetPath(const FString& InPath);
	/** Name with extension: "/A/B.png" gives "B.png". */
	static FString GetCleanFilename(const FString& InPath);
	/** Name without extension; with the folders when bRemovePath is false. */
	static FString GetBaseFilename(const FString& InPath, bool bRemovePath = true);
	/** Behind the last "." of the name: "png"; empty when there is none. */
	static FString GetExtension(const FString& InPath, bool bIncludeDot = false);
	/** Last part of a path, also of one that ends with a "/". */
	static FString GetPathLeaf(const FString& InPath);
	/** Replaces the extension of a path that has one. */
	static FString ChangeExtension(const FString& InPath, const FString& InNewExtension);
	/** Replaces the extension, or adds one. */
	static FString SetExtension(const FString& InPath, const FString& InNewExtension);

	static bool IsRelative(const FString& InPath);
	/** Every "\" becomes a "/". */
	static void NormalizeFilename(FString& InPath);
	/** As NormalizeFilename, and without a "/" at the end. */
	static void NormalizeDirectoryName(FString& InPath);
	/** Takes "." and ".." out. @return false, and the path cut short, when ".." leads above a full path's root */
	static bool CollapseRelativeDirectories(FString& InPath);
	/** Full path of one that is relative to the working directory. */
	static FString ConvertRelativePathToFull(const FString& InPath);
	static FString ConvertRelativePathToFull(const FString& BasePath, const FString& InPath);

	/** Joins with exactly one "/" between pieces; empty pieces do not count. */
	template <typename... PathTypes>
	static FString Combine(PathTypes&&... InPaths)
	{
		FString Result;
		(AppendPiece(Result, FStringView(InPaths)), ...);
		return Result;
	}

private:
	static void AppendPiece(FString& Path, FStringView Piece);
};
