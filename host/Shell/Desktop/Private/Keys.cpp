// SPDX-License-Identifier: MIT
#include <QKeyEvent>

#include "Keys.h"

#include <iterator>

namespace Host
{

namespace
{

struct FPair
{
	int QtKey;
	const FKey& Key;
};

// References: the model's keys are variables of another file.
const FPair Pairs[] = {
	{Qt::Key_Backspace, EKeys::BackSpace},
	{Qt::Key_Tab, EKeys::Tab},
	{Qt::Key_Backtab, EKeys::Tab},
	{Qt::Key_Return, EKeys::Enter},
	{Qt::Key_Enter, EKeys::Enter},
	{Qt::Key_Pause, EKeys::Pause},
	{Qt::Key_CapsLock, EKeys::CapsLock},
	{Qt::Key_Escape, EKeys::Escape},
	{Qt::Key_Space, EKeys::SpaceBar},
	{Qt::Key_PageUp, EKeys::PageUp},
	{Qt::Key_PageDown, EKeys::PageDown},
	{Qt::Key_End, EKeys::End},
	{Qt::Key_Home, EKeys::Home},
	{Qt::Key_Left, EKeys::Left},
	{Qt::Key_Up, EKeys::Up},
	{Qt::Key_Right, EKeys::Right},
	{Qt::Key_Down, EKeys::Down},
	{Qt::Key_Insert, EKeys::Insert},
	{Qt::Key_Delete, EKeys::Delete},
	{Qt::Key_Shift, EKeys::LeftShift},
	{Qt::Key_Control, EKeys::LeftControl},
	{Qt::Key_Alt, EKeys::LeftAlt},
	{Qt::Key_Meta, EKeys::LeftCommand},
	{Qt::Key_Semicolon, EKeys::Semicolon},
	{Qt::Key_Equal, EKeys::Equals},
	{Qt::Key_Comma, EKeys::Comma},
	{Qt::Key_Underscore, EKeys::Underscore},
	{Qt::Key_Period, EKeys::Period},
	{Qt::Key_Slash, EKeys::Slash},
	{Qt::Key_AsciiTilde, EKeys::Tilde},
	{Qt::Key_QuoteLeft, EKeys::Tilde},
	{Qt::Key_BracketLeft, EKeys::LeftBracket},
	{Qt::Key_Backslash, EKeys::Backslash},
	{Qt::Key_BracketRight, EKeys::RightBracket},
	{Qt::Key_Apostrophe, EKeys::Apostrophe},
	{Qt::Key_F1, EKeys::F1},
	{Qt::Key_F2, EKeys::F2},
	{Qt::Key_F3, EKeys::F3},
	{Qt::Key_F4, EKeys::F4},
	{Qt::Key_F5, EKeys::F5},
	{Qt::Key_F6, EKeys::F6},
	{Qt::Key_F7, EKeys::F7},
	{Qt::Key_F8, EKeys::F8},
	{Qt::Key_F9, EKeys::F9},
	{Qt::Key_F10, EKeys::F10},
	{Qt::Key_F11, EKeys::F11},
	{Qt::Key_F12, EKeys::F12},
};

const FKey* const Letters[] = {&EKeys::A, &EKeys::B, &EKeys::C, &EKeys::D, &EKeys::E, &EKeys::F, &EKeys::G, &EKeys::H,
	&EKeys::I, &EKeys::J, &EKeys::K, &EKeys::L, &EKeys::M, &EKeys::N, &EKeys::O, &EKeys::P, &EKeys::Q, &EKeys::R,
	&EKeys::S, &EKeys::T, &EKeys::U, &EKeys::V, &EKeys::W, &EKeys::X, &EKeys::Y, &EKeys::Z};

const FKey* const Digits[] = {&EKeys::Zero, &EKeys::One, &EKeys::Two, &EKeys::Three, &EKeys::Four, &EKeys::Five,
	&EKeys::Six, &EKeys::Seven, &EKeys::Eight, &EKeys::Nine};

} // namespace

FKey ToKey(const QKeyEvent& Event)
{
	const int Key = Event.key();
	if (Key >= Qt::Key_A && Key <= Qt::Key_Z)
	{
		return *Letters[Key - Qt::Key_A];
	}
	if (Key >= Qt::Key_0 && Key <= Qt::Key_9)
	{
		return *Digits[Key - Qt::Key_0];
	}
	const bool bKeypad = Event.modifiers().testFlag(Qt::KeypadModifier);
	switch (Key)
	{
		case Qt::Key_Plus:
			return bKeypad ? EKeys::Add : EKeys::Equals;
		case Qt::Key_Minus:
			return bKeypad ? EKeys::Subtract : EKeys::Hyphen;
		case Qt::Key_Asterisk:
			return bKeypad ? EKeys::Multiply : EKeys::Eight;
		default:
			break;
	}
	for (const FPair& Pair : Pairs)
	{
		if (Pair.QtKey == Key)
		{
			return Pair.Key;
		}
	}
	return EKeys::Invalid;
}

FKey ToKey(Qt::MouseButton Button)
{
	switch (Button)
	{
		case Qt::LeftButton:
			return EKeys::LeftMouseButton;
		case Qt::RightButton:
			return EKeys::RightMouseButton;
		case Qt::MiddleButton:
			return EKeys::MiddleMouseButton;
		case Qt::BackButton:
			return EKeys::ThumbMouseButton;
		case Qt::ForwardButton:
			return EKeys::ThumbMouseButton2;
		default:
			return EKeys::Invalid;
	}
}

FModifierKeysState ToModifiers(Qt::KeyboardModifiers Modifiers)
{
	return FModifierKeysState(Modifiers.testFlag(Qt::ShiftModifier), false, Modifiers.testFlag(Qt::ControlModifier),
		false, Modifiers.testFlag(Qt::AltModifier), false, Modifiers.testFlag(Qt::MetaModifier), false, false);
}

} // namespace Host
