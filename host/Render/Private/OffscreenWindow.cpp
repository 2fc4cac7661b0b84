// SPDX-License-Identifier: MIT
#include "OffscreenWindow.h"

#include "EglContext.h"

#include <vtkObject.h>
#include <vtkObjectFactory.h>

namespace Host
{

vtkStandardNewMacro(FOffscreenWindow);

FOffscreenWindow::FOffscreenWindow()
{
	SetOwnContext(0);
	SetOffScreenRendering(1);
	SetMultiSamples(0); // the picture is drawn larger and averaged instead, which a software device does faster
	SetFrameBlitModeToNoBlit();
	SetReadyForRendering(true);
	SwapBuffersOff();
}

void FOffscreenWindow::MakeCurrent()
{
	if (Context && !Context->IsCurrent())
	{
		Context->MakeCurrent();
	}
}

bool FOffscreenWindow::IsCurrent()
{
	return Context && Context->IsCurrent();
}

void FOffscreenWindow::OpenGLInitContext()
{
	if (Initialized)
	{
		return;
	}
	// The function loader was built for X and reports an error under EGL after it has loaded everything. Taken at its
	// word, the window would try again, and complain, at every frame.
	const int Warnings = vtkObject::GetGlobalWarningDisplay();
	vtkObject::SetGlobalWarningDisplay(0);
	Superclass::OpenGLInitContext();
	vtkObject::SetGlobalWarningDisplay(Warnings);
	Initialized = true;
}

} // namespace Host
