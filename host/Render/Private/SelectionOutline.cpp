// SPDX-License-Identifier: MIT
#include "SelectionOutline.h"

#include "Shaders.h"

#include "OpenGL.h"

#include <vtkOpenGLRenderWindow.h>
#include <vtkOpenGLState.h>
#include <vtkShaderProgram.h>

namespace Host
{

bool FSelectionOutline::Draw(vtkOpenGLRenderWindow& Window, const std::function<void()>& DrawSelected, int Width,
	int Height, float Thickness, const FFloat3& Color)
{
	if (!Target.Begin(Window, Width, Height))
	{
		return false;
	}
	DrawSelected();
	Target.End(Window);

	vtkOpenGLState& State = *Window.GetState();
	State.PushFramebufferBindings();
	Window.GetRenderFramebuffer()->Bind();
	Window.GetRenderFramebuffer()->ActivateDrawBuffer(0);
	State.vtkglViewport(0, 0, Width, Height);
	State.vtkglDisable(GL_DEPTH_TEST);
	State.vtkglEnable(GL_BLEND);
	State.vtkglBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ZERO, GL_ONE);
	vtkShaderProgram* const Shader = Program.Ready(Window, Shaders::OutlineFragment);
	if (Shader)
	{
		const float Step[2] = {Thickness / float(Width), Thickness / float(Height)};
		Target.Texture()->Activate();
		Shader->SetUniformi("uDepth", Target.Texture()->GetTextureUnit());
		Shader->SetUniform2f("uStep", Step);
		Shader->SetUniform3f("uColor", &Color.X);
		Program.Draw();
		Target.Texture()->Deactivate();
	}
	State.vtkglEnable(GL_DEPTH_TEST);
	State.PopFramebufferBindings();
	return Shader != nullptr;
}

void FSelectionOutline::ReleaseGraphicsResources(vtkOpenGLRenderWindow& Window)
{
	Target.ReleaseGraphicsResources(Window);
	Program.ReleaseGraphicsResources(Window);
}

} // namespace Host
