// SPDX-License-Identifier: MIT

#include "Input/Reply.h"

FReply& FReply::SetUserFocus(TSharedRef<SWidget> GiveMeFocus, EFocusCause ReasonFocusIsChanging)
{
	FocusRecipient = GiveMeFocus;
	FocusCause = ReasonFocusIsChanging;
	return *this;
}
