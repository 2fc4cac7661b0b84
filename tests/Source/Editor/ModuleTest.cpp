// SPDX-License-Identifier: MIT
// What exists as soon as the module is loaded, and the life of the one editor instance.
#include "Editor/ZEFTandemEditor.h"
#include "Editor/ZEFTandemEditorButtonCommands.h"
#include "Editor/ZEFTandemEditorButtonStyle.h"
#include "Editor/ZEFTandemEditorCommands.h"
#include "Framework/Docking/TabManager.h"
#include "Host/MultiBoxes.h"
#include "Source/Editor/ModuleFixture.h"
#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateStyleRegistry.h"
#include "ToolMenus.h"
#include "ZEFTandemClientComponent.h"

#include <gtest/gtest.h>

namespace
{

class EditorModule : public FModuleFixture
{
};

struct FExpectedCommand
{
	const TSharedPtr<FUICommandInfo>& Command;
	const TCHAR* Name;
	const TCHAR* Label;
	const TCHAR* ToolTip;
	EUserInterfaceActionType Type;
};

void ExpectCommand(const FExpectedCommand& Expected)
{
	SCOPED_TRACE(ToStdString(FString(Expected.Name)));
	ASSERT_TRUE(Expected.Command.IsValid());
	EXPECT_EQ(Expected.Command->GetCommandName(), FName(Expected.Name));
	EXPECT_EQ(Expected.Command->GetLabel().ToString(), FString(Expected.Label));
	EXPECT_EQ(Expected.Command->GetDescription().ToString(), FString(Expected.ToolTip));
	EXPECT_EQ(Expected.Command->GetUserInterfaceType(), Expected.Type);
	EXPECT_FALSE(Expected.Command->GetDefaultChord(EMultipleKeyBindingIndex::Primary).IsValidChord());
}

} // namespace

TEST_F(EditorModule, PutsItsEntryIntoTheWindowMenuAndTheToolBar)
{
	const TSharedRef<SWidget> Menu =
		UToolMenus::Get()->GenerateWidget("LevelEditor.MainMenu.Window", FToolMenuContext());
	for (const TSharedRef<SWidget>& Place : {Menu, LevelEditorToolBar()})
	{
		const TSharedPtr<Host::SMultiBoxItem> Item = Host::FindMultiBoxItemByName(Place, "OpenPluginWindow");
		ASSERT_TRUE(Item.IsValid());
		EXPECT_EQ(Item->GetLabel().ToString(), FString(TEXT("ZEF/KR Tandem Editor")));
		EXPECT_EQ(Item->GetToolTip().ToString(), FString(TEXT("Open ZEF/KR Tandem Editor")));
		EXPECT_EQ(
			Item->GetIcon(), FZEFTandemEditorButtonStyle::Get().GetBrush("ZEFTandemEditorButton.OpenPluginWindow"));
		EXPECT_TRUE(Item->IsItemEnabled());
	}
	EXPECT_EQ(Host::FindMultiBoxItemByName(Menu, "OpenPluginWindow")->GetSection(), FName("WindowLayout"));
	EXPECT_EQ(Host::FindMultiBoxItemByName(LevelEditorToolBar(), "OpenPluginWindow")->GetSection(), FName("Settings"));
}

TEST_F(EditorModule, OpensNothingByItself)
{
	EXPECT_FALSE(Module().IsEditorOpen());
	EXPECT_FALSE(Module().GetEditor().IsValid());
}

TEST_F(EditorModule, OpensOneInstanceFromEitherEntryAndThenFocusesIt)
{
	ASSERT_TRUE(PressEntry());
	const TSharedPtr<IZEFTandemEditor> First = Module().GetEditor();
	ASSERT_TRUE(First.IsValid());
	FGlobalTabmanager::Get()->SetActiveTab(nullptr);

	const TSharedRef<SWidget> Menu =
		UToolMenus::Get()->GenerateWidget("LevelEditor.MainMenu.Window", FToolMenuContext());
	ASSERT_TRUE(Host::FindMultiBoxItemByName(Menu, "OpenPluginWindow")->Press());

	EXPECT_EQ(Module().GetEditor(), First);
	EXPECT_EQ(FGlobalTabmanager::Get()->GetActiveTab(), First->GetAssociatedTabManager()->GetOwnerTab());
	First->CloseWindow();
}

