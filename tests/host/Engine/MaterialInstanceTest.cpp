// SPDX-License-Identifier: MIT
#include "EngineFixture.h"
#include "MaterialSamples.h"
#include "Materials/MaterialInstanceDynamic.h"
#include "UObject/GarbageCollection.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include <gtest/gtest.h>

using namespace MaterialSamples;

namespace
{
using MaterialInstance = FEngineFixture;
} // namespace

TEST_F(MaterialInstance, TakesEveryValueFromItsParentUntilItOverridesIt)
{
	UMaterialInstanceConstant* Instance = MakeInstance(MakeMaster());
	float Roughness = 0.0f;
	EXPECT_TRUE(Instance->GetScalarParameterValue(Info(TEXT("Roughness")), Roughness));
	EXPECT_EQ(Roughness, 0.5f);
	EXPECT_FALSE(Instance->GetScalarParameterValue(Info(TEXT("Roughness")), Roughness, true));

	Instance->SetScalarParameterValueEditorOnly(Info(TEXT("Roughness")), 0.875f);
	EXPECT_TRUE(Instance->GetScalarParameterValue(Info(TEXT("Roughness")), Roughness, true));
	EXPECT_EQ(Roughness, 0.875f);
}

TEST_F(MaterialInstance, HoldsAParameterOnceHoweverOftenItIsSet)
{
	UMaterialInstanceConstant* Instance = MakeInstance(MakeMaster());
	Instance->SetVectorParameterValueEditorOnly(Info(TEXT("BaseColor")), FLinearColor(1.0f, 0.0f, 0.0f, 1.0f));
	Instance->SetVectorParameterValueEditorOnly(Info(TEXT("basecolor")), FLinearColor(0.0f, 1.0f, 0.0f, 1.0f));
	Instance->SetScalarParameterValueEditorOnly(Info(TEXT("Roughness")), 0.1f);
	Instance->SetScalarParameterValueEditorOnly(Info(TEXT("Roughness")), 0.25f);

	ASSERT_EQ(Instance->VectorParameterValues.Num(), 1);
	EXPECT_EQ(Instance->VectorParameterValues[0].ParameterValue, FLinearColor(0.0f, 1.0f, 0.0f, 1.0f));
	ASSERT_EQ(Instance->ScalarParameterValues.Num(), 1);
	EXPECT_EQ(Instance->ScalarParameterValues[0].ParameterValue, 0.25f);
}

TEST_F(MaterialInstance, CountsANullTextureAsAnOverride)
{
	UMaterialInstanceConstant* Instance = MakeInstance(MakeMaster());
	Instance->SetTextureParameterValueEditorOnly(Info(TEXT("BaseColor_Texture")), nullptr);
	UTexture* Texture = MakeTexture(TEXT("Before"));
	EXPECT_TRUE(Instance->GetTextureParameterValue(Info(TEXT("BaseColor_Texture")), Texture, true));
	EXPECT_EQ(Texture, nullptr);
}

TEST_F(MaterialInstance, StoresAParameterThatTheParentLacks)
{
	UMaterialInstanceConstant* Instance = MakeInstance(MakeMaster());
	Instance->SetScalarParameterValueEditorOnly(Info(TEXT("Wetness")), 1.0f);
	EXPECT_EQ(Instance->ScalarParameterValues.Num(), 1);
	float Value = 0.0f;
	EXPECT_FALSE(Instance->Parent->GetScalarParameterValue(Info(TEXT("Wetness")), Value));
}

