// SPDX-License-Identifier: MIT
#include "Engine/Texture2D.h"
#include "EngineFixture.h"
#include "Templates/Casts.h"
#include "Materials/Material.h"
#include "Materials/MaterialInstanceConstant.h"
#include "Misc/ConfigCacheIni.h"
#include "Source/SampleMeshes.h"
#include "UObject/Package.h"
#include "Utils/ZEFMeshMaterials.h"
#include "Utils/ZEFTandemEditorUtils.h"

#include <gtest/gtest.h>

#include <optional>

using namespace SampleMeshes;

namespace
{

constexpr float AngleError = 1e-6f; // of the engine's approximated arc tangent

class MaterialBuilder : public FEngineFixture
{
protected:
	UMaterialInstanceConstant* Build(const FZEFMaterial& Material, bool bForceTranslucent = false)
	{
		UMaterialInterface* Built = nullptr;
		ZEFEditorUtils::CreateMaterialInstance(GetTransientPackage(), TEXT("DynamicMesh"),
			static_cast<EObjectFlags>(RF_Public | RF_Standalone), Textures, Material, Built, bForceTranslucent);
		return Cast<UMaterialInstanceConstant>(Built);
	}

	/** A texture under an id of the map. */
	UTexture2D* AddTexture(int32 Id)
	{
		UTexture2D* const Texture =
			ZEFEditorUtils::CreateTextureFromData(GetTransientPackage(), FString::Printf(TEXT("Texture%d"), Id),
				static_cast<EObjectFlags>(RF_Public | RF_Standalone), 0, MakeTexture(0, 2, 2), true);
		Textures.Add(Id, Texture);
		return Texture;
	}

	TMap<int32, UTexture2D*> Textures;
};

std::optional<float> Scalar(const UMaterialInstance* Instance, const TCHAR* Name)
{
	float Value = 0;
	return Instance->GetScalarParameterValue(FMaterialParameterInfo(Name), Value, true) ? std::optional(Value)
																						: std::nullopt;
}

bool Switch(const UMaterialInstance* Instance, const TCHAR* Name)
{
	bool bValue = false;
	FGuid Guid;
	Instance->GetStaticSwitchParameterValue(FMaterialParameterInfo(Name), bValue, Guid);
	return bValue;
}

FZEFMaterialExpression MakeExpression(int32 TextureId, float Intensity, float Value)
{
	FZEFMaterialExpression Expression;
	Expression.TextureId = TextureId;
	Expression.Scalars.Add(0, Intensity);
	Expression.Scalars.Add(1, Value);
	return Expression;
}

constexpr int32 NoTexture = 1000;

struct FKindCase
{
	int32 Kind;
	const TCHAR* Master;
	const TCHAR* Instance;
};

} // namespace

TEST_F(MaterialBuilder, ChoosesTheMasterByKind)
{
	const FKindCase Cases[] = {
		{0, TEXT("M_ZEF_Matte"), TEXT("MI_A_Matte_5")},
		{1, TEXT("M_ZEF_Shiny"), TEXT("MI_A_Shiny_5")},
		{2, TEXT("M_ZEF_Metal"), TEXT("MI_A_Metal_5")},
		{3, TEXT("M_ZEF_Plastic"), TEXT("MI_A_Plastic_5")},
		{4, TEXT("M_ZEF_Leather"), TEXT("MI_A_Leather_5")},
		{5, TEXT("M_ZEF_Silk"), TEXT("MI_A_Silk_5")},
		{6, TEXT("M_ZEF_Velvet"), TEXT("MI_A_Velvet_5")},
		{7, TEXT("M_ZEF_GlassGem"), TEXT("MI_A_GlassGem_5")},
		{8, TEXT("M_ZEF_Fur"), TEXT("MI_A_Fur_5")},
		{9, TEXT("M_ZEF_Light"), TEXT("MI_A_Light_5")},
		{10, TEXT("M_ZEF_Glitter"), TEXT("MI_A_Glitter_5")},
		{11, TEXT("M_ZEF_GlassGem"), TEXT("MI_A_GlassGem_5")},
		{12, TEXT("M_ZEF_Skin"), TEXT("MI_A_Skin_5")},
		{13, TEXT("M_ZEF_Iridescence"), TEXT("MI_A_Iridescence_5")},
		{14, TEXT("M_ZEF_KnitWear"), TEXT("MI_A_KnitWear_5")},
		{15, TEXT("M_ZEF_Default"), TEXT("MI_A__5")},
		{-1, TEXT("M_ZEF_Default"), TEXT("MI_A__5")},
	};
	for (const FKindCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Kind);
		const UMaterialInstanceConstant* const Instance = Build(MakeMaterial(5, TEXT("A"), Case.Kind));
		ASSERT_NE(Instance, nullptr);
		ASSERT_NE(Instance->Parent, nullptr);
		EXPECT_EQ(Instance->Parent->GetName(), FString(Case.Master));
		EXPECT_EQ(Instance->GetName(), FString(Case.Instance));
	}
}

