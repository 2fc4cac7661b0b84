// SPDX-License-Identifier: MIT
#pragma once

// A menu that is open.

#include "CoreMinimal.h"

class SWidget;
class SWindow;

class IMenu : public TSharedFromThis<IMenu>
{
public:
	DECLARE_EVENT_OneParam(IMenu, FOnMenuDismissed, TSharedRef<IMenu>);

	virtual ~IMenu() = default;

	/** What the menu shows; empty when it is closed. */
	virtual TSharedPtr<SWidget> GetContent() const = 0;
	/** The window that the menu hangs on. */
	virtual TSharedPtr<SWindow> GetParentWindow() const = 0;
	/** Closes the menu and those that hang on it; nothing happens when it is closed. */
	virtual void Dismiss() = 0;
	/** Told once, when the menu closes. */
	virtual FOnMenuDismissed& GetOnMenuDismissed() = 0;

protected:
	void TellDismissed() { GetOnMenuDismissed().Broadcast(AsShared()); }
};
