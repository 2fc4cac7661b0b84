// SPDX-License-Identifier: MIT
// One view on a scene.
#pragma once

#include "CoreMinimal.h"
#include "ShowFlags.h"

class FSceneInterface;

class FSceneView
{
public:
	/** Not owned; null when there is nothing to show. */
	const FSceneInterface* Scene = nullptr;
	FVector ViewLocation = FVector(0.0, 0.0, 0.0);
	FRotator ViewRotation = FRotator(0.0, 0.0, 0.0);
	/** Horizontal, degrees. */
	float FOV = 90.0f;
	/** cm. */
	float NearClipPlane = 10.0f;
	bool bPerspective = true;
	/** Pixels. */
	FIntPoint ViewSize = FIntPoint(0, 0);
	FEngineShowFlags ShowFlags = FEngineShowFlags(ESFIM_Editor);

	bool IsPerspectiveProjection() const { return bPerspective; }
};
