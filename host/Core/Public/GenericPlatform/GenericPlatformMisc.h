// SPDX-License-Identifier: MIT
/** Kinds and answers of message boxes. */
#pragma once

#include "HAL/Platform.h"

namespace EAppReturnType
{
enum Type
{
	No,
	Yes,
	YesAll,
	NoAll,
	Cancel,
	Ok,
	Retry,
	Continue,
};
}

namespace EAppMsgType
{
/** Which buttons a message box offers. */
enum Type
{
	Ok,
	YesNo,
	OkCancel,
	YesNoCancel,
	CancelRetryContinue,
	YesNoYesAllNoAll,
	YesNoYesAllNoAllCancel,
	YesNoYesAll,
};
} // namespace EAppMsgType

enum class EAppMsgCategory : uint8
{
	Warning,
	Error,
	Success,
	Info,
};
