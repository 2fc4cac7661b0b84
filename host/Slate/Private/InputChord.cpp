// SPDX-License-Identifier: MIT

#include "Framework/Commands/InputChord.h"

FText FInputChord::GetInputText(const bool bLongDisplayName) const
{
	if (!IsValidChord())
	{
		return FText::GetEmpty();
	}
	const FText Plus = FText::FromString(TEXT("+"));
	return FText::FromString(GetModifierText(Plus).ToString() + GetKeyText(bLongDisplayName).ToString());
}

FText FInputChord::GetKeyText(const bool bLongDisplayName) const
{
	return IsValidChord() ? Key.GetDisplayName(bLongDisplayName) : FText::GetEmpty();
}

FText FInputChord::GetModifierText(const FText& ModifierAppender) const
{
	FString Text;
	const auto Append = [&](bool bHeld, const TCHAR* Name)
	{
		if (bHeld)
		{
			Text += Name + ModifierAppender.ToString();
		}
	};
	Append(bCtrl, TEXT("Ctrl"));
	Append(bCmd, TEXT("Cmd"));
	Append(bAlt, TEXT("Alt"));
	Append(bShift, TEXT("Shift"));
	return FText::FromString(Text);
}
