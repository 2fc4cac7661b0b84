// SPDX-License-Identifier: MIT
#include "Files/Build/Geometry.h"

#include <algorithm>

#include "Files/Build/Names.h"
#include "Files/Model/Decompose.h"
#include "Mesh/TriangleMesh.h"

namespace Zef::Peer
{

namespace
{

/** Weights of one vertex by joint of the skeleton: every joint once, sum 1. */
std::vector<FBoneWeight> Normalize(const std::vector<FModelWeight>& Weights, const std::vector<int>& JointOfSkin)
{
	std::vector<FBoneWeight> Made;
	float Sum = 0;
	for (const FModelWeight& Weight : Weights)
	{
		const std::int32_t Joint = JointOfSkin[static_cast<std::size_t>(Weight.Joint)];
		const auto Found =
			std::find_if(Made.begin(), Made.end(), [&](const FBoneWeight& Other) { return Other.BoneIndex == Joint; });
		Found == Made.end() ? (void)Made.push_back({Joint, Weight.Weight}) : (void)(Found->Weight += Weight.Weight);
		Sum += Weight.Weight;
	}
	for (FBoneWeight& Weight : Made)
	{
		Weight.Weight = std::min(Weight.Weight / Sum, 1.0f);
	}
	return Made;
}

void PlaceSkin(const FModelPose& Pose, const FModelPiece& Piece, FPiecePlacement& Made)
{
	const FModelSkin& Skin = Pose.Model.Skins[static_cast<std::size_t>(Piece.Skin)];
	std::vector<int> JointOfSkin;
	std::vector<FMatrix34> Moves;
	std::size_t Top = 0;
	for (std::size_t J = 0; J < Skin.Joints.size(); ++J)
	{
		JointOfSkin.push_back(Pose.Skeleton.JointOfNode[static_cast<std::size_t>(Skin.Joints[J])]);
		Moves.push_back(Pose.Skeleton.BindPlace[static_cast<std::size_t>(JointOfSkin[J])] * Skin.InverseBind[J]);
		Top = JointOfSkin[J] < JointOfSkin[Top] ? J : Top;
	}
	Made.Ways.reserve(Piece.Positions.size());
	Made.Joints.reserve(Piece.Positions.size());
	static const std::vector<FModelWeight> None;
	for (std::size_t V = 0; V < Piece.Positions.size(); ++V)
	{
		const std::vector<FModelWeight>& Weights = V < Piece.Weights.size() ? Piece.Weights[V] : None;
		FMatrix34 Way;
		float Sum = 0;
		for (const FModelWeight& Weight : Weights)
		{
			Way.AddScaled(Moves[static_cast<std::size_t>(Weight.Joint)], Weight.Weight);
			Sum += Weight.Weight;
		}
		if (Sum > 0)
		{
			FMatrix34 Mean;
			Mean.AddScaled(Way, 1 / Sum);
			Made.Ways.push_back(Mean);
			Made.Joints.push_back(Normalize(Weights, JointOfSkin));
		}
		else
		{
			Made.Ways.push_back(Moves[Top]);
			Made.Joints.push_back({{JointOfSkin[Top], 1.0f}});
		}
	}
}

bool IsZero(const FVec3& V)
{
	return Dot(V, V) < 1e-12f;
}

} // namespace

FPiecePlacement PlaceVertices(const FModelPose& Pose, const FModelPiece& Piece)
{
	FPiecePlacement Made;
	if (Piece.Skin >= 0 && !Pose.Model.Skins[static_cast<std::size_t>(Piece.Skin)].Joints.empty())
	{
		PlaceSkin(Pose, Piece, Made);
		return Made;
	}
	FMatrix34 Way = Pose.NodePlaces[static_cast<std::size_t>(Piece.Node)];
	if (!Pose.Skeleton.Nodes.empty())
	{
		// Rigid things hang at a joint and follow it from where it stands in the file to the bind pose.
		const int Joint = JointAbove(Pose.Model, Pose.Skeleton, Piece.Node);
		const auto J = static_cast<std::size_t>(Joint);
		const int Node = Pose.Skeleton.Nodes[J];
		if (Node >= 0)
		{
			Way = Pose.Skeleton.BindPlace[J] * (Pose.NodePlaces[static_cast<std::size_t>(Node)].Inverted() * Way);
		}
		Made.Joints.assign(Piece.Positions.size(), {{Joint, 1.0f}});
	}
	Made.Ways = {Way};
	return Made;
}

void ApplyMorphs(const FModelPiece& Piece, const std::vector<float>& Weights, std::vector<FVec3>& Positions,
	std::vector<FVec3>& Normals)
{
	Positions = Piece.Positions;
	Normals = Piece.Normals;
	for (std::size_t T = 0; T < std::min(Weights.size(), Piece.Morphs.size()); ++T)
	{
		const FModelMorph& Morph = Piece.Morphs[T];
		for (const auto& [From, To] : {std::pair{&Morph.Positions, &Positions}, std::pair{&Morph.Normals, &Normals}})
		{
			for (std::size_t V = 0; V < std::min(From->size(), To->size()); ++V)
			{
				(*To)[V] += (*From)[V] * Weights[T];
			}
		}
	}
}

FVec3 MoveNormal(const FMatrix34& Way, const FVec3& Normal)
{
	const FVec3 Moved = Cross(Way.ColumnY, Way.ColumnZ) * Normal.X + Cross(Way.ColumnZ, Way.ColumnX) * Normal.Y +
						Cross(Way.ColumnX, Way.ColumnY) * Normal.Z;
	return Normalized(Determinant(Way) < 0 ? -Moved : Moved, {0, 0, 0});
}

FSurface BuildSurface(const FModelPiece& Piece, const FPiecePlacement& Placement, const FMatrix34& ToEngine)
{
	FSurface Surface;
	Surface.Name = CleanName(Piece.Name);
	std::vector<FVec3> Positions, Normals;
	ApplyMorphs(Piece, Piece.MorphWeights, Positions, Normals);
	FTriangleMesh Computed;
	const std::size_t Count = Positions.size();
	bool bNormalsMissing = Normals.size() != Count, bTangentsMissing = Piece.Tangents.size() != Count;
	for (std::size_t V = 0; V < Count; ++V)
	{
		const FMatrix34 Way = ToEngine * Placement.WayOf(V);
		Surface.Positions.push_back(Way.Point(Positions[V]));
		Surface.Normals.push_back(Normals.size() == Count ? MoveNormal(Way, Normals[V]) : FVec3{});
		bNormalsMissing = bNormalsMissing || IsZero(Surface.Normals[V]);
	}
	Surface.UVs = Piece.UVs;
	Surface.UVs.resize(Count);
	for (const FModelSection& From : Piece.Sections)
	{
		if (From.Indices.empty())
		{
			continue;
		}
		FSection& Section = Surface.Sections.emplace_back();
		Section.MaterialIndex = From.Material;
		Section.Indices.assign(From.Indices.begin(), From.Indices.end());
		// A reflection keeps the order, see Winding.h; a node that reflects once more turns it.
		const bool bTurn = Determinant(ToEngine * Placement.WayOf(From.Indices[0])) > 0;
		for (std::size_t I = 0; bTurn && I + 3 <= Section.Indices.size(); I += 3)
		{
			std::swap(Section.Indices[I + 1], Section.Indices[I + 2]);
		}
		Computed.Triangles.insert(Computed.Triangles.end(), Section.Indices.begin(), Section.Indices.end());
	}
	Computed.Positions = Surface.Positions;
	Computed.UVs = Surface.UVs;
	if (bNormalsMissing)
	{
		Computed.Normals.resize(Count);
		ComputeNormalsAcrossSeams(Computed);
		for (std::size_t V = 0; V < Count; ++V)
		{
			const FVec3 Fallback = Normalized(Computed.Normals[V], {0, 0, 1});
			Surface.Normals[V] = IsZero(Surface.Normals[V]) ? Fallback : Surface.Normals[V];
		}
	}
	Computed.Normals = Surface.Normals;
	for (std::size_t V = 0; !bTangentsMissing && V < Count; ++V)
	{
		const FVec3 Along = Normalized((ToEngine * Placement.WayOf(V)).Direction(Piece.Tangents[V]), {0, 0, 0});
		bTangentsMissing = IsZero(Along);
		Surface.Tangents.push_back(SquareTo(Surface.Normals[V], Along));
	}
	if (bTangentsMissing)
	{
		ComputeTangents(Computed);
		Surface.Tangents = std::move(Computed.Tangents);
	}
	return Surface;
}

} // namespace Zef::Peer
