// SPDX-License-Identifier: MIT
/** The glTF library with the options under which it is compiled here; every file has to see the same ones. */
#pragma once

#define TINYGLTF_NO_STB_IMAGE
#define TINYGLTF_NO_STB_IMAGE_WRITE
#define TINYGLTF_NO_FS
#include <tiny_gltf.h>
