// SPDX-License-Identifier: MIT
#include "EditorAssetLibrary.h"
#include "EngineFixture.h"
#include "Host/MaterialDeclaration.h"
#include "Host/PackageStore.h"
#include "Materials/Material.h"
#include "TemporaryFolder.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace
{
/** The fixture's store over one more folder, "/Shelf". */
class FilePackageStore : public FEngineFixture
{
protected:
	virtual void SetUp() override
	{
		FEngineFixture::SetUp();
		Host::MountContent(TEXT("/Shelf"), UTF8_TO_TCHAR(Folder.GetPath().c_str()));
	}

	virtual void TearDown() override
	{
		Host::UnmountContent(TEXT("/Shelf"));
		FEngineFixture::TearDown();
	}

	void WriteFile(const std::string& Name, const std::string& Text)
	{
		std::filesystem::create_directories(std::filesystem::path(Folder / Name).parent_path());
		std::ofstream(Folder / Name) << Text;
	}

	FTemporaryFolder Folder;
};

constexpr const char* Red =
	R"({"type": "Material", "version": 1, "twoSided": true, "parameters": {"vectors": {"BaseColor": [1, 0, 0]}}})";
} // namespace

TEST_F(FilePackageStore, LoadsAMaterialByItsPath)
{
	WriteFile("Paint/Red.json", Red);
	UMaterial* Material =
		static_cast<UMaterial*>(StaticLoadObject(UMaterial::StaticClass(), nullptr, TEXT("/Shelf/Paint/Red.Red")));
	ASSERT_NE(Material, nullptr);
	EXPECT_TRUE(Material->TwoSided);
	EXPECT_EQ(Host::GetMaterialDeclaration(*Material).FindVector(TEXT("BaseColor"))->Default, FLinearColor(1, 0, 0, 1));
	EXPECT_EQ(std::string(TCHAR_TO_UTF8(*Material->GetPathName())), "/Shelf/Paint/Red.Red");
	EXPECT_TRUE(Material->HasAnyFlags(RF_Standalone));
	EXPECT_FALSE(Material->GetOutermost()->IsDirty());
	EXPECT_EQ(StaticLoadObject(UMaterial::StaticClass(), nullptr, TEXT("/Shelf/Paint/Red.Red")), Material)
		<< "the second time from memory";
}

TEST_F(FilePackageStore, KnowsWhichPackagesHaveAFile)
{
	WriteFile("Red.json", Red);
	WriteFile("Folder.json/Inner.json", Red);
	EXPECT_TRUE(UEditorAssetLibrary::DoesAssetExist(TEXT("/Shelf/Red.Red")));
	EXPECT_TRUE(UEditorAssetLibrary::DoesAssetExist(TEXT("/Shelf/Red")));
	EXPECT_FALSE(UEditorAssetLibrary::DoesAssetExist(TEXT("/Shelf/Red.Blue")));
	EXPECT_FALSE(UEditorAssetLibrary::DoesAssetExist(TEXT("/Shelf/Blue")));
	EXPECT_FALSE(UEditorAssetLibrary::DoesAssetExist(TEXT("/Shelf/Folder"))) << "a folder is no file";
	EXPECT_FALSE(UEditorAssetLibrary::DoesAssetExist(TEXT("/Unmounted/Red")));
	EXPECT_FALSE(UEditorAssetLibrary::DoesAssetExist(TEXT("Red")));
	EXPECT_FALSE(UEditorAssetLibrary::DoesAssetExist(TEXT("")));
}

TEST_F(FilePackageStore, DoesNotLeaveItsFolder)
{
	WriteFile("Inner/Empty.json", Red);
	WriteFile("Red.json", Red);
	EXPECT_FALSE(Host::GetPackageStore()->Exists(TEXT("/Shelf/Inner/../Red")));
}

TEST_F(FilePackageStore, NamesTheFileAndTheFaultOfABadOne)
{
	WriteFile("Bad.json", R"({"type": "Material", "version": 1, "parameters": {"scalars": {"Roughness": "high"}}})");
	Log().ExpectError((Folder / "Bad.json") + " is no material. At /parameters/scalars/Roughness: a number from ");
	EXPECT_EQ(Host::GetPackageStore()->Load(TEXT("/Shelf/Bad")), nullptr);
	EXPECT_EQ(FindPackage(nullptr, TEXT("/Shelf/Bad")), nullptr) << "no half-made package stays";
}

TEST_F(FilePackageStore, SaysWhenAPackageHasNoFile)
{
	Log().ExpectError("/Shelf/Missing has no file in a mounted content folder.");
	EXPECT_EQ(Host::GetPackageStore()->Load(TEXT("/Shelf/Missing")), nullptr);
}

TEST_F(FilePackageStore, FindsAnAssetThatIsOnlyInMemory)
{
	UPackage* Package = CreatePackage(TEXT("/Game/New"));
	EXPECT_FALSE(UEditorAssetLibrary::DoesAssetExist(TEXT("/Game/New")));
	UMaterial* Material = NewObject<UMaterial>(Package, TEXT("New"), RF_Public);
	EXPECT_TRUE(UEditorAssetLibrary::DoesAssetExist(TEXT("/Game/New")));
	EXPECT_TRUE(UEditorAssetLibrary::DoesAssetExist(TEXT("/Game/New.New")));
	Material->MarkAsGarbage();
	EXPECT_FALSE(UEditorAssetLibrary::DoesAssetExist(TEXT("/Game/New")));
}

TEST_F(FilePackageStore, DoesNotTakeATransientObjectForAnAsset)
{
	NewObject<UMaterial>(GetTransientPackage(), TEXT("Transient"), RF_Public);
	EXPECT_FALSE(UEditorAssetLibrary::DoesAssetExist(TEXT("/Engine/Transient.Transient")));
}
