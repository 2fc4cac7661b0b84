// SPDX-License-Identifier: MIT
#pragma once

// What the keyboard and the pointer tell a widget.

#include "CoreMinimal.h"
#include "GenericPlatform/GenericApplication.h"
#include "InputCoreTypes.h"

/** Base of the events: the modifier keys, and whether a held key repeats. */
class FInputEvent
{
public:
	FInputEvent() = default;
	FInputEvent(const FModifierKeysState& InModifierKeys, uint32 InUserIndex, bool bInIsRepeat)
		: ModifierKeys(InModifierKeys)
		, UserIndex(InUserIndex)
		, bIsRepeat(bInIsRepeat)
	{
	}
	virtual ~FInputEvent() = default;

	const FModifierKeysState& GetModifierKeys() const { return ModifierKeys; }
	uint32 GetUserIndex() const { return UserIndex; }
	bool IsRepeat() const { return bIsRepeat; }
	bool IsShiftDown() const { return ModifierKeys.IsShiftDown(); }
	bool IsControlDown() const { return ModifierKeys.IsControlDown(); }
	bool IsAltDown() const { return ModifierKeys.IsAltDown(); }
	bool IsCommandDown() const { return ModifierKeys.IsCommandDown(); }

private:
	FModifierKeysState ModifierKeys;
	uint32 UserIndex = 0;
	bool bIsRepeat = false;
};

/** A key that goes down or up. */
struct FKeyEvent : public FInputEvent
{
	FKeyEvent() = default;

	/**
	 * @param InCharacterCode  the character that the key types, 0 when it types none
	 * @param InKeyCode        the platform's own number of the key
	 */
	FKeyEvent(const FKey InKey, const FModifierKeysState& InModifierKeys, const uint32 InUserIndex,
		const bool bInIsRepeat, const uint32 InCharacterCode, const uint32 InKeyCode)
		: FInputEvent(InModifierKeys, InUserIndex, bInIsRepeat)
		, Key(InKey)
		, CharacterCode(InCharacterCode)
		, KeyCode(InKeyCode)
	{
	}

	FKey GetKey() const { return Key; }
	uint32 GetCharacter() const { return CharacterCode; }
	uint32 GetKeyCode() const { return KeyCode; }

private:
	FKey Key;
	uint32 CharacterCode = 0;
	uint32 KeyCode = 0;
};

/** A character that was typed. */
struct FCharacterEvent : public FInputEvent
{
	FCharacterEvent(const TCHAR InCharacter, const FModifierKeysState& InModifierKeys, const uint32 InUserIndex,
		const bool bInIsRepeat)
		: FInputEvent(InModifierKeys, InUserIndex, bInIsRepeat)
		, Character(InCharacter)
	{
	}

	TCHAR GetCharacter() const { return Character; }

private:
	TCHAR Character;
};

enum class EFocusCause : uint8
{
	Mouse,
	Navigation,
	SetDirectly,
	Cleared,
	OtherWidgetLostFocus,
	WindowActivate,
};

/** The keyboard focus comes or goes. */
struct FFocusEvent
{
	FFocusEvent(const EFocusCause InCause, const uint32 InUserIndex)
		: Cause(InCause)
		, UserIndex(InUserIndex)
	{
	}

	EFocusCause GetCause() const { return Cause; }
	uint32 GetUser() const { return UserIndex; }

private:
	EFocusCause Cause;
	uint32 UserIndex;
};
