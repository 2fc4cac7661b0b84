// SPDX-License-Identifier: MIT
#include "Zef/Peer/SkinnedSequence.h"

#include <string>
#include <unordered_map>

#include "Math/Matrix.h"

namespace Zef::Peer
{

namespace
{

/** Places of all joints in the mesh's space; parents stand before children. */
std::vector<FMatrix34> PlacesOf(const std::vector<FJoint>& Joints, const std::vector<FTransform>& Locals)
{
	std::vector<FMatrix34> Places;
	Places.reserve(Joints.size());
	for (std::size_t J = 0; J < Joints.size(); ++J)
	{
		const FMatrix34 Local = FMatrix34::From(Locals[J]);
		const std::int32_t Parent = Joints[J].ParentIndex;
		Places.push_back(Parent < 0 ? Local : Places[static_cast<std::size_t>(Parent)] * Local);
	}
	return Places;
}

FMeshSequenceFrame SkinFrame(const FSurfaceMesh& Mesh, const std::vector<FMatrix34>& Moves, double Time)
{
	const FInfluences& Influences = Mesh.VertexInfluences;
	FMeshSequenceFrame Frame;
	Frame.Time = Time;
	const std::size_t Count = Influences.VertexCount();
	Frame.Positions.reserve(Count);
	Frame.Normals.reserve(Count);
	Frame.Tangents.reserve(Count);
	std::size_t Vertex = 0;
	for (const FSurface& Surface : Mesh.Surfaces)
	{
		for (std::size_t V = 0; V < Surface.Positions.size(); ++V, ++Vertex)
		{
			const std::uint32_t First = Influences.FirstWeight[Vertex], End = Influences.FirstWeight[Vertex + 1];
			FMatrix34 Blend;
			for (std::uint32_t W = First; W < End; ++W)
			{
				const FBoneWeight& Weight = Influences.Weights[W];
				Blend.AddScaled(Moves[static_cast<std::size_t>(Weight.BoneIndex)], Weight.Weight);
			}
			if (First == End)
			{
				Blend = FMatrix34::Identity();
			}
			Frame.Positions.push_back(Blend.Point(Surface.Positions[V]));
			Frame.Normals.push_back(Normalized(Blend.Direction(Surface.Normals[V]), Surface.Normals[V]));
			Frame.Tangents.push_back(Normalized(Blend.Direction(Surface.Tangents[V]), Surface.Tangents[V]));
		}
	}
	return Frame;
}

} // namespace

std::vector<FMeshSequenceFrame> MakeSkinnedSequence(const FSurfaceMesh& Mesh, const FJointSequence& Sequence)
{
	if (Mesh.Joints.empty() || Mesh.VertexInfluences.VertexCount() == 0)
	{
		return {};
	}
	std::unordered_map<std::string, std::size_t> IndexOf;
	std::vector<FTransform> Reference;
	for (const FJoint& Joint : Mesh.Joints)
	{
		IndexOf.emplace(Joint.Name, Reference.size());
		Reference.push_back(Joint.Transform);
	}
	std::vector<FMatrix34> FromReference;
	for (const FMatrix34& Place : PlacesOf(Mesh.Joints, Reference))
	{
		FromReference.push_back(Place.Inverted());
	}

	std::vector<FMeshSequenceFrame> Frames;
	Frames.reserve(Sequence.Frames.size());
	for (const FJointSequenceFrame& Source : Sequence.Frames)
	{
		std::vector<FTransform> Locals = Reference;
		for (const FJoint& Joint : Source.Joints)
		{
			const auto Found = IndexOf.find(Joint.Name);
			if (Found != IndexOf.end())
			{
				Locals[Found->second] = Joint.Transform;
			}
		}
		std::vector<FMatrix34> Moves = PlacesOf(Mesh.Joints, Locals);
		for (std::size_t J = 0; J < Moves.size(); ++J)
		{
			Moves[J] = Moves[J] * FromReference[J];
		}
		Frames.push_back(SkinFrame(Mesh, Moves, Source.Time));
	}
	return Frames;
}

} // namespace Zef::Peer
