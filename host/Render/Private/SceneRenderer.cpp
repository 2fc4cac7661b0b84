// SPDX-License-Identifier: MIT
#include "Host/SceneRenderer.h"

#include "Host/BoundsMemory.h"

#include "DeviceMeshes.h"
#include "DeviceTextures.h"
#include "EglContext.h"
#include "Glow.h"
#include "OffscreenWindow.h"
#include "Resample.h"
#include "ScreenPasses.h"
#include "SelectionOutline.h"
#include "Shaders.h"
#include "VectorMath.h"

#include "OpenGL.h"

#include <vtkCullerCollection.h>
#include <vtkOpenGLState.h>
#include <vtkRenderer.h>
#include <vtkRendererCollection.h>
#include <vtkShaderProgram.h>

#include <algorithm>
#include <cmath>

namespace Host
{
namespace
{

constexpr int LargestPicture = 8192;
constexpr int ShadowMapSize = 2048;
// Part of the scene's radius within which a surface takes away light from another.
constexpr float OcclusionReach = 0.13f;

float Reach(const FSceneBounds& Bounds)
{
	return std::clamp(Bounds.Radius() * OcclusionReach, 0.5f, 30.0f);
}

/** Makes the context current for a scope. */
class FCurrent
{
public:
	explicit FCurrent(FEglContext& InContext)
		: Context(InContext)
		, bCurrent(Context.MakeCurrent())
	{
	}
	~FCurrent() { Context.Release(); }
	FCurrent(const FCurrent&) = delete;
	FCurrent& operator=(const FCurrent&) = delete;

	bool IsCurrent() const { return bCurrent; }

private:
	FEglContext& Context;
	bool bCurrent;
};

FRenderResult Failed(std::string Error)
{
	FRenderResult Result;
	Result.Error = std::move(Error);
	return Result;
}

} // namespace

struct FSceneRenderer::FImpl
{
	std::unique_ptr<FEglContext> Context;
	vtkNew<FOffscreenWindow> Window;
	vtkNew<vtkRenderer> Renderer;
	vtkNew<FBackdrop> Backdrop;
	FDeviceTextures Textures;
	FDeviceMeshes Meshes;
	FFrameState Frame;
	std::shared_ptr<const FTextureSnapshot> WhitePixel;
	vtkSmartPointer<vtkTextureObject> White;
	FPassTarget ShadowTarget{FPassTarget::EKind::Depth};
	FPassTarget DepthTarget{FPassTarget::EKind::Depth};
	FPassTarget NoisyTarget{FPassTarget::EKind::Value};
	FPassTarget OcclusionTarget{FPassTarget::EKind::Value};
	FScreenProgram OcclusionProgram;
	FScreenProgram BlurProgram;
	FSelectionOutline Outline;
	FBoundsMemory BoundsMemory;
	std::string Device;

