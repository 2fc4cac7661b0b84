// SPDX-License-Identifier: MIT
#include "Packing/PickVertices.h"
#include "Zef/Peer/Packing.h"

namespace Zef::Peer
{

FKeptVertices Pack(FSurfaceMesh& Mesh, EObjectType Type, const FPackingOptions& Options)
{
	if (Options.bUnifiedMaterial && Type == EObjectType::Garment)
	{
		UnifyMaterials(Mesh);
	}
	return Options.bWeld ? WeldVertices(Mesh) : FKeptVertices{};
}

void PackFrames(std::vector<FMeshSequenceFrame>& Frames, const FKeptVertices& Kept)
{
	if (Kept.Old.empty())
	{
		return;
	}
	for (FMeshSequenceFrame& Frame : Frames)
	{
		PickVertices(Frame.Positions, Kept.Old);
		PickVertices(Frame.Normals, Kept.Old);
		PickVertices(Frame.Tangents, Kept.Old);
	}
}

} // namespace Zef::Peer
