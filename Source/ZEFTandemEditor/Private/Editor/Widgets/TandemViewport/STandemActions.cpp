// SPDX-License-Identifier: MIT
#include "Editor/Widgets/TandemViewport/STandemActions.h"

#include "Framework/Commands/UICommandList.h"

TSharedPtr<FUICommandList> TandemActionsCommandList = MakeShared<FUICommandList>();
TSharedPtr<STandemActions> CurrentTandemActions;

void STandemActions::Construct(const FArguments& /*InArgs*/)
{
	CurrentTandemActions = SharedThis(this);
}

FReply STandemActions::OnKeyDown(const FGeometry& /*MyGeometry*/, const FKeyEvent& InKeyEvent)
{
	CurrentTandemActions = SharedThis(this);
	check(TandemActionsCommandList.IsValid());
	if (TandemActionsCommandList->ProcessCommandBindings(InKeyEvent))
	{
		return FReply::Handled();
	}
	CurrentTandemActions.Reset();
	return FReply::Unhandled();
}
