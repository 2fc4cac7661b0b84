// SPDX-License-Identifier: MIT
/** Keys and mouse buttons. */
#pragma once

#include "Containers/UnrealString.h"
#include "Internationalization/Text.h"
#include "UObject/NameTypes.h"

/** A key, a mouse button or a mouse axis, known by its name. */
struct INPUTCORE_API FKey
{
	/** No key. */
	FKey() = default;
	FKey(const FName InName)
		: KeyName(InName)
	{
	}
	FKey(const TCHAR* InName)
		: KeyName(InName)
	{
	}
	FKey(const ANSICHAR* InName)
		: KeyName(InName)
	{
	}

	/** Whether the name is that of a key of EKeys. */
	bool IsValid() const;
	/** Whether it is a control, shift, alt or command key. */
	bool IsModifierKey() const;
	bool IsMouseButton() const;
	FName GetFName() const { return KeyName; }
	FString ToString() const { return KeyName.ToString(); }
	/** What menus write, such as "Left Ctrl"; the short form, such as "Ctrl", leaves the side out. */
	FText GetDisplayName(bool bLongDisplayName = true) const;

	bool operator==(const FKey& Other) const { return KeyName == Other.KeyName; }
	bool operator<(const FKey& Other) const { return KeyName.LexicalLess(Other.KeyName); }

private:
	FName KeyName;
};

inline uint32 GetTypeHash(const FKey& Key)
{
	return GetTypeHash(Key.GetFName());
}

/** All keys. They are ready before main() begins, but not in the initialisers of other files' variables. */
struct INPUTCORE_API EKeys
{
	static const FKey AnyKey;

	static const FKey MouseX;
	static const FKey MouseY;
	static const FKey MouseWheelAxis;
	static const FKey MouseScrollUp;
	static const FKey MouseScrollDown;
	static const FKey LeftMouseButton;
	static const FKey RightMouseButton;
	static const FKey MiddleMouseButton;
	static const FKey ThumbMouseButton;
	static const FKey ThumbMouseButton2;

	static const FKey BackSpace, Tab, Enter, Pause, CapsLock, Escape, SpaceBar;
	static const FKey PageUp, PageDown, End, Home, Left, Up, Right, Down, Insert, Delete;
	static const FKey Zero, One, Two, Three, Four, Five, Six, Seven, Eight, Nine;
	static const FKey A, B, C, D, E, F, G, H, I, J, K, L, M;
	static const FKey N, O, P, Q, R, S, T, U, V, W, X, Y, Z;
	static const FKey Add, Subtract, Multiply, Divide, Decimal;
	static const FKey F1, F2, F3, F4, F5, F6, F7, F8, F9, F10, F11, F12;
	static const FKey LeftShift, RightShift, LeftControl, RightControl, LeftAlt, RightAlt, LeftCommand, RightCommand;
	static const FKey Semicolon, Equals, Comma, Underscore, Hyphen, Period, Slash, Tilde;
	static const FKey LeftBracket, Backslash, RightBracket, Apostrophe;

	/** The key that deletes in this system: Delete, or BackSpace on a Mac. */
	static const FKey Platform_Delete;

	static const FKey Invalid;
};
