// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "SharedSample.h"

using namespace Zef;
using namespace Zef::Peer;
using namespace PeerTest;

namespace
{

/** Mean way of a vertex between two frames. */
double MeanWay(const FMeshSequenceFrame& From, const FMeshSequenceFrame& To)
{
	double Sum = 0;
	for (std::size_t V = 0; V < From.Positions.size(); ++V)
	{
		const FVec3 &A = From.Positions[V], &B = To.Positions[V];
		Sum += std::hypot(A.X - B.X, A.Y - B.Y, A.Z - B.Z);
	}
	return Sum / static_cast<double>(From.Positions.size());
}

} // namespace

TEST(ClothSequence, HasAFrameForEachOfTheWalkOverAllVertices)
{
	const std::size_t Vertices = CountObject(SampleObject(EObjectType::Garment).Mesh).Vertices;
	const std::vector<FMeshSequenceFrame>& Frames = SampleClothSequence();
	ASSERT_EQ(Frames.size(), 60u);
	for (std::size_t F = 0; F < Frames.size(); ++F)
	{
		EXPECT_DOUBLE_EQ(Frames[F].Time, static_cast<double>(F) / 30);
		EXPECT_EQ(Frames[F].Positions.size(), Vertices);
		EXPECT_EQ(Frames[F].Normals.size(), Vertices);
		EXPECT_EQ(Frames[F].Tangents.size(), Vertices);
	}
}

TEST(ClothSequence, StaysFiniteWithUnitNormalsAndAroundTheFigure)
{
	for (const FMeshSequenceFrame& Frame : SampleClothSequence())
	{
		std::size_t Bad = 0;
		for (std::size_t V = 0; V < Frame.Positions.size(); ++V)
		{
			const FVec3 &P = Frame.Positions[V], &N = Frame.Normals[V], &T = Frame.Tangents[V];
			const bool bNear = std::fabs(P.X) < 90 && std::fabs(P.Y) < 70 && P.Z > 10 && P.Z < 160;
			const bool bUnit = std::fabs(N.X * N.X + N.Y * N.Y + N.Z * N.Z - 1) < 1e-3f &&
							   std::fabs(T.X * T.X + T.Y * T.Y + T.Z * T.Z - 1) < 1e-3f;
			Bad += bNear && bUnit ? 0 : 1;
		}
		EXPECT_EQ(Bad, 0u) << Frame.Time;
	}
}

TEST(ClothSequence, MovesAndStartsOverWithoutAJump)
{
	const std::vector<FMeshSequenceFrame>& Frames = SampleClothSequence();
	double Longest = 0;
	for (std::size_t F = 0; F + 1 < Frames.size(); ++F)
	{
		Longest = std::max(Longest, MeanWay(Frames[F], Frames[F + 1]));
	}
	EXPECT_GT(Longest, 0.3);
	EXPECT_LE(MeanWay(Frames.back(), Frames.front()), Longest * 1.1);
}

TEST(ClothSequence, DoesNotTearTheSkirtFromTheHem)
{
	// The last row of the skirt's panels and the first of the hem are one line of the cloth.
	const FSurfaceMesh& Garment = SampleObject(EObjectType::Garment).Mesh;
	const auto Named = [&](const char* Name)
	{
		return *std::find_if(
			Garment.Surfaces.begin(), Garment.Surfaces.end(), [&](const FSurface& S) { return S.Name == Name; });
	};
	const FSurface Front = Named("Dress/Skirt Front"), Hem = Named("Dress/Hem");
	const auto Lowest = std::min_element(
		Front.Positions.begin(), Front.Positions.end(), [](const FVec3& A, const FVec3& B) { return A.Z < B.Z; });
	const auto InFront = static_cast<std::size_t>(Lowest - Front.Positions.begin());
	const auto Twin = std::find(Hem.Positions.begin(), Hem.Positions.end(), *Lowest);
	ASSERT_NE(Twin, Hem.Positions.end());
	const auto InHem = static_cast<std::size_t>(Twin - Hem.Positions.begin());

	for (const FMeshSequenceFrame& Frame : SampleClothSequence())
	{
		const FVec3& A = Frame.Positions[static_cast<std::size_t>(Front.VertexOffset) + InFront];
		const FVec3& B = Frame.Positions[static_cast<std::size_t>(Hem.VertexOffset) + InHem];
		EXPECT_NEAR(std::hypot(A.X - B.X, A.Y - B.Y, A.Z - B.Z), 0, 1e-4) << Frame.Time;
	}
}
