// SPDX-License-Identifier: MIT
// The vertex colours of a mesh as a renderer reads them.
#pragma once

#include "CoreMinimal.h"

/** Vertex colours; without any the buffer has no vertices, so test the count before reading one. */
class FColorVertexBuffer
{
public:
	/** Makes room for that many colours, which are not initialised. */
	void Init(uint32 InNumVertices) { Colors.SetNumUninitialized(int32(InNumVertices), false); }

	FColor& VertexColor(uint32 VertexIndex) { return Colors[int32(VertexIndex)]; }
	const FColor& VertexColor(uint32 VertexIndex) const { return Colors[int32(VertexIndex)]; }
	uint32 GetNumVertices() const { return uint32(Colors.Num()); }

	/** Copies all colours. */
	void GetVertexColors(TArray<FColor>& OutColors) const { OutColors = Colors; }

private:
	TArray<FColor> Colors;
};
