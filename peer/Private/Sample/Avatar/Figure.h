// SPDX-License-Identifier: MIT
/** The figure that avatar, clothes and shoes are made from; built once for the sample project. */
#pragma once

#include "Implicit/Field.h"
#include "Mesh/TriangleMesh.h"
#include "Sample/Rig/Skeleton.h"
#include "Sample/Rig/Weights.h"

namespace Zef::Peer
{

struct FFigure
{
	FSkeleton Skeleton;
	/** Solid and skin in the symmetric pose. */
	FFieldPtr Body;
	FTriangleMesh Skin;
	FSkinWeights SkinWeights;
	/** From there to the pose in which she stands, which is the reference pose of all records. */
	std::vector<FRigid> StandingPlaces;
	std::vector<FRigid> StandingMoves;
};

FFigure MakeFigure();

/** Moves the vertices from the symmetric pose to any other, given each joint's place there. */
void PoseMesh(
	FTriangleMesh& Mesh, const FSkinWeights& Weights, const FFigure& Figure, const std::vector<FRigid>& Places);

} // namespace Zef::Peer
