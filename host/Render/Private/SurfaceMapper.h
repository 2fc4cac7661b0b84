// SPDX-License-Identifier: MIT
#pragma once

#include "Host/SceneSnapshot.h"

#include <vtkOpenGLPolyDataMapper.h>

#include <array>

class vtkTextureObject;

namespace Host
{

struct FFrameState;

/** Textures of a material on the device, by channel; null where it has none. Not owned. */
using FMaterialTextures = std::array<vtkTextureObject*, size_t(ESurfaceChannel::Count)>;

/** Draws the triangles of one slot with the surface program in place of the drawing library's own. */
class FSurfaceMapper : public vtkOpenGLPolyDataMapper
{
public:
	static FSurfaceMapper* New();
	vtkTypeMacro(FSurfaceMapper, vtkOpenGLPolyDataMapper);

	/** @param InFrame  not owned, valid at each render */
	void SetFrame(const FFrameState* InFrame) { Frame = InFrame; }

	void SetMaterial(std::shared_ptr<const FMaterialSnapshot> InMaterial, const FMaterialTextures& InTextures);
	void SetPlacement(const FPlacement& InPlacement);

	/** @param InCmPerUV  centimetres of surface along one unit of the texture coordinates, 0 when unknown */
	void SetCmPerUV(float InCmPerUV) { CmPerUV = InCmPerUV; }

	/** Draws only where the surface stands, with a program that does nothing else. Set it before the first use. */
	void SetDepthOnly(bool bInDepthOnly) { bDepthOnly = bInDepthOnly; }

	void RenderPieceStart(vtkRenderer* Renderer, vtkActor* Actor) override;
	void RenderPieceFinish(vtkRenderer* Renderer, vtkActor* Actor) override;

protected:
	FSurfaceMapper();
	~FSurfaceMapper() override = default;

	void GetShaderTemplate(std::map<vtkShader::Type, vtkShader*> Shaders, vtkRenderer*, vtkActor*) override;
	void SetMapperShaderParameters(vtkOpenGLHelper& CellBO, vtkRenderer* Renderer, vtkActor* Actor) override;
	void SetLightingShaderParameters(vtkOpenGLHelper&, vtkRenderer*, vtkActor*) override {}
	void SetCameraShaderParameters(vtkOpenGLHelper&, vtkRenderer*, vtkActor*) override {}

private:
	void SetMaterialUniforms(vtkShaderProgram& Program) const;
	void SetPlacementUniforms(vtkShaderProgram& Program) const;

	const FFrameState* Frame = nullptr;
	std::shared_ptr<const FMaterialSnapshot> Material;
	FMaterialTextures Textures{};
	FPlacement Placement;
	float CmPerUV = 0.0f;
	bool bDepthOnly = false;
};

} // namespace Host
