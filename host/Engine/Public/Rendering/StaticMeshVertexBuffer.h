// SPDX-License-Identifier: MIT
// Tangents and texture coordinates of a mesh as a renderer reads them.
#pragma once

#include "CoreMinimal.h"
#include "Math/Vector2DHalf.h"
#include "PackedNormal.h"

/**
 * Tangents and texture coordinates of each vertex, each in one of two precisions. The accessors decode, so that a
 * reader need not know which.
 */
class FStaticMeshVertexBuffer
{
public:
	/** Tangents of 16 instead of 8 bits a component; set before Init. */
	void SetUseHighPrecisionTangentBasis(bool bUse) { bUseHighPrecisionTangentBasis = bUse; }

	/** Texture coordinates of 32 instead of 16 bits; set before Init. */
	void SetUseFullPrecisionUVs(bool bUse) { bUseFullPrecisionUVs = bUse; }
	bool GetUseHighPrecisionTangentBasis() const { return bUseHighPrecisionTangentBasis; }
	bool GetUseFullPrecisionUVs() const { return bUseFullPrecisionUVs; }

	/** Makes room; nothing is initialised. */
	ENGINE_API void Init(uint32 InNumVertices, uint32 InNumTexCoords);

	uint32 GetNumVertices() const { return NumVertices; }
	uint32 GetNumTexCoords() const { return NumTexCoords; }

	/** @param TangentZ the normal; the sign of its W is the sign of the basis */
	ENGINE_API void SetVertexTangents(uint32 VertexIndex, const FVector3f& TangentX, const FVector4f& TangentZ);
	ENGINE_API void SetVertexUV(uint32 VertexIndex, uint32 UVIndex, const FVector2f& UV);

	/** W is 1. */
	ENGINE_API FVector4f VertexTangentX(uint32 VertexIndex) const;

	/** Cross product of the normal and the tangent times the sign of the basis. */
	ENGINE_API FVector3f VertexTangentY(uint32 VertexIndex) const;

	/** The normal; W is the sign of the basis. */
	ENGINE_API FVector4f VertexTangentZ(uint32 VertexIndex) const;
	ENGINE_API FVector2f GetVertexUV(uint32 VertexIndex, uint32 UVIndex) const;

private:
	template <typename PackedType>
	struct TTangents
	{
		PackedType X;
		PackedType Z;
	};

	/** One of each pair is filled, as the precision says. */
	TArray<TTangents<FPackedNormal>> Tangents;
	TArray<TTangents<FPackedRGBA16N>> HighPrecisionTangents;
	TArray<FVector2DHalf> UVs;
	TArray<FVector2f> FullPrecisionUVs;
	uint32 NumVertices = 0;
	uint32 NumTexCoords = 0;
	bool bUseHighPrecisionTangentBasis = false;
	bool bUseFullPrecisionUVs = false;
};
