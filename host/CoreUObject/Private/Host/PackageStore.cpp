// SPDX-License-Identifier: MIT
#include "Host/PackageStore.h"

#include <map>
#include <string>

namespace Host
{
namespace
{

IPackageStore* CurrentStore = nullptr;

struct FMount
{
	FString Root;
	FString Directory;
};

/** By the root in lower case: package names ignore the case. */
std::map<std::u16string, FMount>& Mounts()
{
	static std::map<std::u16string, FMount> Map;
	return Map;
}

FString WithSlash(const FString& Path)
{
	FString Result = Path.Replace(TEXT("\\"), TEXT("/"));
	return Result.EndsWith(TEXT("/")) ? Result : Result + TEXT("/");
}

std::u16string KeyOf(const FString& Root)
{
	return *Root.ToLower();
}

} // namespace

void SetPackageStore(IPackageStore* Store)
{
	CurrentStore = Store;
}

IPackageStore* GetPackageStore()
{
	return CurrentStore;
}

void MountContent(const FString& Root, const FString& Directory)
{
	const FString FullRoot = WithSlash(Root);
	Mounts()[KeyOf(FullRoot)] = {FullRoot, WithSlash(Directory)};
}

void UnmountContent(const FString& Root)
{
	Mounts().erase(KeyOf(WithSlash(Root)));
}

TArray<FString> GetContentRoots()
{
	TArray<FString> Roots;
	for (const auto& [Key, Mount] : Mounts())
	{
		Roots.Add(Mount.Root);
	}
	return Roots;
}

bool LongPackageNameToPath(const FString& LongPackageName, FString& OutPath)
{
	// The longest root wins: "/Game/Shared/" may be mounted beside "/Game/".
	const FMount* Best = nullptr;
	for (const auto& [Key, Mount] : Mounts())
	{
		if (WithSlash(LongPackageName).StartsWith(Mount.Root) && (!Best || Mount.Root.Len() > Best->Root.Len()))
		{
			Best = &Mount;
		}
	}
	if (Best)
	{
		OutPath = Best->Directory + LongPackageName.RightChop(Best->Root.Len());
	}
	return Best != nullptr;
}

bool PathToLongPackageName(const FString& Path, FString& OutLongPackageName)
{
	const FString Slashed = Path.Replace(TEXT("\\"), TEXT("/"));
	const FMount* Best = nullptr;
	for (const auto& [Key, Mount] : Mounts())
	{
		if (Slashed.StartsWith(Mount.Directory, ESearchCase::CaseSensitive) &&
			(!Best || Mount.Directory.Len() > Best->Directory.Len()))
		{
			Best = &Mount;
		}
	}
	if (!Best)
	{
		return false;
	}
	FString Name = Slashed.RightChop(Best->Directory.Len());
	int32 Slash = INDEX_NONE;
	int32 Dot = INDEX_NONE;
	Name.FindLastChar(TEXT('/'), Slash);
	if (Name.FindLastChar(TEXT('.'), Dot) && Dot > Slash)
	{
		Name = Name.Left(Dot);
	}
	OutLongPackageName = Best->Root + Name;
	return true;
}

} // namespace Host
