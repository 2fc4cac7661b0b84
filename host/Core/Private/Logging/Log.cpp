// SPDX-License-Identifier: MIT
#include "Host/LogSink.h"
#include "CoreGlobals.h"

#include <atomic>
#include <cstdio>
#include <mutex>
#include <thread>

bool GIsEditor = true;

DEFINE_LOG_CATEGORY(LogTemp);

namespace
{

struct FSinks
{
	std::recursive_mutex Mutex;
	TArray<Host::ILogSink*> Sinks;
	std::atomic<bool> bStderr = true;
};

FSinks& Sinks()
{
	// Never destroyed: static objects log from their destructors.
	static FSinks& Instance = *new FSinks();
	return Instance;
}

void PrintToStderr(const Host::FLogLine& Line)
{
	std::fprintf(stderr, "%s: %s: %s\n", TCHAR_TO_UTF8(*Line.Category.ToString()),
		TCHAR_TO_UTF8(ToString(Line.Verbosity)), TCHAR_TO_UTF8(*Line.Text));
}

const std::thread::id GameThreadId = std::this_thread::get_id();

} // namespace

bool IsInGameThread()
{
	return std::this_thread::get_id() == GameThreadId;
}

const TCHAR* ToString(ELogVerbosity::Type Verbosity)
{
	switch (Verbosity)
	{
		case ELogVerbosity::NoLogging:
			return TEXT("NoLogging");
		case ELogVerbosity::Fatal:
			return TEXT("Fatal");
		case ELogVerbosity::Error:
			return TEXT("Error");
		case ELogVerbosity::Warning:
			return TEXT("Warning");
		case ELogVerbosity::Display:
			return TEXT("Display");
		case ELogVerbosity::Log:
			return TEXT("Log");
		case ELogVerbosity::Verbose:
			return TEXT("Verbose");
		case ELogVerbosity::VeryVerbose:
			return TEXT("VeryVerbose");
	}
	return TEXT("UnknownVerbosity");
}

void Host::AddLogSink(ILogSink* Sink)
{
	check(Sink);
	std::lock_guard Lock(Sinks().Mutex);
	Sinks().Sinks.AddUnique(Sink);
}

void Host::RemoveLogSink(ILogSink* Sink)
{
	std::lock_guard Lock(Sinks().Mutex);
	Sinks().Sinks.Remove(Sink);
}

bool Host::SetLogToStderr(bool bEnable)
{
	return Sinks().bStderr.exchange(bEnable);
}

void FMsg::LogArguments(const ANSICHAR* File, int32 Line, const FName& Category, ELogVerbosity::Type Verbosity,
	const TCHAR* Format, const UE::Core::Private::FFormatArgument* Args, int32 NumArgs)
{
	Host::FLogLine LogLine{Category, Verbosity, FString()};
	LogLine.Text.AppendFormat(Format, Args, NumArgs);
	{
		std::lock_guard Lock(Sinks().Mutex);
		if (Sinks().bStderr && Verbosity <= ELogVerbosity::Warning)
		{
			PrintToStderr(LogLine);
		}
		// A sink may add or remove sinks.
		const TArray<Host::ILogSink*> Receivers = Sinks().Sinks;
		for (Host::ILogSink* Sink : Receivers)
		{
			Sink->Write(LogLine);
		}
	}
	if (Verbosity == ELogVerbosity::Fatal)
	{
		FDebug::CheckVerifyFailed("Fatal error", File, Line, TEXT("%s"), *LogLine.Text);
	}
}
