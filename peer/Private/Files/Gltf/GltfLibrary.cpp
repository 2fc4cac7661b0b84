// SPDX-License-Identifier: MIT
// The glTF library's code, compiled here and nowhere else. Pictures are decoded by DecodeImage, and files are read by
// the callbacks of its caller.
#include <fstream> // which the library uses for writing even where its own file access is shut out

#define TINYGLTF_IMPLEMENTATION
#include "Files/Gltf/GltfLibrary.h"
