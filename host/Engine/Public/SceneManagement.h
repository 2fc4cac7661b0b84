// SPDX-License-Identifier: MIT
// Drawing lines into a view.
#pragma once

#include "CoreMinimal.h"

class FSceneView;

/** In front of or behind what the scene shows. */
enum ESceneDepthPriorityGroup : int
{
	/** Hidden by what stands before it. */
	SDPG_World,
	/** Always seen. */
	SDPG_Foreground,
	SDPG_MAX,
};

class FPrimitiveDrawInterface
{
public:
	const FSceneView* const View;

	explicit FPrimitiveDrawInterface(const FSceneView* InView)
		: View(InView)
	{
	}
	virtual ~FPrimitiveDrawInterface() = default;

	/** @param Thickness  pixels; 0 for the thinnest line */
	virtual void DrawLine(const FVector& Start, const FVector& End, const FLinearColor& Color, uint8 DepthPriorityGroup,
		float Thickness = 0.0f) = 0;
};
