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
	EViewModeIndex ViewMode = VMI_Lit;
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
	/** cm across the width of a parallel view. */
	double OrthoWidth = 0.0;
	/** Pixels. */
	FIntPoint ViewSize = FIntPoint(0, 0);

	bool IsPerspectiveProjection() const { return bPerspective; }

	/**
	 * The line of sight through a point of the picture.
	 *
	 * @param ScreenPos           pixels from the top left corner; the middle of a pixel lies at half
	 * @param out_WorldOrigin     where it begins: the eye, or its point in the plane of a parallel view
	 * @param out_WorldDirection  unit vector
	 */
	void DeprojectFVector2D(const FVector2D& ScreenPos, FVector& out_WorldOrigin, FVector& out_WorldDirection) const;
	/** The place of a point in the picture; false for one that lies beside or behind a perspective view's eye. */
	bool WorldToPixel(const FVector& WorldPoint, FVector2D& OutPixelLocation) const;
};
