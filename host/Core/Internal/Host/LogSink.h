// SPDX-License-Identifier: MIT
/** Receivers of the log. */
#pragma once

#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

namespace Host
{

struct FLogLine
{
	FName Category;
	ELogVerbosity::Type Verbosity;
	FString Text;
};

/** Receives each line on the thread that wrote it, one at a time; it may write to the log itself. */
struct ILogSink
{
	virtual ~ILogSink() = default;
	virtual void Write(const FLogLine& Line) = 0;
};

/** Adds a sink, which is not owned and has to be removed before its end. */
void AddLogSink(ILogSink* Sink);
void RemoveLogSink(ILogSink* Sink);

/** Whether lines of importance Warning and above go to stderr too; true at start. @return the former value */
bool SetLogToStderr(bool bEnable);

} // namespace Host
