// SPDX-License-Identifier: MIT
/** The sample project, built once for all tests of this program that look at it. */
#pragma once

#include "Zef/Peer/SampleProject.h"

namespace PeerTest
{

inline const Zef::Peer::FProject& Sample()
{
	static const Zef::Peer::FProject Project = Zef::Peer::MakeSampleProject();
	return Project;
}

inline const Zef::Peer::FProjectObject& SampleObject(Zef::EObjectType Type)
{
	return *Sample().Find(Type);
}

inline const std::vector<Zef::FMeshSequenceFrame>& SampleClothSequence()
{
	static const std::vector<Zef::FMeshSequenceFrame> Frames =
		SampleObject(Zef::EObjectType::Garment).MakeMeshSequence();
	return Frames;
}

} // namespace PeerTest
