// SPDX-License-Identifier: MIT
#include "Sample/Cloth/BodyCollider.h"

#include <algorithm>

#include "Sample/Garment/Bodice.h"

namespace Zef::Peer
{

namespace
{

constexpr float CellEdge = 4; // cm; also how far Nearest looks
/** A point that stands this high over its nearest skin point, cm, needs no closer look. */
constexpr float FarAbove = 2.5f;

bool MeetsClothes(const FVec3& P, const FRigJoint& Bone)
{
	return P.Z < 154 && P.Z > 14 && !Bone.bHand;
}

} // namespace

FBodyCollider::FBodyCollider(const FFigure& Figure)
{
	const FFieldPtr Bodice = MakeBodiceSolid();
	const FTriangleMesh& Whole = Figure.Skin;
	const FInfluences& Packed = Figure.SkinWeights.Packed;
	std::vector<std::uint32_t> NewIndex(Whole.Positions.size(), None);
	for (std::size_t V = 0; V < Whole.Positions.size(); ++V)
	{
		const std::uint32_t First = Packed.FirstWeight[V];
		const auto Bone = static_cast<std::size_t>(Packed.Weights[First].BoneIndex);
		if (MeetsClothes(Whole.Positions[V], Figure.Skeleton.Joints()[Bone]))
		{
			const FVec3& P = Whole.Positions[V];
			const float Below = P.Z > 104 && P.Z < 142 ? std::max(-Bodice->At(P), 0.0f) : 0.0f;
			NewIndex[V] = Skin.Add(P + Whole.Normals[V] * Below, Whole.Normals[V]);
			Weights.AddVertex({Packed.Weights.begin() + First, Packed.Weights.begin() + Packed.FirstWeight[V + 1]});
		}
	}
	std::vector<std::pair<std::uint32_t, std::uint32_t>> Edges;
	for (std::size_t T = 0; T + 2 < Whole.Triangles.size(); T += 3)
	{
		for (std::size_t K = 0; K < 3; ++K)
		{
			const std::uint32_t A = NewIndex[Whole.Triangles[T + K]];
			const std::uint32_t B = NewIndex[Whole.Triangles[T + (K + 1) % 3]];
			if (A != None && B != None)
			{
				Edges.emplace_back(A, B);
				Edges.emplace_back(B, A);
			}
		}
	}
	std::sort(Edges.begin(), Edges.end());
	Edges.erase(std::unique(Edges.begin(), Edges.end()), Edges.end());
	FirstNeighbour.assign(Skin.Positions.size() + 1, 0);
	for (const auto& [From, To] : Edges)
	{
		Neighbours.push_back(To);
		++FirstNeighbour[From + 1];
	}
	for (std::size_t V = 0; V < Skin.Positions.size(); ++V)
	{
		FirstNeighbour[V + 1] += FirstNeighbour[V];
	}
}

FColliderPose FBodyCollider::PoseAt(const FFigure& Figure, const std::vector<FRigid>& Places) const
{
	FTriangleMesh Moved = Skin;
	PoseMesh(Moved, Weights, Figure, Places);
	return {std::move(Moved.Positions), std::move(Moved.Normals)};
}

void FBodyCollider::SetPose(const FColliderPose& From, const FColliderPose& To, float Weight)
{
	const bool bFirst = Now.Points.empty();
	Before = Now.Points;
	Now.Points.resize(From.Points.size());
	Now.Normals.resize(From.Points.size());
	for (std::size_t V = 0; V < From.Points.size(); ++V)
	{
		Now.Points[V] = Lerp(From.Points[V], To.Points[V], Weight);
		Now.Normals[V] = Lerp(From.Normals[V], To.Normals[V], Weight);
	}
	if (bFirst)
	{
		Before = Now.Points;
	}
}

void FBodyCollider::BlendFrom(const FColliderPose& From, float Weight)
{
	for (std::size_t V = 0; V < Now.Points.size(); ++V)
	{
		Now.Points[V] = Lerp(From.Points[V], Now.Points[V], Weight);
		Now.Normals[V] = Lerp(From.Normals[V], Now.Normals[V], Weight);
	}
}

std::size_t FBodyCollider::CellOf(const FVec3& P) const
{
	const auto Along = [](float X, float Origin, int Size)
	{ return std::clamp(static_cast<int>((X - Origin) / CellEdge), 0, Size - 1); };
	const int X = Along(P.X, GridOrigin.X, GridSize[0]);
	const int Y = Along(P.Y, GridOrigin.Y, GridSize[1]);
	const int Z = Along(P.Z, GridOrigin.Z, GridSize[2]);
	return static_cast<std::size_t>((Z * GridSize[1] + Y) * GridSize[0] + X);
}

void FBodyCollider::Sort()
{
	FBox Box;
	for (const FVec3& P : Now.Points)
	{
		Box.Add(P);
	}
	Box = Box.Grown(CellEdge);
	GridOrigin = Box.Min;
	const FVec3 Extent = (Box.Max - Box.Min) * (1 / CellEdge);
	GridSize = {static_cast<int>(Extent.X) + 1, static_cast<int>(Extent.Y) + 1, static_cast<int>(Extent.Z) + 1};
	FirstInCell.assign(static_cast<std::size_t>(GridSize[0] * GridSize[1] * GridSize[2]) + 1, 0);
	for (const FVec3& P : Now.Points)
	{
		++FirstInCell[CellOf(P) + 1];
	}
	for (std::size_t C = 1; C < FirstInCell.size(); ++C)
	{
		FirstInCell[C] += FirstInCell[C - 1];
	}
	std::vector<std::uint32_t> Fill(FirstInCell.begin(), FirstInCell.end() - 1);
	InCell.resize(Now.Points.size());
	for (std::size_t V = 0; V < Now.Points.size(); ++V)
	{
		InCell[Fill[CellOf(Now.Points[V])]++] = static_cast<std::uint32_t>(V);
	}
}

std::uint32_t FBodyCollider::Nearest(const FVec3& P) const
{
	const FVec3 Q = (P - GridOrigin) * (1 / CellEdge);
	const int Center[3] = {
		static_cast<int>(std::floor(Q.X)), static_cast<int>(std::floor(Q.Y)), static_cast<int>(std::floor(Q.Z))};
	std::uint32_t Best = None;
	float BestSquared = CellEdge * CellEdge;
	for (int Z = std::max(Center[2] - 1, 0); Z <= std::min(Center[2] + 1, GridSize[2] - 1); ++Z)
	{
		for (int Y = std::max(Center[1] - 1, 0); Y <= std::min(Center[1] + 1, GridSize[1] - 1); ++Y)
		{
			for (int X = std::max(Center[0] - 1, 0); X <= std::min(Center[0] + 1, GridSize[0] - 1); ++X)
			{
				const auto Cell = static_cast<std::size_t>((Z * GridSize[1] + Y) * GridSize[0] + X);
				for (std::uint32_t I = FirstInCell[Cell]; I < FirstInCell[Cell + 1]; ++I)
				{
					const FVec3 D = P - Now.Points[InCell[I]];
					const float Squared = Dot(D, D);
					if (Squared < BestSquared)
					{
						BestSquared = Squared;
						Best = InCell[I];
					}
				}
			}
		}
	}
	return Best;
}

FBodyCollider::FContact FBodyCollider::ContactAt(const FVec3& P, std::uint32_t& Hint) const
{
	// Down the distances from neighbour to neighbour; a few steps reach what a cloth point passes in one step.
	constexpr int MostSteps = 4;
	FVec3 D = P - Now.Points[Hint];
	const float Above = Dot(D, Now.Normals[Hint]);
	if (Above > FarAbove)
	{
		return {Above, Now.Normals[Hint], {}};
	}
	float Squared = Dot(D, D);
	for (int Step = 0; Step < MostSteps; ++Step)
	{
		const std::uint32_t Start = Hint;
		for (std::uint32_t I = FirstNeighbour[Start]; I < FirstNeighbour[Start + 1]; ++I)
		{
			D = P - Now.Points[Neighbours[I]];
			if (Dot(D, D) < Squared)
			{
				Squared = Dot(D, D);
				Hint = Neighbours[I];
			}
		}
		if (Hint == Start)
		{
			break;
		}
	}
	// The mean of the planes around, nearer ones counting more.
	FContact Contact;
	float Sum = 0, Height = 0;
	const auto AddPlane = [&](std::uint32_t V)
	{
		const FVec3 Away = P - Now.Points[V];
		const float Weight = 1 / (Dot(Away, Away) + 0.3f);
		Height += Weight * Dot(Away, Now.Normals[V]);
		Contact.Normal += Now.Normals[V] * Weight;
		Sum += Weight;
	};
	AddPlane(Hint);
	for (std::uint32_t I = FirstNeighbour[Hint]; I < FirstNeighbour[Hint + 1]; ++I)
	{
		AddPlane(Neighbours[I]);
	}
	Contact.Height = Height / Sum;
	Contact.Normal = Normalized(Contact.Normal);
	Contact.Motion = Now.Points[Hint] - Before[Hint];
	return Contact;
}

} // namespace Zef::Peer
