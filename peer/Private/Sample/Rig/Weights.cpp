// SPDX-License-Identifier: MIT
#include "Sample/Rig/Weights.h"

#include <algorithm>

namespace Zef::Peer
{

namespace
{

float DistanceToLine(const FVec3& P, const FVec3& A, const FVec3& B)
{
	const FVec3 Axis = B - A;
	const float Squared = Dot(Axis, Axis);
	const float T = Squared > 0 ? Clamp(Dot(P - A, Axis) / Squared, 0, 1) : 0;
	return Distance(P, A + Axis * T);
}

/** Pelvis and collar bones are plates, not lines: flesh beside them belongs to them. */
float DistanceToBone(const FRigJoint& Joint, const FVec3& P)
{
	if (Joint.Name == "pelvis")
	{
		return DistanceToLine(P, {-2.0f, -8.5f, 97.5f}, {-2.0f, 8.5f, 97.5f});
	}
	if (Joint.Name == "spine_05")
	{
		return std::min(DistanceToLine(P, Joint.Place, Joint.End), DistanceToLine(P, {-2, -8, 134}, {-2, 8, 134}));
	}
	return DistanceToLine(P, Joint.Place, Joint.End);
}

} // namespace

void FSkinWeights::AddVertex(const std::vector<FBoneWeight>& Weights)
{
	Packed.Weights.insert(Packed.Weights.end(), Weights.begin(), Weights.end());
	Packed.FirstWeight.push_back(static_cast<std::uint32_t>(Packed.Weights.size()));
}

void FSkinWeights::Append(const FSkinWeights& Other)
{
	const auto Base = static_cast<std::uint32_t>(Packed.Weights.size());
	Packed.Weights.insert(Packed.Weights.end(), Other.Packed.Weights.begin(), Other.Packed.Weights.end());
	for (std::size_t V = 1; V < Other.Packed.FirstWeight.size(); ++V)
	{
		Packed.FirstWeight.push_back(Base + Other.Packed.FirstWeight[V]);
	}
}

std::vector<FBoneWeight> WeightsAt(const FSkeleton& Skeleton, const FVec3& Place)
{
	// The weight falls with a power of the distance: sharper in the limbs, softer in the hands, where bones lie close.
	constexpr float LimbPower = 5.0f, HandPower = 3.2f;
	// Farther along the skeleton than this a bone has no say, however near it lies in space.
	constexpr int FarthestSteps = 4;
	// Below this share an influence is dropped.
	constexpr float LeastShare = 0.002f;
	// Beyond the middle by this much, cm, the other side's limbs have no say.
	constexpr float Middle = 4.0f;

	const std::vector<FRigJoint>& Joints = Skeleton.Joints();
	std::vector<float> Distances(Joints.size(), 1e30f);
	std::size_t Nearest = 0;
	for (std::size_t J = 1; J < Joints.size(); ++J)
	{
		const bool bHasFlesh = Distance(Joints[J].Place, Joints[J].End) > 0;
		if (bHasFlesh && static_cast<float>(Joints[J].Side) * Place.Y > -Middle)
		{
			Distances[J] = DistanceToBone(Joints[J], Place);
			Nearest = Distances[J] < Distances[Nearest] ? J : Nearest;
		}
	}
	const float Power = Joints[Nearest].bHand ? HandPower : LimbPower;

	std::vector<FBoneWeight> Weights;
	float Sum = 0;
	for (std::size_t J = 1; J < Joints.size(); ++J)
	{
		if (Distances[J] > 1e29f ||
			Skeleton.StepsBetween(static_cast<int>(Nearest), static_cast<int>(J)) > FarthestSteps)
		{
			continue;
		}
		float Weight = std::pow((Distances[Nearest] + 0.05f) / (Distances[J] + 0.05f), Power);
		// The limbs of a side fade out towards the middle instead of ending at a line.
		if (Joints[J].Side != 0)
		{
			Weight *= SmoothStep(-Middle, Middle, static_cast<float>(Joints[J].Side) * Place.Y);
		}
		Weights.push_back({static_cast<std::int32_t>(J), Weight});
		Sum += Weight;
	}
	std::erase_if(Weights, [Sum](const FBoneWeight& W) { return W.Weight < LeastShare * Sum; });
	std::stable_sort(
		Weights.begin(), Weights.end(), [](const FBoneWeight& A, const FBoneWeight& B) { return A.Weight > B.Weight; });
	Sum = 0;
	for (const FBoneWeight& W : Weights)
	{
		Sum += W.Weight;
	}
	for (FBoneWeight& W : Weights)
	{
		W.Weight /= Sum;
	}
	return Weights;
}

FSkinWeights WeightsOf(const FSkeleton& Skeleton, const FTriangleMesh& Mesh)
{
	FSkinWeights Result;
	Result.Packed.FirstWeight.reserve(Mesh.Positions.size() + 1);
	for (const FVec3& P : Mesh.Positions)
	{
		Result.AddVertex(WeightsAt(Skeleton, P));
	}
	return Result;
}

FSkinWeights RigidWeights(int Joint, std::size_t VertexCount)
{
	FSkinWeights Result;
	for (std::size_t V = 0; V < VertexCount; ++V)
	{
		Result.AddVertex({{Joint, 1.0f}});
	}
	return Result;
}

FMatrix34 FMatrix34::From(const FRigid& Rigid)
{
	return {Rotate(Rigid.Rotation, {1, 0, 0}), Rotate(Rigid.Rotation, {0, 1, 0}), Rotate(Rigid.Rotation, {0, 0, 1}),
		Rigid.Translation};
}

void FMatrix34::AddScaled(const FMatrix34& Other, float Scale)
{
	ColumnX += Other.ColumnX * Scale;
	ColumnY += Other.ColumnY * Scale;
	ColumnZ += Other.ColumnZ * Scale;
	Shift += Other.Shift * Scale;
}

void ApplyMoves(FTriangleMesh& Mesh, const FSkinWeights& Weights, const std::vector<FRigid>& Moves)
{
	std::vector<FMatrix34> Matrices;
	for (const FRigid& Move : Moves)
	{
		Matrices.push_back(FMatrix34::From(Move));
	}
	const FInfluences& Packed = Weights.Packed;
	for (std::size_t V = 0; V < Mesh.Positions.size(); ++V)
	{
		FMatrix34 Blend;
		for (std::uint32_t W = Packed.FirstWeight[V]; W < Packed.FirstWeight[V + 1]; ++W)
		{
			Blend.AddScaled(Matrices[static_cast<std::size_t>(Packed.Weights[W].BoneIndex)], Packed.Weights[W].Weight);
		}
		Mesh.Positions[V] = Blend.Point(Mesh.Positions[V]);
		Mesh.Normals[V] = Normalized(Blend.Direction(Mesh.Normals[V]));
		if (!Mesh.Tangents.empty())
		{
			Mesh.Tangents[V] = SquareTo(Mesh.Normals[V], Blend.Direction(Mesh.Tangents[V]));
		}
	}
}

} // namespace Zef::Peer
