// SPDX-License-Identifier: MIT

#include "Widgets/Input/SEditableTextBox.h"

void SEditableTextBox::Construct(const FArguments& InArgs)
{
	BoundText = InArgs._Text;
	HintText = InArgs._HintText;
	bReadOnly = InArgs._IsReadOnly;
	bSelectAllWhenFocused = InArgs._SelectAllTextWhenFocused;
	OnTextChanged = InArgs._OnTextChanged;
	OnTextCommitted = InArgs._OnTextCommitted;
}

void SEditableTextBox::SetText(const TAttribute<FText>& InNewText)
{
	const FText Former = GetText();
	BoundText = InNewText;
	bEdited = false;
	bChangedSinceCommit = false;
	bAllSelected = false;
	if (!GetText().EqualTo(Former))
	{
		NotifyChanged(GetText());
	}
}

void SEditableTextBox::EditText(const FText& NewText)
{
	const FText Former = GetText();
	bAllSelected = false;
	if (IsReadOnly() || NewText.EqualTo(Former))
	{
		return;
	}
	if (!bChangedSinceCommit)
	{
		TextBeforeEdit = Former;
		bChangedSinceCommit = true;
	}
	bEdited = true;
	EditedText = NewText;
	NotifyChanged(NewText);
}

void SEditableTextBox::CommitText(ETextCommit::Type CommitType)
{
	NotifyCommitting();
	const FText Text = GetText();
	bChangedSinceCommit = false;
	// A text that is bound shows its source again; one that is not keeps what was typed.
	if (!BoundText.IsBound())
	{
		BoundText = Text;
	}
	bEdited = false;
	OnTextCommitted.ExecuteIfBound(Text, CommitType);
}

void SEditableTextBox::CancelEdit()
{
	if (bChangedSinceCommit)
	{
		EditText(TextBeforeEdit);
		CommitText(ETextCommit::OnCleared);
	}
}

FReply SEditableTextBox::OnKeyDown(const FGeometry&, const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	const FString Text = GetText().ToString();
	if (Key == EKeys::Enter)
	{
		CommitText(ETextCommit::OnEnter);
	}
	else if (Key == EKeys::Escape)
	{
		if (!bChangedSinceCommit && Text.IsEmpty())
		{
			return FReply::Unhandled();
		}
		CancelEdit();
	}
	else if (Key == EKeys::BackSpace || Key == EKeys::Delete)
	{
		const bool bLast = Key == EKeys::BackSpace;
		EditText(FText::FromString(bAllSelected ? FString() : (bLast ? Text.LeftChop(1) : Text)));
	}
	else if (Key == EKeys::A && InKeyEvent.IsControlDown())
	{
		SelectAllText();
	}
	else
	{
		// A key that types must not run a command; the character follows.
		const bool bTypes = InKeyEvent.GetCharacter() >= 0x20 && !InKeyEvent.IsControlDown() && !InKeyEvent.IsAltDown();
		return bTypes && !IsReadOnly() ? FReply::Handled() : FReply::Unhandled();
	}
	return FReply::Handled();
}

FReply SEditableTextBox::OnKeyChar(const FGeometry&, const FCharacterEvent& InCharacterEvent)
{
	const TCHAR Character = InCharacterEvent.GetCharacter();
	if (Character < 0x20 || Character == 0x7f || IsReadOnly())
	{
		return FReply::Unhandled();
	}
	FString Text = bAllSelected ? FString() : GetText().ToString();
	EditText(FText::FromString(Text.AppendChar(Character)));
	return FReply::Handled();
}

FReply SEditableTextBox::OnFocusReceived(const FGeometry&, const FFocusEvent&)
{
	if (bSelectAllWhenFocused.Get())
	{
		SelectAllText();
	}
	return FReply::Handled();
}

void SEditableTextBox::OnFocusLost(const FFocusEvent&)
{
	bAllSelected = false;
	if (bChangedSinceCommit)
	{
		CommitText(ETextCommit::OnUserMovedFocus);
	}
}
