// SPDX-License-Identifier: MIT
#pragma once

#include "Host/Image.h"
#include "Host/SceneSnapshot.h"

#include <memory>
#include <string>

namespace Host
{

struct FRenderOptions
{
	/** Pixels drawn for each pixel of the picture, in each direction: 1..4. */
	int32_t Supersampling = 2;
	bool bShadows = true;
	bool bAmbientOcclusion = true;
	/** Layers of translucency that are told apart, front and back counted in pairs. */
	int32_t TranslucentLayers = 12;
	/** Pixels of the picture of the line around what is selected; 0 for none. */
	float OutlineThickness = 2.0f;
	/** Off: the backdrop and the floor are left out and what no surface covers has alpha 0. */
	bool bBackdrop = true;
};

/** A picture, or an error of one line and no picture. */
struct FRenderResult
{
	FImage Image;
	std::string Error; // empty on success

	bool IsOk() const { return Error.empty(); }
};

/**
 * Draws scenes as pictures, with no display: it makes a surfaceless EGL context of its own. Equal scenes give equal
 * pictures, and what a scene shares with the one before is not uploaded again.
 *
 * Use one renderer on one thread at a time; the context is current only during a call.
 */
class FSceneRenderer
{
public:
	/** @return the renderer, or null with a one-line reason in `OutError` when EGL or OpenGL 3.2 is missing. */
	static std::unique_ptr<FSceneRenderer> Create(std::string& OutError);
	~FSceneRenderer();

	/**
	 * Draws the scene.
	 *
	 * @param Width, Height  of the picture, 1..8192; larger than the device can draw is an error
	 */
	FRenderResult Render(
		const FSceneSnapshot& Scene, int32_t Width, int32_t Height, const FRenderOptions& Options = FRenderOptions());

	/** Name of the device that draws, as OpenGL tells it. */
	const std::string& DeviceName() const;

private:
	struct FImpl;
	explicit FSceneRenderer(std::unique_ptr<FImpl> InImpl);
	std::unique_ptr<FImpl> Impl;
};

} // namespace Host
