// SPDX-License-Identifier: MIT
#include "PictureQuality.h"

#include <gtest/gtest.h>

namespace
{
using Host::FPictureQuality;

const QSize View(1000, 1000);

TEST(PictureQuality, BeginsCoarselyAsLongAsNothingIsMeasured)
{
	EXPECT_EQ(FPictureQuality().ForMotion(View), 0);
}

TEST(PictureQuality, DrawsFinelyInMotionWhereThatKeepsThePace)
{
	FPictureQuality Quality;
	Quality.Note(FPictureQuality::Finest, View, 12.0);
	EXPECT_EQ(Quality.ForMotion(View), FPictureQuality::Finest);
}

TEST(PictureQuality, FallsBackToWhatKeepsThePaceWhenTheFinestDoesNot)
{
	FPictureQuality Quality;
	Quality.Note(FPictureQuality::Finest, View, 1500.0);
	const int InMotion = Quality.ForMotion(View);
	EXPECT_LT(InMotion, FPictureQuality::Finest - 1);
	// A quarter of the pixels leaves time for more.
	EXPECT_GE(Quality.ForMotion(QSize(500, 500)), InMotion);
	EXPECT_EQ(Quality.ForMotion(QSize(50, 50)), FPictureQuality::Finest);
}

TEST(PictureQuality, LearnsFromLaterPictures)
{
	FPictureQuality Quality;
	Quality.Note(FPictureQuality::Finest, View, 1500.0);
	const int Before = Quality.ForMotion(View);
	for (int Picture = 0; Picture < 20; ++Picture)
	{
		Quality.Note(Before + 1, View, 10.0);
	}
	EXPECT_GT(Quality.ForMotion(View), Before);
}

TEST(PictureQuality, ScalesThePictureAndNeverToNothing)
{
	EXPECT_EQ(FPictureQuality::SizeOf(FPictureQuality::Finest, View), View);
	EXPECT_EQ(FPictureQuality::SizeOf(0, View), QSize(350, 350));
	EXPECT_EQ(FPictureQuality::SizeOf(0, QSize(1, 1)), QSize(1, 1));
}
} // namespace
