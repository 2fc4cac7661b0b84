// SPDX-License-Identifier: MIT
#include "Files/Merge.h"

#include <algorithm>
#include <map>

#include "Files/Build/Names.h"
#include "Math/Matrix.h"

namespace Zef::Peer
{

namespace
{

std::size_t VertexCountOf(const FSurfaceMesh& Mesh)
{
	std::size_t Count = 0;
	for (const FSurface& Surface : Mesh.Surfaces)
	{
		Count += Surface.Positions.size();
	}
	return Count;
}

void ShiftKeys(FSurfaceMesh& Mesh, std::int32_t MaterialShift, std::int32_t TextureShift)
{
	for (auto& [Key, Material] : Mesh.Materials)
	{
		Key += MaterialShift;
		Material.Id = Key;
		for (auto& [Channel, Expression] : Material.Expressions)
		{
			Expression.TextureId += Expression.TextureId >= 0 ? TextureShift : 0;
		}
	}
	for (auto& [Key, Texture] : Mesh.Textures)
	{
		Key += TextureShift;
	}
	for (FSurface& Surface : Mesh.Surfaces)
	{
		for (FSection& Section : Surface.Sections)
		{
			Section.MaterialIndex += MaterialShift;
		}
	}
}

std::vector<FMatrix34> PlacesOf(const std::vector<FJoint>& Joints)
{
	std::vector<FMatrix34> Places;
	for (const FJoint& Joint : Joints)
	{
		const FMatrix34 Local = FMatrix34::From(Joint.Transform);
		Places.push_back(Joint.ParentIndex < 0 ? Local : Places[static_cast<std::size_t>(Joint.ParentIndex)] * Local);
	}
	return Places;
}

/** Everything that has no joints hangs at the root. */
void BindToRoot(FSurfaceMesh& Mesh)
{
	const std::size_t Count = VertexCountOf(Mesh);
	Mesh.VertexInfluences.Weights.assign(Count, {0, 1.0f});
	Mesh.VertexInfluences.FirstWeight.resize(Count + 1);
	for (std::size_t V = 0; V <= Count; ++V)
	{
		Mesh.VertexInfluences.FirstWeight[V] = static_cast<std::uint32_t>(V);
	}
}

void MoveVertices(FSurfaceMesh& Mesh, const std::vector<FMatrix34>& Moves)
{
	std::size_t Vertex = 0;
	const FInfluences& Influences = Mesh.VertexInfluences;
	for (FSurface& Surface : Mesh.Surfaces)
	{
		for (std::size_t V = 0; V < Surface.Positions.size(); ++V, ++Vertex)
		{
			FMatrix34 Way;
			for (std::uint32_t W = Influences.FirstWeight[Vertex]; W < Influences.FirstWeight[Vertex + 1]; ++W)
			{
				const FBoneWeight& Weight = Influences.Weights[W];
				Way.AddScaled(Moves[static_cast<std::size_t>(Weight.BoneIndex)], Weight.Weight);
			}
			Surface.Positions[V] = Way.Point(Surface.Positions[V]);
			Surface.Normals[V] = Normalized(Way.Direction(Surface.Normals[V]), Surface.Normals[V]);
			Surface.Tangents[V] = SquareTo(Surface.Normals[V], Way.Direction(Surface.Tangents[V]));
		}
	}
}

/** Makes the skeleton of both; Other's influences then count in it and its vertices stand in its pose. */
void MergeJoints(FReadObject& All, FReadObject& Other)
{
	std::vector<FJoint>& Joints = All.Mesh.Joints;
	if (Joints.empty())
	{
		Joints = Other.Mesh.Joints;
		BindToRoot(All.Mesh);
		return;
	}
	if (Other.Mesh.Joints.empty())
	{
		BindToRoot(Other.Mesh);
		return;
	}
	std::map<std::string, std::int32_t> IndexOf;
	for (std::size_t J = 0; J < Joints.size(); ++J)
	{
		IndexOf.emplace(FoldName(Joints[J].Name), static_cast<std::int32_t>(J));
	}
	std::vector<std::int32_t> NewIndex;
	for (const FJoint& Joint : Other.Mesh.Joints)
	{
		const auto [At, bNew] = IndexOf.emplace(FoldName(Joint.Name), static_cast<std::int32_t>(Joints.size()));
		if (bNew)
		{
			FJoint Appended = Joint;
			// A second root would be none: what stood alone stands at the first one.
			Appended.ParentIndex = Joint.ParentIndex < 0 ? 0 : NewIndex[static_cast<std::size_t>(Joint.ParentIndex)];
			Joints.push_back(Appended);
		}
		NewIndex.push_back(At->second);
	}
	const std::vector<FMatrix34> Here = PlacesOf(Joints), There = PlacesOf(Other.Mesh.Joints);
	std::vector<FMatrix34> Moves;
	bool bMoves = false;
	for (std::size_t J = 0; J < There.size(); ++J)
	{
		constexpr float Tolerance = 0.01f; // a tenth of a millimetre
		const FMatrix34& Place = Here[static_cast<std::size_t>(NewIndex[J])];
		Moves.push_back(Place * There[J].Inverted());
		const FMatrix34& Move = Moves.back();
		bMoves = bMoves || Distance(Place.Shift, There[J].Shift) > Tolerance ||
				 Distance(Move.ColumnX, {1, 0, 0}) > 1e-3f || Distance(Move.ColumnY, {0, 1, 0}) > 1e-3f;
	}
	if (bMoves)
	{
		MoveVertices(Other.Mesh, Moves);
	}
	for (FBoneWeight& Weight : Other.Mesh.VertexInfluences.Weights)
	{
		Weight.BoneIndex = NewIndex[static_cast<std::size_t>(Weight.BoneIndex)];
	}
	for (FJointSequenceFrame& Frame : Other.Sequence.Frames)
	{
		std::vector<FJoint> Posed = Joints;
		for (std::size_t J = 0; J < Frame.Joints.size(); ++J)
		{
			Posed[static_cast<std::size_t>(NewIndex[J])].Transform = Frame.Joints[J].Transform;
		}
		Frame.Joints = std::move(Posed);
	}
	for (FJointSequenceFrame& Frame : All.Sequence.Frames)
	{
		Frame.Joints.insert(
			Frame.Joints.end(), Joints.begin() + static_cast<std::ptrdiff_t>(Frame.Joints.size()), Joints.end());
	}
}

} // namespace

void MergeInto(FReadObject& All, FReadObject Other)
{
	ShiftKeys(Other.Mesh, static_cast<std::int32_t>(All.Mesh.Materials.size()),
		static_cast<std::int32_t>(All.Mesh.Textures.size()));
	if (!All.Mesh.Joints.empty() || !Other.Mesh.Joints.empty())
	{
		MergeJoints(All, Other);
		FInfluences& Influences = All.Mesh.VertexInfluences;
		const FInfluences& More = Other.Mesh.VertexInfluences;
		const auto Base = static_cast<std::uint32_t>(Influences.Weights.size());
		for (std::size_t V = 1; V < More.FirstWeight.size(); ++V)
		{
			Influences.FirstWeight.push_back(Base + More.FirstWeight[V]);
		}
		Influences.Weights.insert(Influences.Weights.end(), More.Weights.begin(), More.Weights.end());
	}
	const auto Vertices = static_cast<std::int32_t>(VertexCountOf(All.Mesh));
	for (FSurface& Surface : Other.Mesh.Surfaces)
	{
		Surface.VertexOffset += Vertices;
		All.Mesh.Surfaces.push_back(std::move(Surface));
	}
	std::move(Other.Mesh.Materials.begin(), Other.Mesh.Materials.end(), std::back_inserter(All.Mesh.Materials));
	std::move(Other.Mesh.Textures.begin(), Other.Mesh.Textures.end(), std::back_inserter(All.Mesh.Textures));
	if (Other.Sequence.Frames.size() > All.Sequence.Frames.size())
	{
		All.Sequence = std::move(Other.Sequence);
	}
	All.Frames.clear();
}

void RenumberFor(EObjectType Type, FSurfaceMesh& Mesh)
{
	std::int32_t Base = 0;
	switch (Type)
	{
		case EObjectType::Garment:
			Base = 100000;
			break;
		case EObjectType::Avatar:
			Base = 200000;
			break;
		case EObjectType::Outfit:
			Base = 300000;
			break;
		case EObjectType::Prop:
		case EObjectType::Invalid:
			Base = 400000;
			break;
	}
	ShiftKeys(Mesh, Base, Base);
}

} // namespace Zef::Peer
