// SPDX-License-Identifier: MIT
#pragma once

// The state of the modifier keys at the time of an input event.

#include "CoreMinimal.h"

class FModifierKeysState
{
public:
	FModifierKeysState() = default;
	FModifierKeysState(bool bInIsLeftShiftDown, bool bInIsRightShiftDown, bool bInIsLeftControlDown,
		bool bInIsRightControlDown, bool bInIsLeftAltDown, bool bInIsRightAltDown, bool bInIsLeftCommandDown,
		bool bInIsRightCommandDown, bool bInAreCapsLocked)
		: bIsLeftShiftDown(bInIsLeftShiftDown)
		, bIsRightShiftDown(bInIsRightShiftDown)
		, bIsLeftControlDown(bInIsLeftControlDown)
		, bIsRightControlDown(bInIsRightControlDown)
		, bIsLeftAltDown(bInIsLeftAltDown)
		, bIsRightAltDown(bInIsRightAltDown)
		, bIsLeftCommandDown(bInIsLeftCommandDown)
		, bIsRightCommandDown(bInIsRightCommandDown)
		, bAreCapsLocked(bInAreCapsLocked)
	{
	}

	bool IsShiftDown() const { return bIsLeftShiftDown || bIsRightShiftDown; }
	bool IsControlDown() const { return bIsLeftControlDown || bIsRightControlDown; }
	bool IsAltDown() const { return bIsLeftAltDown || bIsRightAltDown; }
	bool IsCommandDown() const { return bIsLeftCommandDown || bIsRightCommandDown; }
	bool AreCapsLocked() const { return bAreCapsLocked; }

private:
	bool bIsLeftShiftDown = false;
	bool bIsRightShiftDown = false;
	bool bIsLeftControlDown = false;
	bool bIsRightControlDown = false;
	bool bIsLeftAltDown = false;
	bool bIsRightAltDown = false;
	bool bIsLeftCommandDown = false;
	bool bIsRightCommandDown = false;
	bool bAreCapsLocked = false;
};
