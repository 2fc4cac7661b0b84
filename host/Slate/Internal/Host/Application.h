// SPDX-License-Identifier: MIT
#pragma once

// What the desktop tells the application, beside keys.

#include "Framework/Application/SlateApplication.h"

namespace Host
{
/** The modifier keys that are held at a click, for those who ask the application. */
void SetModifierKeys(const FModifierKeysState& State);

/** Makes a window belong to another one. Nothing happens when one of them is closed. */
void MoveToParentWindow(const TSharedRef<SWindow>& Window, const TSharedRef<SWindow>& Parent);

struct FApplicationAccess
{
	static TArray<TSharedRef<SWindow>>& TopLevelWindows(FSlateApplication& Application)
	{
		return Application.TopLevelWindows;
	}
	static TArray<TSharedRef<IMenu>>& MenuStack(FSlateApplication& Application) { return Application.MenuStack; }
	static void SetModifierKeys(FSlateApplication& Application, const FModifierKeysState& State)
	{
		Application.ModifierKeys = State;
	}
};
} // namespace Host
