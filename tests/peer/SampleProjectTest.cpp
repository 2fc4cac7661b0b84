// SPDX-License-Identifier: MIT
#include <cmath>
#include <set>

#include <gtest/gtest.h>

#include "SharedSample.h"

using namespace Zef;
using namespace Zef::Peer;
using namespace PeerTest;

TEST(SampleProject, HoldsEachObjectOnceAndSaysWhatIsAvailable)
{
	std::vector<EObjectType> Types;
	for (const FProjectObject& Object : Sample().Objects)
	{
		Types.push_back(Object.Type);
	}

	EXPECT_EQ(Types,
		(std::vector<EObjectType>{EObjectType::Garment, EObjectType::Avatar, EObjectType::Outfit, EObjectType::Prop}));
	EXPECT_EQ(ProjectAvailability(Sample()), (FAvailability{true, true, true, true, true}));
}

TEST(SampleProject, IsTheSameInEveryRun)
{
	const FProject Again = MakeSampleProject();

	for (const FProjectObject& Object : Sample().Objects)
	{
		// Not EXPECT_EQ: a failure would print the meshes.
		EXPECT_TRUE(Object.Mesh == Again.Find(Object.Type)->Mesh) << ObjectTypeName(Object.Type);
		EXPECT_TRUE(Object.JointSequence == Again.Find(Object.Type)->JointSequence) << ObjectTypeName(Object.Type);
	}
}

TEST(SampleProject, ShowsAllFifteenKindsOfMaterial)
{
	std::set<std::int32_t> Kinds;
	for (const FProjectObject& Object : Sample().Objects)
	{
		for (const auto& [Key, Material] : Object.Mesh.Materials)
		{
			Kinds.insert(Material.MaterialKind);
		}
	}

	EXPECT_EQ(Kinds, (std::set<std::int32_t>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}));
}

TEST(SampleProject, GivesTheScalarsThatAnEditorReadsWithoutAsking)
{
	const auto bHas = [](const FMaterialExpression& Expression, std::int32_t Slot)
	{
		for (const auto& [Key, Value] : Expression.Scalars)
		{
			if (Key == Slot)
			{
				return true;
			}
		}
		return false;
	};
	for (const FProjectObject& Object : Sample().Objects)
	{
		for (const auto& [Key, Material] : Object.Mesh.Materials)
		{
			for (const auto& [Channel, Expression] : Material.Expressions)
			{
				const std::string Place = Material.Name + ", channel " + std::to_string(Channel);
				EXPECT_TRUE(Channel >= 0 && Channel <= 6 && Channel != 2) << Place;
				if (Channel >= MaterialChannel::Roughness)
				{
					EXPECT_TRUE(bHas(Expression, 0) && bHas(Expression, 1)) << Place;
				}
				if (Channel == MaterialChannel::Roughness)
				{
					EXPECT_EQ(bHas(Expression, 3), Expression.TextureId >= 0) << Place;
				}
			}
		}
	}
}

namespace
{

/** Which of the things that a material can do the sample's garments do. */
struct FUses
{
	bool bRotation = false, bOffset = false, bAmount = false, bAlphaMap = false, bColorOpacityMap = false;
	bool bOpacityWithoutMap = false, bTransparency = false, bSubstance = false, bMetallicMap = false;
	bool bSpecularMap = false, bRoughnessMap = false, bEmptyTexture = false;
};

FUses UsesOf(const FSurfaceMesh& Mesh)
{
	FUses Uses;
	for (const auto& [Key, Material] : Mesh.Materials)
	{
		Uses.bTransparency |= Material.bUseTransparency;
		Uses.bSubstance |=
			Material.bSubstance && !Material.SubstanceAssetPath.empty() && !Material.SubstanceGraphName.empty();
		for (const auto& [Channel, Expression] : Material.Expressions)
		{
			const bool bMap = Expression.TextureId >= 0;
			Uses.bRotation |= bMap && Expression.UVTransform.Rotation.Z != 0;
			Uses.bOffset |= bMap && Expression.UVTransform.Translation.X != 0;
			Uses.bAmount |= bMap && Expression.UVTransform.Scale.X != 1;
			Uses.bMetallicMap |= bMap && Channel == MaterialChannel::Metallic;
			Uses.bSpecularMap |= bMap && Channel == MaterialChannel::Specular;
			Uses.bRoughnessMap |= bMap && Channel == MaterialChannel::Roughness;
			if (Channel == MaterialChannel::Opacity)
			{
				Uses.bAlphaMap |= bMap && Expression.Scalars[0].second == 1.0f;
				Uses.bColorOpacityMap |= bMap && Expression.Scalars[0].second == 0.0f;
				Uses.bOpacityWithoutMap |= !bMap;
			}
			for (const auto& [Id, Texture] : Mesh.Textures)
			{
				Uses.bEmptyTexture |= Id == Expression.TextureId && Texture.Format == -1;
			}
		}
	}
	return Uses;
}

} // namespace

TEST(SampleProject, UsesWhatAMaterialCanDoOnItsGarments)
{
	const FUses Uses = UsesOf(SampleObject(EObjectType::Garment).Mesh);

	EXPECT_TRUE(Uses.bRotation);
	EXPECT_TRUE(Uses.bOffset);
	EXPECT_TRUE(Uses.bAmount);
	EXPECT_TRUE(Uses.bAlphaMap);
	EXPECT_TRUE(Uses.bColorOpacityMap);
	EXPECT_TRUE(Uses.bOpacityWithoutMap);
	EXPECT_TRUE(Uses.bTransparency);
	EXPECT_TRUE(Uses.bSubstance);
	EXPECT_TRUE(Uses.bMetallicMap);
	EXPECT_TRUE(Uses.bSpecularMap);
	EXPECT_TRUE(Uses.bRoughnessMap);
	EXPECT_TRUE(Uses.bEmptyTexture);
}

TEST(SampleProject, BringsTexturesOfEightAndSixteenBitsAndOneThatIsNoPowerOfTwo)
{
	bool bEight = false, bSixteen = false, bOdd = false;
	for (const FProjectObject& Object : Sample().Objects)
	{
		for (const auto& [Key, Texture] : Object.Mesh.Textures)
		{
			if (Texture.Format == -1)
			{
				EXPECT_TRUE(Texture.Pixels.empty());
				continue;
			}
			const std::size_t PixelBytes = Texture.Format == 0 ? 4 : 8;
			EXPECT_EQ(Texture.Pixels.size(), PixelBytes * static_cast<std::size_t>(Texture.Width * Texture.Height));
			bEight |= Texture.Format == 0;
			bSixteen |= Texture.Format == 1;
			bOdd |= (Texture.Width & (Texture.Width - 1)) != 0;
		}
	}
	EXPECT_TRUE(bEight && bSixteen && bOdd);
}

TEST(SampleProject, HasOneTranslucentGarmentSurfaceAmongOpaqueOnes)
{
	std::vector<std::string> Translucent;
	const FSurfaceMesh& Garment = SampleObject(EObjectType::Garment).Mesh;
	for (const FSurface& Surface : Garment.Surfaces)
	{
		if (Surface.SurfaceMode == 1)
		{
			Translucent.push_back(Surface.Name);
		}
	}
	EXPECT_EQ(Translucent, std::vector<std::string>{"Capelet/Panel"});
	EXPECT_GT(Garment.Surfaces.size(), 5u);
	EXPECT_TRUE(Garment.Joints.empty());
}