TEST_F(MaterialBuilder, SanitisesTheNameOfTheInstance)
{
	EXPECT_EQ(Build(MakeMaterial(-3, TEXT("50% Wool Mix"), 0))->GetName(), FString(TEXT("MI_50__Wool_Mix_Matte_-3")));
}

TEST_F(MaterialBuilder, InstanceIsStandaloneTwoSidedAndItsMasterServesSkinsAndCaches)
{
	UMaterialInstanceConstant* const Instance = Build(MakeMaterial(1, TEXT("Cotton"), 0));

	EXPECT_TRUE(Instance->HasAnyFlags(RF_Standalone));
	EXPECT_TRUE(Instance->IsTwoSided());
	EXPECT_TRUE(Instance->GetMaterial()->bUsedWithSkeletalMesh);
	EXPECT_TRUE(Instance->GetMaterial()->bUsedWithGeometryCache);
	EXPECT_FALSE(Instance->BasePropertyOverrides.bOverride_BlendMode);
}

TEST_F(MaterialBuilder, BaseColourIsWhiteUnlessGiven)
{
	FZEFMaterial Material = MakeMaterial(1, TEXT("Cotton"), 0);
	Material.Expressions.Add(0).TextureId = NoTexture;
	FLinearColor Colour;
	ASSERT_TRUE(Build(Material)->GetVectorParameterValue(FMaterialParameterInfo(TEXT("BaseColor")), Colour, true));
	EXPECT_EQ(Colour, FLinearColor(1, 1, 1, 1));

	Material.Expressions[0].Vectors.Add(0, FVector4f(0.1f, 0.2f, 0.3f, 0.4f));
	ASSERT_TRUE(Build(Material)->GetVectorParameterValue(FMaterialParameterInfo(TEXT("BaseColor")), Colour, true));
	EXPECT_EQ(Colour, FLinearColor(0.1f, 0.2f, 0.3f, 0.4f));
}

TEST_F(MaterialBuilder, PlainValuesApplyWithoutAMap)
{
	FZEFMaterial Material = MakeMaterial(1, TEXT("Cotton"), 0);
	Material.Expressions.Add(3, MakeExpression(NoTexture, 0.9f, 0.31f));
	Material.Expressions.Add(4, MakeExpression(NoTexture, 0.9f, 0.32f));
	Material.Expressions.Add(5, MakeExpression(NoTexture, 0.9f, 0.33f));
	Material.Expressions.Add(6, MakeExpression(NoTexture, 1.0f, 0.34f));

	const UMaterialInstanceConstant* const Instance = Build(Material);

	EXPECT_EQ(Scalar(Instance, TEXT("Roughness")), 0.31f);
	EXPECT_EQ(Scalar(Instance, TEXT("Metallic")), 0.32f);
	EXPECT_EQ(Scalar(Instance, TEXT("Specular")), 0.33f);
	EXPECT_EQ(Scalar(Instance, TEXT("Opacity")), 0.34f);
	EXPECT_EQ(Scalar(Instance, TEXT("Roughness_Intensity")), std::nullopt);
	EXPECT_FALSE(Switch(Instance, TEXT("Metallic_HasMap")));
	EXPECT_FALSE(Switch(Instance, TEXT("Opacity_AlphaMode")));
}

TEST_F(MaterialBuilder, MapBringsItsPlacement)
{
	UTexture2D* const Map = AddTexture(8);
	FZEFMaterial Material = MakeMaterial(1, TEXT("Cotton"), 0);
	FZEFMaterialExpression& Expression = Material.Expressions.Add(4, MakeExpression(8, 0.75f, 0.5f));
	Expression.UVTransform =
		FTransform3f(FQuat4f(FVector3f(0, 0, 1), UE_HALF_PI), FVector3f(0.2f, 0.4f, 9.0f), FVector3f(3.0f, 5.0f, 7.0f));

	const UMaterialInstanceConstant* const Instance = Build(Material);

	UTexture* Texture = nullptr;
	EXPECT_TRUE(Switch(Instance, TEXT("Metallic_HasMap")));
	EXPECT_TRUE(Instance->GetTextureParameterValue(FMaterialParameterInfo(TEXT("Metallic_Texture")), Texture, true));
	EXPECT_EQ(Texture, Map);
	EXPECT_NEAR(Scalar(Instance, TEXT("Metallic_Angle")).value(), 0.25f, AngleError);
	EXPECT_EQ(Scalar(Instance, TEXT("Metallic_UAmount")), 3.0f);
	EXPECT_EQ(Scalar(Instance, TEXT("Metallic_VAmount")), 5.0f);
	EXPECT_EQ(Scalar(Instance, TEXT("Metallic_UOffset")), 0.2f);
	EXPECT_EQ(Scalar(Instance, TEXT("Metallic_VOffset")), 0.4f);
	EXPECT_EQ(Scalar(Instance, TEXT("Metallic_Intensity")), 0.75f);
}

