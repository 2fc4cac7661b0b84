// SPDX-License-Identifier: MIT
// One view on a scene.
#pragma once

#include "CoreMinimal.h"
#include "ShowFlags.h"

class FSceneInterface;

/** What the views that make up one picture share. */
class FSceneViewFamily
{
public:
	/** Not owned; null when there is nothing to show. */
	FSceneInterface* Scene = nullptr;
	FEngineShowFlags EngineShowFlags = FEngineShowFlags(ESFIM_Editor);
};

class FSceneView
{
public:
	/** Not owned; outlives the view. */
	const FSceneViewFamily* Family = nullptr;
	FVector ViewLocation = FVector(0.0, 0.0, 0.0);
	FRotator ViewRotation = FRotator(0.0, 0.0, 0.0);
	/** Horizontal, degrees. */
	float FOV = 90.0f;
	/** cm. */
	float NearClipPlane = 10.0f;
	bool bPerspective = true;
	/** Pixels. */
	FIntPoint ViewSize = FIntPoint(0, 0);

	bool IsPerspectiveProjection() const { return bPerspective; }
};
