// SPDX-License-Identifier: MIT
// Whoever turns views into pictures.
#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "SceneManagement.h"
#include "SceneView.h"

class FViewport;

namespace Host
{
struct FViewLine
{
	FVector Start;
	FVector End;
	FLinearColor Color;
	ESceneDepthPriorityGroup DepthPriorityGroup;
	/** Pixels; 0 for the thinnest. */
	float Thickness;
};

/** A square of crossing lines around the origin; every eighth line is a major one, the two in the middle are axes. */
struct FViewGrid
{
	FLinearColor AxisColor;
	FLinearColor MajorColor;
	FLinearColor MinorColor;
	/** Half the side, cm. */
	double HalfSize = 0.0;
	/** Cells along the side. */
	int32 NumCells = 0;
	/** Height in the world, cm. */
	double Height = 0.0;

	double CellSize() const { return NumCells > 0 ? 2.0 * HalfSize / NumCells : 0.0; }
};

/** What a view shows beside its scene. */
struct FViewDrawing
{
	TArray<FViewLine> Lines;
	TOptional<FViewGrid> Grid;
};

/** Called on the game thread each time that the picture of an editor viewport changes. */
class IViewPainter
{
public:
	virtual ~IViewPainter() = default;

	virtual void Paint(FViewport& Viewport, const FSceneView& View, const FViewDrawing& Drawing) = 0;
};

/** Not owned, null for none; gives back the former one. */
IViewPainter* SetViewPainter(IViewPainter* NewPainter);
} // namespace Host
