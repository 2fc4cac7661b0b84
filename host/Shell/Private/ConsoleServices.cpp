// SPDX-License-Identifier: MIT
#include "ConsoleServices.h"

#include "Containers/StringConv.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace Host
{

namespace
{

std::string ToOneLine(const FText& Text)
{
	std::string Line = TCHAR_TO_UTF8(*Text.ToString());
	std::replace(Line.begin(), Line.end(), '\n', ' ');
	return Line;
}

template <typename AnswerType>
AnswerType TakeAnswer(std::deque<AnswerType>& Answers, AnswerType Otherwise)
{
	if (Answers.empty())
	{
		return Otherwise;
	}
	const AnswerType Answer = Answers.front();
	Answers.pop_front();
	return Answer;
}

} // namespace

FConsoleDialogs::FConsoleDialogs()
	: Former(SetDialogService(this))
{
}

FConsoleDialogs::~FConsoleDialogs()
{
	SetDialogService(Former);
}

EAppReturnType::Type FConsoleDialogs::OpenMessage(EAppMsgCategory /*Category*/, EAppMsgType::Type /*Type*/,
	EAppReturnType::Type Default, const FText& Message, const FText& Title)
{
	Messages.push_back(Title.IsEmpty() ? ToOneLine(Message) : ToOneLine(Title) + ": " + ToOneLine(Message));
	return TakeAnswer(MessageAnswers, Default);
}

FSuppressableAnswer FConsoleDialogs::OpenSuppressable(const FSuppressableRequest& /*Request*/)
{
	return TakeAnswer(SuppressableAnswers, FSuppressableAnswer{true, false});
}

std::vector<std::string> FConsoleDialogs::TakeMessages()
{
	return std::exchange(Messages, {});
}

FConsoleLog::FConsoleLog(bool bInVerbose)
	: bVerbose(bInVerbose)
	, bFormerStderr(SetLogToStderr(false))
{
	AddLogSink(this);
}

FConsoleLog::~FConsoleLog()
{
	RemoveLogSink(this);
	SetLogToStderr(bFormerStderr);
}

void FConsoleLog::Write(const FLogLine& Line)
{
	if (bVerbose || Line.Verbosity <= ELogVerbosity::Warning)
	{
		std::fprintf(stderr, "%s: %s\n", TCHAR_TO_UTF8(*Line.Category.ToString()), TCHAR_TO_UTF8(*Line.Text));
	}
}

} // namespace Host
