// SPDX-License-Identifier: MIT
#include "Zef/Peer/Packing.h"

namespace Zef::Peer
{

namespace
{

void Pick(std::vector<FVec3>& Values, const std::vector<std::uint32_t>& Kept)
{
	if (Values.empty())
	{
		return;
	}
	// The numbers ascend, so nothing is overwritten before it has been read.
	for (std::size_t V = 0; V < Kept.size(); ++V)
	{
		Values[V] = Values[Kept[V]];
	}
	Values.resize(Kept.size());
}

} // namespace

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
		Pick(Frame.Positions, Kept.Old);
		Pick(Frame.Normals, Kept.Old);
		Pick(Frame.Tangents, Kept.Old);
	}
}

} // namespace Zef::Peer
