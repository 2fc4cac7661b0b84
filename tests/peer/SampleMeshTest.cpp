// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "SharedSample.h"
#include "Zef/Peer/Winding.h"

using namespace Zef;
using namespace Zef::Peer;
using namespace PeerTest;

namespace
{

float Dot(const FVec3& A, const FVec3& B)
{
	return A.X * B.X + A.Y * B.Y + A.Z * B.Z;
}

/** Every surface of the sample, each a case of its own. */
class SampleSurface : public testing::Test
{
protected:
	template <typename TVisit>
	static void ForEach(TVisit Visit)
	{
		for (const FProjectObject& Object : Sample().Objects)
		{
			for (const FSurface& Surface : Object.Mesh.Surfaces)
			{
				SCOPED_TRACE(std::string(ObjectTypeName(Object.Type)) + " " + Surface.Name);
				Visit(Object.Mesh, Surface);
			}
		}
	}

	template <typename TVisit>
	static void ForEachTriangle(const FSurface& Surface, TVisit Visit)
	{
		for (const FSection& Section : Surface.Sections)
		{
			for (std::size_t I = 0; I < Section.Indices.size(); I += 3)
			{
				Visit(Section.Indices[I], Section.Indices[I + 1], Section.Indices[I + 2]);
			}
		}
	}
};

} // namespace

TEST_F(SampleSurface, HasAsManyOfEachAttributeAndCountsOffsetsFromTheSurfacesBefore)
{
	std::map<const FSurfaceMesh*, std::int32_t> Before;
	ForEach(
		[&](const FSurfaceMesh& Mesh, const FSurface& Surface)
		{
			EXPECT_EQ(Surface.VertexOffset, Before[&Mesh]);
			Before[&Mesh] += static_cast<std::int32_t>(Surface.Positions.size());
			EXPECT_FALSE(Surface.Positions.empty());
			EXPECT_EQ(Surface.Normals.size(), Surface.Positions.size());
			EXPECT_EQ(Surface.Tangents.size(), Surface.Positions.size());
			EXPECT_EQ(Surface.UVs.size(), Surface.Positions.size());
		});
}

TEST_F(SampleSurface, NamesVerticesAndMaterialsThatExist)
{
	ForEach(
		[](const FSurfaceMesh& Mesh, const FSurface& Surface)
		{
			for (const FSection& Section : Surface.Sections)
			{
				EXPECT_EQ(Section.Indices.size() % 3, 0u);
				const auto [Least, Most] = std::minmax_element(Section.Indices.begin(), Section.Indices.end());
				EXPECT_GE(*Least, 0);
				EXPECT_LT(*Most, static_cast<std::int32_t>(Surface.Positions.size()));
				EXPECT_TRUE(std::any_of(Mesh.Materials.begin(), Mesh.Materials.end(),
					[&](const auto& Entry) { return Entry.first == Section.MaterialIndex; }));
			}
		});
}

TEST_F(SampleSurface, HasUnitNormalsAndTangentsSquareToThem)
{
	constexpr float Rounding = 1e-3f;
	ForEach(
		[](const FSurfaceMesh&, const FSurface& Surface)
		{
			std::size_t Bad = 0;
			for (std::size_t V = 0; V < Surface.Positions.size(); ++V)
			{
				const FVec3 &N = Surface.Normals[V], &T = Surface.Tangents[V];
				const bool bGood = std::fabs(Dot(N, N) - 1) < Rounding && std::fabs(Dot(T, T) - 1) < Rounding &&
								   std::fabs(Dot(N, T)) < Rounding && std::isfinite(Dot(Surface.Positions[V], N)) &&
								   std::isfinite(Surface.UVs[V].X + Surface.UVs[V].Y);
				Bad += bGood ? 0 : 1;
			}
			EXPECT_EQ(Bad, 0u);
		});
}

TEST_F(SampleSurface, TurnsItsFrontsWhereItsNormalsPoint)
{
	// In sharp folds of cloth, and where small features of a solid are finer than its triangles, the smooth normal may
	// look away from a triangle.
	constexpr double ShareAllowed = 0.016;
	ForEach(
		[](const FSurfaceMesh&, const FSurface& Surface)
		{
			std::size_t Away = 0, All = 0;
			ForEachTriangle(Surface,
				[&](std::int32_t A, std::int32_t B, std::int32_t C)
				{
					const auto At = [](const std::vector<FVec3>& Values, std::int32_t I)
					{ return Values[static_cast<std::size_t>(I)]; };
					const FVec3 Front =
						FrontDirection(At(Surface.Positions, A), At(Surface.Positions, B), At(Surface.Positions, C));
					const float Facing = Dot(Front, At(Surface.Normals, A)) + Dot(Front, At(Surface.Normals, B)) +
										 Dot(Front, At(Surface.Normals, C));
					Away += Facing < 0 ? 1 : 0;
					++All;
				});
			EXPECT_LE(static_cast<double>(Away), ShareAllowed * static_cast<double>(All));
		});
}

TEST_F(SampleSurface, IsTakenWholeByAMeshThatRefusesBadTriangles)
{
	ForEach(
		[](const FSurfaceMesh& Mesh, const FSurface& Surface)
		{
			// What has joints becomes a skeletal mesh, which refuses nothing.
			if (!Mesh.Joints.empty())
			{
				return;
			}
			std::map<std::pair<std::int32_t, std::int32_t>, int> Edges;
			std::set<std::array<std::int32_t, 3>> Triangles;
			std::size_t Refused = 0;
			ForEachTriangle(Surface,
				[&](std::int32_t A, std::int32_t B, std::int32_t C)
				{
					std::array<std::int32_t, 3> Sorted{A, B, C};
					std::sort(Sorted.begin(), Sorted.end());
					bool bRefused =
						Sorted[0] == Sorted[1] || Sorted[1] == Sorted[2] || !Triangles.insert(Sorted).second;
					for (const auto& [From, To] : {std::pair{A, B}, std::pair{B, C}, std::pair{C, A}})
					{
						bRefused |= ++Edges[std::minmax(From, To)] > 2;
					}
					Refused += bRefused ? 1 : 0;
				});
			EXPECT_EQ(Refused, 0u);
		});
}

TEST(SampleGarment, FacesOutward)
{
	// The dress hangs around the axis x = y = 0: but for the flanks of its folds, its normals point away from it.
	const FSurfaceMesh& Garment = SampleObject(EObjectType::Garment).Mesh;
	std::size_t Outward = 0, All = 0;
	for (const FSurface& Surface : Garment.Surfaces)
	{
		if (Surface.Name.find("Skirt") == std::string::npos && Surface.Name.find("Bodice") == std::string::npos)
		{
			continue;
		}
		for (std::size_t V = 0; V < Surface.Positions.size(); ++V)
		{
			const FVec3 &P = Surface.Positions[V], &N = Surface.Normals[V];
			Outward += P.X * N.X + P.Y * N.Y > 0 ? 1 : 0;
			++All;
		}
	}
	EXPECT_GT(static_cast<double>(Outward), 0.8 * static_cast<double>(All));
}
