// SPDX-License-Identifier: MIT

#include "LevelEditorMenus.h"

#include "Framework/Commands/GenericCommands.h"
#include "Framework/Docking/TabManager.h"
#include "Internationalization/Internationalization.h"
#include "LevelEditorCommands.h"
#include "ToolMenus.h"
#include "Toolkits/GlobalEditorCommonCommands.h"

#define LOCTEXT_NAMESPACE "LevelEditorMenus"

namespace
{
const TCHAR* const MainMenu = TEXT("LevelEditor.MainMenu");
const TCHAR* const MainFrameMenu = TEXT("MainFrame.MainMenu");
const TCHAR* const ToolBarMenu = TEXT("LevelEditor.LevelEditorToolBar");

/** A menu of the level editor's bar, below that of the main frame of the same name. */
UToolMenu* RegisterSubMenu(const TCHAR* Name)
{
	return UToolMenus::Get()->RegisterMenu(
		UToolMenus::JoinMenuPaths(MainMenu, Name), UToolMenus::JoinMenuPaths(MainFrameMenu, Name));
}
} // namespace

void LevelEditorMenus::Register()
{
	UToolMenus* const Menus = UToolMenus::Get();
	if (Menus->IsMenuRegistered(MainMenu))
	{
		return;
	}
	const FToolMenuOwnerScoped Owner("LevelEditor");
	Menus->RegisterMenu(MainMenu, MainFrameMenu, EMultiBoxType::MenuBar);
	RegisterSubMenu(TEXT("File"))
		->AddSection("Exit")
		.AddMenuEntry(FLevelEditorFrameCommands::Get().Exit)
		.InsertPosition.Position = EToolMenuInsertType::Last;
	FToolMenuSection& Layout =
		RegisterSubMenu(TEXT("Window"))->AddSection("WindowLayout", LOCTEXT("WindowLayoutHeading", "Layout"));
	Layout.AddMenuEntry(FLevelEditorFrameCommands::Get().LoadDefaultLayout);

	RegisterSubMenu(TEXT("Help"))
		->AddSection("HelpBrowse")
		.AddMenuEntry(FGlobalEditorCommonCommands::Get().OpenDocumentation);

	UToolMenu* const ToolBar = Menus->RegisterMenu(ToolBarMenu, NAME_None, EMultiBoxType::SlimHorizontalToolBar);
	ToolBar->bToolBarIsFocusable = true;
	FToolMenuSection& History =
		ToolBar->AddSection("EditHistory", TAttribute<FText>(), FToolMenuInsert(NAME_None, EToolMenuInsertType::First));
	History.AddEntry(FToolMenuEntry::InitToolBarButton(FGenericCommands::Get().Undo));
	History.AddEntry(FToolMenuEntry::InitToolBarButton(FGenericCommands::Get().Redo));
	ToolBar->AddSection("Settings");
}

TSharedRef<SWidget> LevelEditorMenus::MakeMenuBar(
	const TSharedRef<FUICommandList>& Commands, const TSharedRef<FTabManager>& TabManager)
{
	const TSharedRef<FExtender> Extender = MakeShared<FExtender>();
	const TWeakPtr<FTabManager> WeakManager = TabManager;
	Extender->AddMenuExtension("WindowLocalTabSpawners", EExtensionHook::After, nullptr,
		FMenuExtensionDelegate::CreateLambda(
			[WeakManager](FMenuBuilder& Menu)
			{
				if (const TSharedPtr<FTabManager> Manager = WeakManager.Pin())
				{
					Manager->PopulateLocalTabSpawnerMenu(Menu);
				}
			}));
	return UToolMenus::Get()->GenerateWidget(MainMenu, FToolMenuContext(Commands, Extender));
}

TSharedRef<SWidget> LevelEditorMenus::MakeToolBar(const TSharedRef<FUICommandList>& Commands)
{
	return UToolMenus::Get()->GenerateWidget(ToolBarMenu, FToolMenuContext(Commands));
}

#undef LOCTEXT_NAMESPACE
