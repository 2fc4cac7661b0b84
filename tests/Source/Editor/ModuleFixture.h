// SPDX-License-Identifier: MIT
/** The plug-in's module in a running engine, with no editor instance open and no garment application anywhere. */
#pragma once

#include "Editor/ZEFTandemEditor.h"
#include "Editor/ZEFTandemEditorModule.h"
#include "Editor/ZEFTandemProgress.h"
#include "EngineFixture.h"
#include "Host/MultiBoxes.h"
#include "Modules/ModuleManager.h"
#include "ToolMenus.h"

#include <cstdlib>

class FModuleFixture : public FEngineFixture
{
protected:
	void SetUp() override
	{
		// Nobody serves this endpoint, and the channel's own one is left to the user.
		setenv("ZEF_TANDEM_ENDPOINT", ("ipc://" + ::testing::TempDir() + "zef-nobody.sock").c_str(), 1);
		FEngineFixture::SetUp();
	}

	void TearDown() override
	{
		DestroyProgress();
		FEngineFixture::TearDown();
	}

	TArray<FName> GetModules() const override { return {TEXT("ZEFTandemRuntime"), TEXT("ZEFTandemEditor")}; }

	FZEFTandemEditorModule& Module() const
	{
		return FModuleManager::GetModuleChecked<FZEFTandemEditorModule>(TEXT("ZEFTandemEditor"));
	}

	TSharedPtr<FZEFTandemEditor> OpenEditor() const
	{
		return StaticCastSharedPtr<FZEFTandemEditor>(Module().GetEditor());
	}

	TSharedRef<SWidget> LevelEditorToolBar() const
	{
		return UToolMenus::Get()->GenerateWidget("LevelEditor.LevelEditorToolBar", FToolMenuContext());
	}

	/** What the user does in the level editor's tool bar. */
	bool PressEntry() const
	{
		const TSharedPtr<Host::SMultiBoxItem> Entry =
			Host::FindMultiBoxItemByName(LevelEditorToolBar(), "OpenPluginWindow");
		return Entry.IsValid() && Entry->Press();
	}
};
