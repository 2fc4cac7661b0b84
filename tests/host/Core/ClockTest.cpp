// SPDX-License-Identifier: MIT
#include "Host/Clock.h"
#include "fixtures/AssertionsThrow.h"

#include <gtest/gtest.h>

TEST(Clock, MovesOnlyWhenItIsAdvanced)
{
	const double Start = Host::AppTime();
	EXPECT_EQ(Host::AppTime(), Start);

	Host::AdvanceTime(0.25);
	EXPECT_EQ(Host::AppTime() - Start, 0.25);
}

TEST(Clock, NeverGoesBack)
{
	FAssertionsThrow Assertions;
	const double Start = Host::AppTime();

	EXPECT_THROW(Host::AdvanceTime(-1.0), FAssertionFailure);
	EXPECT_EQ(Host::AppTime(), Start);
}