TEST_F(EditorModule, MakesAFreshInstanceWithAFreshClientAfterAClose)
{
	ASSERT_TRUE(PressEntry());
	const TWeakPtr<IZEFTandemEditor> First = Module().GetEditor();
	const TWeakObjectPtr<UZEFTandemClientComponent> FirstClient = OpenEditor()->GetClient();
	OpenEditor()->ToggleTandem();
	ASSERT_TRUE(OpenEditor()->IsTandemEnabled());
	Module().GetEditor()->CloseWindow();
	EXPECT_FALSE(Module().IsEditorOpen());
	EXPECT_FALSE(First.IsValid());
	CollectAll();
	EXPECT_FALSE(FirstClient.IsValid());

	ASSERT_TRUE(PressEntry());
	ASSERT_TRUE(Module().IsEditorOpen());
	EXPECT_NE(OpenEditor()->GetClient(), nullptr);
	EXPECT_FALSE(OpenEditor()->IsTandemEnabled());
	Module().GetEditor()->CloseWindow();
}

TEST_F(EditorModule, GivesTheOpenInstanceInsteadOfASecondOne)
{
	const TSharedPtr<IZEFTandemEditor> First = Module().CreateEditor();
	EXPECT_EQ(Module().CreateEditor(), First);
	First->CloseWindow();
}

TEST_F(EditorModule, TellsOfEveryInstanceAtTheEndOfItsInitialisation)
{
	int Told = 0;
	Module().GetOnEditorCreated().AddLambda(
		[&Told, this](const TSharedRef<IZEFTandemEditor>& Created)
		{
			++Told;
			EXPECT_EQ(Module().GetEditor(), Created);
			EXPECT_TRUE(Created->GetViewport().IsValid());
		});
	for (int Round = 1; Round <= 2; ++Round)
	{
		Module().CreateEditor();
		EXPECT_EQ(Told, Round);
		Module().GetEditor()->CloseWindow();
	}
}

TEST_F(EditorModule, HasThreeExtensibilityManagersUntilItIsShutDown)
{
	const TSharedPtr<FZEFExtensibilityManager> Menu = Module().GetMenuExtensibilityManager();
	const TSharedPtr<FZEFExtensibilityManager> ToolBar = Module().GetToolBarExtensibilityManager();
	const TSharedPtr<FZEFExtensibilityManager> Secondary = Module().GetSecondaryToolBarExtensibilityManager();
	ASSERT_TRUE(Menu.IsValid() && ToolBar.IsValid() && Secondary.IsValid());
	EXPECT_NE(Menu, ToolBar);
	EXPECT_NE(ToolBar, Secondary);

	Module().ShutdownModule();
	EXPECT_FALSE(Module().GetMenuExtensibilityManager().IsValid());
	EXPECT_FALSE(Module().GetToolBarExtensibilityManager().IsValid());
	EXPECT_FALSE(Module().GetSecondaryToolBarExtensibilityManager().IsValid());
}

TEST_F(EditorModule, LeavesAnOpenInstanceAndItsStyleAtItsShutdown)
{
	ASSERT_TRUE(PressEntry());
	Module().ShutdownModule();

	EXPECT_TRUE(Module().IsEditorOpen());
	EXPECT_NE(FSlateStyleRegistry::FindSlateStyle("ZEFTandemEditorButtonStyle"), nullptr);
	EXPECT_TRUE(FZEFTandemEditorButtonCommands::IsRegistered());
	Module().GetEditor()->CloseWindow();
}

TEST_F(EditorModule, SaysHowItMayBeLoaded)
{
	EXPECT_TRUE(Module().SupportsDynamicReloading());
	EXPECT_TRUE(Module().SupportsAutomaticShutdown());
	EXPECT_FALSE(Module().IsGameModule());
}

