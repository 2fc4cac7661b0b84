// SPDX-License-Identifier: MIT
/** The parts of reading a file with Assimp. */
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "Files/Model/Model.h"

struct aiScene;

namespace Zef::Peer
{

void ReadAssimpMaterials(const aiScene& Scene, const std::filesystem::path& File, FModel& Model);
void ReadAssimpClips(const aiScene& Scene, const std::map<std::string, int>& NodeOf, FModel& Model);

} // namespace Zef::Peer
