// SPDX-License-Identifier: MIT
// Limits of mesh vertices.
#pragma once

/** Most sets of texture coordinates of one vertex. */
#define MAX_TEXCOORDS 4