TEST_F(EditorModule, HasAStyleWithFiveIcons)
{
	const ISlateStyle* const Style = FSlateStyleRegistry::FindSlateStyle("ZEFTandemEditorButtonStyle");
	ASSERT_NE(Style, nullptr);
	EXPECT_EQ(Style, &FZEFTandemEditorButtonStyle::Get());
	const struct
	{
		const ANSICHAR* Key;
		const TCHAR* File;
		double Size;
	} Expected[] = {
		{"ZEFTandemEditorButton.OpenPluginWindow", TEXT("Icon40.png"), 40.0},
		{"ZEFTandemTreeItem.Icon_Garment", TEXT("TandemTree_Garment_Icon_None_40.png"), 16.0},
		{"ZEFTandemTreeItem.Icon_Avatar", TEXT("TandemTree_Avatar_Icon_None_40.png"), 16.0},
		{"ZEFTandemTreeItem.Icon_Prop", TEXT("TandemTree_SceneAndProps_Icon_None_40.png"), 16.0},
		{"ZEFTandemTreeItem.Icon_BlankBlack", TEXT("Blank_Icon40.png"), 16.0},
	};
	for (const auto& Icon : Expected)
	{
		SCOPED_TRACE(Icon.Key);
		const FSlateBrush* const Brush = Style->GetBrush(Icon.Key);
		ASSERT_NE(Brush, nullptr);
		EXPECT_EQ(Brush->GetResourceName().ToString(), FString(TEXT(ZEF_SOURCE_DIR)) / TEXT("Resources") / Icon.File);
		EXPECT_EQ(Brush->ImageSize.X, Icon.Size);
		EXPECT_EQ(Brush->ImageSize.Y, Icon.Size);
		EXPECT_EQ(Brush->TintColor.GetSpecifiedColor(), FLinearColor(1.0f, 1.0f, 1.0f, 1.0f));
	}
}

TEST_F(EditorModule, HasOneCommandThatOpensTheEditor)
{
	const FZEFTandemEditorButtonCommands& Commands = FZEFTandemEditorButtonCommands::Get();
	ExpectCommand({Commands.OpenPluginWindow, TEXT("OpenPluginWindow"), TEXT("ZEF/KR Tandem Editor"),
		TEXT("Open ZEF/KR Tandem Editor"), EUserInterfaceActionType::Button});
	const TSharedPtr<FBindingContext> Context = FInputBindingManager::Get().GetContextByName("ZEFTandemEditorButton");
	ASSERT_TRUE(Context.IsValid());
	EXPECT_EQ(Context->GetContextDesc().ToString(), FString(TEXT("ZEFTandemEditor Plugin")));
	EXPECT_EQ(Context->GetContextParent(), NAME_None);
	EXPECT_EQ(Context->GetStyleSetName(), FName("ZEFTandemEditorButtonStyle"));
}

