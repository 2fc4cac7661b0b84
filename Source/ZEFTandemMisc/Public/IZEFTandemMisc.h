// SPDX-License-Identifier: MIT
/** What the editor module asks of the companion module, which it loads by name and never links against. */
#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"
#include "UObject/WeakObjectPtrTemplates.h"

class UMaterialInstance;

class IZEFTandemMisc : public IModuleInterface
{
public:
	/**
	 * Builds the material instance of a Substance graph.
	 *
	 * @param AssetPath    the Substance asset, as the garment application names it
	 * @param GraphName    the graph inside that asset
	 * @param UVTransform  placement of the texture coordinates
	 * @param PackagePath  long package path that the instance goes to, without a trailing slash
	 * @param Name         name of the instance
	 * @param OutMaterial  the instance, on success alone
	 * @return false when no instance could be made; OutMaterial is then as it was
	 */
	virtual bool CreateSubstanceMaterial(FString AssetPath, FString GraphName, FTransform3f UVTransform,
		FString PackagePath, FString Name, TWeakObjectPtr<UMaterialInstance>& OutMaterial) = 0;
};
