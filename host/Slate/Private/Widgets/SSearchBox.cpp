// SPDX-License-Identifier: MIT

#include "Widgets/Input/SSearchBox.h"

#include "Host/WidgetTimers.h"

#define LOCTEXT_NAMESPACE "SearchBox"

namespace
{
/** Longer than the gap between two keys of a fluent typist, short enough not to be felt. */
constexpr double PauseSeconds = 0.25;
} // namespace

void SSearchBox::Construct(const FArguments& InArgs)
{
	const TAttribute<FText> Hint = InArgs._HintText.IsSet() ? InArgs._HintText : LOCTEXT("SearchHint", "Search");
	SEditableTextBox::Construct(SEditableTextBox::FArguments()
									.Text(InArgs._InitialText)
									.HintText(Hint)
									.SelectAllTextWhenFocused(InArgs._SelectAllTextWhenFocused)
									.OnTextChanged(InArgs._OnTextChanged)
									.OnTextCommitted(InArgs._OnTextCommitted));
	bDelayChanges = InArgs._DelayChangeNotificationsWhileTyping;
}

SSearchBox::~SSearchBox()
{
	Host::CancelCall(PendingCall);
}

void SSearchBox::NotifyChanged(const FText& NewText)
{
	Host::CancelCall(PendingCall);
	if (bDelayChanges.Get() && !NewText.IsEmpty())
	{
		PendingCall = Host::CallLater(SharedThis(this), PauseSeconds, [this] { TellChange(); });
	}
	else
	{
		TellChange();
	}
}

void SSearchBox::TellChange()
{
	PendingCall = 0;
	OnTextChanged.ExecuteIfBound(GetText());
}

void SSearchBox::NotifyCommitting()
{
	if (PendingCall != 0)
	{
		Host::CancelCall(PendingCall);
		TellChange();
	}
}

void SSearchBox::CancelEdit()
{
	EditText(FText::GetEmpty());
	CommitText(ETextCommit::OnCleared);
}

#undef LOCTEXT_NAMESPACE
