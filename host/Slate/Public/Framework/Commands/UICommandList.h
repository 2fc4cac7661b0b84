// SPDX-License-Identifier: MIT
#pragma once

// Which command does what, at one place of the user interface.

#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"
#include "GenericPlatform/GenericApplication.h"
#include "Layout/Visibility.h"

struct FKeyEvent;

/**
 * Maps commands to actions. A command that is not mapped here nor in an appended list can neither be executed nor seen.
 * Mapping a command again replaces its action.
 */
class FUICommandList : public TSharedFromThis<FUICommandList>
{
public:
	virtual ~FUICommandList() = default;

	void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
		EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);
	void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
		FCanExecuteAction CanExecuteAction, EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);
	void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
		FCanExecuteAction CanExecuteAction, FIsActionChecked IsCheckedDelegate,
		EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);
	void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
		FCanExecuteAction CanExecuteAction, FGetActionCheckState GetActionCheckState,
		EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);
	void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
		FCanExecuteAction CanExecuteAction, FIsActionChecked IsCheckedDelegate,
		FIsActionButtonVisible IsVisibleDelegate, EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);
	virtual void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, const FUIAction& InUIAction);
	void UnmapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo);

	/** Commands that this list lacks are looked for in the other one, which must not contain this list. */
	void Append(const TSharedRef<FUICommandList>& InCommandsToAppend);

	bool IsActionMapped(const TSharedPtr<const FUICommandInfo> InUICommandInfo) const;
	/** Null when the command is not mapped here nor in an appended list. */
	const FUIAction* GetActionForCommand(const TSharedPtr<const FUICommandInfo> Command) const;

	/** Runs the action without asking whether it may; false when the command is not mapped. */
	virtual bool ExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;
	/** True when the command is mapped and its action may run. */
	bool CanExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;
	/** Runs the action if it may; true when it ran. */
	bool TryExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;
	ECheckBoxState GetCheckState(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;
	EVisibility GetVisibility(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;

	/**
	 * Runs the mapped command whose active keys were pressed, here or else in an appended list; true when one ran. A
	 * command that may not run leaves the keys to the next one. A held key needs a repeating action.
	 */
	bool ProcessCommandBindings(const FKeyEvent& InKeyEvent) const;
	bool ProcessCommandBindings(const FKey Key, const FModifierKeysState& ModifierKeysState, const bool bRepeat) const;

private:
	/** Whether the other list is this one or one that is asked for it. */
	bool Contains(const FUICommandList& Other) const;

	TMap<TSharedPtr<const FUICommandInfo>, FUIAction> UICommandBindingMap;
	TArray<TWeakPtr<FUICommandList>> ParentUICommandLists;
};