TEST_F(MaterialInstance, TakesItsOverridesFromTheNearestInstance)
{
	UMaterialInstanceConstant* Outer = MakeInstance(MakeMaster(), TEXT("Outer"));
	UMaterialInstanceConstant* Inner = MakeInstance(Outer, TEXT("Inner"));
	Outer->SetScalarParameterValueEditorOnly(Info(TEXT("Roughness")), 0.25f);
	float Roughness = 0.0f;
	EXPECT_TRUE(Inner->GetScalarParameterValue(Info(TEXT("Roughness")), Roughness, true));
	EXPECT_EQ(Roughness, 0.25f);
	Inner->SetScalarParameterValueEditorOnly(Info(TEXT("Roughness")), 0.75f);
	EXPECT_TRUE(Inner->GetScalarParameterValue(Info(TEXT("Roughness")), Roughness, true));
	EXPECT_EQ(Roughness, 0.75f);
}

TEST_F(MaterialInstance, AnswersItsStaticSwitchWithTheNodeOfTheMaster)
{
	UMaterial* Master = MakeMaster();
	UMaterialInstanceConstant* Instance = MakeInstance(Master);
	Instance->SetStaticSwitchParameterValueEditorOnly(Info(TEXT("Opacity_AlphaMode")), true);
	Instance->PostEditChange();

	bool bValue = false;
	FGuid Node;
	EXPECT_TRUE(Instance->GetStaticSwitchParameterValue(Info(TEXT("Opacity_AlphaMode")), bValue, Node, true));
	EXPECT_TRUE(bValue);
	EXPECT_EQ(Node, Host::GetMaterialDeclaration(*Master).FindSwitch(TEXT("Opacity_AlphaMode"))->ExpressionGuid);
	EXPECT_FALSE(Instance->GetStaticSwitchParameterValue(Info(TEXT("BaseColor_HasMap")), bValue, Node, true));
}

TEST_F(MaterialInstance, ResolvesItsBlendModeAtPostEditChange)
{
	UMaterialInstanceConstant* Instance = MakeInstance(MakeMaster());
	Instance->BasePropertyOverrides.BlendMode = BLEND_Translucent;
	Instance->PostEditChange();
	EXPECT_EQ(Instance->GetBlendMode(), BLEND_Opaque) << "a value counts only with its flag";

	Instance->BasePropertyOverrides.bOverride_BlendMode = true;
	EXPECT_EQ(Instance->GetBlendMode(), BLEND_Opaque) << "and only from PostEditChange on";
	Instance->PostEditChange();
	EXPECT_EQ(Instance->GetBlendMode(), BLEND_Translucent);
	EXPECT_EQ(Instance->BlendMode.GetValue(), BLEND_Translucent);
	EXPECT_EQ(Instance->GetMaterial()->GetBlendMode(), BLEND_Opaque);
}

TEST_F(MaterialInstance, ResolvesBothSidesAtPostEditChange)
{
	UMaterialInstanceConstant* Instance = MakeInstance(MakeMaster());
	EXPECT_FALSE(Instance->IsTwoSided());
	Instance->BasePropertyOverrides.bOverride_TwoSided = true;
	Instance->BasePropertyOverrides.TwoSided = true;
	Instance->PostEditChange();
	EXPECT_TRUE(Instance->IsTwoSided());
	EXPECT_TRUE(Instance->TwoSided);
}

TEST_F(MaterialInstance, RefusesAParentThatLeadsBackToIt)
{
	UMaterial* Master = MakeMaster();
	UMaterialInstanceConstant* Outer = MakeInstance(Master, TEXT("Outer"));
	UMaterialInstanceConstant* Inner = MakeInstance(Outer, TEXT("Inner"));
	Outer->SetParentEditorOnly(Inner);
	EXPECT_EQ(Outer->Parent.Get(), Master);
	Outer->SetParentEditorOnly(Outer);
	EXPECT_EQ(Outer->Parent.Get(), Master);
	EXPECT_EQ(Inner->GetMaterial(), Master);
}

TEST_F(MaterialInstance, ShowsTheDefaultMaterialWithoutAParent)
{
	UMaterialInstanceConstant* Instance = MakeInstance(nullptr);
	EXPECT_EQ(Instance->GetMaterial(), UMaterial::GetDefaultMaterial(MD_Surface));
	EXPECT_EQ(Instance->GetBlendMode(), BLEND_Opaque);
	float Value = 0.0f;
	EXPECT_FALSE(Instance->GetScalarParameterValue(Info(TEXT("Roughness")), Value));
}

