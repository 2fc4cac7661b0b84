// SPDX-License-Identifier: MIT
#include "ScreenPasses.h"

#include "Shaders.h"
#include "VectorMath.h"

#include "OpenGL.h"

#include <vtkObjectFactory.h>
#include <vtkOpenGLRenderWindow.h>
#include <vtkOpenGLShaderCache.h>
#include <vtkOpenGLState.h>
#include <vtkRenderer.h>
#include <vtkShaderProgram.h>
#include <vtkViewport.h>

#include <cmath>

namespace Host
{

bool FPassTarget::Begin(vtkOpenGLRenderWindow& Window, int Width, int Height)
{
	if (!Object || Width != LastWidth || Height != LastHeight)
	{
		ReleaseGraphicsResources(Window);
		Object = vtkSmartPointer<vtkTextureObject>::New();
		Object->SetContext(&Window);
		Object->SetWrapS(vtkTextureObject::ClampToEdge);
		Object->SetWrapT(vtkTextureObject::ClampToEdge);
		const int Filter = Kind == EKind::Depth ? vtkTextureObject::Nearest : vtkTextureObject::Linear;
		Object->SetMinificationFilter(Filter);
		Object->SetMagnificationFilter(Filter);
		const bool bMade = Kind == EKind::Depth
							   ? Object->AllocateDepth(unsigned(Width), unsigned(Height), vtkTextureObject::Float32)
							   : Object->Allocate2D(unsigned(Width), unsigned(Height), 4, VTK_UNSIGNED_CHAR);
		if (!bMade)
		{
			Object = nullptr;
			return false;
		}
		Buffer = vtkSmartPointer<vtkOpenGLFramebufferObject>::New();
		Buffer->SetContext(&Window);
		LastWidth = Width;
		LastHeight = Height;
	}
	vtkOpenGLState& State = *Window.GetState();
	State.PushFramebufferBindings();
	Buffer->Bind();
	if (Kind == EKind::Depth)
	{
		Buffer->AddDepthAttachment(Object);
		Buffer->DeactivateDrawBuffers();
		Buffer->DeactivateReadBuffer();
	}
	else
	{
		Buffer->AddColorAttachment(0, Object);
		Buffer->ActivateBuffer(0);
	}
	State.vtkglViewport(0, 0, Width, Height);
	State.vtkglDisable(GL_SCISSOR_TEST);
	State.vtkglDisable(GL_BLEND);
	State.vtkglDepthMask(GL_TRUE);
	State.vtkglDepthFunc(GL_LEQUAL);
	State.vtkglColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
	if (Kind == EKind::Depth)
	{
		State.vtkglEnable(GL_DEPTH_TEST);
		State.vtkglClearDepth(1.0);
		State.vtkglClear(GL_DEPTH_BUFFER_BIT);
	}
	else
	{
		State.vtkglDisable(GL_DEPTH_TEST);
	}
	return true;
}

void FPassTarget::End(vtkOpenGLRenderWindow& Window)
{
	Window.GetState()->PopFramebufferBindings();
}

void FPassTarget::ReleaseGraphicsResources(vtkOpenGLRenderWindow& Window)
{
	if (Buffer)
	{
		Buffer->ReleaseGraphicsResources(&Window);
		Buffer = nullptr;
	}
	if (Object)
	{
		Object->ReleaseGraphicsResources(&Window);
		Object = nullptr;
	}
}

vtkShaderProgram* FScreenProgram::Ready(vtkOpenGLRenderWindow& Window, const std::string& Fragment)
{
	if (!Quad)
	{
		Quad = std::make_unique<vtkOpenGLQuadHelper>(&Window, nullptr, Fragment.c_str(), "");
	}
	else
	{
		Window.GetShaderCache()->ReadyShaderProgram(Quad->Program);
	}
	return Quad->Program && Quad->Program->GetCompiled() ? Quad->Program : nullptr;
}

void FScreenProgram::ReleaseGraphicsResources(vtkOpenGLRenderWindow& Window)
{
	if (Quad)
	{
		Quad->ReleaseGraphicsResources(&Window);
		Quad = nullptr;
	}
}

vtkStandardNewMacro(FBackdrop);

void FBackdrop::Set(
	const FFrameState* InFrame, const FSurroundings& InSurroundings, const FCameraSnapshot& InCamera, float Aspect)
{
	Frame = InFrame;
	Surroundings = InSurroundings;
	const float Edge = std::tan(InCamera.HorizontalFov * 0.5f * 3.14159265f / 180.0f);
	Forward = InCamera.Forward;
	Right = InCamera.Right * Edge;
	Up = InCamera.Up * (Edge / Aspect);
}

int FBackdrop::RenderOpaqueGeometry(vtkViewport* Viewport)
{
	Draw(*vtkOpenGLRenderWindow::SafeDownCast(static_cast<vtkRenderer*>(Viewport)->GetRenderWindow()), false);
	return 1;
}

void FBackdrop::DrawDepth(vtkOpenGLRenderWindow& Window)
{
	Draw(Window, true);
}

void FBackdrop::Draw(vtkOpenGLRenderWindow& Window, bool bDepthOnly)
{
	vtkShaderProgram* Shader = Program.Ready(Window, Shaders::BackdropFragment());
	if (!Shader)
	{
		return;
	}
	SetFrameUniforms(*Shader, *Frame);
	Shader->SetUniform3f("uForward", &Forward.X);
	Shader->SetUniform3f("uRight", &Right.X);
	Shader->SetUniform3f("uUp", &Up.X);
	Shader->SetUniform3f("uBackdropTop", &Surroundings.BackdropTop.X);
	Shader->SetUniform3f("uBackdropBottom", &Surroundings.BackdropBottom.X);
	Shader->SetUniform3f("uFloorPoint", &Surroundings.FloorPoint.X);
	Shader->SetUniform3f("uFloorColor", &Surroundings.FloorColor.X);
	Shader->SetUniformf("uFloorRadius", Surroundings.FloorRadius);
	Shader->SetUniformi("uFloor", Surroundings.bFloor);
	Shader->SetUniformf("uGridSpacing", Surroundings.bGrid ? Surroundings.GridSpacing : 0.0f);
	Shader->SetUniformf("uGridHalfSize", Surroundings.GridHalfSize);
	Shader->SetUniformi("uDepthOnly", bDepthOnly);
	vtkOpenGLState& State = *Window.GetState();
	State.vtkglEnable(GL_DEPTH_TEST);
	State.vtkglDepthMask(GL_TRUE);
	State.vtkglDepthFunc(GL_LEQUAL);
	State.vtkglDisable(GL_BLEND);
	Program.Draw();
}

void FBackdrop::ReleaseGraphicsResources(vtkWindow* Window)
{
	if (auto* OpenGLWindow = vtkOpenGLRenderWindow::SafeDownCast(Window))
	{
		Program.ReleaseGraphicsResources(*OpenGLWindow);
	}
}

} // namespace Host
