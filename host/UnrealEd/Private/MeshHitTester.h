// SPDX-License-Identifier: MIT
// The host's own hit tester: rays against the triangles of a scene.
#pragma once

#include "Host/HitTester.h"

namespace Host
{
/**
 * Asks the bounds of each visible primitive first, then all triangles of those that the ray goes through. A click is
 * rare, and a million triangles take some milliseconds: nothing is kept between two clicks. Both sides of a triangle
 * are hit.
 */
class FMeshHitTester final : public IHitTester
{
public:
	FPrimitiveHit HitTest(const FSceneView& View, const FIntPoint& Pixel) override;
};
} // namespace Host
