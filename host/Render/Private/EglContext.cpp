// SPDX-License-Identifier: MIT
#include "EglContext.h"

#define EGL_NO_X11
#include <EGL/egl.h>
#include <EGL/eglext.h>

#include <cstdio>
#include <cstring>
#include <vector>

namespace Host
{
namespace
{

// The hardware selector of the drawing library refuses a context without a surface; the pictures never touch it.
constexpr EGLint SurfaceSize = 16;

std::string EglFailure(const char* Call)
{
	char Text[96];
	std::snprintf(Text, sizeof Text, "%s failed with EGL error 0x%04x", Call, unsigned(eglGetError()));
	return Text;
}

bool HasClientExtension(const char* Name)
{
	const char* All = eglQueryString(EGL_NO_DISPLAY, EGL_EXTENSIONS);
	return All && std::strstr(All, Name);
}

/** Displays that need no display server, the likeliest first. */
std::vector<EGLDisplay> Candidates()
{
	std::vector<EGLDisplay> Displays;
	const auto GetPlatformDisplay =
		reinterpret_cast<PFNEGLGETPLATFORMDISPLAYEXTPROC>(eglGetProcAddress("eglGetPlatformDisplayEXT"));
	if (GetPlatformDisplay && HasClientExtension("EGL_MESA_platform_surfaceless"))
	{
		Displays.push_back(GetPlatformDisplay(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY, nullptr));
	}
	const auto QueryDevices = reinterpret_cast<PFNEGLQUERYDEVICESEXTPROC>(eglGetProcAddress("eglQueryDevicesEXT"));
	if (GetPlatformDisplay && QueryDevices && HasClientExtension("EGL_EXT_platform_device"))
	{
		EGLDeviceEXT Devices[16];
		EGLint Count = 0;
		if (QueryDevices(16, Devices, &Count))
		{
			for (EGLint Index = 0; Index < Count; ++Index)
			{
				Displays.push_back(GetPlatformDisplay(EGL_PLATFORM_DEVICE_EXT, Devices[Index], nullptr));
			}
		}
	}
	return Displays;
}

bool MakeContext(EGLDisplay Display, EGLSurface& Surface, EGLContext& Context, std::string& OutError)
{
	if (!eglInitialize(Display, nullptr, nullptr))
	{
		OutError = EglFailure("eglInitialize");
		return false;
	}
	if (!eglBindAPI(EGL_OPENGL_API))
	{
		OutError = EglFailure("eglBindAPI for OpenGL");
		return false;
	}
	const EGLint Wanted[] = {EGL_SURFACE_TYPE, EGL_PBUFFER_BIT, EGL_RENDERABLE_TYPE, EGL_OPENGL_BIT, EGL_RED_SIZE, 8,
		EGL_GREEN_SIZE, 8, EGL_BLUE_SIZE, 8, EGL_NONE};
	EGLConfig Config = nullptr;
	EGLint Count = 0;
	if (!eglChooseConfig(Display, Wanted, &Config, 1, &Count) || Count == 0)
	{
		OutError = EglFailure("eglChooseConfig");
		return false;
	}
	const EGLint Size[] = {EGL_WIDTH, SurfaceSize, EGL_HEIGHT, SurfaceSize, EGL_NONE};
	Surface = eglCreatePbufferSurface(Display, Config, Size);
	if (Surface == EGL_NO_SURFACE)
	{
		OutError = EglFailure("eglCreatePbufferSurface");
		return false;
	}
	const EGLint Version[] = {EGL_CONTEXT_MAJOR_VERSION, 3, EGL_CONTEXT_MINOR_VERSION, 2,
		EGL_CONTEXT_OPENGL_PROFILE_MASK, EGL_CONTEXT_OPENGL_CORE_PROFILE_BIT, EGL_NONE};
	Context = eglCreateContext(Display, Config, EGL_NO_CONTEXT, Version);
	if (Context == EGL_NO_CONTEXT)
	{
		OutError = EglFailure("eglCreateContext for OpenGL 3.2");
		eglDestroySurface(Display, Surface);
		return false;
	}
	return true;
}

} // namespace

std::unique_ptr<FEglContext> FEglContext::Create(std::string& OutError)
{
	std::string Reason = "no EGL platform works without a display server";
	for (EGLDisplay Display : Candidates())
	{
		if (Display == EGL_NO_DISPLAY)
		{
			continue;
		}
		EGLSurface Surface = EGL_NO_SURFACE;
		EGLContext Context = EGL_NO_CONTEXT;
		if (MakeContext(Display, Surface, Context, Reason))
		{
			std::unique_ptr<FEglContext> Made(new FEglContext());
			Made->Display = Display;
			Made->Surface = Surface;
			Made->Context = Context;
			return Made;
		}
	}
	OutError = "No picture can be drawn: " + Reason + "; install libegl1 and libgl1-mesa-dri";
	return nullptr;
}

FEglContext::~FEglContext()
{
	Release();
	// The display stays initialised: EGL gives the same one to every context of the process.
	eglDestroyContext(Display, Context);
	eglDestroySurface(Display, Surface);
}

bool FEglContext::MakeCurrent()
{
	return eglBindAPI(EGL_OPENGL_API) && eglMakeCurrent(Display, Surface, Surface, Context);
}

void FEglContext::Release()
{
	if (IsCurrent())
	{
		eglMakeCurrent(Display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
	}
}

bool FEglContext::IsCurrent() const
{
	return eglGetCurrentContext() == Context;
}

} // namespace Host
