// SPDX-License-Identifier: MIT
#pragma once

// A text box to search with.

#include "Widgets/Input/SEditableTextBox.h"

/** Escape empties it. Shows "Search" while it is empty unless it is told something else. */
class SSearchBox : public SEditableTextBox
{
public:
	SLATE_BEGIN_ARGS(SSearchBox)
		: _SelectAllTextWhenFocused(true)
		, _DelayChangeNotificationsWhileTyping(false)
	{
	}
	SLATE_ATTRIBUTE(FText, HintText)
	SLATE_ATTRIBUTE(FText, InitialText)
	SLATE_EVENT(FOnTextChanged, OnTextChanged)
	SLATE_EVENT(FOnTextCommitted, OnTextCommitted)
	SLATE_ATTRIBUTE(bool, SelectAllTextWhenFocused)
	/** The change is told after a pause in typing, when the text is handed over, or when it is empty. */
	SLATE_ATTRIBUTE(bool, DelayChangeNotificationsWhileTyping)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);
	~SSearchBox() override;

protected:
	void NotifyChanged(const FText& NewText) override;
	void NotifyCommitting() override;
	void CancelEdit() override;

private:
	void TellChange();

	TAttribute<bool> bDelayChanges = false;
	/** The call that tells the change; 0 when there is nothing to tell. */
	uint64 PendingCall = 0;
};