TEST_F(EditorModule, HasTheCommandsOfTheEditorInstance)
{
	FZEFTandemEditorCommands::Register();
	const FZEFTandemEditorCommands& Commands = FZEFTandemEditorCommands::Get();
	constexpr EUserInterfaceActionType Button = EUserInterfaceActionType::Button;
	constexpr EUserInterfaceActionType Toggle = EUserInterfaceActionType::ToggleButton;
	const FExpectedCommand Expected[] = {
		{Commands.FocusCamera, TEXT("FocusCamera"), TEXT("Focus Camera"),
			TEXT("Focus the camera on the current selection"), Button},
		{Commands.Tandem, TEXT("Tandem"), TEXT("Tandem"), TEXT("Enables or disables Tandem."), Toggle},
		{Commands.Update, TEXT("Update"), TEXT("Update"), TEXT("Update."), Button},
		{Commands.ToggleTandemConnectionState, TEXT("ToggleTandemConnectionState"),
			TEXT("Toggle Tandem Connection State"), TEXT("Toggle Tandem Connection State"), Button},
		{Commands.SetUnifiedMaterial, TEXT("SetUnifiedMaterial"), TEXT("Unified Material"),
			TEXT("Toggles to receive the garment material as a unified material."), Toggle},
		{Commands.SetWeld, TEXT("SetWeld"), TEXT("Weld"), TEXT("Weld."), Toggle},
		{Commands.SaveAsStaticMesh, TEXT("SaveAsStaticMesh"), TEXT("as StaticMesh"), TEXT("Save as StaticMesh."),
			Button},
		{Commands.SaveAsSkeletalMesh, TEXT("SaveAsSkeletalMesh"), TEXT("as SkeletalMesh"),
			TEXT("Save as SkeletalMesh."), Button},
		{Commands.SaveAsGeometryCache, TEXT("SaveAsGeometryCache"), TEXT("as GeometryCache"),
			TEXT("Save Animation as GeometryCache."), Button},
		{Commands.SaveAsAnimSequence, TEXT("SaveAsAnimSequence"), TEXT("as AnimSequence"),
			TEXT("Save as AnimationSequence"), Button},
		{Commands.SetShowGrid, TEXT("SetShowGrid"), TEXT("Grid"), TEXT("Displays the viewport grid."), Toggle},
		{Commands.SetShowNormals, TEXT("SetShowNormals"), TEXT("Normals"),
			TEXT("Toggles display of vertex normals in the Preview Pane."), Toggle},
		{Commands.SetShowTangents, TEXT("SetShowTangents"), TEXT("Tangents"),
			TEXT("Toggles display of vertex tangents in the Preview Pane."), Toggle},
		{Commands.SetShowBinormals, TEXT("SetShowBinormals"), TEXT("Binormals"),
			TEXT("Toggles display of vertex binormals (orthogonal vector to normal and tangent) in the Preview Pane."),
			Toggle},
		{Commands.MetahumanExportAsTandem, TEXT("MetahumanExportAsTandem"), TEXT("As Tandem"),
			TEXT("Export mesh as Tandem and request."), Button},
		{Commands.StaticMeshExportAsTandem, TEXT("StaticMeshExportAsTandem"), TEXT("StaticMesh as Tandem"),
			TEXT("Export StaticMesh as Tandem"), Button},
	};
	for (const FExpectedCommand& Command : Expected)
	{
		ExpectCommand(Command);
	}
	TArray<TSharedPtr<FUICommandInfo>> All;
	FInputBindingManager::Get().GetCommandInfosFromContext("ZEFTandemEditor", All);
	EXPECT_EQ(All.Num(), 16);
	const TSharedPtr<FBindingContext> Context = FInputBindingManager::Get().GetContextByName("ZEFTandemEditor");
	ASSERT_TRUE(Context.IsValid());
	EXPECT_EQ(Context->GetContextDesc().ToString(), FString(TEXT("ZEF/KR Tandem Editor")));
	EXPECT_EQ(Context->GetContextParent(), FName("EditorViewport"));
	EXPECT_EQ(Context->GetStyleSetName(), FAppStyle::GetAppStyleSetName());
}

TEST_F(EditorModule, OffersAButtonForTheConnectionThatNobodyAsksFor)
{
	FZEFTandemEditorCommands::Register();
	UToolMenu* const ToolBar = UToolMenus::Get()->RegisterMenu("Test.ToolBar", NAME_None, EMultiBoxType::ToolBar);
	FZEFTandemEditorCommands::BuildToolbar(ToolBar->FindOrAddSection("Section"), false);
	const TSharedRef<SWidget> Widget = UToolMenus::Get()->GenerateWidget("Test.ToolBar", FToolMenuContext());
	const TArray<TSharedRef<Host::SMultiBoxItem>> Items = Host::GetMultiBoxItems(Widget);

	ASSERT_EQ(Items.Num(), 1);
	EXPECT_EQ(Items[0]->GetLabel().ToString(), FString(TEXT("Test")));
	EXPECT_FALSE(Items[0]->IsItemEnabled());
	ASSERT_NE(ToolBar->FindSection("Section"), nullptr);
	EXPECT_NE(ToolBar->FindSection("Section")->FindEntry("ConnectToTandem"), nullptr);
}
