// SPDX-License-Identifier: MIT
#pragma once

// What the desktop tells the application, beside keys.

#include "Framework/Application/SlateApplication.h"

namespace Host
{
/** The modifier keys that are held at a click, for those who ask the application. */
void SetModifierKeys(const FModifierKeysState& State);

struct FApplicationAccess
{
	static TArray<TSharedRef<IMenu>>& MenuStack(FSlateApplication& Application) { return Application.MenuStack; }
	static void SetModifierKeys(FSlateApplication& Application, const FModifierKeysState& State)
	{
		Application.ModifierKeys = State;
	}
};
} // namespace Host
