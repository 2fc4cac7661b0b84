// SPDX-License-Identifier: MIT
#include "CoreGlobals.h"
#include "Host/LogSink.h"
#include "fixtures/AssertionsThrow.h"
#include "fixtures/CorePrinting.h"

DEFINE_LOG_CATEGORY_STATIC(LogOnlyWarnings, Warning, All);
DEFINE_LOG_CATEGORY_STATIC(LogCompiledOut, Log, Error);

namespace
{

class FLogTest : public testing::Test, public Host::ILogSink
{
protected:
	void SetUp() override
	{
		bFormerStderr = Host::SetLogToStderr(false);
		Host::AddLogSink(this);
	}
	void TearDown() override
	{
		Host::RemoveLogSink(this);
		Host::SetLogToStderr(bFormerStderr);
	}
	void Write(const Host::FLogLine& Line) override { Lines.Add(Line); }

	TArray<Host::FLogLine> Lines;
	bool bFormerStderr = true;
};

} // namespace

TEST_F(FLogTest, ALineHasItsCategoryVerbosityAndText)
{
	UE_LOG(LogTemp, Log, TEXT("%d objects of %s"), 3, TEXT("Shirt"));

	ASSERT_EQ(Lines.Num(), 1);
	EXPECT_EQ(Lines[0].Category, FName(TEXT("LogTemp")));
	EXPECT_EQ(Lines[0].Verbosity, ELogVerbosity::Log);
	EXPECT_TEXT_EQ(Lines[0].Text, TEXT("3 objects of Shirt"));
}

TEST_F(FLogTest, DropsLinesBelowTheCategorysVerbosity)
{
	UE_LOG(LogOnlyWarnings, Log, TEXT("dropped"));
	UE_LOG(LogOnlyWarnings, Warning, TEXT("kept"));
	LogOnlyWarnings.SetVerbosity(ELogVerbosity::VeryVerbose);
	UE_LOG(LogOnlyWarnings, Verbose, TEXT("kept now"));
	LogOnlyWarnings.SetVerbosity(ELogVerbosity::Warning);

	ASSERT_EQ(Lines.Num(), 2);
	EXPECT_TEXT_EQ(Lines[0].Text, TEXT("kept"));
	EXPECT_TEXT_EQ(Lines[1].Text, TEXT("kept now"));
}

TEST_F(FLogTest, DoesNotEvenEvaluateTheArgumentsOfWhatIsCompiledOut)
{
	int32 NumEvaluated = 0;
	LogCompiledOut.SetVerbosity(ELogVerbosity::All);

	UE_LOG(LogCompiledOut, Warning, TEXT("%d"), ++NumEvaluated);
	UE_CLOG(NumEvaluated > 0, LogTemp, Warning, TEXT("never"));

	EXPECT_EQ(NumEvaluated, 0);
	EXPECT_EQ(Lines.Num(), 0);
}

TEST_F(FLogTest, AFatalLineIsAFailedAssertion)
{
	const FAssertionsThrow Assertions;

	EXPECT_THROW(UE_LOG(LogTemp, Fatal, TEXT("the end of %s"), TEXT("it")), FAssertionFailure);
	ASSERT_EQ(Lines.Num(), 1);
	EXPECT_TEXT_EQ(Lines[0].Text, TEXT("the end of it"));
}

TEST_F(FLogTest, WarningsGoToStderrWhenAllowed)
{
	testing::internal::CaptureStderr();
	Host::SetLogToStderr(true);
	UE_LOG(LogTemp, Display, TEXT("not shown"));
	UE_LOG(LogTemp, Warning, TEXT("shown"));
	Host::SetLogToStderr(false);

	EXPECT_EQ(testing::internal::GetCapturedStderr(), "LogTemp: Warning: shown\n");
}
