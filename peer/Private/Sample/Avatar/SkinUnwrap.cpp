// SPDX-License-Identifier: MIT
#include "Sample/Avatar/SkinUnwrap.h"

#include <array>
#include <unordered_map>

#include "Sample/Body/Measures.h"

namespace Zef::Peer
{

namespace
{

/** A part's rectangle in the picture and the heights, or lengths along the limb, that it spans from top to bottom. */
struct FChart
{
	float U0, V0, U1, V1;
	float Top, Bottom;
};

constexpr std::array<FChart, 6> Charts{{
	{0.0f, 0.0f, 0.5f, 0.5f, 176.0f, 146.0f},
	{0.5f, 0.0f, 1.0f, 0.5f, 152.0f, 74.0f},
	{0.00f, 0.5f, 0.25f, 1.0f, -8.0f, 74.0f},
	{0.25f, 0.5f, 0.50f, 1.0f, -8.0f, 74.0f},
	{0.50f, 0.5f, 0.75f, 1.0f, 96.0f, -1.0f},
	{0.75f, 0.5f, 1.00f, 1.0f, 96.0f, -1.0f},
}};

/** What a seam runs over on either side, so that a triangle there does not reach into the next part. */
constexpr float Margin = 0.06f;
constexpr FVec3 HeadAxis{0.2f, 0, 0};

const FChart& Of(ESkinChart Chart)
{
	return Charts[static_cast<std::size_t>(Chart)];
}

ESkinChart ChartOfJoint(const FSkeleton& Skeleton, int Joint)
{
	for (int J = Joint; J >= 0; J = Skeleton.Joints()[static_cast<std::size_t>(J)].Parent)
	{
		const FRigJoint& Bone = Skeleton.Joints()[static_cast<std::size_t>(J)];
		const bool bRight = Bone.Side > 0;
		if (Bone.Name.compare(0, 8, "upperarm") == 0)
		{
			return bRight ? ESkinChart::ArmRight : ESkinChart::ArmLeft;
		}
		if (Bone.Name.compare(0, 5, "thigh") == 0)
		{
			return bRight ? ESkinChart::LegRight : ESkinChart::LegLeft;
		}
		if (Bone.Name == "neck_02" || Bone.Name == "head")
		{
			return ESkinChart::Head;
		}
	}
	return ESkinChart::Trunk;
}

/** Turns around the part's axis, 0 to 1 with the seam at both, and height or length. */
FVec2 Roll(ESkinChart Chart, const FVec3& P)
{
	using namespace Measures;
	switch (Chart)
	{
		case ESkinChart::Head:
			return {0.5f - std::atan2(P.Y, P.X - HeadAxis.X) / (2 * Pi), P.Z};
		case ESkinChart::Trunk:
			return {0.5f - std::atan2(P.Y, P.X + 1.0f) / (2 * Pi), P.Z};
		case ESkinChart::ArmRight:
		case ESkinChart::ArmLeft:
		{
			// The seam runs along the inside of the arm.
			const float Side = Chart == ESkinChart::ArmRight ? 1.0f : -1.0f;
			const FVec3 Q = FVec3{P.X, P.Y * Side, P.Z} - Shoulder;
			const float Outward = Q.Y * -ArmDirection.Z + Q.Z * ArmDirection.Y;
			return {0.5f + Side * std::atan2(Q.X + 0.6f, Outward) / (2 * Pi), Dot(Q, ArmDirection)};
		}
		case ESkinChart::LegRight:
		case ESkinChart::LegLeft:
		{
			const float Side = Chart == ESkinChart::LegRight ? 1.0f : -1.0f;
			const float Outward = P.Y * Side - 8.0f;
			return {0.5f + Side * std::atan2(P.X, Outward) / (2 * Pi), P.Z};
		}
	}
	return {};
}

FVec2 Place(ESkinChart Chart, const FVec2& Rolled)
{
	const FChart& C = Of(Chart);
	const float U = Margin + (1 - 2 * Margin) * Rolled.X;
	const float V = Clamp((C.Top - Rolled.Y) / (C.Top - C.Bottom), 0.005f, 0.995f);
	return {Lerp(C.U0, C.U1, U), Lerp(C.V0, C.V1, V)};
}

} // namespace

FUnwrappedSkin UnwrapSkin(const FFigure& Figure)
{
	const FTriangleMesh& Skin = Figure.Skin;
	const FInfluences& Packed = Figure.SkinWeights.Packed;
	std::vector<ESkinChart> ChartOfBone;
	for (int J = 0; J < Figure.Skeleton.Count(); ++J)
	{
		ChartOfBone.push_back(ChartOfJoint(Figure.Skeleton, J));
	}
	std::vector<ESkinChart> ChartOfVertex;
	for (std::size_t V = 0; V < Skin.Positions.size(); ++V)
	{
		// The heaviest influence stands first.
		ChartOfVertex.push_back(ChartOfBone[static_cast<std::size_t>(Packed.Weights[Packed.FirstWeight[V]].BoneIndex)]);
	}

	FUnwrappedSkin Result;
	std::unordered_map<std::uint64_t, std::uint32_t> Copies;
	const auto CopyOf = [&](std::uint32_t Vertex, ESkinChart Chart, bool bBeyondSeam)
	{
		const std::uint64_t Key = std::uint64_t(Vertex) * 16 + std::uint64_t(Chart) * 2 + (bBeyondSeam ? 1 : 0);
		const auto [Found, bNew] = Copies.try_emplace(Key, 0u);
		if (bNew)
		{
			FVec2 Rolled = Roll(Chart, Skin.Positions[Vertex]);
			Rolled.X += bBeyondSeam ? 1.0f : 0.0f;
			Found->second = Result.Mesh.Add(Skin.Positions[Vertex], Skin.Normals[Vertex], Place(Chart, Rolled));
			const std::uint32_t First = Packed.FirstWeight[Vertex], End = Packed.FirstWeight[Vertex + 1];
			Result.Weights.AddVertex({Packed.Weights.begin() + First, Packed.Weights.begin() + End});
		}
		return Found->second;
	};
	for (std::size_t T = 0; T + 2 < Skin.Triangles.size(); T += 3)
	{
		const std::uint32_t* I = &Skin.Triangles[T];
		const ESkinChart B = ChartOfVertex[I[1]], C = ChartOfVertex[I[2]];
		const ESkinChart Chart = B == C ? B : ChartOfVertex[I[0]];
		float U[3];
		for (int K = 0; K < 3; ++K)
		{
			U[K] = Roll(Chart, Skin.Positions[I[K]]).X;
		}
		const bool bSeam = std::max({U[0], U[1], U[2]}) - std::min({U[0], U[1], U[2]}) > 0.5f;
		std::uint32_t Corners[3];
		for (int K = 0; K < 3; ++K)
		{
			Corners[K] = CopyOf(I[K], Chart, bSeam && U[K] < 0.5f);
		}
		Result.Mesh.AddTriangle(Corners[0], Corners[1], Corners[2]);
	}
	return Result;
}

FHeadPlace HeadPlaceAt(float U, float V)
{
	const FChart& C = Of(ESkinChart::Head);
	FHeadPlace Result;
	Result.bHead = U < C.U1 && V < C.V1;
	const float Rolled = ((U - C.U0) / (C.U1 - C.U0) - Margin) / (1 - 2 * Margin);
	Result.Degrees = (0.5f - Rolled) * 360;
	Result.Height = Lerp(C.Top, C.Bottom, (V - C.V0) / (C.V1 - C.V0));
	return Result;
}

} // namespace Zef::Peer
