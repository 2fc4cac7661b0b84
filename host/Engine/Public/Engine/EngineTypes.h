// SPDX-License-Identifier: MIT
// Enumerations and settings that materials, meshes, components and worlds share.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "Engine/EngineBaseTypes.h"
#include "EngineTypes.generated.h"

/** How the colour of a surface meets what lies behind it. */
UENUM()
enum EBlendMode : int
{
	/** Covers what lies behind. */
	BLEND_Opaque = 0,
	/** Covers where the opacity mask reaches the clip value, is absent elsewhere. */
	BLEND_Masked = 1,
	/** Mixed by opacity. */
	BLEND_Translucent = 2,
	BLEND_Additive = 3,
	BLEND_Modulate = 4,
	BLEND_AlphaComposite = 5,
	BLEND_AlphaHoldout = 6,
	BLEND_TranslucentColoredTransmittance = 7,
	BLEND_MAX = 8
};

/** The lighting model of a material. */
UENUM()
enum EMaterialShadingModel : int
{
	MSM_Unlit = 0,
	MSM_DefaultLit = 1,
	MSM_Subsurface = 2,
	MSM_PreintegratedSkin = 3,
	MSM_ClearCoat = 4,
	MSM_SubsurfaceProfile = 5,
	MSM_TwoSidedFoliage = 6,
	MSM_Hair = 7,
	MSM_Cloth = 8,
	MSM_Eye = 9,
	MSM_SingleLayerWater = 10,
	MSM_ThinTranslucent = 11
};

/** Whether a scene component may move. */
UENUM()
namespace EComponentMobility
{
enum Type : int
{
	/** Never moves. */
	Static = 0,
	/** Does not move; its light may change. */
	Stationary = 1,
	/** Moves freely. */
	Movable = 2
};
} // namespace EComponentMobility

/** What a world is for. */
UENUM()
namespace EWorldType
{
enum Type : int
{
	None = 0,
	Game = 1,
	Editor = 2,
	PIE = 3,
	/** A preview scene of an editor window. */
	EditorPreview = 4,
	GamePreview = 5,
	GameRPC = 6,
	Inactive = 7
};
} // namespace EWorldType

/** Why an actor leaves its world. */
UENUM()
namespace EEndPlayReason
{
enum Type : int
{
	Destroyed = 0,
	LevelTransition = 1,
	EndPlayInEditor = 2,
	RemovedFromWorld = 3,
	Quit = 4
};
} // namespace EEndPlayReason

/** What happens when a spawned actor would stand inside another. */
UENUM()
enum class ESpawnActorCollisionHandlingMethod : uint8
{
	Undefined = 0,
	AlwaysSpawn = 1,
	AdjustIfPossibleButAlwaysSpawn = 2,
	AdjustIfPossibleButDontSpawnIfColliding = 3,
	DontSpawnIfColliding = 4
};

/** How a component takes its place when it is attached. */
UENUM()
enum class EAttachmentRule : uint8
{
	/** Keeps its relative transform. */
	KeepRelative = 0,
	/** Keeps its place in the world. */
	KeepWorld = 1,
	/** Takes the parent's place. */
	SnapToTarget = 2
};

/** Attachment rules for location, rotation and scale. */
struct FAttachmentTransformRules
{
	EAttachmentRule LocationRule;
	EAttachmentRule RotationRule;
	EAttachmentRule ScaleRule;
	bool bWeldSimulatedBodies;

	FAttachmentTransformRules(EAttachmentRule InRule, bool bInWeldSimulatedBodies)
		: LocationRule(InRule)
		, RotationRule(InRule)
		, ScaleRule(InRule)
		, bWeldSimulatedBodies(bInWeldSimulatedBodies)
	{
	}

	ENGINE_API static const FAttachmentTransformRules KeepRelativeTransform;
	ENGINE_API static const FAttachmentTransformRules KeepWorldTransform;
	ENGINE_API static const FAttachmentTransformRules SnapToTargetNotIncludingScale;
};

/** How a component takes its place when it leaves its parent. */
enum class EDetachmentRule : uint8
{
	/** Keeps its relative transform. */
	KeepRelative = 0,
	/** Keeps its place in the world. */
	KeepWorld = 1
};

/** Detachment rules for location, rotation and scale. */
struct FDetachmentTransformRules
{
	EDetachmentRule LocationRule;
	EDetachmentRule RotationRule;
	EDetachmentRule ScaleRule;
	bool bCallModify;

	FDetachmentTransformRules(EDetachmentRule InRule, bool bInCallModify)
		: LocationRule(InRule)
		, RotationRule(InRule)
		, ScaleRule(InRule)
		, bCallModify(bInCallModify)
	{
	}

	ENGINE_API static const FDetachmentTransformRules KeepRelativeTransform;
	ENGINE_API static const FDetachmentTransformRules KeepWorldTransform;
};

/** How render data is made from one level of detail of a skeletal mesh. */
USTRUCT()
struct FSkeletalMeshBuildSettings
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = BuildSettings)
	uint8 bRecomputeNormals : 1 = 1;

	UPROPERTY(EditAnywhere, Category = BuildSettings)
	uint8 bRecomputeTangents : 1 = 1;

	UPROPERTY(EditAnywhere, Category = BuildSettings)
	uint8 bUseMikkTSpace : 1 = 1;

	UPROPERTY(EditAnywhere, Category = BuildSettings)
	uint8 bComputeWeightedNormals : 1 = 0;

	UPROPERTY(EditAnywhere, Category = BuildSettings)
	uint8 bRemoveDegenerates : 1 = 1;

	/** Tangents of 16 instead of 8 bits a component. */
	UPROPERTY(EditAnywhere, Category = BuildSettings)
	uint8 bUseHighPrecisionTangentBasis : 1 = 0;

	/** Weights of 16 instead of 8 bits. */
	UPROPERTY(EditAnywhere, Category = BuildSettings)
	uint8 bUseHighPrecisionSkinWeights : 1 = 0;

	/** Texture coordinates of 32 instead of 16 bits. */
	UPROPERTY(EditAnywhere, Category = BuildSettings)
	uint8 bUseFullPrecisionUVs : 1 = 0;

	UPROPERTY(EditAnywhere, Category = BuildSettings)
	uint8 bUseBackwardsCompatibleF16TruncUVs : 1 = 0;

	UPROPERTY(EditAnywhere, Category = BuildSettings)
	float ThresholdPosition = 0.00002f;

	UPROPERTY(EditAnywhere, Category = BuildSettings)
	float ThresholdTangentNormal = 0.00002f;

	UPROPERTY(EditAnywhere, Category = BuildSettings)
	float ThresholdUV = 0.0009765625f;

	UPROPERTY(EditAnywhere, Category = BuildSettings)
	float MorphThresholdPosition = 0.015f;
};
