// SPDX-License-Identifier: MIT
#include "EngineFixture.h"
#include "MaterialSamples.h"
#include "UObject/GarbageCollection.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include <gtest/gtest.h>

using namespace MaterialSamples;

namespace
{
using Material = FEngineFixture;
} // namespace

TEST_F(Material, HasOneDefaultForEachDomainInAnEnginePackage)
{
	UMaterial* Surface = UMaterial::GetDefaultMaterial(MD_Surface);
	ASSERT_NE(Surface, nullptr);
	EXPECT_EQ(UMaterial::GetDefaultMaterial(MD_Surface), Surface);
	EXPECT_NE(UMaterial::GetDefaultMaterial(MD_PostProcess), Surface);
	EXPECT_EQ(UMaterial::GetDefaultMaterial(MD_PostProcess)->MaterialDomain.GetValue(), MD_PostProcess);
	EXPECT_TRUE(Surface->GetOutermost()->GetName().StartsWith(TEXT("/Engine/")));
}

TEST_F(Material, DefaultsOutliveACollection)
{
	const TWeakObjectPtr<UMaterial> Surface = UMaterial::GetDefaultMaterial(MD_Surface);
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Surface.IsValid());
}

TEST_F(Material, DuplicateHasTheDeclarationAndChangesAlone)
{
	UMaterial* Master = MakeMaster();
	UMaterial* Copy = DuplicateObject<UMaterial>(Master, GetTransientPackage(), TEXT("Copy"));
	Copy->TwoSided = true;
	Host::EditMaterialDeclaration(*Copy).Scalars[0].Default = 0.125f;

	float Roughness = 0.0f;
	EXPECT_TRUE(Copy->GetScalarParameterValue(Info(TEXT("Roughness")), Roughness));
	EXPECT_EQ(Roughness, 0.125f);
	EXPECT_TRUE(Master->GetScalarParameterValue(Info(TEXT("Roughness")), Roughness));
	EXPECT_EQ(Roughness, 0.5f);
	EXPECT_FALSE(Master->TwoSided);
}

TEST_F(Material, ListsItsTextureParametersOnceInTheOrderOfDeclaration)
{
	UMaterial* Master = MakeMaster();
	UMaterialInstanceConstant* Instance = MakeInstance(Master);
	Instance->SetTextureParameterValueEditorOnly(Info(TEXT("Opacity_Texture")), MakeTexture(TEXT("T")));

	TArray<FMaterialParameterInfo> Infos = {Info(TEXT("Stale"))};
	TArray<FGuid> Ids;
	Instance->GetAllTextureParameterInfo(Infos, Ids);

	ASSERT_EQ(Infos.Num(), 2);
	EXPECT_EQ(Infos[0].Name, FName(TEXT("BaseColor_Texture")));
	EXPECT_EQ(Infos[1].Name, FName(TEXT("Opacity_Texture")));
	EXPECT_EQ(Infos[0].Association.GetValue(), GlobalParameter);
	EXPECT_EQ(Infos[0].Index, INDEX_NONE);
	ASSERT_EQ(Ids.Num(), 2);
	EXPECT_TRUE(Ids[0].IsValid());
	EXPECT_FALSE(Ids[0] == Ids[1]);
}

TEST_F(Material, KeepsTheDefaultTexturesOfItsParametersAlive)
{
	UMaterial* Master = MakeMaster();
	Master->AddToRoot();
	UTexture2D* Texture = MakeTexture(TEXT("T"));
	Host::EditMaterialDeclaration(*Master).Textures[0].Default = Texture;
	const TWeakObjectPtr<UTexture2D> Kept = Texture;
	const TWeakObjectPtr<UTexture2D> Lost = MakeTexture(TEXT("Unused"));

	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Kept.IsValid());
	EXPECT_FALSE(Lost.IsValid());
	Master->RemoveFromRoot();
}

TEST_F(Material, AnswersNoOverrideBecauseItsOwnDefaultsAreNone)
{
	UMaterial* Master = MakeMaster();
	UTexture* Texture = MakeTexture(TEXT("Untouched"));
	UTexture* const Before = Texture;
	EXPECT_FALSE(Master->GetTextureParameterValue(Info(TEXT("BaseColor_Texture")), Texture, true));
	EXPECT_EQ(Texture, Before);
	EXPECT_TRUE(Master->GetTextureParameterValue(Info(TEXT("BaseColor_Texture")), Texture));
	EXPECT_EQ(Texture, nullptr);
}
