// SPDX-License-Identifier: MIT
/** What stands in for windows where there are none. */
#pragma once

#include "Host/DialogService.h"
#include "Host/LogSink.h"

#include <deque>
#include <string>
#include <vector>

namespace Host
{

/** Gives each dialog the next answer of its kind; without one it confirms warnings and gives messages their default. */
class FConsoleDialogs : public IDialogService
{
public:
	FConsoleDialogs();
	virtual ~FConsoleDialogs() override;

	virtual EAppReturnType::Type OpenMessage(EAppMsgCategory Category, EAppMsgType::Type Type,
		EAppReturnType::Type Default, const FText& Message, const FText& Title) override;
	virtual FSuppressableAnswer OpenSuppressable(const FSuppressableRequest& Request) override;

	void AnswerMessage(EAppReturnType::Type Answer) { MessageAnswers.push_back(Answer); }
	void AnswerSuppressable(const FSuppressableAnswer& Answer) { SuppressableAnswers.push_back(Answer); }
	/** Answers that no dialog has taken yet. */
	std::size_t CountAnswersLeft() const { return MessageAnswers.size() + SuppressableAnswers.size(); }

	/** Messages since the last call, in one line each. */
	std::vector<std::string> TakeMessages();

private:
	IDialogService* Former;
	std::vector<std::string> Messages;
	std::deque<EAppReturnType::Type> MessageAnswers;
	std::deque<FSuppressableAnswer> SuppressableAnswers;
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
