// SPDX-License-Identifier: MIT
#include "Utils/ZEFTandemEditorUtils.h"

#include "IZEFTandemMisc.h"
#include "Materials/MaterialInstance.h"
#include "Modules/ModuleManager.h"

namespace ZEFEditorUtils
{

static bool bSubstancePluginFound = false;
static bool bSubstanceModuleLoaded = false;

void UpdateSubstanceStatus(bool bPluginFound, bool bModuleLoaded)
{
	bSubstancePluginFound = bPluginFound;
	bSubstanceModuleLoaded = bModuleLoaded;
}

bool CreateSubstanceMaterial(FString AssetPath, FString GraphName, UE::Math::TTransform<float> UVTransform,
	FString PackagePath, FString Name, TWeakObjectPtr<UMaterialInstance>& OutMaterial)
{
	if (!bSubstancePluginFound || !bSubstanceModuleLoaded)
	{
		return false;
	}
	IZEFTandemMisc& Misc = static_cast<IZEFTandemMisc&>(FModuleManager::Get().LoadModuleChecked(TEXT("ZEFTandemMisc")));
	return Misc.CreateSubstanceMaterial(AssetPath, GraphName, UVTransform, PackagePath, Name, OutMaterial);
}

} // namespace ZEFEditorUtils
