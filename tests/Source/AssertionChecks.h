// SPDX-License-Identifier: MIT
/** Expecting failed assertions of the engine layer. */
#pragma once

#include "Host/Assertions.h"
#include "TestAssertions.h"

#include <gtest/gtest.h>

/** While it lives, a failed assertion is counted and execution goes on. */
class FAssertionsGoOn
{
public:
	FAssertionsGoOn()
		: Former(Host::SetAssertionHandler(
			  [](const Host::FAssertion&, void* Context) { ++static_cast<FAssertionsGoOn*>(Context)->Count; }, this))
	{
	}
	~FAssertionsGoOn() { Host::SetAssertionHandler(Former.Handler, Former.Context); }
	FAssertionsGoOn(const FAssertionsGoOn&) = delete;
	FAssertionsGoOn& operator=(const FAssertionsGoOn&) = delete;

	int Count = 0;

private:
	Host::FAssertionHandlerBinding Former;
};

/** The statement ends in a failed assertion; what stands behind it is not reached. */
#define EXPECT_ASSERTION(...) EXPECT_FALSE(Assertions().Catch([&] { __VA_ARGS__; }).empty())

/** The statement reports one failed assertion and goes on to its end. */
#define EXPECT_REPORTED_ASSERTION(...)                                                                                 \
	{                                                                                                                  \
		FAssertionsGoOn GoOn;                                                                                          \
		__VA_ARGS__;                                                                                                   \
		EXPECT_EQ(GoOn.Count, 1);                                                                                      \
	}
