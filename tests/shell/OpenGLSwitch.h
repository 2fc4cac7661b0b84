// SPDX-License-Identifier: MIT
/** Takes OpenGL away from the renderer. */
#pragma once

/** While one lives, a machine has no OpenGL for whoever asks for it anew. */
class FWithoutOpenGL
{
public:
	FWithoutOpenGL();
	~FWithoutOpenGL();
	FWithoutOpenGL(const FWithoutOpenGL&) = delete;
	FWithoutOpenGL& operator=(const FWithoutOpenGL&) = delete;
};
