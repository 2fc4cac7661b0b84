// SPDX-License-Identifier: MIT
#include "fixtures/AssertionsThrow.h"
#include "fixtures/CorePrinting.h"

namespace
{

struct FRecorder
{
	TArray<Host::FAssertion> Reports;

	static void Receive(const Host::FAssertion& Assertion, void* Context)
	{
		static_cast<FRecorder*>(Context)->Reports.Add(Assertion);
	}
};

/** Restores the handler that was set before. */
class FRecorderSet
{
public:
	explicit FRecorderSet(FRecorder& Recorder)
		: Former(Host::SetAssertionHandler(&FRecorder::Receive, &Recorder))
	{
	}
	~FRecorderSet() { Host::SetAssertionHandler(Former.Handler, Former.Context); }

private:
	Host::FAssertionHandlerBinding Former;
};

} // namespace

TEST(Assertion, ReportsTheExpressionsOwnText)
{
	FRecorder Recorder;
	const FRecorderSet Set(Recorder);
	const int32 Count = 2;

	check(Count == 3);
	checkf(Count > 5, TEXT("only %d of %s"), Count, TEXT("many"));
	check(Count == 2);

	ASSERT_EQ(Recorder.Reports.Num(), 2);
	EXPECT_STREQ(Recorder.Reports[0].Expression, "Count == 3");
	EXPECT_TRUE(Recorder.Reports[0].Message.IsEmpty());
	EXPECT_FALSE(Recorder.Reports[0].bEnsure);
	EXPECT_STREQ(Recorder.Reports[1].Expression, "Count > 5");
	EXPECT_TEXT_EQ(Recorder.Reports[1].Message, TEXT("only 2 of many"));
	EXPECT_STREQ(Recorder.Reports[0].File, __FILE__);
	EXPECT_GT(Recorder.Reports[0].Line, 0);
}

TEST(Assertion, GoesOnWhenTheHandlerReturns)
{
	FRecorder Recorder;
	const FRecorderSet Set(Recorder);
	bool bWentOn = false;

	verify(bWentOn);
	bWentOn = true;

	EXPECT_TRUE(bWentOn);
	EXPECT_EQ(Recorder.Reports.Num(), 1);
}

TEST(Assertion, EnsureGivesTheExpressionsTruthAndReportsAPlaceOnce)
{
	FRecorder Recorder;
	const FRecorderSet Set(Recorder);

	for (int32 Turn = 0; Turn < 3; ++Turn)
	{
		EXPECT_FALSE(ensureMsgf(Turn < 0, TEXT("turn %d"), Turn));
	}
	EXPECT_TRUE(ensure(true));
	EXPECT_EQ(Recorder.Reports.Num(), 1);
	EXPECT_TRUE(Recorder.Reports[0].bEnsure);
	EXPECT_TEXT_EQ(Recorder.Reports[0].Message, TEXT("turn 0"));

	for (int32 Turn = 0; Turn < 3; ++Turn)
	{
		EXPECT_FALSE(ensureAlways(Turn < 0));
	}
	EXPECT_EQ(Recorder.Reports.Num(), 4);
}

TEST(Assertion, AHandlerMayThrow)
{
	const FAssertionsThrow Assertions;

	EXPECT_THROW(check(false), FAssertionFailure);
	EXPECT_THROW(checkNoEntry(), FAssertionFailure);
}

TEST(AssertionDeathTest, TheDefaultHandlerPrintsAndEndsTheProgram)
{
	testing::FLAGS_gtest_death_test_style = "threadsafe";
	EXPECT_DEATH(
		{
			Host::SetAssertionHandler(nullptr);
			checkf(1 + 1 == 3, TEXT("sum %d"), 2);
		},
		"1 \\+ 1 == 3.*sum 2");
}
