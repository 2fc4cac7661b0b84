// SPDX-License-Identifier: MIT
#pragma once

// What an entry does when it is chosen, and what makes a menu when it opens.

#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxDefs.h"

struct FToolMenuContext;
struct FToolMenuSection;
class UToolMenu;

DECLARE_DELEGATE_OneParam(FNewToolMenuDelegate, UToolMenu*);
DECLARE_DELEGATE_OneParam(FNewToolMenuSectionDelegate, FToolMenuSection&);
DECLARE_DELEGATE_RetVal_OneParam(TSharedRef<SWidget>, FNewToolMenuWidget, const FToolMenuContext&);

/** An action of its own, or a command with the list to look it up in. */
struct FToolUIActionChoice
{
	FToolUIActionChoice() = default;
	FToolUIActionChoice(const FUIAction& InAction)
		: Action(InAction)
	{
	}
	FToolUIActionChoice(const FExecuteAction& InExecuteAction)
		: Action(InExecuteAction)
	{
	}
	FToolUIActionChoice(
		const TSharedPtr<const FUICommandInfo>& InCommand, const TSharedPtr<const FUICommandList>& InCommandList)
		: Command(InCommand)
		, CommandList(InCommandList)
	{
	}

	/** Null when the choice is a command. */
	const FUIAction* GetUIAction() const { return Command.IsValid() ? nullptr : &Action; }

	TSharedPtr<const FUICommandInfo> Command;
	TSharedPtr<const FUICommandList> CommandList;

private:
	FUIAction Action;
};

/** One of four ways to make what a sub menu or a combo button opens; none uses the registered menu of its name. */
struct FNewToolMenuChoice
{
	FNewToolMenuChoice() = default;
	FNewToolMenuChoice(const FNewToolMenuDelegate& InNewToolMenu)
		: NewToolMenu(InNewToolMenu)
	{
	}
	FNewToolMenuChoice(const FNewToolMenuWidget& InNewToolMenuWidget)
		: NewToolMenuWidget(InNewToolMenuWidget)
	{
	}
	FNewToolMenuChoice(const FNewMenuDelegate& InNewMenuLegacy)
		: NewMenuLegacy(InNewMenuLegacy)
	{
	}
	FNewToolMenuChoice(const FOnGetContent& InOnGetContent)
		: OnGetContent(InOnGetContent)
	{
	}

	FNewToolMenuDelegate NewToolMenu;
	FNewToolMenuWidget NewToolMenuWidget;
	FNewMenuDelegate NewMenuLegacy;
	FOnGetContent OnGetContent;
};
