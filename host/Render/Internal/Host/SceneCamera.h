// SPDX-License-Identifier: MIT
#pragma once

#include "Host/SceneSnapshot.h"

#include <array>
#include <vector>

/** Views on a scene, and the studio light that goes with them. */
namespace Host
{

/** A box along the axes, in centimetres; empty while Min exceeds Max. */
struct FSceneBounds
{
	FFloat3 Min{1e30f, 1e30f, 1e30f};
	FFloat3 Max{-1e30f, -1e30f, -1e30f};

	bool IsEmpty() const { return Min.X > Max.X; }
	FFloat3 Center() const;
	/** Half the diagonal; 0 when empty. */
	float Radius() const;
	void Include(const FFloat3& Point);
};

/** The box around all vertices that a triangle uses, placed; points that are not finite are left out. */
FSceneBounds BoundsOf(const std::vector<FObjectSnapshot>& Objects);

/**
 * The view of an editor viewport.
 *
 * @param Pitch, Yaw, Roll  degrees, as in the engine's rotator: yaw turns X towards Y, positive pitch looks up
 * @param HorizontalFov     degrees, clamped to 5..170
 */
FCameraSnapshot ViewFrom(const FFloat3& Location, float Pitch, float Yaw, float Roll, float HorizontalFov);

/**
 * The view that shows all of a box.
 *
 * @param Pitch, Yaw  degrees: the direction of looking, so that yaw 180 sees the side that faces +X
 * @param Aspect      width by height of the picture
 * @param Margin      factor on the distance, 1 touches the edges of the picture
 * @return the view; of an empty box, one from three metres on the origin
 */
FCameraSnapshot FrameBounds(
	const FSceneBounds& Bounds, float Pitch, float Yaw, float HorizontalFov, float Aspect, float Margin = 1.08f);

/** Key light from the upper left of the view, a weaker fill from the right and two rim lights from behind. */
std::vector<FLightSnapshot> StudioLights(const FCameraSnapshot& Camera);

/** Sets floor point and size to what stands under the box. */
void PlaceFloor(FSurroundings& Surroundings, const FSceneBounds& Bounds);

/**
 * Sets camera, lights and floor of a scene so that all of its objects are in view.
 *
 * @param Pitch, Yaw  degrees: the direction of looking, so that yaw 180 sees the side that faces +X
 */
void LookAtScene(FSceneSnapshot& Scene, float Pitch, float Yaw, float HorizontalFov, float Aspect);

/** Sets camera, lights and floor of a scene for a view that somebody has chosen. */
void LookAtSceneFrom(FSceneSnapshot& Scene, const FCameraSnapshot& Camera);

/** The same with the box around the scene's objects, for who knows it. */
void LookAtSceneFrom(FSceneSnapshot& Scene, const FCameraSnapshot& Camera, const FSceneBounds& Bounds);

/** A 4 x 4 matrix by columns, as OpenGL takes it: clip = M * (x, y, z, 1). */
using FClipMatrix = std::array<float, 16>;

/**
 * From the left-handed scene to OpenGL's clip space, which is left-handed too (x right, y up, z away): the view's
 * right, up and forward map straight onto it, and nothing is mirrored anywhere, neither geometry nor texture.
 *
 * @param Near, Far  distances along Forward, cm, 0 < Near < Far
 */
FClipMatrix ViewProjection(const FCameraSnapshot& Camera, float Aspect, float Near, float Far);

/** The same without perspective: a box of half size `Extent` around `Center`, seen along -Towards. */
FClipMatrix ParallelProjection(const FFloat3& Center, const FFloat3& Towards, float Extent);

} // namespace Host
