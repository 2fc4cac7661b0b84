// SPDX-License-Identifier: MIT

#include "Framework/Commands/UICommandList.h"

#include "Input/Events.h"

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
	EUIActionRepeatMode RepeatMode)
{
	MapAction(InUICommandInfo, FUIAction(ExecuteAction, RepeatMode));
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
	FCanExecuteAction CanExecuteAction, EUIActionRepeatMode RepeatMode)
{
	MapAction(InUICommandInfo, FUIAction(ExecuteAction, CanExecuteAction, RepeatMode));
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
	FCanExecuteAction CanExecuteAction, FIsActionChecked IsCheckedDelegate, EUIActionRepeatMode RepeatMode)
{
	MapAction(InUICommandInfo, FUIAction(ExecuteAction, CanExecuteAction, IsCheckedDelegate, RepeatMode));
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
	FCanExecuteAction CanExecuteAction, FGetActionCheckState GetActionCheckState, EUIActionRepeatMode RepeatMode)
{
	MapAction(InUICommandInfo, FUIAction(ExecuteAction, CanExecuteAction, GetActionCheckState, RepeatMode));
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
	FCanExecuteAction CanExecuteAction, FIsActionChecked IsCheckedDelegate, FIsActionButtonVisible IsVisibleDelegate,
	EUIActionRepeatMode RepeatMode)
{
	FUIAction Action(ExecuteAction, CanExecuteAction, IsCheckedDelegate, RepeatMode);
	Action.IsActionVisibleDelegate = IsVisibleDelegate;
	MapAction(InUICommandInfo, Action);
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, const FUIAction& InUIAction)
{
	checkf(InUICommandInfo.IsValid(), TEXT("A command is mapped before its table is registered"));
	UICommandBindingMap.Add(InUICommandInfo, InUIAction);
}

void FUICommandList::UnmapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo)
{
	UICommandBindingMap.Remove(InUICommandInfo);
}

void FUICommandList::Append(const TSharedRef<FUICommandList>& InCommandsToAppend)
{
	checkf(!InCommandsToAppend->Contains(*this), TEXT("A command list is appended to one that it contains"));
	ParentUICommandLists.AddUnique(InCommandsToAppend);
}

bool FUICommandList::Contains(const FUICommandList& Other) const
{
	if (this == &Other)
	{
		return true;
	}
	for (const TWeakPtr<FUICommandList>& Weak : ParentUICommandLists)
	{
		const TSharedPtr<FUICommandList> List = Weak.Pin();
		if (List.IsValid() && List->Contains(Other))
		{
			return true;
		}
	}
	return false;
}

bool FUICommandList::IsActionMapped(const TSharedPtr<const FUICommandInfo> InUICommandInfo) const
{
	return UICommandBindingMap.Contains(InUICommandInfo);
}

const FUIAction* FUICommandList::GetActionForCommand(const TSharedPtr<const FUICommandInfo> Command) const
{
	if (const FUIAction* Own = UICommandBindingMap.Find(Command))
	{
		return Own;
	}
	for (const TWeakPtr<FUICommandList>& Weak : ParentUICommandLists)
	{
		const TSharedPtr<FUICommandList> List = Weak.Pin();
		if (const FUIAction* Found = List.IsValid() ? List->GetActionForCommand(Command) : nullptr)
		{
			return Found;
		}
	}
	return nullptr;
}

bool FUICommandList::ExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	const FUIAction* Action = GetActionForCommand(InUICommandInfo);
	if (!Action)
	{
		return false;
	}
	// The action may change the map that holds it.
	const FExecuteAction Execute = Action->ExecuteAction;
	Execute.ExecuteIfBound();
	return true;
}

bool FUICommandList::CanExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	const FUIAction* Action = GetActionForCommand(InUICommandInfo);
	return Action && Action->CanExecute();
}

bool FUICommandList::TryExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	return CanExecuteAction(InUICommandInfo) && ExecuteAction(InUICommandInfo);
}

ECheckBoxState FUICommandList::GetCheckState(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	const FUIAction* Action = GetActionForCommand(InUICommandInfo);
	return Action ? Action->GetCheckState() : ECheckBoxState::Undetermined;
}

EVisibility FUICommandList::GetVisibility(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	const FUIAction* Action = GetActionForCommand(InUICommandInfo);
	return !Action || Action->IsVisible() ? EVisibility::Visible : EVisibility::Collapsed;
}

bool FUICommandList::ProcessCommandBindings(const FKeyEvent& InKeyEvent) const
{
	return ProcessCommandBindings(InKeyEvent.GetKey(), InKeyEvent.GetModifierKeys(), InKeyEvent.IsRepeat());
}

bool FUICommandList::ProcessCommandBindings(
	const FKey Key, const FModifierKeysState& ModifierKeysState, const bool bRepeat) const
{
	const FInputChord Chord(
		Key, EModifierKey::FromBools(ModifierKeysState.IsControlDown(), ModifierKeysState.IsAltDown(),
				 ModifierKeysState.IsShiftDown(), ModifierKeysState.IsCommandDown()));
	if (!Chord.IsValidChord())
	{
		return false;
	}
	for (const auto& Entry : UICommandBindingMap)
	{
		const TSharedPtr<const FUICommandInfo> Command = Entry.Key;
		if (!Command->HasActiveChord(Chord) ||
			(bRepeat && Entry.Value.RepeatMode != EUIActionRepeatMode::RepeatEnabled))
		{
			continue;
		}
		if (CanExecuteAction(Command.ToSharedRef()))
		{
			return ExecuteAction(Command.ToSharedRef());
		}
	}
	for (const TWeakPtr<FUICommandList>& Weak : ParentUICommandLists)
	{
		const TSharedPtr<FUICommandList> List = Weak.Pin();
		if (List.IsValid() && List->ProcessCommandBindings(Key, ModifierKeysState, bRepeat))
		{
			return true;
		}
	}
	return false;
}
