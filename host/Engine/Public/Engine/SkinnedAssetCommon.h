// SPDX-License-Identifier: MIT
// Material slots and levels of detail of skinned meshes.
#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineTypes.h"
#include "MeshUVChannelInfo.h"
#include "PerPlatformProperties.h"
#include "SkeletalMeshReductionSettings.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "SkinnedAssetCommon.generated.h"

class UMaterialInterface;

/** One material slot of a skeletal mesh. */
USTRUCT()
struct FSkeletalMaterial
{
	GENERATED_BODY()

	FSkeletalMaterial() = default;

	/** The two flags are kept for old content only: a section's own flags decide. */
	ENGINE_API FSkeletalMaterial(UMaterialInterface* InMaterialInterface, bool bInEnableShadowCasting = true,
		bool bInRecomputeTangent = false, FName InMaterialSlotName = NAME_None,
		FName InImportedMaterialSlotName = NAME_None);
	ENGINE_API FSkeletalMaterial(UMaterialInterface* InMaterialInterface, FName InMaterialSlotName,
		FName InImportedMaterialSlotName = NAME_None);

	/** Null shows the default material. */
	UPROPERTY(EditAnywhere, Category = SkeletalMesh)
	TObjectPtr<UMaterialInterface> MaterialInterface;

	UPROPERTY(EditAnywhere, Category = SkeletalMesh)
	FName MaterialSlotName;

	UPROPERTY()
	FName ImportedMaterialSlotName;

	UPROPERTY()
	FMeshUVChannelInfo UVChannelData;
};

/** Settings of one level of detail of a skeletal mesh. */
USTRUCT()
struct FSkeletalMeshLODInfo
{
	GENERATED_BODY()

	/** Share of the screen's height from which on this level is shown. */
	UPROPERTY(EditAnywhere, Category = SkeletalMeshLODInfo)
	FPerPlatformFloat ScreenSize = FPerPlatformFloat(1.0f);

	/** How much larger than that the mesh must become before a coarser level gives way. */
	UPROPERTY(EditAnywhere, Category = SkeletalMeshLODInfo)
	float LODHysteresis = 0.0f;

	/** Material slot of each section; INDEX_NONE for the section's own. */
	UPROPERTY()
	TArray<int32> LODMaterialMap;

	/** How render data is made from the level. */
	UPROPERTY(EditAnywhere, Category = BuildSettings)
	FSkeletalMeshBuildSettings BuildSettings;

	UPROPERTY(EditAnywhere, Category = ReductionSettings)
	FSkeletalMeshOptimizationSettings ReductionSettings;

	UPROPERTY()
	uint8 bHasBeenSimplified : 1 = 0;
};
