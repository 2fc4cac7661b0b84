// SPDX-License-Identifier: MIT
#include "FrameLoop.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

#include <thread>

namespace
{
using Host::FFrameLoop;

TEST(FrameLoop, RunsAFrameForInputToAnyWindow)
{
	int Frames = 0;
	FFrameLoop Loop(
		[&Frames](double)
		{
			++Frames;
			return false;
		});
	ASSERT_TRUE(QTest::qWaitFor([&] { return Frames == 1; }));
	QWidget Window;
	Window.show();
	const int Before = Frames;
	QTest::mouseClick(&Window, Qt::LeftButton);
	EXPECT_TRUE(QTest::qWaitFor([&] { return Frames > Before; }));
}

TEST(FrameLoop, IsWokenFromAnotherThread)
{
	int Frames = 0;
	FFrameLoop Loop(
		[&Frames](double)
		{
			++Frames;
			return false;
		});
	ASSERT_TRUE(QTest::qWaitFor([&] { return Frames == 1; }));
	std::thread([&Loop] { Loop.Wake(); }).join();
	EXPECT_TRUE(QTest::qWaitFor([&] { return Frames == 2; }));
}

TEST(FrameLoop, GoesOnAtItsPaceWhileSomethingMoves)
{
	int Frames = 0;
	double Seconds = 0;
	FFrameLoop Loop(
		[&](double Step)
		{
			++Frames;
			Seconds += Step;
			return Frames < 10;
		});
	EXPECT_TRUE(QTest::qWaitFor([&] { return Frames == 10; }));
	EXPECT_GE(Seconds, 9 * 0.015);
}

TEST(FrameLoop, TellsAtMostHalfASecondOfAProgramThatStoodStill)
{
	std::vector<double> Steps;
	FFrameLoop Loop(
		[&Steps](double Step)
		{
			Steps.push_back(Step);
			return false;
		});
	Loop.RunFrame();
	for (const double Step : Steps)
	{
		EXPECT_GE(Step, 0.0);
		EXPECT_LE(Step, 0.5);
	}
	EXPECT_EQ(Loop.FrameCount(), Steps.size());
}
} // namespace
