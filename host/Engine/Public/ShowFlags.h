// SPDX-License-Identifier: MIT
// What a view shows.
#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineBaseTypes.h"

enum EShowFlagInitMode
{
	ESFIM_Game,
	ESFIM_Editor,
};

/** Switches of a view: read a field, write it with the setter of its name. */
struct FEngineShowFlags
{
	uint32 Grid : 1;
	uint32 Pivot : 1;
	/** A line around what is selected. */
	uint32 SelectionOutline : 1;
	/** The edges of the triangles in place of their faces. */
	uint32 Wireframe : 1;
	uint32 Lighting : 1;
	uint32 PostProcessing : 1;
	uint32 Bloom : 1;
	uint32 AmbientOcclusion : 1;
	uint32 AntiAliasing : 1;
	uint32 DynamicShadows : 1;

	/** Everything on but the wireframe; grid, pivot and outline only in an editor. */
	explicit FEngineShowFlags(EShowFlagInitMode InitMode);

	void SetGrid(bool bShow) { Grid = bShow; }
	void SetPivot(bool bShow) { Pivot = bShow; }
	void SetSelectionOutline(bool bShow) { SelectionOutline = bShow; }
	void SetWireframe(bool bShow) { Wireframe = bShow; }
	void SetLighting(bool bShow) { Lighting = bShow; }
	void SetPostProcessing(bool bShow) { PostProcessing = bShow; }
	void SetBloom(bool bShow) { Bloom = bShow; }
	void SetAmbientOcclusion(bool bShow) { AmbientOcclusion = bShow; }
	void SetAntiAliasing(bool bShow) { AntiAliasing = bShow; }
	void SetDynamicShadows(bool bShow) { DynamicShadows = bShow; }

	/** What makes a picture look finished but costs time: all of it on, or all of it off. */
	void EnableAdvancedFeatures() { SetAdvancedFeatures(true); }
	void DisableAdvancedFeatures() { SetAdvancedFeatures(false); }

private:
	void SetAdvancedFeatures(bool bOn)
	{
		SetPostProcessing(bOn);
		SetBloom(bOn);
		SetAmbientOcclusion(bOn);
		SetAntiAliasing(bOn);
		SetDynamicShadows(bOn);
	}
};

/** Sets the flags that a view mode stands for. */
void ApplyViewMode(EViewModeIndex ViewModeIndex, bool bPerspective, FEngineShowFlags& EngineShowFlags);
