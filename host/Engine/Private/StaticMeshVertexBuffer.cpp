// SPDX-License-Identifier: MIT
#include "Rendering/StaticMeshVertexBuffer.h"

void FStaticMeshVertexBuffer::Init(uint32 InNumVertices, uint32 InNumTexCoords)
{
	NumVertices = InNumVertices;
	NumTexCoords = InNumTexCoords;
	const int32 NumUVs = int32(NumVertices * NumTexCoords);
	Tangents.SetNumUninitialized(bUseHighPrecisionTangentBasis ? 0 : int32(NumVertices), false);
	HighPrecisionTangents.SetNumUninitialized(bUseHighPrecisionTangentBasis ? int32(NumVertices) : 0, false);
	UVs.SetNumUninitialized(bUseFullPrecisionUVs ? 0 : NumUVs, false);
	FullPrecisionUVs.SetNumUninitialized(bUseFullPrecisionUVs ? NumUVs : 0, false);
}

void FStaticMeshVertexBuffer::SetVertexTangents(
	uint32 VertexIndex, const FVector3f& TangentX, const FVector4f& TangentZ)
{
	const FVector4f Normal(TangentZ.X, TangentZ.Y, TangentZ.Z, TangentZ.W < 0.0f ? -1.0f : 1.0f);
	if (bUseHighPrecisionTangentBasis)
	{
		HighPrecisionTangents[int32(VertexIndex)] = {FPackedRGBA16N(TangentX), FPackedRGBA16N(Normal)};
	}
	else
	{
		Tangents[int32(VertexIndex)] = {FPackedNormal(TangentX), FPackedNormal(Normal)};
	}
}

void FStaticMeshVertexBuffer::SetVertexUV(uint32 VertexIndex, uint32 UVIndex, const FVector2f& UV)
{
	const int32 Place = int32(VertexIndex * NumTexCoords + UVIndex);
	if (bUseFullPrecisionUVs)
	{
		FullPrecisionUVs[Place] = UV;
	}
	else
	{
		UVs[Place] = FVector2DHalf(UV);
	}
}

FVector4f FStaticMeshVertexBuffer::VertexTangentX(uint32 VertexIndex) const
{
	return bUseHighPrecisionTangentBasis ? HighPrecisionTangents[int32(VertexIndex)].X.ToFVector4f()
										 : Tangents[int32(VertexIndex)].X.ToFVector4f();
}

FVector4f FStaticMeshVertexBuffer::VertexTangentZ(uint32 VertexIndex) const
{
	return bUseHighPrecisionTangentBasis ? HighPrecisionTangents[int32(VertexIndex)].Z.ToFVector4f()
										 : Tangents[int32(VertexIndex)].Z.ToFVector4f();
}

FVector3f FStaticMeshVertexBuffer::VertexTangentY(uint32 VertexIndex) const
{
	const FVector4f Normal = VertexTangentZ(VertexIndex);
	return (FVector3f(Normal) ^ FVector3f(VertexTangentX(VertexIndex))) * Normal.W;
}

FVector2f FStaticMeshVertexBuffer::GetVertexUV(uint32 VertexIndex, uint32 UVIndex) const
{
	const int32 Place = int32(VertexIndex * NumTexCoords + UVIndex);
	return bUseFullPrecisionUVs ? FullPrecisionUVs[Place] : FVector2f(UVs[Place]);
}
