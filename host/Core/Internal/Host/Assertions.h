// SPDX-License-Identifier: MIT
/** Where failed assertions are reported. */
#pragma once

#include "Containers/UnrealString.h"

namespace Host
{

/** A failed check, checkf, verify, ensure, or an index out of an array's bounds. */
struct FAssertion
{
	/** The expression's own text. */
	const char* Expression;
	const char* File;
	int Line;
	/** The formatted message of checkf and its like; empty for a plain check. */
	FString Message;
	/** True for ensure, after which execution is meant to go on. */
	bool bEnsure;
};

/**
 * Receives an assertion on the thread where it failed.
 *
 * It may throw to unwind, or return: then execution goes on as if the assertion had held.
 */
using FAssertionHandler = void (*)(const FAssertion& Assertion, void* Context);

/** A handler with its context; a null handler stands for the default. */
struct FAssertionHandlerBinding
{
	FAssertionHandler Handler = nullptr;
	void* Context = nullptr;

	operator FAssertionHandler() const { return Handler; }
};

/**
 * Sets the handler for the whole program; null restores the default, which prints and, but for ensure, aborts.
 *
 * @return the former handler
 */
FAssertionHandlerBinding SetAssertionHandler(FAssertionHandler Handler, void* Context = nullptr);

/** The handler that is set, for restoring it later. */
FAssertionHandlerBinding GetAssertionHandler();

} // namespace Host
