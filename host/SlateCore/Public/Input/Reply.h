// SPDX-License-Identifier: MIT
#pragma once

// A widget's answer to an input event.

#include "CoreMinimal.h"
#include "Input/Events.h"

class SWidget;

class FReply
{
public:
	/** The event ends here. */
	static FReply Handled() { return FReply(true); }
	/** The event goes on to the parent. */
	static FReply Unhandled() { return FReply(false); }

	bool IsEventHandled() const { return bIsHandled; }

	/** Moves the keyboard focus when the event is over. */
	FReply& SetUserFocus(TSharedRef<SWidget> GiveMeFocus, EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly);
	/** Empty when the focus stays. */
	const TSharedPtr<SWidget>& GetUserFocusRecepient() const { return FocusRecipient; }
	EFocusCause GetFocusCause() const { return FocusCause; }

private:
	explicit FReply(bool bInIsHandled)
		: bIsHandled(bInIsHandled)
	{
	}

	TSharedPtr<SWidget> FocusRecipient;
	EFocusCause FocusCause = EFocusCause::SetDirectly;
	bool bIsHandled;
};