TEST_F(MaterialBuilder, IntensitiesOfColourAndNormalMapsHaveDefaults)
{
	AddTexture(8);
	FZEFMaterial Material = MakeMaterial(1, TEXT("Cotton"), 0);
	Material.Expressions.Add(0).TextureId = 8;
	Material.Expressions[0].Scalars.Add(0, 0.5f);
	Material.Expressions.Add(1).TextureId = 8;

	EXPECT_EQ(Scalar(Build(Material), TEXT("BaseColor_Intensity")), 1.0f);
	EXPECT_EQ(Scalar(Build(Material), TEXT("Normal_Intensity")), 0.0f);

	Material.Expressions[1].Scalars.Add(0, 0.6f);
	EXPECT_EQ(Scalar(Build(Material), TEXT("Normal_Intensity")), 0.6f);
}

TEST_F(MaterialBuilder, RoughnessMapNeedsItsOwnKey)
{
	AddTexture(8);
	FZEFMaterial Material = MakeMaterial(1, TEXT("Cotton"), 0);
	Material.Expressions.Add(3, MakeExpression(8, 0.75f, 0.5f));
	EXPECT_FALSE(Switch(Build(Material), TEXT("Roughness_HasMap")));
	EXPECT_EQ(Scalar(Build(Material), TEXT("Roughness")), 0.5f);

	Material.Expressions[3].Scalars.Add(3, 0.0f);
	EXPECT_TRUE(Switch(Build(Material), TEXT("Roughness_HasMap")));
	EXPECT_EQ(Scalar(Build(Material), TEXT("Roughness_Intensity")), 0.75f);
}

TEST_F(MaterialBuilder, AnEmptyImageStillSwitchesItsMapOn)
{
	Textures.Add(8, nullptr);
	FZEFMaterial Material = MakeMaterial(1, TEXT("Cotton"), 0);
	Material.Expressions.Add(0).TextureId = 8;

	const UMaterialInstanceConstant* const Instance = Build(Material);

	UTexture* Texture = nullptr;
	EXPECT_TRUE(Switch(Instance, TEXT("BaseColor_HasMap")));
	EXPECT_TRUE(Instance->GetTextureParameterValue(FMaterialParameterInfo(TEXT("BaseColor_Texture")), Texture, true));
	EXPECT_EQ(Texture, nullptr);
}

TEST_F(MaterialBuilder, AlphaModeIsOnForExactlyOne)
{
	AddTexture(8);
	FZEFMaterial Material = MakeMaterial(1, TEXT("Cotton"), 0);
	Material.Expressions.Add(6, MakeExpression(8, 1.0f, 0.5f));
	EXPECT_TRUE(Switch(Build(Material), TEXT("Opacity_AlphaMode")));
	EXPECT_EQ(Scalar(Build(Material), TEXT("Opacity_Intensity")), std::nullopt);

	Material.Expressions[6].Scalars[0] = 0.999f;
	EXPECT_FALSE(Switch(Build(Material), TEXT("Opacity_AlphaMode")));
}

TEST_F(MaterialBuilder, SkipsChannelsThatTheMastersLack)
{
	AddTexture(8);
	FZEFMaterial Material = MakeMaterial(1, TEXT("Cotton"), 0);
	for (const int32 Channel : {2, 7, -1})
	{
		Material.Expressions.Add(Channel, MakeExpression(8, 0.1f, 0.2f));
	}

	const UMaterialInstanceConstant* const Instance = Build(Material);

	EXPECT_EQ(Instance->ScalarParameterValues.Num(), 0);
	EXPECT_EQ(Instance->TextureParameterValues.Num(), 0);
}

TEST_F(MaterialBuilder, TransparencyIsCutOutUnlessPixelsAreSorted)
{
	FZEFMaterial Material = MakeMaterial(1, TEXT("Tulle"), 5);
	Material.Expressions.Add(6, MakeExpression(NoTexture, 1.0f, 0.5f));
	EXPECT_FALSE(Build(Material)->BasePropertyOverrides.bOverride_BlendMode);

	Material.bUseTransparency = true;
	GConfig->SetBool(TEXT("/Script/Engine.RendererSettings"), TEXT("r.OIT.SortedPixels"), false, GEngineIni);
	EXPECT_EQ(Build(Material)->GetBlendMode(), BLEND_Masked);
	GConfig->SetBool(TEXT("/Script/Engine.RendererSettings"), TEXT("r.OIT.SortedPixels"), true, GEngineIni);
	EXPECT_EQ(Build(Material)->GetBlendMode(), BLEND_Translucent);
}

