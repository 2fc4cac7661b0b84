// SPDX-License-Identifier: MIT
#include "SurfaceMapper.h"

#include "FrameState.h"
#include "OpenGL.h"
#include "Shaders.h"
#include "VectorMath.h"

#include <vtkDataObject.h>
#include <vtkObjectFactory.h>
#include <vtkOpenGLHelper.h>
#include <vtkOpenGLRenderWindow.h>
#include <vtkOpenGLState.h>
#include <vtkOpenGLVertexBufferObject.h>
#include <vtkRenderer.h>
#include <vtkShaderProgram.h>
#include <vtkTextureObject.h>

#include <algorithm>
#include <cmath>

namespace Host
{
namespace
{

/** A repetition's size on the surface, kept within what it is in life; the typical size where the surface has no scale.
 */
float PatternCm(float CmPerUV, float Scale, float Smallest, float Largest)
{
	const float Wanted = CmPerUV > 0.0f && Scale > 0.0f ? CmPerUV / Scale : std::sqrt(Smallest * Largest);
	return std::clamp(Wanted, Smallest, Largest);
}

void SetLookUniforms(vtkShaderProgram& Program, const FSurfaceLook& Look, float CmPerUV)
{
	float Smallest = 0.1f, Largest = 0.1f;
	switch (Look.Pattern)
	{
		case ESurfacePattern::Knit:
			Smallest = 0.45f, Largest = 0.9f;
			break;
		case ESurfacePattern::Grain:
			Smallest = 0.15f, Largest = 0.3f;
			break;
		case ESurfacePattern::Fibres:
			Smallest = 0.05f, Largest = 0.12f;
			break;
		case ESurfacePattern::None:
			break;
	}
	const FFloat3 &Sheen = Look.SheenColor, &Under = Look.SubsurfaceColor;
	const float SheenValues[4] = {Sheen.X, Sheen.Y, Sheen.Z, Look.SheenRoughness};
	const float Coat[4] = {Look.Clearcoat, Look.ClearcoatRoughness, Look.Anisotropy, Look.AnisotropyAngle};
	const float Film[4] = {Look.Iridescence, Look.FilmThickness, Look.FilmIndex, Look.Emission};
	const float Subsurface[4] = {Under.X, Under.Y, Under.Z, Look.Subsurface};
	const float Glitter[4] = {Look.GlitterDensity, PatternCm(CmPerUV, Look.GlitterScale, 0.08f, 0.22f),
		Look.GlitterIntensity, Look.GlitterSpread};
	const float Pattern[4] = {
		float(Look.Pattern), PatternCm(CmPerUV, Look.PatternScale, Smallest, Largest), Look.PatternDepth, 0.0f};
	const float Clear[2] = {Look.Transmission, Look.TransmissionIndex};
	Program.SetUniform4f("uSheen", SheenValues);
	Program.SetUniformi("uSheenTinted", Look.bSheenTinted);
	Program.SetUniform4f("uCoat", Coat);
	Program.SetUniform4f("uFilm", Film);
	Program.SetUniform4f("uSubsurface", Subsurface);
	Program.SetUniform4f("uGlitter", Glitter);
	Program.SetUniform4f("uPattern", Pattern);
	Program.SetUniform2f("uClear", Clear);
}

constexpr size_t ChannelCount = size_t(ESurfaceChannel::Count);
constexpr const char* SamplerNames[ChannelCount] = {
	"uBaseColorMap", "uNormalMap", "uRoughnessMap", "uMetallicMap", "uSpecularMap", "uOpacityMap"};

} // namespace

vtkStandardNewMacro(FSurfaceMapper);

FSurfaceMapper::FSurfaceMapper()
{
	// Positions go to the program as they are: it knows nothing of the library's own shift.
	SetVBOShiftScaleMethod(vtkOpenGLVertexBufferObject::DISABLE_SHIFT_SCALE);
	ScalarVisibilityOff();
	const int Points = vtkDataObject::FIELD_ASSOCIATION_POINTS;
	MapDataArrayToVertexAttribute("normalLocal", "normalLocal", Points);
	MapDataArrayToVertexAttribute("tangentLocal", "tangentLocal", Points);
	MapDataArrayToVertexAttribute("uvLocal", "uvLocal", Points);
}

void FSurfaceMapper::SetMaterial(
	std::shared_ptr<const FMaterialSnapshot> InMaterial, const FMaterialTextures& InTextures)
{
	Material = std::move(InMaterial);
	Textures = InTextures;
}

void FSurfaceMapper::SetPlacement(const FPlacement& InPlacement)
{
	Placement = InPlacement;
}

void FSurfaceMapper::RenderPieceStart(vtkRenderer* Renderer, vtkActor* Actor)
{
	for (vtkTextureObject* Texture : Textures)
	{
		if (Texture)
		{
			Texture->Activate();
		}
	}
	if (Material->Blend != EBlend::Translucent)
	{
		// Alpha is then no opacity; see FFrameState::bGlow.
		vtkOpenGLRenderWindow::SafeDownCast(Renderer->GetRenderWindow())->GetState()->vtkglDisable(GL_BLEND);
	}
	Superclass::RenderPieceStart(Renderer, Actor);
}

void FSurfaceMapper::RenderPieceFinish(vtkRenderer* Renderer, vtkActor* Actor)
{
	Superclass::RenderPieceFinish(Renderer, Actor);
	if (Material->Blend != EBlend::Translucent)
	{
		vtkOpenGLRenderWindow::SafeDownCast(Renderer->GetRenderWindow())->GetState()->vtkglEnable(GL_BLEND);
	}
	for (vtkTextureObject* Texture : Textures)
	{
		if (Texture)
		{
			Texture->Deactivate();
		}
	}
}

void FSurfaceMapper::GetShaderTemplate(std::map<vtkShader::Type, vtkShader*> Shaders, vtkRenderer*, vtkActor*)
{
	Shaders[vtkShader::Vertex]->SetSource(Shaders::SurfaceVertex);
	Shaders[vtkShader::Fragment]->SetSource(bDepthOnly ? Shaders::SurfaceDepthFragment() : Shaders::SurfaceFragment());
	Shaders[vtkShader::Geometry]->SetSource("");
}

void FSurfaceMapper::SetMapperShaderParameters(vtkOpenGLHelper& CellBO, vtkRenderer* Renderer, vtkActor* Actor)
{
	Superclass::SetMapperShaderParameters(CellBO, Renderer, Actor);
	vtkShaderProgram& Program = *CellBO.Program;
	SetFrameUniforms(Program, *Frame);
	SetMaterialUniforms(Program);
	SetPlacementUniforms(Program);
}

void FSurfaceMapper::SetMaterialUniforms(vtkShaderProgram& Program) const
{
	const FMaterialSnapshot& M = *Material;
	float Matrix[ChannelCount][4];
	float Offset[ChannelCount][4];
	for (size_t Channel = 0; Channel < ChannelCount; ++Channel)
	{
		const FChannelMap& Map = M.Maps[Channel];
		// Turns beyond a whole one lose their digits in a float's sine; the whole ones change nothing.
		const double Angle = (double(Map.AngleTurns) - std::floor(double(Map.AngleTurns))) * 6.283185307179586;
		const float Cosine = float(std::cos(Angle)), Sine = float(std::sin(Angle));
		const float Rows[4] = {Cosine * Map.UAmount, -Sine * Map.VAmount, Sine * Map.UAmount, Cosine * Map.VAmount};
		std::copy(Rows, Rows + 4, Matrix[Channel]);
		const float Rest[4] = {Map.UOffset, Map.VOffset, Map.Intensity, Textures[Channel] ? 1.0f : 0.0f};
		std::copy(Rest, Rest + 4, Offset[Channel]);
		const vtkTextureObject* Texture = Textures[Channel] ? Textures[Channel] : Frame->White;
		Program.SetUniformi(SamplerNames[Channel], const_cast<vtkTextureObject*>(Texture)->GetTextureUnit());
	}
	Program.SetUniform4fv("uMapMatrix", int(ChannelCount), Matrix);
	Program.SetUniform4fv("uMapOffset", int(ChannelCount), Offset);

	const FChannelMap& ColorMap = M.Map(ESurfaceChannel::BaseColor);
	Program.SetUniformi("uBaseColorSRGB", ColorMap.Texture && ColorMap.Texture->bSRGB);
	Program.SetUniformi("uBlend", int(M.Blend));
	Program.SetUniformi("uTwoSided", M.bTwoSided);
	Program.SetUniformi("uOpacityFromAlpha", M.bOpacityFromAlpha);
	Program.SetUniformf("uClipValue", M.ClipValue);
	Program.SetUniform4f("uBaseColor", &M.BaseColor.X);

	const float Scalars[4] = {M.Roughness, M.Metallic, M.Specular, M.Opacity};
	Program.SetUniform4f("uScalars", Scalars);
	SetLookUniforms(Program, M.Look, CmPerUV);
	Program.SetUniformf("uCmPerUV", CmPerUV);
}

void FSurfaceMapper::SetPlacementUniforms(vtkShaderProgram& Program) const
{
	const FFloat3 &X = Placement.AxisX, &Y = Placement.AxisY, &Z = Placement.AxisZ, &O = Placement.Origin;
	float Model[16] = {X.X, X.Y, X.Z, 0.0f, Y.X, Y.Y, Y.Z, 0.0f, Z.X, Z.Y, Z.Z, 0.0f, O.X, O.Y, O.Z, 1.0f};
	// The cofactors carry normals, also through a mirror: then the sign of the determinant turns them back.
	const float Sign = Dot(Cross(X, Y), Z) < 0.0f ? -1.0f : 1.0f;
	const FFloat3 A = Cross(Y, Z) * Sign, B = Cross(Z, X) * Sign, C = Cross(X, Y) * Sign;
	float Normal[9] = {A.X, A.Y, A.Z, B.X, B.Y, B.Z, C.X, C.Y, C.Z};
	Program.SetUniformMatrix4x4("uModel", Model);
	Program.SetUniformMatrix3x3("uNormalMatrix", Normal);
}

} // namespace Host
