// SPDX-License-Identifier: MIT
/** Names of the keys. */

#include "InputCoreTypes.h"

namespace
{
/** What is known of a key beside its name. */
struct FKeyDetails
{
	const TCHAR* Name;
	const TCHAR* LongName;
	/** Null when it is the long name. */
	const TCHAR* ShortName = nullptr;
	bool bModifier = false;
	bool bMouseButton = false;
};

/** Keys whose display name is not their name, or that are more than a plain key. */
constexpr FKeyDetails SpecialKeys[] = {
	{TEXT("AnyKey"), TEXT("Any Key")},
	{TEXT("MouseX"), TEXT("Mouse X")},
	{TEXT("MouseY"), TEXT("Mouse Y")},
	{TEXT("MouseWheelAxis"), TEXT("Mouse Wheel Axis")},
	{TEXT("MouseScrollUp"), TEXT("Mouse Wheel Up"), nullptr, false, true},
	{TEXT("MouseScrollDown"), TEXT("Mouse Wheel Down"), nullptr, false, true},
	{TEXT("LeftMouseButton"), TEXT("Left Mouse Button"), TEXT("LMB"), false, true},
	{TEXT("RightMouseButton"), TEXT("Right Mouse Button"), TEXT("RMB"), false, true},
	{TEXT("MiddleMouseButton"), TEXT("Middle Mouse Button"), TEXT("MMB"), false, true},
	{TEXT("ThumbMouseButton"), TEXT("Thumb Mouse Button"), nullptr, false, true},
	{TEXT("ThumbMouseButton2"), TEXT("Thumb Mouse Button 2"), nullptr, false, true},
	{TEXT("BackSpace"), TEXT("Backspace")},
	{TEXT("CapsLock"), TEXT("Caps Lock")},
	{TEXT("SpaceBar"), TEXT("Space Bar")},
	{TEXT("PageUp"), TEXT("Page Up")},
	{TEXT("PageDown"), TEXT("Page Down")},
	{TEXT("Zero"), TEXT("0")},
	{TEXT("One"), TEXT("1")},
	{TEXT("Two"), TEXT("2")},
	{TEXT("Three"), TEXT("3")},
	{TEXT("Four"), TEXT("4")},
	{TEXT("Five"), TEXT("5")},
	{TEXT("Six"), TEXT("6")},
	{TEXT("Seven"), TEXT("7")},
	{TEXT("Eight"), TEXT("8")},
	{TEXT("Nine"), TEXT("9")},
	{TEXT("Add"), TEXT("Num +")},
	{TEXT("Subtract"), TEXT("Num -")},
	{TEXT("Multiply"), TEXT("Num *")},
	{TEXT("Divide"), TEXT("Num /")},
	{TEXT("Decimal"), TEXT("Num .")},
	{TEXT("LeftShift"), TEXT("Left Shift"), TEXT("Shift"), true},
	{TEXT("RightShift"), TEXT("Right Shift"), TEXT("Shift"), true},
	{TEXT("LeftControl"), TEXT("Left Ctrl"), TEXT("Ctrl"), true},
	{TEXT("RightControl"), TEXT("Right Ctrl"), TEXT("Ctrl"), true},
	{TEXT("LeftAlt"), TEXT("Left Alt"), TEXT("Alt"), true},
	{TEXT("RightAlt"), TEXT("Right Alt"), TEXT("Alt"), true},
	{TEXT("LeftCommand"), TEXT("Left Cmd"), TEXT("Cmd"), true},
	{TEXT("RightCommand"), TEXT("Right Cmd"), TEXT("Cmd"), true},
	{TEXT("Semicolon"), TEXT(";")},
	{TEXT("Equals"), TEXT("=")},
	{TEXT("Comma"), TEXT(",")},
	{TEXT("Underscore"), TEXT("_")},
	{TEXT("Hyphen"), TEXT("-")},
	{TEXT("Period"), TEXT(".")},
	{TEXT("Slash"), TEXT("/")},
	{TEXT("Tilde"), TEXT("`")},
	{TEXT("LeftBracket"), TEXT("[")},
	{TEXT("Backslash"), TEXT("\\")},
	{TEXT("RightBracket"), TEXT("]")},
	{TEXT("Apostrophe"), TEXT("'")},
};

/** Keys that are displayed as they are named. */
constexpr const TCHAR* PlainKeys[] = {TEXT("Tab"), TEXT("Enter"), TEXT("Pause"), TEXT("Escape"), TEXT("End"),
	TEXT("Home"), TEXT("Left"), TEXT("Up"), TEXT("Right"), TEXT("Down"), TEXT("Insert"), TEXT("Delete"), TEXT("A"),
	TEXT("B"), TEXT("C"), TEXT("D"), TEXT("E"), TEXT("F"), TEXT("G"), TEXT("H"), TEXT("I"), TEXT("J"), TEXT("K"),
	TEXT("L"), TEXT("M"), TEXT("N"), TEXT("O"), TEXT("P"), TEXT("Q"), TEXT("R"), TEXT("S"), TEXT("T"), TEXT("U"),
	TEXT("V"), TEXT("W"), TEXT("X"), TEXT("Y"), TEXT("Z"), TEXT("F1"), TEXT("F2"), TEXT("F3"), TEXT("F4"), TEXT("F5"),
	TEXT("F6"), TEXT("F7"), TEXT("F8"), TEXT("F9"), TEXT("F10"), TEXT("F11"), TEXT("F12")};

const FKeyDetails* FindSpecial(const FName Name)
{
	for (const FKeyDetails& Details : SpecialKeys)
	{
		if (FName(Details.Name) == Name)
		{
			return &Details;
		}
	}
	return nullptr;
}
} // namespace

