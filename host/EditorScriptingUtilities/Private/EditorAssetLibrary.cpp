// SPDX-License-Identifier: MIT
#include "EditorAssetLibrary.h"

#include "Host/PackageStore.h"
#include "Misc/PackageName.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

bool UEditorAssetLibrary::DoesAssetExist(const FString& AssetPath)
{
	FString PackageName = AssetPath;
	FString ObjectName;
	if (AssetPath.Split(TEXT("."), &PackageName, &ObjectName))
	{
		// A package holds one asset, which has its name.
		if (ObjectName != FPackageName::GetShortName(PackageName))
		{
			return false;
		}
	}
	else
	{
		ObjectName = FPackageName::GetShortName(PackageName);
	}
	if (!PackageName.StartsWith(TEXT("/")) || ObjectName.IsEmpty())
	{
		return false;
	}
	if (UPackage* Package = FindPackage(nullptr, *PackageName))
	{
		const UObject* Object = StaticFindObject(UObject::StaticClass(), Package, *ObjectName);
		if (Object && Object->IsAsset())
		{
			return true;
		}
	}
	Host::IPackageStore* Store = Host::GetPackageStore();
	return Store && Store->Exists(PackageName);
}
