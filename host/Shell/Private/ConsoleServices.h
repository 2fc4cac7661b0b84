// SPDX-License-Identifier: MIT
/** What stands in for windows where there are none. */
#pragma once

#include "Host/DialogService.h"
#include "Host/LogSink.h"

#include <string>
#include <vector>

namespace Host
{

/** Confirms warnings, prints messages to stderr and gives them their default answer. */
class FConsoleDialogs : public IDialogService
{
public:
	FConsoleDialogs();
	virtual ~FConsoleDialogs() override;

	virtual EAppReturnType::Type OpenMessage(EAppMsgCategory Category, EAppMsgType::Type Type,
		EAppReturnType::Type Default, const FText& Message, const FText& Title) override;
	virtual FSuppressableAnswer OpenSuppressable(const FSuppressableRequest& Request) override;

	/** Messages since the last call, in one line each. */
	std::vector<std::string> TakeMessages();

private:
	IDialogService* Former;
	std::vector<std::string> Messages;
};

/** Prints the log to stderr: warnings and errors, or every line. */
class FConsoleLog : public ILogSink
{
public:
	explicit FConsoleLog(bool bInVerbose);
	virtual ~FConsoleLog() override;
	virtual void Write(const FLogLine& Line) override;

private:
	bool bVerbose;
	bool bFormerStderr;
};

} // namespace Host
