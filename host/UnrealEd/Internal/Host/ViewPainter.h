// SPDX-License-Identifier: MIT
// Whoever turns views into pictures.
#pragma once

#include "CoreMinimal.h"
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

/** Called on the game thread each time that an editor viewport is drawn. */
class IViewPainter
{
public:
	virtual ~IViewPainter() = default;

	/** @param Lines  what is drawn beside the scene of the view */
	virtual void Paint(FViewport& Viewport, const FSceneView& View, const TArray<FViewLine>& Lines) = 0;
};

/** Not owned, null for none; gives back the former one. */
IViewPainter* SetViewPainter(IViewPainter* NewPainter);
} // namespace Host
