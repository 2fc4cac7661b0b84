// SPDX-License-Identifier: MIT
// The tool bars of the editor instance.
#include "Editor/ZEFTandemEditor.h"

#include "Editor/ZEFExtensibilityManager.h"
#include "Editor/ZEFTandemEditorButtonStyle.h"
#include "Editor/ZEFTandemEditorCommands.h"
#include "Editor/ZEFTandemEditorModule.h"
#include "Engine/StaticMesh.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Framework/MultiBox/MultiBoxExtender.h"
#include "Internationalization/Text.h"
#include "Modules/ModuleManager.h"
#include "Styling/AppStyle.h"
#include "Textures/SlateIcon.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"

void FZEFTandemEditor::ExtendToolbar()
{
	const TSharedRef<FExtender> Extender = MakeShared<FExtender>();
	Extender->AddToolBarExtension("ZEFEditor", EExtensionHook::After, GetToolkitCommands(),
		FToolBarExtensionDelegate::CreateSP(this, &FZEFTandemEditor::FillToolbar));
	AddToolbarExtender(Extender);

	UStaticMesh* const Dummy = NewObject<UStaticMesh>(GetTransientPackage(), FName(TEXT("Dummy")), RF_Transient);
	const TArray<UObject*> Objects = {Dummy};
	FZEFTandemEditorModule& Module = FModuleManager::LoadModuleChecked<FZEFTandemEditorModule>(TEXT("ZEFTandemEditor"));
	ToolbarExtender = Module.GetToolBarExtensibilityManager()->GetAllExtenders(GetToolkitCommands(), Objects);
	AddToolbarExtender(ToolbarExtender);
	AddSecondaryToolbarExtender(
		Module.GetSecondaryToolBarExtensibilityManager()->GetAllExtenders(GetToolkitCommands(), Objects));
}

void FZEFTandemEditor::FillToolbar(FToolBarBuilder& ToolBar)
{
	ToolBar.BeginSection("Command");
	{
		ToolBar.BeginStyleOverride("Toolbar.BackplateLeft");
		ToolBar.AddToolBarButton(FZEFTandemEditorCommands::Get().Update, NAME_None, FText::FromString(TEXT("Update")),
			FText::FromString(TEXT("Bring avatars and garments from ZEF or Kestrel Rig")),
			FSlateIcon(FZEFTandemEditorButtonStyle::GetStyleSetName(), "ZEFTandemEditorButton.OpenPluginWindow"));
		ToolBar.EndStyleOverride();

		ToolBar.BeginStyleOverride("Toolbar.BackplateRightCombo");
		ToolBar.AddComboButton(FUIAction(), FOnGetContent::CreateSP(this, &FZEFTandemEditor::MakeUpdateOptionsMenu),
			TAttribute<FText>(), FText::FromString(TEXT("Update Options")), TAttribute<FSlateIcon>());
		ToolBar.EndStyleOverride();
	}
	ToolBar.EndSection();

	ToolBar.BeginSection("Save");
	{
		ToolBar.BeginStyleOverride("CalloutToolbar");
		ToolBar.AddComboButton(FUIAction(), FOnGetContent::CreateSP(this, &FZEFTandemEditor::MakeSaveMenu),
			TAttribute<FText>(), FText::FromString(TEXT("Save Selected Object")),
			FSlateIcon(FAppStyle::GetAppStyleSetName(), "LevelEditor.Save"));
		ToolBar.EndStyleOverride();
	}
	ToolBar.EndSection();
}

TSharedRef<SWidget> FZEFTandemEditor::MakeUpdateOptionsMenu()
{
	FMenuBuilder Menu(true, GetToolkitCommands());
	Menu.AddMenuEntry(FZEFTandemEditorCommands::Get().SetUnifiedMaterial);
	return Menu.MakeWidget();
}

TSharedRef<SWidget> FZEFTandemEditor::MakeSaveMenu()
{
	RequestAvailability();
	const FZEFTandemEditorCommands& Commands = FZEFTandemEditorCommands::Get();
	FMenuBuilder Menu(true, GetToolkitCommands());
	Menu.AddMenuEntry(Commands.SaveAsStaticMesh);
	Menu.AddMenuEntry(Commands.SaveAsSkeletalMesh);
	Menu.AddMenuEntry(Commands.SaveAsGeometryCache);
	Menu.AddMenuEntry(Commands.SaveAsAnimSequence);
	return Menu.MakeWidget();
}

void FZEFTandemEditor::GenerateSecondaryToolbar()
{
	const TSharedPtr<SDockTab> Tab = TabManager->FindExistingLiveTab(SecondaryToolbarTabId);
	FToolBarBuilder ToolBar(
		GetToolkitCommands(), FMultiBoxCustomization::None, FExtender::Combine(SecondaryToolbarExtenders));
	ToolBar.SetIsFocusable(true);
	ToolBar.BeginSection("Extensions");
	ToolBar.EndSection();

	SecondaryToolbarContent =
		SNew(SHorizontalBox) +
		SHorizontalBox::Slot().HAlign(
			HAlign_Left)[SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[ToolBar.MakeWidget()]];
	if (Tab.IsValid() && SecondaryToolbarBorder.IsValid())
	{
		SecondaryToolbarBorder->SetContent(SecondaryToolbarContent.ToSharedRef());
	}
}
