// SPDX-License-Identifier: MIT
#include "Sample/Rig/Weights.h"

#include <algorithm>
#include <utility>

#include "Math/Matrix.h"

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

/** How far to either side flesh belongs to a bone of the trunk as if it lay on it, cm. */
float BreadthOf(const FRigJoint& Joint)
{
	static const std::pair<const char*, float> Breadths[] = {{"pelvis", 9.0f}, {"spine_01", 7.5f}, {"spine_02", 6.0f},
		{"spine_03", 6.5f}, {"spine_04", 8.0f}, {"spine_05", 9.0f}};
	for (const auto& [Name, Breadth] : Breadths)
	{
		if (Joint.Name == Name)
		{
			return Breadth;
		}
	}
	return 0;
}

float DistanceToBone(const FRigJoint& Joint, float Breadth, const FVec3& P)
{
	const float Side = std::max(std::fabs(P.Y) - Breadth, 0.0f);
	return Breadth > 0 ? DistanceToLine({P.X, Side, P.Z}, Joint.Place, Joint.End)
					   : DistanceToLine(P, Joint.Place, Joint.End);
}

/** The face is bone: from the jaw and the base of the skull on, all moves with the head. */
float ShareOfHead(const FVec3& P)
{
	return std::max(SmoothStep(152.0f, 156.5f, P.Z + 0.7f * P.X), SmoothStep(156.5f, 161.0f, P.Z));
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
			Distances[J] = DistanceToBone(Joints[J], Joints[J].Side == 0 ? BreadthOf(Joints[J]) : 0, Place);
			Nearest = Distances[J] < Distances[Nearest] ? J : Nearest;
		}
	}
	const float Power = Joints[Nearest].bHand ? HandPower : LimbPower;

	const float InHead = ShareOfHead(Place);
	const auto Head = static_cast<std::size_t>(Skeleton.Find("head"));
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
		Weight *= J == Head ? 1.0f : 1 - InHead;
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
