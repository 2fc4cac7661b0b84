// SPDX-License-Identifier: MIT
#include "TimerManager.h"
#include "fixtures/AssertionsThrow.h"

#include <gtest/gtest.h>
#include <string>

namespace
{

/** A manager, and the calls of its timers as letters. */
class Timers : public testing::Test
{
protected:
	TFunction<void(void)> Note(char Letter)
	{
		return [this, Letter] { Calls.push_back(Letter); };
	}

	FTimerManager Manager;
	FTimerHandle Handle;
	std::string Calls;
};

struct FListener : TSharedFromThis<FListener>
{
	void Hear() { ++NumHeard; }
	int32 NumHeard = 0;
};

} // namespace

TEST_F(Timers, AreCalledAfterOneFullRate)
{
	Manager.SetTimer(Handle, Note('a'), 1.0f, false);
	Manager.Tick(0.75f);
	EXPECT_EQ(Calls, "");

	Manager.Tick(0.25f);
	EXPECT_EQ(Calls, "a");

	Manager.Tick(5.0f);
	EXPECT_EQ(Calls, "a");
}

TEST_F(Timers, TakeAFirstDelayOfTheirOwn)
{
	Manager.SetTimer(Handle, Note('a'), 1.0f, true, 0.25f);

	Manager.Tick(0.25f);
	EXPECT_EQ(Calls, "a");
	Manager.Tick(0.75f);
	EXPECT_EQ(Calls, "a");
	Manager.Tick(0.25f);
	EXPECT_EQ(Calls, "aa");
}

TEST_F(Timers, LoopOncePerPeriodThatPassed)
{
	Manager.SetTimer(Handle, Note('a'), 0.5f, true);

	Manager.Tick(1.75f);
	EXPECT_EQ(Calls, "aaa");
	Manager.Tick(0.25f);
	EXPECT_EQ(Calls, "aaaa");
}

TEST_F(Timers, AreCalledInTheOrderOfTheirTime)
{
	FTimerHandle Other;
	Manager.SetTimer(Handle, Note('a'), 0.75f, true);
	Manager.SetTimer(Other, Note('b'), 0.5f, true);

	Manager.Tick(1.5f);

	EXPECT_EQ(Calls, "baba"
					 "b");
}

TEST_F(Timers, SettingAValidHandleReplacesItsTimer)
{
	Manager.SetTimer(Handle, Note('a'), 1.0f, false);
	const FTimerHandle Former = Handle;
	Manager.SetTimer(Handle, Note('b'), 1.0f, false);

	EXPECT_NE(Handle, Former);
	EXPECT_FALSE(Manager.TimerExists(Former));
	Manager.Tick(1.0f);
	EXPECT_EQ(Calls, "b");
}

TEST_F(Timers, ClearingEndsThemAndInvalidatesTheHandle)
{
	Manager.SetTimer(Handle, Note('a'), 1.0f, true);
	ASSERT_TRUE(Handle.IsValid());
	ASSERT_TRUE(Manager.IsTimerActive(Handle));

	Manager.ClearTimer(Handle);
	Manager.ClearTimer(Handle);

	EXPECT_FALSE(Handle.IsValid());
	Manager.Tick(2.0f);
	EXPECT_EQ(Calls, "");
}

TEST_F(Timers, ARateOfZeroOnlyClears)
{
	Manager.SetTimer(Handle, Note('a'), 1.0f, true);

	Manager.SetTimer(Handle, Note('b'), 0.0f, true);

	EXPECT_FALSE(Handle.IsValid());
	Manager.Tick(2.0f);
	EXPECT_EQ(Calls, "");
}

TEST_F(Timers, MayBeClearedInTheirOwnCall)
{
	Manager.SetTimer(
		Handle,
		[this]
		{
			Calls += 'a';
			EXPECT_TRUE(Manager.TimerExists(Handle));
			Manager.ClearTimer(Handle);
		},
		0.5f, true);

	Manager.Tick(5.0f);

	EXPECT_EQ(Calls, "a");
	EXPECT_FALSE(Handle.IsValid());
}

TEST_F(Timers, MayBeSetAgainInTheirOwnCallAndWaitForALaterTick)
{
	Manager.SetTimer(
		Handle,
		[this]
		{
			Calls += 'a';
			Manager.SetTimer(Handle, Note('b'), 0.5f, false);
		},
		0.5f, false);

	Manager.Tick(5.0f);
	EXPECT_EQ(Calls, "a");
	EXPECT_TRUE(Manager.TimerExists(Handle));
	Manager.Tick(0.5f);
	EXPECT_EQ(Calls, "ab");
}

TEST_F(Timers, ForTheNextTickComeOnceHoweverShortItIs)
{
	Manager.SetTimerForNextTick(
		[this]
		{
			Calls += 'a';
			Manager.SetTimerForNextTick(Note('b'));
		});
	EXPECT_EQ(Calls, "");

	Manager.Tick(0.0f);
	EXPECT_EQ(Calls, "a");
	Manager.Tick(0.0f);
	EXPECT_EQ(Calls, "ab");
	Manager.Tick(0.0f);
	EXPECT_EQ(Calls, "ab");
}

TEST_F(Timers, ARunOutTimerKeepsItsHandleValidButDoesNotExist)
{
	Manager.SetTimer(Handle, Note('a'), 1.0f, false);

	Manager.Tick(1.0f);

	EXPECT_TRUE(Handle.IsValid());
	EXPECT_FALSE(Manager.TimerExists(Handle));
	EXPECT_FALSE(Manager.IsTimerActive(Handle));
	EXPECT_EQ(Manager.GetTimerRate(Handle), -1.0f);
}

TEST_F(Timers, OfADeadObjectEndSilently)
{
	TSharedPtr<FListener> Listener = MakeShared<FListener>();
	Manager.SetTimer(Handle, FTimerDelegate::CreateSP(Listener.ToSharedRef(), &FListener::Hear), 0.5f, true);
	Manager.Tick(0.5f);
	EXPECT_EQ(Listener->NumHeard, 1);

	Listener.Reset();
	Manager.Tick(0.5f);

	EXPECT_FALSE(Manager.TimerExists(Handle));
}

TEST_F(Timers, PausedOnesKeepTheRestOfTheirTime)
{
	Manager.SetTimer(Handle, Note('a'), 1.0f, false);
	Manager.Tick(0.75f);
	Manager.PauseTimer(Handle);
	Manager.Tick(10.0f);
	EXPECT_TRUE(Manager.TimerExists(Handle));
	EXPECT_TRUE(Manager.IsTimerPaused(Handle));
	EXPECT_FALSE(Manager.IsTimerActive(Handle));
	EXPECT_EQ(Manager.GetTimerRemaining(Handle), 0.25f);
	EXPECT_EQ(Manager.GetTimerElapsed(Handle), 0.75f);

	Manager.UnPauseTimer(Handle);
	Manager.Tick(0.25f);
	EXPECT_EQ(Calls, "a");
}

TEST_F(Timers, ATickWithinATickIsAFault)
{
	FAssertionsThrow Assertions;
	Manager.SetTimer(
		Handle, [this] { EXPECT_THROW(Manager.Tick(1.0f), FAssertionFailure); }, 0.5f, false);

	Manager.Tick(0.5f);
	EXPECT_THROW(Manager.Tick(-1.0f), FAssertionFailure);
}
