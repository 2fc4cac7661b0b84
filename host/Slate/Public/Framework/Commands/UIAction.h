// SPDX-License-Identifier: MIT
#pragma once

// What a command does: execute, may it, is it checked.

#include "CoreMinimal.h"
#include "Styling/SlateTypes.h"

DECLARE_DELEGATE(FExecuteAction);
DECLARE_DELEGATE_RetVal(bool, FCanExecuteAction);
DECLARE_DELEGATE_RetVal(bool, FIsActionChecked);
DECLARE_DELEGATE_RetVal(ECheckBoxState, FGetActionCheckState);
DECLARE_DELEGATE_RetVal(bool, FIsActionButtonVisible);

enum class EUIActionRepeatMode
{
	RepeatDisabled,
	RepeatEnabled,
};

struct FUIAction
{
	FExecuteAction ExecuteAction;
	/** Unbound: always. */
	FCanExecuteAction CanExecuteAction;
	/** Unbound: unchecked. */
	FGetActionCheckState GetActionCheckState;
	/** Unbound: always. */
	FIsActionButtonVisible IsActionVisibleDelegate;
	EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled;

	FUIAction() = default;
	FUIAction(FExecuteAction InExecuteAction, EUIActionRepeatMode InitRepeatMode = EUIActionRepeatMode::RepeatDisabled);
	FUIAction(FExecuteAction InExecuteAction, FCanExecuteAction InCanExecuteAction,
		EUIActionRepeatMode InitRepeatMode = EUIActionRepeatMode::RepeatDisabled);
	FUIAction(FExecuteAction InExecuteAction, FCanExecuteAction InCanExecuteAction,
		FIsActionChecked InIsCheckedDelegate, EUIActionRepeatMode InitRepeatMode = EUIActionRepeatMode::RepeatDisabled);
	FUIAction(FExecuteAction InExecuteAction, FCanExecuteAction InCanExecuteAction,
		FGetActionCheckState InGetActionCheckStateDelegate,
		EUIActionRepeatMode InitRepeatMode = EUIActionRepeatMode::RepeatDisabled);

	bool CanExecute() const { return !CanExecuteAction.IsBound() || CanExecuteAction.Execute(); }
	/** Runs the action if it may; true when something ran. */
	bool Execute() const;
	ECheckBoxState GetCheckState() const;
	bool IsBound() const { return ExecuteAction.IsBound(); }
	bool IsVisible() const { return !IsActionVisibleDelegate.IsBound() || IsActionVisibleDelegate.Execute(); }
};
