// SPDX-License-Identifier: MIT
// Enumerations and tick registrations that the engine's classes share.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

class AActor;
class UActorComponent;

/** What happened to a key or button. */
enum EInputEvent : int
{
	IE_Pressed = 0,
	IE_Released = 1,
	IE_Repeat = 2,
	IE_DoubleClick = 3,
	IE_Axis = 4,
	IE_MAX = 5
};

/** What of a world moves on in a tick. */
enum ELevelTick : int
{
	/** Only the time. */
	LEVELTICK_TimeOnly = 0,
	/** The time and what the viewports show. */
	LEVELTICK_ViewportsOnly = 1,
	/** Everything. */
	LEVELTICK_All = 2,
	/** As LEVELTICK_All with a delta of zero. */
	LEVELTICK_PauseTick = 3
};

/** The part of a frame in which a tick function runs. */
enum ETickingGroup : int
{
	TG_PrePhysics = 0,
	TG_StartPhysics = 1,
	TG_DuringPhysics = 2,
	TG_EndPhysics = 3,
	TG_PostPhysics = 4,
	TG_PostUpdateWork = 5,
	TG_LastDemotable = 6,
	TG_NewlySpawned = 7,
	TG_MAX = 8
};

/** The projection of a viewport. */
enum ELevelViewportType : int
{
	LVT_OrthoXY = 0,
	LVT_OrthoXZ = 1,
	LVT_OrthoYZ = 2,
	LVT_Perspective = 3,
	LVT_OrthoFreelook = 4,
	LVT_OrthoNegativeXY = 5,
	LVT_OrthoNegativeXZ = 6,
	LVT_OrthoNegativeYZ = 7,
	LVT_MAX = 8,
	LVT_None = 255,
	LVT_OrthoTop = LVT_OrthoXY,
	LVT_OrthoBottom = LVT_OrthoNegativeXY,
	LVT_OrthoLeft = LVT_OrthoXZ,
	LVT_OrthoRight = LVT_OrthoNegativeXZ,
	LVT_OrthoFront = LVT_OrthoNegativeYZ,
	LVT_OrthoBack = LVT_OrthoYZ
};

/** How a viewport shades what it shows. */
enum EViewModeIndex : int
{
	VMI_BrushWireframe = 0,
	VMI_Wireframe = 1,
	VMI_Unlit = 2,
	VMI_Lit = 3,
	VMI_Lit_DetailLighting = 4,
	VMI_LightingOnly = 5,
	VMI_LightComplexity = 6,
	VMI_ShaderComplexity = 8,
	VMI_Unknown = 255
};

/** The settings of something that the world's tick calls. */
struct FTickFunction
{
	TEnumAsByte<ETickingGroup> TickGroup = TG_PrePhysics;

	/** Whether it runs while the world is paused. */
	uint8 bTickEvenWhenPaused : 1 = 0;

	/** Whether it can ever be called; false keeps its owner out of the tick entirely. */
	uint8 bCanEverTick : 1 = 0;

	/** Whether it is on from the beginning. */
	uint8 bStartWithTickEnabled : 1 = 1;

	/** Least seconds between two calls; 0 for every frame. */
	float TickInterval = 0.0f;

	/** Switches the calls on or off; what can never tick stays off. */
	void SetTickFunctionEnable(bool bInEnabled)
	{
		bTickEnabled = bInEnabled;
		bEnableDecided = true;
	}

	/** Whether the world's tick calls it. */
	bool IsTickFunctionEnabled() const
	{
		return bCanEverTick && (bEnableDecided ? bTickEnabled : bool(bStartWithTickEnabled));
	}

private:
	bool bTickEnabled = false;
	bool bEnableDecided = false;
};

/** The tick of an actor. */
struct FActorTickFunction : FTickFunction
{
	/** Not owned: the actor owns this. */
	AActor* Target = nullptr;
};

/** The tick of a component. */
struct FActorComponentTickFunction : FTickFunction
{
	/** Not owned: the component owns this. */
	UActorComponent* Target = nullptr;
};
