// SPDX-License-Identifier: MIT
// Small types that the source and the render data of skeletal meshes share.
#pragma once

#include "CoreMinimal.h"
#include "BoneIndices.h"
#include "Components.h"
#include "GPUSkinPublicDefs.h"
#include "Misc/Guid.h"

/** The vertex colour channel that masks something; None masks nothing. */
enum class ESkinVertexColorChannel : uint8
{
	Red = 0,
	Green = 1,
	Blue = 2,
	None = 3,
	Alpha = None
};

/** How one vertex follows a triangle of a cloth mesh. */
struct FMeshToMeshVertData
{
	/** Barycentric coordinates and distance of the position, of the end of the normal and of the end of the tangent. */
	FVector4f PositionBaryCoordsAndDist = FVector4f(0.0f, 0.0f, 0.0f, 0.0f);
	FVector4f NormalBaryCoordsAndDist = FVector4f(0.0f, 0.0f, 0.0f, 0.0f);
	FVector4f TangentBaryCoordsAndDist = FVector4f(0.0f, 0.0f, 0.0f, 0.0f);

	/** The triangle; the fourth value is a flag word. */
	uint16 SourceMeshVertIndices[4] = {};
	float Weight = 0.0f;
};

/** The cloth that a section belongs to. */
struct FClothingSectionData
{
	FGuid AssetGuid;
	int32 AssetLodIndex = INDEX_NONE;

	bool IsValid() const { return AssetGuid.IsValid() && AssetLodIndex != INDEX_NONE; }
};
