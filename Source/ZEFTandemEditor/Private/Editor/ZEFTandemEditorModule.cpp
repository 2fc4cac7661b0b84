// SPDX-License-Identifier: MIT
#include "Editor/ZEFTandemEditorModule.h"

#include "Editor/ZEFTandemEditor.h"
#include "Editor/ZEFTandemEditorButtonCommands.h"
#include "Editor/ZEFTandemEditorButtonStyle.h"
#include "Framework/Commands/UICommandList.h"
#include "Modules/ModuleManager.h"
#include "ToolMenu.h"
#include "ToolMenuEntry.h"
#include "ToolMenuSection.h"
#include "ToolMenus.h"

IMPLEMENT_MODULE(FZEFTandemEditorModule, ZEFTandemEditor)

void FZEFTandemEditorModule::StartupModule()
{
	FModuleManager::Get().LoadModuleChecked(TEXT("AdvancedPreviewScene"));
	MenuExtensibilityManager = MakeShared<FZEFExtensibilityManager>();
	ToolBarExtensibilityManager = MakeShared<FZEFExtensibilityManager>();
	SecondaryToolBarExtensibilityManager = MakeShared<FZEFExtensibilityManager>();
	FModuleManager::Get().LoadModuleChecked(TEXT("PropertyEditor"));

	FZEFTandemEditorButtonStyle::Initialize();
	FZEFTandemEditorButtonStyle::ReloadTextures();

	FZEFTandemEditorButtonCommands::Register();
	PluginCommands = MakeShared<FUICommandList>();
	PluginCommands->MapAction(FZEFTandemEditorButtonCommands::Get().OpenPluginWindow,
		FExecuteAction::CreateRaw(this, &FZEFTandemEditorModule::PluginButtonClicked),
		FCanExecuteAction::CreateLambda([] { return true; }));

	UToolMenus::RegisterStartupCallback(
		FSimpleMulticastDelegate::FDelegate::CreateRaw(this, &FZEFTandemEditorModule::RegisterMenus));
}

void FZEFTandemEditorModule::ShutdownModule()
{
	MenuExtensibilityManager.Reset();
	ToolBarExtensibilityManager.Reset();
	SecondaryToolBarExtensibilityManager.Reset();
}

TSharedPtr<IZEFTandemEditor> FZEFTandemEditorModule::GetEditor()
{
	return Editor.Pin();
}

FZEFTandemEditorModule::FOnEditorCreated& FZEFTandemEditorModule::GetOnEditorCreated()
{
	return OnEditorCreated;
}

bool FZEFTandemEditorModule::IsEditorOpen() const
{
	return Editor.IsValid();
}

TSharedPtr<IZEFTandemEditor> FZEFTandemEditorModule::CreateEditor()
{
	if (const TSharedPtr<IZEFTandemEditor> Open = Editor.Pin())
	{
		return Open;
	}
	const TSharedPtr<FZEFTandemEditor> NewEditor = MakeShareable(new FZEFTandemEditor());
	Editor = NewEditor;
	NewEditor->OnEditorClosed().AddLambda([this] { Editor.Reset(); });
	NewEditor->Initialize(nullptr);
	return NewEditor;
}

TSharedPtr<FZEFExtensibilityManager> FZEFTandemEditorModule::GetMenuExtensibilityManager()
{
	return MenuExtensibilityManager;
}

TSharedPtr<FZEFExtensibilityManager> FZEFTandemEditorModule::GetToolBarExtensibilityManager()
{
	return ToolBarExtensibilityManager;
}

TSharedPtr<FZEFExtensibilityManager> FZEFTandemEditorModule::GetSecondaryToolBarExtensibilityManager()
{
	return SecondaryToolBarExtensibilityManager;
}

void FZEFTandemEditorModule::PluginButtonClicked()
{
	if (!IsEditorOpen())
	{
		CreateEditor();
	}
	else
	{
		GetEditor()->FocusWindow(nullptr);
	}
}

void FZEFTandemEditorModule::RegisterMenus()
{
	const FToolMenuOwnerScoped OwnerScoped(this);
	const FZEFTandemEditorButtonCommands& Commands = FZEFTandemEditorButtonCommands::Get();

	UToolMenu* const WindowMenu = UToolMenus::Get()->ExtendMenu(TEXT("LevelEditor.MainMenu.Window"));
	WindowMenu->FindOrAddSection(TEXT("WindowLayout"))
		.AddMenuEntryWithCommandList(Commands.OpenPluginWindow, PluginCommands);

	UToolMenu* const ToolBar = UToolMenus::Get()->ExtendMenu(TEXT("LevelEditor.LevelEditorToolBar"));
	FToolMenuEntry& Button = ToolBar->FindOrAddSection(TEXT("Settings"))
								 .AddEntry(FToolMenuEntry::InitToolBarButton(Commands.OpenPluginWindow));
	Button.SetCommandList(PluginCommands);
}
