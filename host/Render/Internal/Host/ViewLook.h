// SPDX-License-Identifier: MIT
#pragma once

#include "Host/SceneCamera.h"
#include "Host/SceneRenderer.h"

class FSceneView;
class UWorld;

/** What a view of the editor asks of a picture. */
namespace Host
{

/**
 * The camera of a view. A parallel view is seen from so far away, through so narrow an angle, that no perspective
 * shows: at the depth of the middle of the box it is exactly as wide as the view says.
 */
FCameraSnapshot CameraOf(const FSceneView& View, const FSceneBounds& Bounds);

/**
 * Lights the scene as its world says, after LookAtScene or LookAtSceneFrom: the first directional light is the key
 * light, the sky light scales what comes from all sides, and the surroundings decide on floor, backdrop and the turn of
 * the studio's other lamps. What the world does not have stays as it is.
 */
void ApplyWorldLook(FSceneSnapshot& Scene, const UWorld& World);

/**
 * Everything that a view decides on: camera, lamps and floor as LookAtSceneFrom sets them, then the look of the view's
 * world. Without lighting, surfaces show their own colours and nothing casts a shadow.
 *
 * @param Bounds  the box around the scene's objects
 */
void LookThrough(FSceneSnapshot& Scene, const FSceneView& View, const FSceneBounds& Bounds);

/** Leaves out what the view's show flags switch off. */
FRenderOptions OptionsFor(const FSceneView& View, const FRenderOptions& Options);

} // namespace Host