TEST_F(MaterialInstance, KeepsParentAndTexturesAlive)
{
	UMaterialInstanceConstant* Instance = MakeInstance(MakeMaster());
	Instance->AddToRoot();
	UTexture2D* Texture = MakeTexture(TEXT("T"));
	Instance->SetTextureParameterValueEditorOnly(Info(TEXT("BaseColor_Texture")), Texture);
	const TWeakObjectPtr<UTexture2D> WeakTexture = Texture;
	const TWeakObjectPtr<UMaterialInterface> WeakParent = Instance->Parent.Get();

	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(WeakTexture.IsValid());
	EXPECT_TRUE(WeakParent.IsValid());

	Instance->ClearParameterValuesEditorOnly();
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(WeakTexture.IsValid());
	Instance->RemoveFromRoot();
}

TEST_F(MaterialInstance, CollectsTheTexturesInUseOnce)
{
	UMaterialInstanceConstant* Instance = MakeInstance(MakeMaster());
	UTexture2D* Texture = MakeTexture(TEXT("T"));
	Instance->SetTextureParameterValueEditorOnly(Info(TEXT("BaseColor_Texture")), Texture);
	Instance->SetTextureParameterValueEditorOnly(Info(TEXT("Opacity_Texture")), Texture);
	TArray<UTexture*> Used;
	Instance->GetUsedTextures(Used, EMaterialQualityLevel::Num, true, ERHIFeatureLevel::Num, true);
	ASSERT_EQ(Used.Num(), 1);
	EXPECT_EQ(Used[0], Texture);
}

TEST_F(MaterialInstance, GivesItsOverridesToADuplicate)
{
	UMaterialInstanceConstant* Instance = MakeInstance(MakeMaster());
	Instance->SetScalarParameterValueEditorOnly(Info(TEXT("Roughness")), 0.875f);
	Instance->SetStaticSwitchParameterValueEditorOnly(Info(TEXT("Opacity_AlphaMode")), true);
	const UMaterialInstanceConstant* Copy =
		DuplicateObject<UMaterialInstanceConstant>(Instance, GetTransientPackage(), TEXT("Copy"));

	float Roughness = 0.0f;
	EXPECT_TRUE(Copy->GetScalarParameterValue(Info(TEXT("Roughness")), Roughness, true));
	EXPECT_EQ(Roughness, 0.875f);
	bool bValue = false;
	FGuid Node;
	EXPECT_TRUE(Copy->GetStaticSwitchParameterValue(Info(TEXT("Opacity_AlphaMode")), bValue, Node, true));
	EXPECT_TRUE(bValue);
	EXPECT_EQ(Copy->Parent, Instance->Parent);
}

TEST_F(MaterialInstance, DynamicOneIsMadeEvenWithoutAParent)
{
	UMaterialInstanceDynamic* Instance = UMaterialInstanceDynamic::Create(nullptr, nullptr);
	ASSERT_NE(Instance, nullptr);
	EXPECT_EQ(Instance->GetOuter(), GetTransientPackage());
	EXPECT_EQ(Instance->GetMaterial(), UMaterial::GetDefaultMaterial(MD_Surface));
}

TEST_F(MaterialInstance, DynamicOneIsConstructedOverOneOfItsName)
{
	UMaterial* Master = MakeMaster();
	UMaterialInstanceDynamic* First = UMaterialInstanceDynamic::Create(Master, GetTransientPackage(), TEXT("Slot0"));
	UMaterialInstanceDynamic* Second = UMaterialInstanceDynamic::Create(Master, GetTransientPackage(), TEXT("Slot0"));
	EXPECT_EQ(First, Second);
	EXPECT_EQ(Second->Parent.Get(), Master);
}
