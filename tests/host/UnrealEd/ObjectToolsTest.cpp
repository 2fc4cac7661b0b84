// SPDX-License-Identifier: MIT
#include "EngineFixture.h"
#include "Materials/MaterialInstanceConstant.h"
#include "Engine/Texture2D.h"
#include "ObjectTools.h"
#include "PackageTools.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
using ObjectToolsTest = FEngineFixture;

std::string Sanitized(const TCHAR* Name)
{
	return TCHAR_TO_UTF8(*ObjectTools::SanitizeObjectName(Name));
}

std::string SanitizedPackage(const TCHAR* Name)
{
	return TCHAR_TO_UTF8(*UPackageTools::SanitizePackageName(Name));
}
} // namespace

TEST_F(ObjectToolsTest, PutsAnUnderscoreForEachCharacterThatAnObjectNameMayNotHold)
{
	EXPECT_EQ(Sanitized(TEXT("Silk 100% blue")), "Silk_100__blue");
	EXPECT_EQ(Sanitized(TEXT("a,b/c.d:e|f&g!h~i")), "a_b_c_d_e_f_g_h_i");
	EXPECT_EQ(Sanitized(TEXT("\"'\n\r\t@#(){}[]=;^%$`")), "___________________");
	EXPECT_EQ(Sanitized(TEXT("Case_Kept-09\\*?<>")), "Case_Kept-09\\*?<>");
	EXPECT_EQ(Sanitized(TEXT("")), "");
}

TEST_F(ObjectToolsTest, PutsAnUnderscoreForEachCharacterThatAPackageNameMayNotHold)
{
	EXPECT_EQ(SanitizedPackage(TEXT("/Game/My Shirt.v2")), "/Game/My_Shirt_v2");
	EXPECT_EQ(SanitizedPackage(TEXT("/Game//A///B")), "/Game/A/B");
	EXPECT_EQ(SanitizedPackage(TEXT("\\:*?\"<>|' ,.&!~\n\r\t@#")), "____________________");
	EXPECT_EQ(SanitizedPackage(TEXT("/Engine/Transient(1)")), "/Engine/Transient(1)");
}

TEST_F(ObjectToolsTest, DeletesAnObjectThatNobodyRefersTo)
{
	UPackage* Package = CreatePackage(TEXT("/Game/Old"));
	UTexture2D* Texture = NewObject<UTexture2D>(Package, TEXT("Old"), EObjectFlags(RF_Public | RF_Standalone));
	EXPECT_TRUE(ObjectTools::DeleteSingleObject(Texture));
	EXPECT_FALSE(IsValid(Texture));
	EXPECT_FALSE(Texture->HasAnyFlags(RF_Standalone));
	EXPECT_TRUE(Package->IsDirty());
	EXPECT_EQ(StaticFindObject(UObject::StaticClass(), Package, TEXT("Old")), nullptr);
	EXPECT_TRUE(Dialogs().Messages().empty());
}

TEST_F(ObjectToolsTest, KeepsAnObjectInUseAndTellsTheUserUnlessItNeedNotCheck)
{
	UTexture2D* Texture = NewObject<UTexture2D>(CreatePackage(TEXT("/Game/T")), TEXT("T"), RF_Standalone);
	UMaterialInstanceConstant* Instance =
		NewObject<UMaterialInstanceConstant>(CreatePackage(TEXT("/Game/M")), TEXT("M"), RF_Standalone);
	Instance->SetTextureParameterValueEditorOnly(FMaterialParameterInfo(TEXT("BaseColor_Texture")), Texture);

	EXPECT_FALSE(ObjectTools::DeleteSingleObject(Texture));
	EXPECT_TRUE(IsValid(Texture));
	ASSERT_EQ(Dialogs().Messages().size(), 1u);
	EXPECT_EQ(ToStdString(Dialogs().Messages()[0].Message.ToString()), "/Game/T.T is in use and was not deleted.");

	EXPECT_TRUE(ObjectTools::DeleteSingleObject(Texture, false));
	EXPECT_FALSE(IsValid(Texture));
	EXPECT_FALSE(ObjectTools::DeleteSingleObject(Texture)) << "it is deleted already";
	EXPECT_FALSE(ObjectTools::DeleteSingleObject(nullptr));
}
