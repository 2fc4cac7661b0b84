// SPDX-License-Identifier: MIT
#include "Util/BlockArray.h"

#include <gtest/gtest.h>

using UE::Geometry::TBlockArray;

namespace
{

TBlockArray<int32> Counting(int32 Num)
{
	TBlockArray<int32> Array;
	for (int32 Index = 0; Index < Num; ++Index)
	{
		Array.Add(Index);
	}
	return Array;
}

void ExpectCounting(const TBlockArray<int32>& Array, int32 Num)
{
	ASSERT_EQ(Array.Num(), Num);
	for (int32 Index = 0; Index < Num; ++Index)
	{
		ASSERT_EQ(Array[Index], Index);
	}
}

} // namespace

TEST(BlockArray, KeepsElementsInPlaceWhileItGrows)
{
	TBlockArray<int32> Array = Counting(1);
	const int32* const First = &Array[0];

	for (int32 Index = 1; Index < 5000; ++Index)
	{
		EXPECT_EQ(Array.Add(Index), Index);
	}

	EXPECT_EQ(&Array[0], First);
	ExpectCounting(Array, 5000);
}

TEST(BlockArray, ACopySharesItsElementsUntilOneOfTheTwoIsChanged)
{
	TBlockArray<int32> Original = Counting(100);
	const TBlockArray<int32> Copy = Original;
	const TBlockArray<int32>& Unchanged = Original;
	EXPECT_EQ(&Copy[99], &Unchanged[99]);

	Original[99] = -1;

	EXPECT_NE(&Copy[99], &Unchanged[99]);
	EXPECT_EQ(Original[99], -1);
	ExpectCounting(Copy, 100);
}

TEST(BlockArray, AddingToACopyLeavesTheOriginalAsItWas)
{
	for (const int32 Num : {0, 1, 31, 32, 33, 95, 96, 97})
	{
		const TBlockArray<int32> Original = Counting(Num);
		TBlockArray<int32> Copy = Original;

		EXPECT_EQ(Copy.Add(Num), Num);

		ExpectCounting(Copy, Num + 1);
		ExpectCounting(Original, Num);
	}
}

TEST(BlockArray, AddingToTheOriginalLeavesTheCopyAsItWas)
{
	TBlockArray<int32> Original = Counting(40);
	const TBlockArray<int32> Copy = Original;

	Original.Add(40);

	ExpectCounting(Original, 41);
	ExpectCounting(Copy, 40);
}

TEST(BlockArray, ACopyThatIsLeftAloneTakesTheElementsOver)
{
	TBlockArray<int32> Copy;
	const int32* Place = nullptr;
	{
		const TBlockArray<int32> Original = Counting(100);
		Place = &Original[50];
		Copy = Original;
	}

	Copy[50] = 7;

	EXPECT_EQ(&Copy[50], Place);
}

TEST(BlockArray, MovingLeavesAnEmptyArrayThatCanBeUsedAgain)
{
	TBlockArray<int32> Source = Counting(50);

	TBlockArray<int32> Target;
	Target.Add(9);
	Target = static_cast<TBlockArray<int32>&&>(Source);

	ExpectCounting(Target, 50);
	EXPECT_EQ(Source.Num(), 0);
	EXPECT_EQ(Source.Add(0), 0);
	ExpectCounting(Source, 1);
}

TEST(BlockArray, EmptyingOneOfTwoThatShareLeavesTheOther)
{
	TBlockArray<int32> Original = Counting(70);
	const TBlockArray<int32> Copy = Original;

	Original.Empty();
	Original.Add(0);

	ExpectCounting(Original, 1);
	ExpectCounting(Copy, 70);
}
