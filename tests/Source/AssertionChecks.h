// SPDX-License-Identifier: MIT
/** Expecting failed assertions of the engine layer. */
#pragma once

#include "AssertionRecorder.h"
#include "AssertionsThrow.h"

#include <gtest/gtest.h>

/** The statement ends in a failed assertion; what stands behind it is not reached. */
#define EXPECT_ASSERTION(...) EXPECT_THROW(__VA_ARGS__, FAssertionFailure)

/** The statement reports one failed assertion and goes on to its end. */
#define EXPECT_REPORTED_ASSERTION(...)                                                                                 \
	{                                                                                                                  \
		FAssertionRecorder Reported;                                                                                   \
		__VA_ARGS__;                                                                                                   \
		EXPECT_EQ(Reported.Num(), 1);                                                                                  \
	}
