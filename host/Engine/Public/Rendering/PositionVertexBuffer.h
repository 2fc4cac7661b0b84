// SPDX-License-Identifier: MIT
// The positions of a mesh as a renderer reads them.
#pragma once

#include "CoreMinimal.h"

/** Positions in centimetres, one after the other. */
class FPositionVertexBuffer
{
public:
	/** Makes room for that many positions, which are not initialised. */
	void Init(uint32 InNumVertices) { Positions.SetNumUninitialized(int32(InNumVertices), false); }

	FVector3f& VertexPosition(uint32 VertexIndex) { return Positions[int32(VertexIndex)]; }
	const FVector3f& VertexPosition(uint32 VertexIndex) const { return Positions[int32(VertexIndex)]; }
	uint32 GetNumVertices() const { return uint32(Positions.Num()); }

	/** Bytes from one position to the next. */
	uint32 GetStride() const { return sizeof(FVector3f); }

	/** The first byte; null for an empty buffer. */
	const void* GetVertexData() const { return Positions.GetData(); }
	void* GetVertexData() { return Positions.GetData(); }

private:
	TArray<FVector3f> Positions;
};
