// SPDX-License-Identifier: MIT
#include "Host/Assertions.h"

#include <cstdio>
#include <cstdlib>
#include <mutex>

namespace
{

Host::FAssertionHandlerBinding& Current()
{
	static Host::FAssertionHandlerBinding Binding;
	return Binding;
}

std::mutex& Guard()
{
	static std::mutex Mutex;
	return Mutex;
}

void PrintAndAbort(const Host::FAssertion& Assertion)
{
	std::fprintf(stderr, "%s failed: %s [%s:%d] %s\n", Assertion.bEnsure ? "Ensure condition" : "Assertion",
		Assertion.Expression, Assertion.File, Assertion.Line, TCHAR_TO_UTF8(*Assertion.Message));
	if (!Assertion.bEnsure)
	{
		std::abort();
	}
}

void HandOver(const Host::FAssertion& Assertion)
{
	const Host::FAssertionHandlerBinding Binding = Host::GetAssertionHandler();
	if (Binding.Handler)
	{
		Binding.Handler(Assertion, Binding.Context);
	}
	else
	{
		PrintAndAbort(Assertion);
	}
}

} // namespace

Host::FAssertionHandlerBinding Host::SetAssertionHandler(FAssertionHandler Handler, void* Context)
{
	std::lock_guard Lock(Guard());
	const FAssertionHandlerBinding Former = Current();
	Current() = {Handler, Context};
	return Former;
}

Host::FAssertionHandlerBinding Host::GetAssertionHandler()
{
	std::lock_guard Lock(Guard());
	return Current();
}

void FDebug::Report(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Format,
	const UE::Core::Private::FFormatArgument* Args, int32 NumArgs, bool bEnsure)
{
	Host::FAssertion Assertion{Expression, File, Line, FString(), bEnsure};
	Assertion.Message.AppendFormat(Format, Args, NumArgs);
	HandOver(Assertion);
}

void FDebug::IndexOutOfBounds(int64 Index, int64 Num)
{
	HandOver({"(Index >= 0) & (Index < ArrayNum)", __FILE__, __LINE__,
		FString::Printf(TEXT("Array index out of bounds: %lld into an array of size %lld"), Index, Num), false});
}
