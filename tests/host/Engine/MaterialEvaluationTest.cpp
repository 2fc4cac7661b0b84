// SPDX-License-Identifier: MIT
#include "EngineFixture.h"
#include "Host/MaterialEvaluation.h"
#include "MaterialSamples.h"

#include <gtest/gtest.h>

using namespace MaterialSamples;
using Host::EMaterialChannel;
using Host::EvaluateMaterial;
using Host::FEvaluatedMap;
using Host::FEvaluatedMaterial;

namespace
{
using MaterialEvaluation = FEngineFixture;

/** Sine and cosine of a quarter turn are exact to a few units of the last place. */
constexpr float RotationError = 1e-6f;
} // namespace

TEST_F(MaterialEvaluation, GivesTheDefaultsOfAMaster)
{
	const FEvaluatedMaterial Values = EvaluateMaterial(MakeMaster());
	EXPECT_EQ(Values.BaseColor, FLinearColor(0.25f, 0.5f, 0.75f, 1.0f));
	EXPECT_EQ(Values.Roughness, 0.5f);
	EXPECT_EQ(Values.Metallic, 0.0f) << "not declared, so the default of the structure";
	EXPECT_FALSE(Values.GetMap(EMaterialChannel::BaseColor).bHasMap);
	EXPECT_EQ(Values.BlendMode, BLEND_Opaque);
	EXPECT_EQ(Values.Look.Sheen.Color, FLinearColor(0.5f, 0.25f, 0.125f, 1.0f));
	EXPECT_EQ(Values.Master, FName(TEXT("Master")));
}

TEST_F(MaterialEvaluation, FollowsAChainOfInstances)
{
	UMaterialInstanceConstant* Outer = MakeInstance(MakeMaster(), TEXT("Outer"));
	UMaterialInstanceConstant* Inner = MakeInstance(Outer, TEXT("Inner"));
	UTexture2D* Texture = MakeTexture(TEXT("T"));
	Outer->SetScalarParameterValueEditorOnly(Info(TEXT("Roughness")), 0.25f);
	Outer->SetStaticSwitchParameterValueEditorOnly(Info(TEXT("BaseColor_HasMap")), true);
	Outer->SetTextureParameterValueEditorOnly(Info(TEXT("BaseColor_Texture")), Texture);
	Outer->PostEditChange();
	Inner->SetScalarParameterValueEditorOnly(Info(TEXT("BaseColor_UAmount")), 4.0f);
	Inner->BasePropertyOverrides.bOverride_BlendMode = true;
	Inner->BasePropertyOverrides.BlendMode = BLEND_Masked;
	Inner->PostEditChange();

	const FEvaluatedMaterial Values = EvaluateMaterial(Inner);
	EXPECT_EQ(Values.Roughness, 0.25f);
	EXPECT_EQ(Values.BlendMode, BLEND_Masked);
	const FEvaluatedMap& Map = Values.GetMap(EMaterialChannel::BaseColor);
	EXPECT_TRUE(Map.IsUsed());
	EXPECT_EQ(Map.Texture, Texture);
	EXPECT_EQ(Map.UAmount, 4.0f);
	EXPECT_EQ(Map.VAmount, 1.0f);
}

TEST_F(MaterialEvaluation, SeesAStaticSwitchOnlyFromPostEditChangeOn)
{
	UMaterialInstanceConstant* Instance = MakeInstance(MakeMaster());
	Instance->SetStaticSwitchParameterValueEditorOnly(Info(TEXT("Opacity_AlphaMode")), true);
	EXPECT_FALSE(EvaluateMaterial(Instance).bOpacityAlphaMode);
	Instance->PostEditChange();
	EXPECT_TRUE(EvaluateMaterial(Instance).bOpacityAlphaMode);
}

TEST_F(MaterialEvaluation, UsesNoMapThatHasNoTexture)
{
	UMaterialInstanceConstant* Instance = MakeInstance(MakeMaster());
	Instance->SetStaticSwitchParameterValueEditorOnly(Info(TEXT("BaseColor_HasMap")), true);
	Instance->SetTextureParameterValueEditorOnly(Info(TEXT("BaseColor_Texture")), nullptr);
	Instance->PostEditChange();
	const FEvaluatedMap Map = EvaluateMaterial(Instance).GetMap(EMaterialChannel::BaseColor);
	EXPECT_TRUE(Map.bHasMap);
	EXPECT_FALSE(Map.IsUsed());
}

TEST_F(MaterialEvaluation, IgnoresAnOverrideThatTheMasterDoesNotDeclare)
{
	UMaterialInstanceConstant* Instance = MakeInstance(MakeMaster());
	Instance->SetScalarParameterValueEditorOnly(Info(TEXT("Metallic")), 1.0f);
	EXPECT_EQ(EvaluateMaterial(Instance).Metallic, 0.0f);
}

TEST_F(MaterialEvaluation, GivesTheDefaultSurfaceForNull)
{
	EXPECT_EQ(EvaluateMaterial(nullptr).Master, UMaterial::GetDefaultMaterial(MD_Surface)->GetFName());
}

TEST_F(MaterialEvaluation, PlacesAMapByScaleThenRotationThenOffset)
{
	FEvaluatedMap Map;
	Map.UAmount = 2.0f;
	Map.VAmount = 3.0f;
	Map.Angle = 0.25f;
	Map.UOffset = 10.0f;
	Map.VOffset = 20.0f;
	// (1, 1) is scaled to (2, 3), turned a quarter from u towards v to (-3, 2), and moved.
	const FVector2f Placed = Map.Place(FVector2f(1.0f, 1.0f));
	EXPECT_NEAR(Placed.X, 7.0f, RotationError * 10.0f);
	EXPECT_NEAR(Placed.Y, 22.0f, RotationError * 10.0f);
}
