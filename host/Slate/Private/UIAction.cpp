// SPDX-License-Identifier: MIT

#include "Framework/Commands/UIAction.h"

namespace
{
FGetActionCheckState ToCheckState(const FIsActionChecked& IsChecked)
{
	if (!IsChecked.IsBound())
	{
		return FGetActionCheckState();
	}
	return FGetActionCheckState::CreateLambda(
		[IsChecked]()
		{
			const bool bChecked = IsChecked.IsBound() && IsChecked.Execute();
			return bChecked ? ECheckBoxState::Checked : ECheckBoxState::Unchecked;
		});
}
} // namespace

FUIAction::FUIAction(FExecuteAction InExecuteAction, EUIActionRepeatMode InitRepeatMode)
	: FUIAction(InExecuteAction, FCanExecuteAction(), FGetActionCheckState(), InitRepeatMode)
{
}

FUIAction::FUIAction(
	FExecuteAction InExecuteAction, FCanExecuteAction InCanExecuteAction, EUIActionRepeatMode InitRepeatMode)
	: FUIAction(InExecuteAction, InCanExecuteAction, FGetActionCheckState(), InitRepeatMode)
{
}

FUIAction::FUIAction(FExecuteAction InExecuteAction, FCanExecuteAction InCanExecuteAction,
	FIsActionChecked InIsCheckedDelegate, EUIActionRepeatMode InitRepeatMode)
	: FUIAction(InExecuteAction, InCanExecuteAction, ToCheckState(InIsCheckedDelegate), InitRepeatMode)
{
}

FUIAction::FUIAction(FExecuteAction InExecuteAction, FCanExecuteAction InCanExecuteAction,
	FGetActionCheckState InGetActionCheckStateDelegate, EUIActionRepeatMode InitRepeatMode)
	: ExecuteAction(InExecuteAction)
	, CanExecuteAction(InCanExecuteAction)
	, GetActionCheckState(InGetActionCheckStateDelegate)
	, RepeatMode(InitRepeatMode)
{
}

bool FUIAction::Execute() const
{
	return CanExecute() && ExecuteAction.ExecuteIfBound();
}

ECheckBoxState FUIAction::GetCheckState() const
{
	return GetActionCheckState.IsBound() ? GetActionCheckState.Execute() : ECheckBoxState::Unchecked;
}
