// SPDX-License-Identifier: MIT
#include "Settings/EditorStyleSettings.h"

#include "CoreGlobals.h"
#include "EngineFixture.h"
#include "Host/EditorStyle.h"
#include "Misc/ConfigCacheIni.h"
#include "UObject/UObjectGlobals.h"

namespace
{
class EditorStyleSettings : public FEngineFixture
{
protected:
	void TearDown() override
	{
		GConfig->RemoveKey(Section, Key, GEditorPerProjectIni);
		Host::LoadEditorStyleSettings();
		FEngineFixture::TearDown();
	}

	EAssetEditorOpenLocation Read(const TCHAR* Text)
	{
		GConfig->SetString(Section, Key, Text, GEditorPerProjectIni);
		Host::LoadEditorStyleSettings();
		return GetDefault<UEditorStyleSettings>()->AssetEditorOpenLocation;
	}

	const TCHAR* const Section = TEXT("/Script/EditorStyle.EditorStyleSettings");
	const TCHAR* const Key = TEXT("AssetEditorOpenLocation");
};
} // namespace

TEST_F(EditorStyleSettings, OpenAssetEditorsAsLastTimeUnlessTold)
{
	EXPECT_EQ(GetDefault<UEditorStyleSettings>()->AssetEditorOpenLocation, EAssetEditorOpenLocation::Default);
}

TEST_F(EditorStyleSettings, TakeTheLocationOfTheUsersFile)
{
	EXPECT_EQ(Read(TEXT("MainWindow")), EAssetEditorOpenLocation::MainWindow);
	EXPECT_EQ(
		Read(TEXT("LastDockedWindowOrContentBrowser")), EAssetEditorOpenLocation::LastDockedWindowOrContentBrowser);
}

TEST_F(EditorStyleSettings, PassOverALocationThatIsNotKnown)
{
	EXPECT_EQ(Read(TEXT("Elsewhere")), EAssetEditorOpenLocation::Default);
	EXPECT_EQ(Log().CountContaining("AssetEditorOpenLocation is 'Elsewhere'"), 1);
}
