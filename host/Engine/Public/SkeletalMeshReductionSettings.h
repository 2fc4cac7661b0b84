// SPDX-License-Identifier: MIT
// How a level of detail is reduced from a finer one.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "SkeletalMeshReductionSettings.generated.h"

/** How a level of detail of a skeletal mesh is reduced from a finer one. */
USTRUCT()
struct FSkeletalMeshOptimizationSettings
{
	GENERATED_BODY()

	/** Share of the triangles that stays, 0..1. */
	UPROPERTY(EditAnywhere, Category = ReductionMethod)
	float NumOfTrianglesPercentage = 0.5f;

	/** Share of the vertices that stays, 0..1. */
	UPROPERTY(EditAnywhere, Category = ReductionMethod)
	float NumOfVertPercentage = 0.5f;

	/** Largest deviation as a share of the radius of the mesh, 0..1; 0 for no limit. */
	UPROPERTY(EditAnywhere, Category = ReductionMethod)
	float MaxDeviationPercentage = 0.5f;

	/** Distance in centimetres below which vertices become one. */
	UPROPERTY(EditAnywhere, Category = FSkeletalMeshOptimizationSettings)
	float WeldingThreshold = 0.1f;

	/** Angle in degrees above which an edge stays hard. */
	UPROPERTY(EditAnywhere, Category = FSkeletalMeshOptimizationSettings)
	float NormalsThreshold = 60.0f;

	UPROPERTY(EditAnywhere, Category = FSkeletalMeshOptimizationSettings)
	int32 MaxBonesPerVertex = 4;

	/** The level of detail to reduce. */
	UPROPERTY(EditAnywhere, Category = FSkeletalMeshOptimizationSettings)
	int32 BaseLOD = 0;
};
