// SPDX-License-Identifier: MIT
#pragma once

#include "Host/SceneCamera.h"

class vtkShaderProgram;
class vtkTextureObject;

namespace Host
{

enum class ERenderPass : int
{
	Color = 0,
	Depth = 1,
	Shadow = 2,
	Selected = 3 // depths of whole surfaces, whatever light they let through
};

/** What all programs of one picture are told. Textures are not owned. */
struct FFrameState
{
	ERenderPass Pass = ERenderPass::Color;
	FClipMatrix ViewProjection{};
	FFloat3 Eye;
	std::vector<FLightSnapshot> Lights;
	FFloat3 Sky, Ground;
	float Exposure = 1.0f;
	FClipMatrix ShadowMatrix{};
	float ShadowExtent = 1.0f; // cm
	float ShadowTexel = 0.0f;  // cm, 0 without shadows
	vtkTextureObject* ShadowMap = nullptr;
	vtkTextureObject* Occlusion = nullptr; // null without ambient occlusion
	vtkTextureObject* White = nullptr;	   // stands in for each texture that is not there
	/** The picture is covered all over, so its alpha is free to say what shines; see AddGlow. */
	bool bGlow = false;
	float PixelWidth = 1.0f, PixelHeight = 1.0f;
};

/**
 * Tells a program the frame's values. While depths are being drawn the textures that they are drawn into are left out.
 * The textures must be active.
 */
void SetFrameUniforms(vtkShaderProgram& Program, const FFrameState& Frame);

} // namespace Host
