// SPDX-License-Identifier: MIT
#include "Misc/Paths.h"
#include "Host/ProjectDirectory.h"

#include <filesystem>
#include <mutex>

namespace
{

struct FProjectDirectory
{
	std::mutex Mutex;
	FString Path = TEXT("./");
};

FProjectDirectory& Project()
{
	static FProjectDirectory Instance;
	return Instance;
}

std::filesystem::path ToNative(const FString& Path)
{
	return std::filesystem::path(std::u16string_view(*Path, static_cast<std::size_t>(Path.Len())));
}

bool IsSlash(TCHAR Char)
{
	return Char == '/' || Char == '\\';
}

int32 LastSlash(const FString& Path)
{
	int32 Index = Path.Len() - 1;
	while (Index >= 0 && !IsSlash(Path[Index]))
	{
		--Index;
	}
	return Index;
}

/** Index of the dot before the extension, or INDEX_NONE. */
int32 ExtensionDot(const FString& Path)
{
	int32 Dot = INDEX_NONE;
	Path.FindLastChar('.', Dot);
	return Dot > LastSlash(Path) ? Dot : static_cast<int32>(INDEX_NONE);
}

} // namespace

void Host::SetProjectDir(const FString& Directory)
{
	std::lock_guard Lock(Project().Mutex);
	Project().Path = Directory;
	FPaths::NormalizeDirectoryName(Project().Path);
	Project().Path /= TEXT("");
}

FString FPaths::ProjectDir()
{
	std::lock_guard Lock(Project().Mutex);
	return Project().Path;
}

FString FPaths::ProjectContentDir()
{
	return ProjectDir() + TEXT("Content/");
}

FString FPaths::ProjectConfigDir()
{
	return ProjectDir() + TEXT("Config/");
}

FString FPaths::ProjectSavedDir()
{
	return ProjectDir() + TEXT("Saved/");
}

FString FPaths::ProjectPluginsDir()
{
	return ProjectDir() + TEXT("Plugins/");
}

bool FPaths::FileExists(const FString& InPath)
{
	std::error_code Error;
	return std::filesystem::is_regular_file(ToNative(InPath), Error);
}

bool FPaths::DirectoryExists(const FString& InPath)
{
	std::error_code Error;
	return std::filesystem::is_directory(ToNative(InPath), Error);
}

FString FPaths::GetPath(const FString& InPath)
{
	const int32 Slash = LastSlash(InPath);
	return Slash == INDEX_NONE ? FString() : InPath.Left(Slash);
}

FString FPaths::GetCleanFilename(const FString& InPath)
{
	return InPath.Mid(LastSlash(InPath) + 1);
}

FString FPaths::GetBaseFilename(const FString& InPath, bool bRemovePath)
{
	const int32 Dot = ExtensionDot(InPath);
	const FString WithoutExtension = Dot == INDEX_NONE ? InPath : InPath.Left(Dot);
	return bRemovePath ? GetCleanFilename(WithoutExtension) : WithoutExtension;
}

FString FPaths::GetExtension(const FString& InPath, bool bIncludeDot)
{
	const int32 Dot = ExtensionDot(InPath);
	return Dot == INDEX_NONE ? FString() : InPath.Mid(bIncludeDot ? Dot : Dot + 1);
}

FString FPaths::GetPathLeaf(const FString& InPath)
{
	FString Path = InPath;
	NormalizeDirectoryName(Path);
	return GetCleanFilename(Path);
}

FString FPaths::ChangeExtension(const FString& InPath, const FString& InNewExtension)
{
	return ExtensionDot(InPath) == INDEX_NONE ? InPath : SetExtension(InPath, InNewExtension);
}

FString FPaths::SetExtension(const FString& InPath, const FString& InNewExtension)
{
	const FString Base = GetBaseFilename(InPath, false);
	const bool bNeedsDot = !InNewExtension.IsEmpty() && !InNewExtension.StartsWith(TEXT("."));
	return Base + (bNeedsDot ? TEXT(".") : TEXT("")) + InNewExtension;
}

bool FPaths::IsRelative(const FString& InPath)
{
	const bool bRooted = !InPath.IsEmpty() && IsSlash(InPath[0]);
	const bool bHasDrive = InPath.Len() > 1 && InPath[1] == ':' && FChar::IsAlpha(InPath[0]);
	return !bRooted && !bHasDrive;
}

void FPaths::NormalizeFilename(FString& InPath)
{
	InPath.ReplaceCharInline('\\', '/');
}

void FPaths::NormalizeDirectoryName(FString& InPath)
{
	NormalizeFilename(InPath);
	// The root keeps its slash.
	while (InPath.Len() > 1 && InPath.EndsWith(TEXT("/")))
	{
		InPath.LeftChopInline(1);
	}
}

bool FPaths::CollapseRelativeDirectories(FString& InPath)
{
	NormalizeFilename(InPath);
	const bool bRooted = InPath.StartsWith(TEXT("/"));
	const bool bEndsWithSlash = InPath.EndsWith(TEXT("/"));
	TArray<FString> Parts;
	InPath.ParseIntoArray(Parts, TEXT("/"));

	TArray<FString> Kept;
	bool bInside = true;
	for (const FString& Part : Parts)
	{
		if (Part == TEXT("."))
		{
			continue;
		}
		if (Part != TEXT(".."))
		{
			Kept.Add(Part);
		}
		else if (!Kept.IsEmpty() && Kept.Last() != TEXT(".."))
		{
			Kept.Pop();
		}
		else if (bRooted)
		{
			bInside = false;
		}
		else
		{
			Kept.Add(Part);
		}
	}
	InPath = (bRooted ? TEXT("/") : TEXT("")) + FString::Join(Kept, TEXT("/"));
	if (bEndsWithSlash && !Kept.IsEmpty())
	{
		InPath += TEXT("/");
	}
	return bInside;
}

FString FPaths::ConvertRelativePathToFull(const FString& InPath)
{
	std::error_code Error;
	const std::u16string WorkingDirectory = std::filesystem::current_path(Error).u16string();
	return ConvertRelativePathToFull(FString(WorkingDirectory.c_str()), InPath);
}

FString FPaths::ConvertRelativePathToFull(const FString& BasePath, const FString& InPath)
{
	FString Result = IsRelative(InPath) ? BasePath / InPath : InPath;
	CollapseRelativeDirectories(Result);
	return Result;
}

void FPaths::AppendPiece(FString& Path, FStringView Piece)
{
	if (!Piece.IsEmpty())
	{
		Path /= Piece;
	}
}