	bool Open(std::string& OutError);
	void Close();
	FRenderResult Render(const FSceneSnapshot& Scene, int Width, int Height, const FRenderOptions& Options);
	bool DrawShadows(const FSceneBounds& Bounds);
	bool DrawOcclusion(const FSceneSnapshot& Scene, const FSceneBounds& Bounds, int Width, int Height, float Near,
		float Far, bool bBackdrop);
	void DrawDepths(ERenderPass Pass, const FClipMatrix& View);
	void DrawSelected();
	FImage ReadPicture(int Width, int Height, int Scale, bool bCovered);
};

bool FSceneRenderer::FImpl::Open(std::string& OutError)
{
	Context = FEglContext::Create(OutError);
	if (!Context)
	{
		return false;
	}
	FCurrent Current(*Context);
	if (!Current.IsCurrent())
	{
		OutError = "No picture can be drawn: the OpenGL context cannot be made current";
		return false;
	}
	Window->SetContext(Context.get());
	Window->SetSize(16, 16);
	Window->AddRenderer(Renderer);
	Renderer->SetBackground(0.0, 0.0, 0.0);
	Renderer->SetBackgroundAlpha(0.0);
	Renderer->GetCullers()->RemoveAllItems();
	Renderer->SetAutomaticLightCreation(false);
	Window->OpenGLInit();
	const GLubyte* Name = glGetString(GL_RENDERER);
	const GLubyte* Version = glGetString(GL_VERSION);
	if (!Name || !Version)
	{
		OutError = "No picture can be drawn: OpenGL does not answer in the context that EGL made";
		return false;
	}
	Device = std::string(reinterpret_cast<const char*>(Name)) + ", OpenGL " + reinterpret_cast<const char*>(Version);

	White = vtkSmartPointer<vtkTextureObject>::New();
	White->SetContext(Window);
	unsigned char Pixel[4] = {255, 255, 255, 255};
	White->Create2DFromRaw(1, 1, 4, VTK_UNSIGNED_CHAR, Pixel);
	Frame.White = White;
	return true;
}

void FSceneRenderer::FImpl::Close()
{
	if (!Context)
	{
		return;
	}
	FCurrent Current(*Context);
	Meshes.Clear(*Renderer);
	Textures.ReleaseGraphicsResources(*Window);
	for (FPassTarget* Target : {&ShadowTarget, &DepthTarget, &NoisyTarget, &OcclusionTarget})
	{
		Target->ReleaseGraphicsResources(*Window);
	}
	OcclusionProgram.ReleaseGraphicsResources(*Window);
	BlurProgram.ReleaseGraphicsResources(*Window);
	Outline.ReleaseGraphicsResources(*Window);
	Backdrop->ReleaseGraphicsResources(Window);
	if (White)
	{
		White->ReleaseGraphicsResources(Window);
	}
	Window->RemoveRenderer(Renderer);
	Window->Finalize();
	Window->SetContext(nullptr);
}

void FSceneRenderer::FImpl::DrawDepths(ERenderPass Pass, const FClipMatrix& View)
{
	const FClipMatrix Saved = Frame.ViewProjection;
	Frame.Pass = Pass;
	Frame.ViewProjection = View;
	for (const FDrawnSection& Section : Meshes.Drawn())
	{
		if (Pass == ERenderPass::Shadow || !Section.bTranslucent)
		{
			Section.DepthMapper->RenderPiece(Renderer, Section.Actor);
		}
	}
	Frame.Pass = ERenderPass::Color;
	Frame.ViewProjection = Saved;
}

void FSceneRenderer::FImpl::DrawSelected()
{
	Frame.Pass = ERenderPass::Selected;
	for (const FDrawnSection& Section : Meshes.Drawn())
	{
		if (Section.bSelected)
		{
			Section.DepthMapper->RenderPiece(Renderer, Section.Actor);
		}
	}
	Frame.Pass = ERenderPass::Color;
}

bool FSceneRenderer::FImpl::DrawShadows(const FSceneBounds& Bounds)
{
	if (!ShadowTarget.Begin(*Window, ShadowMapSize, ShadowMapSize))
	{
		return false;
	}
	const float Extent = std::max(Bounds.Radius() * 1.02f, 1.0f);
	Frame.ShadowMatrix = ParallelProjection(Bounds.Center(), Frame.Lights.front().Towards, Extent);
	Frame.ShadowExtent = Extent;
	Frame.ShadowTexel = 2.0f * Extent / float(ShadowMapSize);
	DrawDepths(ERenderPass::Shadow, Frame.ShadowMatrix);
	ShadowTarget.End(*Window);
	Frame.ShadowMap = ShadowTarget.Texture();
	return true;
}

bool FSceneRenderer::FImpl::DrawOcclusion(const FSceneSnapshot& Scene, const FSceneBounds& Bounds, int Width,
	int Height, float Near, float Far, bool bBackdrop)
{
	if (!DepthTarget.Begin(*Window, Width, Height))
	{
		return false;
	}
	if (bBackdrop)
	{
		Frame.Pass = ERenderPass::Depth;
		Backdrop->DrawDepth(*Window);
	}
	DrawDepths(ERenderPass::Depth, Frame.ViewProjection);
	DepthTarget.End(*Window);

	const float Texel[2] = {1.0f / float(Width), 1.0f / float(Height)};
	const float TangentX = std::tan(Scene.Camera.HorizontalFov * 0.5f * 3.14159265f / 180.0f);
	const float Tangent[2] = {TangentX, TangentX * float(Height) / float(Width)};
	const float NearFar[2] = {Near, Far};
	const auto Run = [&](FPassTarget& Target, FScreenProgram& Program, const char* Source, vtkTextureObject* Noisy)
	{
		if (!Target.Begin(*Window, Width, Height))
		{
			return false;
		}
		vtkShaderProgram* Shader = Program.Ready(*Window, Source);
		if (Shader)
		{
			DepthTarget.Texture()->Activate();
			Shader->SetUniformi("uDepth", DepthTarget.Texture()->GetTextureUnit());
			if (Noisy)
			{
				Noisy->Activate();
				Shader->SetUniformi("uNoisy", Noisy->GetTextureUnit());
			}
			Shader->SetUniform2f("uTexel", Texel);
			Shader->SetUniform2f("uTangent", Tangent);
			Shader->SetUniform2f("uNearFar", NearFar);
			Shader->SetUniformf("uReach", Reach(Bounds));
			Program.Draw();
			DepthTarget.Texture()->Deactivate();
			if (Noisy)
			{
				Noisy->Deactivate();
			}
		}
		Target.End(*Window);
		return Shader != nullptr;
	};
	if (!Run(NoisyTarget, OcclusionProgram, Shaders::OcclusionFragment, nullptr) ||
		!Run(OcclusionTarget, BlurProgram, Shaders::OcclusionBlurFragment, NoisyTarget.Texture()))
	{
		return false;
	}
	Frame.Occlusion = OcclusionTarget.Texture();
	return true;
}

FImage FSceneRenderer::FImpl::ReadPicture(int Width, int Height, int Scale, bool bCovered)
{
	std::vector<uint8_t> Large(size_t(Width) * size_t(Height) * size_t(Scale * Scale) * 4);
	Window->GetState()->PushReadFramebufferBinding();
	Window->GetRenderFramebuffer()->Bind(GL_READ_FRAMEBUFFER);
	Window->GetRenderFramebuffer()->ActivateReadBuffer(0);
	glPixelStorei(GL_PACK_ALIGNMENT, 1);
	glReadPixels(0, 0, Width * Scale, Height * Scale, GL_BGRA, GL_UNSIGNED_BYTE, Large.data());
	Window->GetState()->PopReadFramebufferBinding();
	FImage Picture = PictureFromDevice(Large, Width, Height, Scale, bCovered);
	if (bCovered)
	{
		AddGlow(Picture);
	}
	return Picture;
}

FRenderResult FSceneRenderer::FImpl::Render(
	const FSceneSnapshot& Scene, int Width, int Height, const FRenderOptions& Options)
{
	const int Scale = std::clamp(Options.Supersampling, 1, 4);
	if (Width < 1 || Height < 1 || Width > LargestPicture || Height > LargestPicture)
	{
		return Failed("The picture's size " + std::to_string(Width) + " x " + std::to_string(Height) +
					  " is outside 1.." + std::to_string(LargestPicture));
	}
	FCurrent Current(*Context);
	if (!Current.IsCurrent())
	{
		return Failed("The OpenGL context cannot be made current; is another thread drawing?");
	}
	const int Largest = std::min(vtkTextureObject::GetMaximumTextureSize(Window), 16384);
	if (std::max(Width, Height) * Scale > Largest)
	{
		return Failed("The picture's size " + std::to_string(Width) + " x " + std::to_string(Height) + " at " +
					  std::to_string(Scale) + " times is more than the " + std::to_string(Largest) +
					  " pixels that the device draws; ask for less or for less supersampling");
	}

	const FSceneBounds Bounds = BoundsMemory.Of(Scene.Objects);
	const float Aspect = float(Width) / float(Height);
	const FCameraSnapshot& Camera = Scene.Camera;
	const float Distance = Length(Bounds.Center() - Camera.Location);
	const float FloorReach =
		Options.bBackdrop && Scene.Surroundings.bFloor
			? Length(Scene.Surroundings.FloorPoint - Camera.Location) + Scene.Surroundings.FloorRadius
			: 0.0f;
	const float Far = std::max({Distance + Bounds.Radius(), FloorReach, 10.0f}) * 1.01f;
	const float Near = std::clamp((Distance - Bounds.Radius()) * 0.9f, Far / 20000.0f, Far * 0.5f);

	Frame.ViewProjection = ViewProjection(Camera, Aspect, Near, Far);
	Frame.Eye = Camera.Location;
	Frame.Lights = Scene.Lights;
	Frame.Sky = Scene.Surroundings.Sky;
	Frame.Ground = Scene.Surroundings.Ground;
	Frame.Exposure = Scene.Exposure;
	Frame.PixelWidth = 1.0f / float(Width * Scale);
	Frame.PixelHeight = 1.0f / float(Height * Scale);
	Frame.ShadowMap = nullptr;
	Frame.Occlusion = nullptr;
	Frame.Pass = ERenderPass::Color;
	Frame.bGlow = Options.bBackdrop;

	Window->SetSize(Width * Scale, Height * Scale);
	Meshes.Show(Scene, Frame, Textures, *Renderer);
	if (Options.bBackdrop)
	{
		Backdrop->Set(&Frame, Scene.Surroundings, Camera, Aspect);
	}
	// The library draws opaque things in the order of its list: the backdrop goes first.
	Renderer->RemoveAllViewProps();
	if (Options.bBackdrop)
	{
		Renderer->AddViewProp(Backdrop);
	}
	for (const FDrawnSection& Section : Meshes.Drawn())
	{
		Renderer->AddActor(Section.Actor);
	}
	// Peeling is the dearest step: only when there is something to peel in the view.
	Renderer->SetUseDepthPeeling(Meshes.HasTranslucentIn(Frame.ViewProjection));
	Renderer->SetMaximumNumberOfPeels(std::max(1, Options.TranslucentLayers / 2));
	Renderer->SetOcclusionRatio(0.0);

	Window->GetState()->Reset();
	Window->GetState()->Push();
	White->Activate();
	if (Options.bShadows && !Scene.Lights.empty() && !Bounds.IsEmpty() && !DrawShadows(Bounds))
	{
		Frame.ShadowMap = nullptr;
	}
	if (Options.bAmbientOcclusion && !Bounds.IsEmpty())
	{
		DrawOcclusion(Scene, Bounds, Width, Height, Near, Far, Options.bBackdrop);
	}
	for (vtkTextureObject* Texture : {Frame.ShadowMap, Frame.Occlusion})
	{
		if (Texture)
		{
			Texture->Activate();
		}
	}
	Window->Render();
	if (Options.OutlineThickness > 0.0f && Meshes.HasSelected())
	{
		Outline.Draw(
			*Window, [this] { DrawSelected(); }, Width * Scale, Height * Scale, Options.OutlineThickness * float(Scale),
			Scene.OutlineColor);
	}
	FRenderResult Result;
	Result.Image = ReadPicture(Width, Height, Scale, Options.bBackdrop);
	for (vtkTextureObject* Texture : {Frame.ShadowMap, Frame.Occlusion, Frame.White})
	{
		if (Texture)
		{
			Texture->Deactivate();
		}
	}
	Window->GetState()->Pop();
	return Result;
}

FSceneRenderer::FSceneRenderer(std::unique_ptr<FImpl> InImpl)
	: Impl(std::move(InImpl))
{
}

FSceneRenderer::~FSceneRenderer()
{
	Impl->Close();
}

std::unique_ptr<FSceneRenderer> FSceneRenderer::Create(std::string& OutError)
{
	auto Made = std::make_unique<FImpl>();
	if (!Made->Open(OutError))
	{
		return nullptr;
	}
	return std::unique_ptr<FSceneRenderer>(new FSceneRenderer(std::move(Made)));
}

FRenderResult FSceneRenderer::Render(
	const FSceneSnapshot& Scene, int32_t Width, int32_t Height, const FRenderOptions& Options)
{
	return Impl->Render(Scene, Width, Height, Options);
}

const std::string& FSceneRenderer::DeviceName() const
{
	return Impl->Device;
}

} // namespace Host