TEST_F(MaterialBuilder, TransparencyNeedsTheOpacityChannel)
{
	FZEFMaterial Material = MakeMaterial(1, TEXT("Tulle"), 5);
	Material.bUseTransparency = true;

	EXPECT_FALSE(Build(Material)->BasePropertyOverrides.bOverride_BlendMode);
}

TEST_F(MaterialBuilder, ForcedTranslucencyWinsOverCutOut)
{
	FZEFMaterial Material = MakeMaterial(1, TEXT("Tulle"), 5);
	Material.bUseTransparency = true;
	Material.Expressions.Add(6, MakeExpression(NoTexture, 1.0f, 0.5f));

	EXPECT_EQ(Build(Material, true)->GetBlendMode(), BLEND_Translucent);
}

TEST_F(MaterialBuilder, SubstanceFallsBackToACopyOfTheDefaultMaterial)
{
	FZEFMaterial Material = MakeMaterial(12, TEXT("Fabric"), 3);
	Material.bSubstance = true;
	for (const bool bModuleLoaded : {false, true})
	{
		SCOPED_TRACE(bModuleLoaded);
		ZEFEditorUtils::UpdateSubstanceStatus(true, bModuleLoaded);
		UMaterialInterface* Built = nullptr;
		ZEFEditorUtils::CreateMaterialInstance(
			GetTransientPackage(), TEXT("DynamicMesh"), RF_Public, Textures, Material, Built, false);

		ASSERT_NE(Built, nullptr);
		EXPECT_EQ(Built->GetClass(), UMaterial::StaticClass());
		EXPECT_EQ(Built->GetName(), FString(TEXT("TempMaterial12")));
		EXPECT_TRUE(Built->IsTwoSided());
	}
	ZEFEditorUtils::UpdateSubstanceStatus(false, false);
}

TEST_F(MaterialBuilder, SurfaceModeOneForcesEveryMaterialOfItsSections)
{
	FZEFSurfaceMesh Mesh = MakeRigid();
	Mesh.Materials.Add(9, MakeMaterial(9, TEXT("Lining"), 0));
	Mesh.Surfaces.Add(MakeSurface(3, 3));
	Mesh.Surfaces[1].Sections.Add(MakeSection(9, {0, 1, 2}));
	Mesh.Surfaces[1].SurfaceMode = 1;
	TArray<FZEFMaterialData> Materials;

	ZEFEditorUtils::PrepareMaterialsAndTextures(
		Mesh, TEXT("DynamicMesh"), ZEFEditorUtils::EUVTransformCopy::Copy, Textures, Materials);

	EXPECT_NE(Materials[0].Material->GetBlendMode(), BLEND_Translucent);
	EXPECT_EQ(Materials[1].Material->GetBlendMode(), BLEND_Translucent);
}

TEST_F(MaterialBuilder, TexturesOfAnObjectAreNamedAndKindedByTheirUse)
{
	FZEFSurfaceMesh Mesh = MakeRigid();
	Mesh.Textures.Add(3, MakeTexture(0, 4, 4));
	Mesh.Textures.Add(2, MakeTexture(-1, 4, 4));
	Mesh.Textures.Add(5, MakeTexture(0, 0, 4));
	Mesh.Textures.Add(4, MakeTexture(1, 4, 4));
	Mesh.Materials[1].Expressions.Add(1).TextureId = 4;
	TArray<FZEFMaterialData> Materials;

	ZEFEditorUtils::PrepareMaterialsAndTextures(
		Mesh, TEXT("Skirt"), ZEFEditorUtils::EUVTransformCopy::Copy, Textures, Materials);

	ASSERT_EQ(Textures.Num(), 4);
	EXPECT_EQ(Textures[3]->GetName(), FString(TEXT("T_Skirt_3")));
	EXPECT_EQ(Textures[3]->CompressionSettings, TC_Default);
	EXPECT_EQ(Textures[3]->LODGroup, TEXTUREGROUP_World);
	EXPECT_EQ(Textures[4]->CompressionSettings, TC_Normalmap);
	EXPECT_EQ(Textures[4]->LODGroup, TEXTUREGROUP_WorldNormalMap);
	EXPECT_TRUE(Textures[4]->SRGB);
	EXPECT_EQ(Textures[2], nullptr);
	EXPECT_EQ(Textures[5], nullptr);
}
