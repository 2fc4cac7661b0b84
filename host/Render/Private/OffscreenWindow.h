// SPDX-License-Identifier: MIT
#pragma once

#include <vtkGenericOpenGLRenderWindow.h>

namespace Host
{

class FEglContext;

/** The drawing library's window over a surfaceless context: nothing is shown, the picture stays in its framebuffer. */
class FOffscreenWindow : public vtkGenericOpenGLRenderWindow
{
public:
	static FOffscreenWindow* New();
	vtkTypeMacro(FOffscreenWindow, vtkGenericOpenGLRenderWindow);

	/** @param InContext  not owned, outlives the window's use */
	void SetContext(FEglContext* InContext) { Context = InContext; }

	void MakeCurrent() override;
	bool IsCurrent() override;
	int SupportsOpenGL() override { return 1; }
	void Frame() override {}
	void OpenGLInitContext() override;

protected:
	FOffscreenWindow();
	~FOffscreenWindow() override = default;

private:
	FEglContext* Context = nullptr;
};

} // namespace Host
