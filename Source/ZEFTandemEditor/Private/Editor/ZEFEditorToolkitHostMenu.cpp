// SPDX-License-Identifier: MIT
#include "Editor/ZEFEditorToolkitHostMenu.h"

#include "Editor/ZEFEditorToolkit.h"
#include "Editor/ZEFEditorToolkitMenuContext.h"
#include "Framework/Docking/TabManager.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Framework/MultiBox/MultiBoxExtender.h"
#include "Internationalization/Internationalization.h"
#include "ToolMenu.h"
#include "ToolMenuSection.h"
#include "ToolMenus.h"

#define LOCTEXT_NAMESPACE "ZEFEditorToolkit"

namespace
{

using FFillCommands = void (FZEFEditorToolkit::*)(FToolMenuSection&);

const TCHAR* const MainFrameMenu = TEXT("MainFrame.MainMenu");

FName Join(const FName& Menu, const TCHAR* SubMenu)
{
	return FName(*(Menu.ToString() + TEXT(".") + SubMenu));
}

/** Puts the commands of the toolkit that the menu is opened for into one of the main frame's menus. */
void AddCommands(const FName& MainMenu, const TCHAR* SubMenu, const FName& SectionName, FFillCommands Fill)
{
	UToolMenu* const Menu =
		UToolMenus::Get()->RegisterMenu(Join(MainMenu, SubMenu), Join(MainFrameMenu, SubMenu), EMultiBoxType::Menu);
	Menu->AddSection(SectionName)
		.AddDynamicEntry(SectionName, FNewToolMenuSectionDelegate::CreateLambda(
										  [Fill](FToolMenuSection& Section)
										  {
											  const UZEFEditorToolkitMenuContext* const Context =
												  Section.FindContext<UZEFEditorToolkitMenuContext>();
											  const TSharedPtr<FZEFEditorToolkit> Toolkit =
												  Context != nullptr ? Context->Toolkit.Pin() : nullptr;
											  if (Toolkit.IsValid())
											  {
												  ((*Toolkit).*Fill)(Section);
											  }
										  }));
}

} // namespace

void ZEFEditorToolkitHostMenu::RegisterDefaultMenu(const FZEFEditorToolkit& Toolkit)
{
	UToolMenus* const Menus = UToolMenus::Get();
	const FName MenuName = Toolkit.GetToolMenuName();
	if (Menus->IsMenuRegistered(MenuName))
	{
		return;
	}
	UToolMenu* const MainMenu = Menus->RegisterMenu(MenuName, MainFrameMenu, EMultiBoxType::MenuBar);
	AddCommands(MenuName, TEXT("File"), "ZEFEditorFile", &FZEFEditorToolkit::FillDefaultFileMenuCommands);
	AddCommands(MenuName, TEXT("Help"), "ZEFEditorHelp", &FZEFEditorToolkit::FillDefaultHelpMenuCommands);
	if (Toolkit.GetObjectsCurrentlyBeingEdited() != nullptr)
	{
		AddCommands(MenuName, TEXT("Asset"), "ZEFEditorAsset", &FZEFEditorToolkit::FillDefaultAssetMenuCommands);
		MainMenu->FindOrAddSection(NAME_None).AddSubMenu("Asset", LOCTEXT("AssetMenu", "Asset"),
			LOCTEXT("AssetMenu_ToolTip", "Asset operations"), FNewToolMenuChoice());
	}
}

TSharedRef<FExtender> ZEFEditorToolkitHostMenu::MakeTabsExtender(const TSharedPtr<FTabManager>& TabManager)
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
	return Extender;
}

#undef LOCTEXT_NAMESPACE
