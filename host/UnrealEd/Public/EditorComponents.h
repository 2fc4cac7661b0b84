// SPDX-License-Identifier: MIT
// The grid of an editor viewport.
#pragma once

#include "CoreMinimal.h"
#include "SceneManagement.h"

/** What is drawn beside the scene, and how. */
class FEditorCommonDrawHelper
{
public:
	uint32 bDrawGrid : 1 = 1;
	/** Three lines from the origin along the axes. */
	uint32 bDrawPivot : 1 = 1;
	uint32 bDrawBaseInfo : 1 = 1;
	uint32 bDrawKillZ : 1 = 1;
	/** The edges of the largest world. */
	uint32 bDrawWorldBox : 1 = 0;

	FColor GridColorAxis = FColor(70, 70, 70);
	FColor GridColorMajor = FColor(40, 40, 40);
	FColor GridColorMinor = FColor(20, 20, 20);
	FColor BaseBoxColor = FColor(0, 255, 0);
	FColor PivotColor = FColor(255, 0, 0);
	/** Half the side of the grid, cm. */
	float PerspectiveGridSize = 16384.0f;
	/** cm below the ground, so that a floor at zero hides no line. */
	float GridDepthBias = 0.0f;
	/** Length of the pivot's lines, parts of the distance from the eye. */
	float PivotSize = 0.02f;
	/** Pixels. */
	float AxesLineThickness = 0.0f;
	/** Cells along the side of the grid; every eighth line is a major one. */
	int32 NumCells = 64;
	ESceneDepthPriorityGroup DepthPriorityGroup = SDPG_World;

	/** Draws what is on; the grid only where the view's show flags have it. */
	void Draw(const FSceneView* View, FPrimitiveDrawInterface* PDI) const;

private:
	void DrawGrid(FPrimitiveDrawInterface* PDI) const;
	void DrawPivot(const FSceneView* View, FPrimitiveDrawInterface* PDI) const;
	void DrawWorldBox(FPrimitiveDrawInterface* PDI) const;
};
