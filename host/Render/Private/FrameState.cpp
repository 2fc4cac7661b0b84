// SPDX-License-Identifier: MIT
#include "FrameState.h"

#include <vtkShaderProgram.h>
#include <vtkTextureObject.h>

namespace Host
{

// The shaders' LightCount.
static constexpr size_t LightCount = 4;

void SetFrameUniforms(vtkShaderProgram& Program, const FFrameState& Frame)
{
	FClipMatrix ViewProjection = Frame.ViewProjection;
	FClipMatrix Shadow = Frame.ShadowMatrix;
	Program.SetUniformMatrix4x4("uViewProjection", ViewProjection.data());
	Program.SetUniformMatrix4x4("uShadowMatrix", Shadow.data());
	Program.SetUniform3f("uEye", &Frame.Eye.X);

	FFloat3 Towards[LightCount];
	FFloat3 Color[LightCount];
	float Size[LightCount];
	for (size_t Index = 0; Index < LightCount; ++Index)
	{
		const bool bGiven = Index < Frame.Lights.size();
		Towards[Index] = bGiven ? Frame.Lights[Index].Towards : FFloat3{0.0f, 0.0f, 1.0f};
		Color[Index] = bGiven ? Frame.Lights[Index].Color : FFloat3();
		Size[Index] = bGiven ? Frame.Lights[Index].Size : 0.3f;
	}
	Program.SetUniform3fv("uLightTowards", int(LightCount), &Towards[0].X);
	Program.SetUniform3fv("uLightColor", int(LightCount), &Color[0].X);
	Program.SetUniform1fv("uLightSize", int(LightCount), Size);
	Program.SetUniform3f("uSky", &Frame.Sky.X);
	Program.SetUniform3f("uGround", &Frame.Ground.X);
	Program.SetUniformf("uExposure", Frame.Exposure);
	Program.SetUniformf("uShadowExtent", Frame.ShadowExtent);

	const bool bColor = Frame.Pass == ERenderPass::Color;
	const float PixelSize[2] = {Frame.PixelWidth, Frame.PixelHeight};
	vtkTextureObject* Shadows = bColor && Frame.ShadowMap ? Frame.ShadowMap : Frame.White;
	vtkTextureObject* Occlusion = bColor && Frame.Occlusion ? Frame.Occlusion : Frame.White;
	Program.SetUniformf("uShadowTexel", bColor && Frame.ShadowMap ? Frame.ShadowTexel : 0.0f);
	Program.SetUniformf("uHasOcclusion", bColor && Frame.Occlusion ? 1.0f : 0.0f);
	Program.SetUniformf("uGlow", Frame.bGlow ? 1.0f : 0.0f);
	Program.SetUniform2f("uPixelSize", PixelSize);
	Program.SetUniformi("uShadowMap", Shadows->GetTextureUnit());
	Program.SetUniformi("uOcclusion", Occlusion->GetTextureUnit());
	Program.SetUniformi("uForLamp", Frame.Pass == ERenderPass::Shadow || Frame.Pass == ERenderPass::Selected);
	Program.SetUniformi("uWhole", Frame.Pass == ERenderPass::Selected);
}

} // namespace Host