bool FKey::IsValid() const
{
	if (FindSpecial(KeyName) != nullptr)
	{
		return true;
	}
	for (const TCHAR* const Plain : PlainKeys)
	{
		if (FName(Plain) == KeyName)
		{
			return true;
		}
	}
	return false;
}

bool FKey::IsModifierKey() const
{
	const FKeyDetails* const Details = FindSpecial(KeyName);
	return Details != nullptr && Details->bModifier;
}

bool FKey::IsMouseButton() const
{
	const FKeyDetails* const Details = FindSpecial(KeyName);
	return Details != nullptr && Details->bMouseButton;
}

FText FKey::GetDisplayName(bool bLongDisplayName) const
{
	const FKeyDetails* const Details = FindSpecial(KeyName);
	if (Details == nullptr)
	{
		return FText::FromName(KeyName);
	}
	return FText::FromString(
		FString(!bLongDisplayName && Details->ShortName != nullptr ? Details->ShortName : Details->LongName));
}

const FKey EKeys::AnyKey(TEXT("AnyKey"));
const FKey EKeys::MouseX(TEXT("MouseX"));
const FKey EKeys::MouseY(TEXT("MouseY"));
const FKey EKeys::MouseWheelAxis(TEXT("MouseWheelAxis"));
const FKey EKeys::MouseScrollUp(TEXT("MouseScrollUp"));
const FKey EKeys::MouseScrollDown(TEXT("MouseScrollDown"));
const FKey EKeys::LeftMouseButton(TEXT("LeftMouseButton"));
const FKey EKeys::RightMouseButton(TEXT("RightMouseButton"));
const FKey EKeys::MiddleMouseButton(TEXT("MiddleMouseButton"));
const FKey EKeys::ThumbMouseButton(TEXT("ThumbMouseButton"));
const FKey EKeys::ThumbMouseButton2(TEXT("ThumbMouseButton2"));
const FKey EKeys::BackSpace(TEXT("BackSpace"));
const FKey EKeys::Tab(TEXT("Tab"));
const FKey EKeys::Enter(TEXT("Enter"));
const FKey EKeys::Pause(TEXT("Pause"));
const FKey EKeys::CapsLock(TEXT("CapsLock"));
const FKey EKeys::Escape(TEXT("Escape"));
const FKey EKeys::SpaceBar(TEXT("SpaceBar"));
const FKey EKeys::PageUp(TEXT("PageUp"));
const FKey EKeys::PageDown(TEXT("PageDown"));
const FKey EKeys::End(TEXT("End"));
const FKey EKeys::Home(TEXT("Home"));
const FKey EKeys::Left(TEXT("Left"));
const FKey EKeys::Up(TEXT("Up"));
const FKey EKeys::Right(TEXT("Right"));
const FKey EKeys::Down(TEXT("Down"));
const FKey EKeys::Insert(TEXT("Insert"));
const FKey EKeys::Delete(TEXT("Delete"));
const FKey EKeys::Zero(TEXT("Zero"));
const FKey EKeys::One(TEXT("One"));
const FKey EKeys::Two(TEXT("Two"));
const FKey EKeys::Three(TEXT("Three"));
const FKey EKeys::Four(TEXT("Four"));
const FKey EKeys::Five(TEXT("Five"));
const FKey EKeys::Six(TEXT("Six"));
const FKey EKeys::Seven(TEXT("Seven"));
const FKey EKeys::Eight(TEXT("Eight"));
const FKey EKeys::Nine(TEXT("Nine"));
const FKey EKeys::A(TEXT("A"));
const FKey EKeys::B(TEXT("B"));
const FKey EKeys::C(TEXT("C"));
const FKey EKeys::D(TEXT("D"));
const FKey EKeys::E(TEXT("E"));
const FKey EKeys::F(TEXT("F"));
const FKey EKeys::G(TEXT("G"));
const FKey EKeys::H(TEXT("H"));
const FKey EKeys::I(TEXT("I"));
const FKey EKeys::J(TEXT("J"));
const FKey EKeys::K(TEXT("K"));
const FKey EKeys::L(TEXT("L"));
const FKey EKeys::M(TEXT("M"));
const FKey EKeys::N(TEXT("N"));
const FKey EKeys::O(TEXT("O"));
const FKey EKeys::P(TEXT("P"));
const FKey EKeys::Q(TEXT("Q"));
const FKey EKeys::R(TEXT("R"));
const FKey EKeys::S(TEXT("S"));
const FKey EKeys::T(TEXT("T"));
const FKey EKeys::U(TEXT("U"));
const FKey EKeys::V(TEXT("V"));
const FKey EKeys::W(TEXT("W"));
const FKey EKeys::X(TEXT("X"));
const FKey EKeys::Y(TEXT("Y"));
const FKey EKeys::Z(TEXT("Z"));
const FKey EKeys::Add(TEXT("Add"));
const FKey EKeys::Subtract(TEXT("Subtract"));
const FKey EKeys::Multiply(TEXT("Multiply"));
const FKey EKeys::Divide(TEXT("Divide"));
const FKey EKeys::Decimal(TEXT("Decimal"));
const FKey EKeys::F1(TEXT("F1"));
const FKey EKeys::F2(TEXT("F2"));
const FKey EKeys::F3(TEXT("F3"));
const FKey EKeys::F4(TEXT("F4"));
const FKey EKeys::F5(TEXT("F5"));
const FKey EKeys::F6(TEXT("F6"));
const FKey EKeys::F7(TEXT("F7"));
const FKey EKeys::F8(TEXT("F8"));
const FKey EKeys::F9(TEXT("F9"));
const FKey EKeys::F10(TEXT("F10"));
const FKey EKeys::F11(TEXT("F11"));
const FKey EKeys::F12(TEXT("F12"));
const FKey EKeys::LeftShift(TEXT("LeftShift"));
const FKey EKeys::RightShift(TEXT("RightShift"));
const FKey EKeys::LeftControl(TEXT("LeftControl"));
const FKey EKeys::RightControl(TEXT("RightControl"));
const FKey EKeys::LeftAlt(TEXT("LeftAlt"));
const FKey EKeys::RightAlt(TEXT("RightAlt"));
const FKey EKeys::LeftCommand(TEXT("LeftCommand"));
const FKey EKeys::RightCommand(TEXT("RightCommand"));
const FKey EKeys::Semicolon(TEXT("Semicolon"));
const FKey EKeys::Equals(TEXT("Equals"));
const FKey EKeys::Comma(TEXT("Comma"));
const FKey EKeys::Underscore(TEXT("Underscore"));
const FKey EKeys::Hyphen(TEXT("Hyphen"));
const FKey EKeys::Period(TEXT("Period"));
const FKey EKeys::Slash(TEXT("Slash"));
const FKey EKeys::Tilde(TEXT("Tilde"));
const FKey EKeys::LeftBracket(TEXT("LeftBracket"));
const FKey EKeys::Backslash(TEXT("Backslash"));
const FKey EKeys::RightBracket(TEXT("RightBracket"));
const FKey EKeys::Apostrophe(TEXT("Apostrophe"));
const FKey EKeys::Invalid;

#if PLATFORM_MAC
const FKey EKeys::Platform_Delete(EKeys::BackSpace);
#else
const FKey EKeys::Platform_Delete(EKeys::Delete);
#endif
