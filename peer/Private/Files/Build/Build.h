// SPDX-License-Identifier: MIT
/** From a model as the file has it to records in the engine's axes and units. */
#pragma once

#include <string>
#include <vector>

#include "Files/Model/Model.h"

namespace Zef::Peer
{

/** One file's share of an object. Keys of materials and textures count from 0. */
struct FReadObject
{
	FSurfaceMesh Mesh;
	FJointSequence Sequence;
	std::vector<FMeshSequenceFrame> Frames;
	std::vector<std::string> Warnings;
};

/**
 * Builds the records. Only an avatar keeps its joints: the editor names the mesh that it makes of every object with
 * joints alike, so two of them would meet under one name. Skins of the other kinds are baked in the bind pose.
 * @param UnstatedUnit  centimetres per unit of a file that states none; 0: guessed from its size, with a warning
 * @return the reason when nothing can be built, else empty
 */
std::string BuildObject(EObjectType Type, FModel& Model, float UnstatedUnit, FReadObject& Object);

} // namespace Zef::Peer
