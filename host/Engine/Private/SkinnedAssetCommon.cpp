// SPDX-License-Identifier: MIT
#include "Engine/SkinnedAssetCommon.h"

#include "Materials/MaterialInterface.h"

FSkeletalMaterial::FSkeletalMaterial(UMaterialInterface* InMaterialInterface, bool /*bInEnableShadowCasting*/,
	bool /*bInRecomputeTangent*/, FName InMaterialSlotName, FName InImportedMaterialSlotName)
	: FSkeletalMaterial(InMaterialInterface, InMaterialSlotName, InImportedMaterialSlotName)
{
}

FSkeletalMaterial::FSkeletalMaterial(
	UMaterialInterface* InMaterialInterface, FName InMaterialSlotName, FName InImportedMaterialSlotName)
	: MaterialInterface(InMaterialInterface)
	, MaterialSlotName(InMaterialSlotName)
	, ImportedMaterialSlotName(InImportedMaterialSlotName)
{
}
