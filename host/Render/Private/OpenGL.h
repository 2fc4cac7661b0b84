// SPDX-License-Identifier: MIT
#pragma once

/** OpenGL's own functions and constants, for the few calls that the drawing library has no name for. */
#define GL_GLEXT_PROTOTYPES
#include <GL/gl.h>
#include <GL/glext.h>
