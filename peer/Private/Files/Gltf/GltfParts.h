// SPDX-License-Identifier: MIT
/** The parts of reading a glTF file. Each returns the reason when it must give up, else empty. */
#pragma once

#include <string>

#include "Files/Model/Model.h"

namespace tinygltf
{
class Model;
}

namespace Zef::Peer
{

std::string ReadGltfNodes(const tinygltf::Model& File, FModel& Model);
std::string ReadGltfPieces(const tinygltf::Model& File, FModel& Model);
void ReadGltfClips(const tinygltf::Model& File, FModel& Model);
void ReadGltfMaterials(const tinygltf::Model& File, FModel& Model);

} // namespace Zef::Peer
