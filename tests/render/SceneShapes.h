// SPDX-License-Identifier: MIT
#pragma once

#include "Host/Image.h"
#include "Host/SceneCamera.h"
#include "Host/SceneSnapshot.h"

#include <functional>

/** Small scenes that the render tests are made of. */
namespace SceneShapes
{

/** A ball with texture coordinates that wrap once around it and tangents along U. */
std::shared_ptr<Host::FMeshSnapshot> Ball(float Radius, int Rings = 32);

/**
 * An upright square in the plane X = 0 that faces -X, so that a camera that looks along +X sees U grow to the right and
 * V grow downwards.
 */
std::shared_ptr<Host::FMeshSnapshot> Square(float HalfSize, int Cells = 1);

/** A texture of 8 bits; `Color` gives red, green, blue and alpha of the pixel in column X and row Y. */
std::shared_ptr<Host::FTextureSnapshot> Texture8(
	int Width, int Height, const std::function<Host::FFloat4(int X, int Y)>& Color);

/** A texture of one colour with 16 bits a channel. */
std::shared_ptr<Host::FTextureSnapshot> Flat16(uint16_t Red, uint16_t Green, uint16_t Blue, uint16_t Alpha);

Host::FObjectSnapshot Placed(std::shared_ptr<Host::FMeshSnapshot> Mesh, const Host::FMaterialSnapshot& Material,
	const Host::FFloat3& Origin = Host::FFloat3());

/** A scene of these objects, seen along +X from where all of it is in view, lit by the studio, without a floor. */
Host::FSceneSnapshot SceneOf(std::vector<Host::FObjectSnapshot> Objects);

/** Means of red, green and blue, 0..255, over a rectangle in parts of the picture's size. */
Host::FFloat3 MeanColor(const Host::FImage& Image, float Left, float Top, float Right, float Bottom);

} // namespace SceneShapes
