// SPDX-License-Identifier: MIT
#include "Host/Notifications.h"

#include "CorePrinting.h"
#include "Host/Clock.h"

#include <gtest/gtest.h>

namespace
{
class FHandler : public IProgressNotificationHandler
{
public:
	std::vector<std::string> Calls;

private:
	void StartProgressNotification(FProgressNotificationHandle, FText Text, int32 Total) override
	{
		Calls.push_back("start " + Describe(Text, 0, Total));
	}
	void UpdateProgressNotification(FProgressNotificationHandle, int32 Done, int32 Total, FText Text) override
	{
		Calls.push_back("update " + Describe(Text, Done, Total));
	}
	void CancelProgressNotification(FProgressNotificationHandle) override { Calls.push_back("end"); }

	static std::string Describe(const FText& Text, int32 Done, int32 Total)
	{
		return std::string(TCHAR_TO_UTF8(*Text.ToString())) + ' ' + std::to_string(Done) + '/' + std::to_string(Total);
	}
};

class Notifications : public ::testing::Test
{
protected:
	void SetUp() override { Manager().SetProgressNotificationHandler(&Handler); }
	void TearDown() override { Host::ResetNotifications(); }

	static FSlateNotificationManager& Manager() { return FSlateNotificationManager::Get(); }

	FHandler Handler;
};

FText Text(const TCHAR* Literal)
{
	return FText::FromString(Literal);
}
} // namespace

TEST_F(Notifications, StandForTheirTimeOnTheApplicationsClock)
{
	FNotificationInfo Info(Text(TEXT("Hello")));
	Info.ExpireDuration = 3.0f;
	Info.FadeOutDuration = 1.0f;
	Manager().AddNotification(Info);

	ASSERT_EQ(Host::StandingNotifications().Num(), 1);
	EXPECT_EQ(Host::StandingNotifications()[0].Text.ToString(), FString(TEXT("Hello")));
	EXPECT_FALSE(Host::StandingNotifications()[0].ForWindow.IsValid());
	Host::AdvanceTime(3.5);
	EXPECT_EQ(Host::StandingNotifications().Num(), 1);
	Host::AdvanceTime(0.6);
	EXPECT_EQ(Host::StandingNotifications().Num(), 0);
}

TEST_F(Notifications, StayUntilToldWhenTheyDoNotFireAndForget)
{
	FNotificationInfo Info(Text(TEXT("Working")));
	Info.bFireAndForget = false;
	Info.FadeOutDuration = 2.0f;
	const TSharedPtr<SNotificationItem> Item = Manager().AddNotification(Info);
	Host::AdvanceTime(1000.0);
	EXPECT_EQ(Host::StandingNotifications().Num(), 1);

	Item->SetText(Text(TEXT("Done")));
	EXPECT_EQ(Host::StandingNotifications()[0].Text.ToString(), FString(TEXT("Done")));
	Item->Fadeout();
	Host::AdvanceTime(2.5);
	EXPECT_EQ(Host::StandingNotifications().Num(), 0);
}

TEST_F(Notifications, ProgressIsAbsoluteAndKeepsWhatIsNotGiven)
{
	const FProgressNotificationHandle Handle = Manager().StartProgressNotification(Text(TEXT("Load")), 5);
	EXPECT_TRUE(Handle.IsValid());
	Manager().UpdateProgressNotification(Handle, 2);
	Manager().UpdateProgressNotification(Handle, 3, 7, Text(TEXT("Build")));
	Manager().UpdateProgressNotification(Handle, 1);

	EXPECT_EQ(Handler.Calls,
		(std::vector<std::string>{"start Load 0/5", "update Load 2/5", "update Build 3/7", "update Build 1/7"}));
	ASSERT_EQ(Host::RunningProgresses().Num(), 1);
	EXPECT_EQ(Host::RunningProgresses()[0].WorkDone, 1);
}

TEST_F(Notifications, ProgressEndsWhenItsWorkIsDoneAndThenIgnoresItsHandle)
{
	const FProgressNotificationHandle Handle = Manager().StartProgressNotification(Text(TEXT("Load")), 2);
	Manager().UpdateProgressNotification(Handle, 2);
	EXPECT_EQ(Host::RunningProgresses().Num(), 0);
	Manager().UpdateProgressNotification(Handle, 1);
	Manager().CancelProgressNotification(Handle);
	EXPECT_EQ(Handler.Calls, (std::vector<std::string>{"start Load 0/2", "update Load 2/2", "end"}));
}

TEST_F(Notifications, ProgressesRunSideBySideAndEndOnceEach)
{
	const FProgressNotificationHandle First = Manager().StartProgressNotification(Text(TEXT("A")), 5);
	const FProgressNotificationHandle Second = Manager().StartProgressNotification(Text(TEXT("B")), 5);
	EXPECT_NE(First, Second);
	Manager().CancelProgressNotification(First);
	Manager().CancelProgressNotification(First);
	ASSERT_EQ(Host::RunningProgresses().Num(), 1);
	EXPECT_EQ(Host::RunningProgresses()[0].Text.ToString(), FString(TEXT("B")));
	EXPECT_EQ(Handler.Calls, (std::vector<std::string>{"start A 0/5", "start B 0/5", "end"}));
}

TEST_F(Notifications, AnInvalidHandleIsHarmless)
{
	FProgressNotificationHandle Handle = Manager().StartProgressNotification(Text(TEXT("A")), 5);
	Handler.Calls.clear();
	Handle.Reset();
	EXPECT_FALSE(Handle.IsValid());
	Manager().UpdateProgressNotification(Handle, 1);
	Manager().CancelProgressNotification(Handle);
	EXPECT_TRUE(Handler.Calls.empty());
}

TEST_F(Notifications, ProgressNeedsNobodyToShowIt)
{
	Manager().SetProgressNotificationHandler(nullptr);
	const FProgressNotificationHandle Handle = Manager().StartProgressNotification(Text(TEXT("A")), 5);
	Manager().UpdateProgressNotification(Handle, 4);
	EXPECT_EQ(Host::RunningProgresses()[0].WorkDone, 4);
}
