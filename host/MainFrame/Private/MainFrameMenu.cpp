// SPDX-License-Identifier: MIT
#include "Framework/Commands/GenericCommands.h"
#include "Host/MainFrame.h"
#include "Internationalization/Internationalization.h"
#include "ToolMenus.h"

#define LOCTEXT_NAMESPACE "MainFrame"

namespace
{
const TCHAR* const MainMenu = TEXT("MainFrame.MainMenu");

UToolMenu* AddMenu(FToolMenuSection& Bar, const TCHAR* Name, const FText& Label, const FText& ToolTip)
{
	Bar.AddSubMenu(Name, Label, ToolTip, FNewToolMenuChoice());
	return UToolMenus::Get()->RegisterMenu(UToolMenus::JoinMenuPaths(MainMenu, Name));
}
} // namespace

void Host::RegisterMainFrameMenu()
{
	const FToolMenuOwnerScoped Owner("MainFrame");
	UToolMenu* const Menu = UToolMenus::Get()->RegisterMenu(MainMenu, NAME_None, EMultiBoxType::MenuBar);
	FToolMenuSection& Bar = Menu->AddSection(NAME_None);
	AddMenu(Bar, TEXT("File"), LOCTEXT("FileMenu", "File"), LOCTEXT("FileMenu_ToolTip", "Open the file menu"));

	FToolMenuSection& History =
		AddMenu(Bar, TEXT("Edit"), LOCTEXT("EditMenu", "Edit"), LOCTEXT("EditMenu_ToolTip", "Open the edit menu"))
			->AddSection("EditHistory", LOCTEXT("HistoryHeading", "History"));
	History.AddMenuEntry(FGenericCommands::Get().Undo);
	History.AddMenuEntry(FGenericCommands::Get().Redo);

	AddMenu(Bar, TEXT("Window"), LOCTEXT("WindowMenu", "Window"), LOCTEXT("WindowMenu_ToolTip", "Open the window menu"))
		->AddSection("WindowLocalTabSpawners");
	AddMenu(Bar, TEXT("Help"), LOCTEXT("HelpMenu", "Help"), LOCTEXT("HelpMenu_ToolTip", "Open the help menu"));
}

#undef LOCTEXT_NAMESPACE
