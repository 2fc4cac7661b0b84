// SPDX-License-Identifier: MIT
#include "Host/FilePackageStore.h"

#include "Host/MaterialFile.h"
#include "Logging/LogMacros.h"
#include "Materials/Material.h"
#include "Misc/PackageName.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <filesystem>
#include <string>
#include <system_error>

namespace Host
{
namespace
{
/** The file of a package, empty when nothing is mounted that could hold it. */
FString GetFileName(const FString& LongPackageName)
{
	// A name that steps out of its folder is no package's.
	if (LongPackageName.Contains(TEXT("..")) || LongPackageName.Contains(TEXT("\\")))
	{
		return FString();
	}
	FString Path;
	return LongPackageNameToPath(LongPackageName, Path) ? Path + TEXT(".json") : FString();
}

bool IsFile(const FString& Path)
{
	std::error_code Ignored;
	return !Path.IsEmpty() && std::filesystem::is_regular_file(std::string(TCHAR_TO_UTF8(*Path)), Ignored);
}
} // namespace

bool FFilePackageStore::Exists(const FString& LongPackageName)
{
	return IsFile(GetFileName(LongPackageName));
}

UObject* FFilePackageStore::Load(const FString& LongPackageName)
{
	const FString Path = GetFileName(LongPackageName);
	FMaterialFile File;
	FString Error = FString::Printf(TEXT("%s has no file in a mounted content folder."), *LongPackageName);
	if (!IsFile(Path) || !ReadMaterialFile(Path, File, Error))
	{
		UE_LOG(LogTemp, Error, TEXT("%s"), *Error);
		return nullptr;
	}
	UPackage* Package = CreatePackage(*LongPackageName);
	UMaterial* Material = NewObject<UMaterial>(
		Package, FName(*FPackageName::GetShortName(LongPackageName)), EObjectFlags(RF_Public | RF_Standalone));
	File.Apply(*Material);
	Package->MarkAsFullyLoaded();
	Package->SetDirtyFlag(false);
	return Material;
}
} // namespace Host
