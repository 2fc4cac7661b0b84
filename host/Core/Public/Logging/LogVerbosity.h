// SPDX-License-Identifier: MIT
/** How important a line of the log is. */
#pragma once

#include "HAL/Platform.h"

namespace ELogVerbosity
{
enum Type : uint8
{
	NoLogging = 0,
	/** Reported as a failed assertion. */
	Fatal,
	Error,
	Warning,
	Display,
	Log,
	Verbose,
	VeryVerbose,
	All = VeryVerbose
};
}

CORE_API const TCHAR* ToString(ELogVerbosity::Type Verbosity);
