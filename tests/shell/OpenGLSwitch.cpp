// SPDX-License-Identifier: MIT
#include "OpenGLSwitch.h"

#include <atomic>

#include <dlfcn.h>

namespace
{
std::atomic<bool> bRefused{false};
} // namespace

FWithoutOpenGL::FWithoutOpenGL()
{
	bRefused = true;
}

FWithoutOpenGL::~FWithoutOpenGL()
{
	bRefused = false;
}

// Stands before the library's function of that name, which a machine without OpenGL answers with 0 too.
extern "C" __attribute__((visibility("default"))) unsigned int eglBindAPI(unsigned int Api)
{
	static const auto Real = reinterpret_cast<unsigned int (*)(unsigned int)>(dlsym(RTLD_NEXT, "eglBindAPI"));
	return bRefused || !Real ? 0 : Real(Api);
}
