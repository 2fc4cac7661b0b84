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
	uint32 bDrawPivot : 1 = 1;
	uint32 bDrawBaseInfo : 1 = 1;
	uint32 bDrawKillZ : 1 = 1;
	uint32 bDrawWorldBox : 1 = 0;

	FColor GridColorAxis = FColor(70, 70, 70);
	FColor GridColorMajor = FColor(40, 40, 40);
	FColor GridColorMinor = FColor(20, 20, 20);
	/** Half the side of the grid, cm. */
	float PerspectiveGridSize = 16384.0f;
	/** cm below the ground, so that a floor at zero hides no line. */
	float GridDepthBias = 0.0f;
	/** Cells along the side of the grid; every eighth line is a major one. */
	int32 NumCells = 64;
	ESceneDepthPriorityGroup DepthPriorityGroup = SDPG_World;

	/** Draws the grid on the ground if it is on. */
	void Draw(const FSceneView* View, FPrimitiveDrawInterface* PDI) const;
};
