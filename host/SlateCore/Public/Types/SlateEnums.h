// SPDX-License-Identifier: MIT
#pragma once

// The enumerations that widgets share.

#include "CoreMinimal.h"

enum EHorizontalAlignment
{
	HAlign_Fill,
	HAlign_Left,
	HAlign_Center,
	HAlign_Right,
};

enum EVerticalAlignment
{
	VAlign_Fill,
	VAlign_Top,
	VAlign_Center,
	VAlign_Bottom,
};

enum EOrientation : int
{
	Orient_Horizontal,
	Orient_Vertical,
};

namespace ETextJustify
{
enum Type : int
{
	Left,
	Center,
	Right,
};
}

/** Why a text was handed over. */
namespace ETextCommit
{
enum Type : int
{
	Default,
	OnEnter,
	OnUserMovedFocus,
	OnCleared,
};
}

/** What a menu entry or a tool button looks like and does. */
enum class EUserInterfaceActionType : uint8
{
	None,
	Button,
	ToggleButton,
	RadioButton,
	Check,
	CollapsedButton,
};

enum class EInvalidateWidgetReason : uint8
{
	None = 0,
	Layout = 1 << 0,
	Paint = 1 << 1,
	Visibility = 1 << 3,
};
