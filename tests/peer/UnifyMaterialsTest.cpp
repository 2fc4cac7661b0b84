// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "Squares.h"
#include "Zef/Peer/Packing.h"

using namespace Zef;
using namespace Zef::Peer;
using namespace PeerTest;

namespace
{

/** Squares of side 1, 3 and 2 with the materials 10, 20 and 30. */
FSurfaceMesh ThreeSquares()
{
	FSurfaceMesh Mesh;
	Mesh.Surfaces = {SplitSquare("a", 1, 10), SplitSquare("b", 3, 20), SplitSquare("c", 2, 30)};
	Mesh.Surfaces[1].VertexOffset = 6;
	Mesh.Surfaces[2].VertexOffset = 12;
	Mesh.Materials = {NamedMaterial(10, "small"), NamedMaterial(20, "large"), NamedMaterial(30, "middle")};
	return Mesh;
}

} // namespace

TEST(UnifyMaterials, LeavesTheMaterialThatCoversMost)
{
	FSurfaceMesh Mesh = ThreeSquares();
	Mesh.Materials[1].second.MaterialKind = 6;

	UnifyMaterials(Mesh);

	ASSERT_EQ(Mesh.Materials.size(), 1u);
	EXPECT_EQ(Mesh.Materials[0].first, 20);
	EXPECT_EQ(Mesh.Materials[0].second.Id, 20);
	EXPECT_EQ(Mesh.Materials[0].second.Name, "Unified");
	EXPECT_EQ(Mesh.Materials[0].second.MaterialKind, 6);
	for (const FSurface& Surface : Mesh.Surfaces)
	{
		EXPECT_EQ(Surface.Sections[0].MaterialIndex, 20);
	}
}

TEST(UnifyMaterials, AddsUpTheAreaOfAllSurfacesOfAMaterial)
{
	FSurfaceMesh Mesh = ThreeSquares();
	// 1 + 4 + 4 against 9, and then a little more.
	Mesh.Surfaces.push_back(SplitSquare("d", 2.01f, 30));
	Mesh.Surfaces.push_back(SplitSquare("e", 1, 30));

	UnifyMaterials(Mesh);

	EXPECT_EQ(Mesh.Materials[0].first, 30);
}

TEST(UnifyMaterials, TakesTheFirstOfEqualOnes)
{
	FSurfaceMesh Mesh = ThreeSquares();
	Mesh.Surfaces[0] = SplitSquare("a", 3, 10);

	UnifyMaterials(Mesh);

	EXPECT_EQ(Mesh.Materials[0].first, 10);
}

TEST(UnifyMaterials, ChoosesASubstanceOnlyWhenThereIsNothingElse)
{
	FSurfaceMesh Mesh = ThreeSquares();
	Mesh.Materials[1].second.bSubstance = true;
	UnifyMaterials(Mesh);
	EXPECT_EQ(Mesh.Materials[0].first, 30);

	FSurfaceMesh Only = ThreeSquares();
	for (auto& [Key, Material] : Only.Materials)
	{
		Material.bSubstance = true;
	}
	UnifyMaterials(Only);
	EXPECT_EQ(Only.Materials[0].first, 20);
}

TEST(UnifyMaterials, JoinsTheSectionsOfASurfaceInTheirOrderWithoutTrailingIndices)
{
	FSurfaceMesh Mesh = ThreeSquares();
	Mesh.Surfaces[1].Sections = {{20, {0, 2, 1, 5}}, {30, {4, 5, 3}}};

	UnifyMaterials(Mesh);

	EXPECT_EQ(Mesh.Surfaces[1].Sections, (std::vector<FSection>{{30, {0, 2, 1, 4, 5, 3}}}));
	EXPECT_EQ(Mesh.Surfaces[1].VertexOffset, 6);
}

TEST(UnifyMaterials, DropsTheTexturesThatNobodyUsesAnyMore)
{
	FSurfaceMesh Mesh = ThreeSquares();
	Mesh.Textures = {{1, {}}, {2, {}}, {3, {}}};
	Mesh.Materials[0].second.Expressions = {{0, {1, {}, {}, {}}}};
	Mesh.Materials[1].second.Expressions = {{0, {2, {}, {}, {}}}, {1, {2, {}, {}, {}}}};

	UnifyMaterials(Mesh);

	ASSERT_EQ(Mesh.Textures.size(), 1u);
	EXPECT_EQ(Mesh.Textures[0].first, 2);
}

TEST(UnifyMaterials, GivesAllSurfacesTheModeOfTheDominantOne)
{
	FSurfaceMesh Opaque = ThreeSquares();
	Opaque.Surfaces[2].SurfaceMode = 1;
	UnifyMaterials(Opaque);
	EXPECT_EQ(Opaque.Surfaces[2].SurfaceMode, 0);

	FSurfaceMesh Sheer = ThreeSquares();
	Sheer.Surfaces[1].SurfaceMode = 1;
	UnifyMaterials(Sheer);
	EXPECT_EQ(Sheer.Surfaces[0].SurfaceMode, 1);
}

TEST(UnifyMaterials, JoinsSectionsUnderZeroWhereThereIsNoMaterial)
{
	FSurfaceMesh Mesh = ThreeSquares();
	Mesh.Materials.clear();

	UnifyMaterials(Mesh);

	EXPECT_TRUE(Mesh.Materials.empty());
	EXPECT_EQ(Mesh.Surfaces[1].Sections[0].MaterialIndex, 0);
}

TEST(Pack, UnifiesGarmentsOnly)
{
	const FPackingOptions Unified{false, true};
	FSurfaceMesh Garment = ThreeSquares(), Prop = ThreeSquares();

	EXPECT_TRUE(Pack(Garment, EObjectType::Garment, Unified).Old.empty());
	Pack(Prop, EObjectType::Prop, Unified);

	EXPECT_EQ(Garment.Materials.size(), 1u);
	EXPECT_EQ(Prop, ThreeSquares());
}

TEST(Pack, DoesBoth)
{
	FSurfaceMesh Mesh = ThreeSquares();

	EXPECT_EQ(Pack(Mesh, EObjectType::Garment, {true, true}).Old.size(), 12u);

	EXPECT_EQ(Mesh.Materials.size(), 1u);
	EXPECT_EQ(Mesh.Surfaces[2].VertexOffset, 8);
}
