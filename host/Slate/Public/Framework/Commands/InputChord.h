// SPDX-License-Identifier: MIT
#pragma once

// A key with the modifiers that must be held with it.

#include "CoreMinimal.h"
#include "InputCoreTypes.h"

namespace EModifierKey
{
typedef uint8 Type;
const Type None = 0;
const Type Control = 1 << 0;
const Type Alt = 1 << 1;
const Type Shift = 1 << 2;
const Type Command = 1 << 3;

inline constexpr Type FromBools(const bool bCtrl, const bool bAlt, const bool bShift, const bool bCmd)
{
	return static_cast<Type>((bCtrl ? Control : 0) | (bAlt ? Alt : 0) | (bShift ? Shift : 0) | (bCmd ? Command : 0));
}
} // namespace EModifierKey

enum class EMultipleKeyBindingIndex : uint8
{
	Primary = 0,
	Secondary,
	NumChords,
};

struct FInputChord
{
	FKey Key;
	bool bShift = false;
	bool bCtrl = false;
	bool bAlt = false;
	bool bCmd = false;

	/** No key. */
	FInputChord() = default;
	FInputChord(const FKey InKey)
		: Key(InKey)
	{
	}
	FInputChord(const EModifierKey::Type InModifierKeys, const FKey InKey)
		: FInputChord(InKey, InModifierKeys)
	{
	}
	FInputChord(const FKey InKey, const EModifierKey::Type InModifierKeys)
		: Key(InKey)
		, bShift((InModifierKeys & EModifierKey::Shift) != 0)
		, bCtrl((InModifierKeys & EModifierKey::Control) != 0)
		, bAlt((InModifierKeys & EModifierKey::Alt) != 0)
		, bCmd((InModifierKeys & EModifierKey::Command) != 0)
	{
	}

	/** What a menu writes, such as "Ctrl+Shift+S"; empty without a key. The long form names the keys in full. */
	FText GetInputText(const bool bLongDisplayName = true) const;
	FText GetKeyText(const bool bLongDisplayName = true) const;
	FText GetModifierText(const FText& ModifierAppender) const;

	bool IsValidChord() const { return Key.IsValid(); }

	bool operator==(const FInputChord& Other) const
	{
		return Key == Other.Key && bShift == Other.bShift && bCtrl == Other.bCtrl && bAlt == Other.bAlt &&
			   bCmd == Other.bCmd;
	}
	bool operator!=(const FInputChord& Other) const { return !(*this == Other); }
};
