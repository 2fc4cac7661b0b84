// SPDX-License-Identifier: MIT
#pragma once

// A line of text that the user edits.

#include "Framework/SlateDelegates.h"
#include "Widgets/SLeafWidget.h"

namespace Host
{
struct FTextBoxAccess;
}

/** Enter hands the text over, and so does losing the focus; Escape takes back what was typed since. */
class SEditableTextBox : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SEditableTextBox)
		: _IsReadOnly(false)
		, _SelectAllTextWhenFocused(false)
	{
	}
	SLATE_ATTRIBUTE(FText, Text)
	/** Shown while the text is empty. */
	SLATE_ATTRIBUTE(FText, HintText)
	SLATE_ATTRIBUTE(bool, IsReadOnly)
	SLATE_ATTRIBUTE(bool, SelectAllTextWhenFocused)
	/** At each change. */
	SLATE_EVENT(FOnTextChanged, OnTextChanged)
	SLATE_EVENT(FOnTextCommitted, OnTextCommitted)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	FText GetText() const { return bEdited ? EditedText : BoundText.Get(); }
	/** Replaces what was typed; the owner is told when the text changes. */
	void SetText(const TAttribute<FText>& InNewText);
	FText GetHintText() const { return HintText.Get(); }
	void SetHintText(const TAttribute<FText>& InHintText) { HintText = InHintText; }
	bool IsReadOnly() const { return bReadOnly.Get(); }
	/** What is typed next replaces all of the text. */
	bool IsAllSelected() const { return bAllSelected; }
	void SelectAllText() { bAllSelected = !GetText().IsEmpty(); }

	bool SupportsKeyboardFocus() const override { return true; }
	FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	FReply OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent) override;
	FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent) override;
	void OnFocusLost(const FFocusEvent& InFocusEvent) override;

protected:
	/** The user changed the text. */
	void EditText(const FText& NewText);
	void CommitText(ETextCommit::Type CommitType);
	virtual void NotifyChanged(const FText& NewText) { OnTextChanged.ExecuteIfBound(NewText); }
	/** Before the text is handed over. */
	virtual void NotifyCommitting() {}
	/** Escape was pressed. */
	virtual void CancelEdit();

	FOnTextChanged OnTextChanged;
	FOnTextCommitted OnTextCommitted;

private:
	friend struct Host::FTextBoxAccess;

	TAttribute<FText> BoundText;
	TAttribute<FText> HintText;
	TAttribute<bool> bReadOnly = false;
	TAttribute<bool> bSelectAllWhenFocused = false;
	/** What was typed; stands in front of the bound text until it is handed over. */
	FText EditedText;
	FText TextBeforeEdit;
	bool bEdited = false;
	bool bChangedSinceCommit = false;
	bool bAllSelected = false;
};
