// SPDX-License-Identifier: MIT
#include "InputCoreTypes.h"
#include "fixtures/CorePrinting.h"

#include <gtest/gtest.h>

TEST(Key, IsKnownByItsName)
{
	EXPECT_EQ(EKeys::F.GetFName(), FName(TEXT("F")));
	EXPECT_TRUE(FKey(TEXT("leftcontrol")) == EKeys::LeftControl);
	EXPECT_FALSE(EKeys::LeftControl == EKeys::RightControl);
	EXPECT_EQ(GetTypeHash(FKey("F")), GetTypeHash(EKeys::F));
}

TEST(Key, IsValidWhenItIsOneOfTheKeys)
{
	EXPECT_TRUE(EKeys::Delete.IsValid());
	EXPECT_TRUE(EKeys::LeftMouseButton.IsValid());
	EXPECT_FALSE(EKeys::Invalid.IsValid());
	EXPECT_FALSE(FKey(TEXT("NoSuchKey")).IsValid());
}

TEST(Key, DeletesAsThePlatformDoes)
{
#if PLATFORM_MAC
	EXPECT_TRUE(EKeys::Platform_Delete == EKeys::BackSpace);
#else
	EXPECT_TRUE(EKeys::Platform_Delete == EKeys::Delete);
#endif
}

TEST(Key, HasALongAndAShortDisplayName)
{
	EXPECT_TEXT_EQ(EKeys::LeftControl.GetDisplayName().ToString(), "Left Ctrl");
	EXPECT_TEXT_EQ(EKeys::LeftControl.GetDisplayName(false).ToString(), "Ctrl");
	EXPECT_TEXT_EQ(EKeys::Three.GetDisplayName().ToString(), "3");
	EXPECT_TEXT_EQ(EKeys::F5.GetDisplayName().ToString(), "F5");
}

TEST(Key, TellsModifiersAndMouseButtons)
{
	EXPECT_TRUE(EKeys::RightShift.IsModifierKey());
	EXPECT_FALSE(EKeys::F.IsModifierKey());
	EXPECT_TRUE(EKeys::MiddleMouseButton.IsMouseButton());
	EXPECT_FALSE(EKeys::MouseX.IsMouseButton());
}
