// SPDX-License-Identifier: MIT
#include "Containers/UnrealString.h"
#include "Misc/EnumClassFlags.h"
#include "Misc/Optional.h"
#include "Containers/EnumAsByte.h"
#include "Templates/Function.h"
#include "Templates/Tuple.h"
#include "Templates/UniquePtr.h"
#include "fixtures/AssertionsThrow.h"
#include "fixtures/CorePrinting.h"

namespace
{

int32 Twice(int32 Value)
{
	return Value * 2;
}

struct FHolder
{
	int32 Value = 4;
	int32 Add(int32 Other) const { return Value + Other; }
};

enum class EFlags : uint8
{
	None = 0,
	A = 1,
	B = 2,
	C = 4
};
ENUM_CLASS_FLAGS(EFlags)

enum EPlain
{
	PlainOne = 1,
	PlainTwo
};

int32 CallRef(TFunctionRef<int32(int32)> Function, int32 Value)
{
	return Function(Value);
}

} // namespace

TEST(Function, CallsFunctionsLambdasAndMembers)
{
	const int32 Offset = 10;
	TFunction<int32(int32)> Function = &Twice;
	EXPECT_EQ(Function(4), 8);
	Function = [Offset](int32 Value) { return Value + Offset; };
	EXPECT_EQ(Function(4), 14);
	const TFunction<int32(const FHolder&, int32)> Member = &FHolder::Add;
	EXPECT_EQ(Member(FHolder(), 3), 7);
}

TEST(Function, AnEmptyFunctionIsFalseAndMayNotBeCalled)
{
	const FAssertionsThrow Assertions;
	int32 (*Null)(int32) = nullptr;
	const TFunction<int32(int32)> Empty;
	const TFunction<int32(int32)> OfNull = Null;
	const TFunction<int32(int32)> OfEmpty = TFunction<int32(int32)>();

	EXPECT_FALSE(Empty);
	EXPECT_FALSE(OfNull);
	EXPECT_FALSE(OfEmpty);
	EXPECT_THROW(Empty(1), FAssertionFailure);
}

TEST(Function, ACopyHasAStateOfItsOwn)
{
	TFunction<int32()> Counter = [Count = 0]() mutable { return ++Count; };
	Counter();
	TFunction<int32()> Copy = Counter;

	EXPECT_EQ(Counter(), 2);
	EXPECT_EQ(Counter(), 3);
	EXPECT_EQ(Copy(), 2);
}

TEST(Function, AUniqueFunctionHoldsWhatOnlyMoves)
{
	TUniqueFunction<int32()> Function = [Value = MakeUnique<int32>(6)] { return *Value; };
	TUniqueFunction<int32()> Moved = MoveTemp(Function);

	EXPECT_FALSE(Function);
	EXPECT_EQ(Moved(), 6);
}

TEST(Function, AReferenceCallsWhatLivesElsewhere)
{
	int32 NumCalls = 0;

	EXPECT_EQ(CallRef(
				  [&NumCalls](int32 Value)
				  {
					  ++NumCalls;
					  return -Value;
				  },
				  5),
		-5);
	EXPECT_EQ(CallRef(Twice, 5), 10);
	EXPECT_EQ(CallRef(&Twice, 6), 12);
	EXPECT_EQ(NumCalls, 1);
}

TEST(Optional, HoldsAValueOrNone)
{
	const FAssertionsThrow Assertions;
	TOptional<FString> Optional;

	EXPECT_FALSE(Optional.IsSet());
	EXPECT_THROW(Optional.GetValue(), FAssertionFailure);
	EXPECT_EQ(Optional.Get(TEXT("default")), TEXT("default"));
	Optional = FString(TEXT("value"));
	EXPECT_EQ(*Optional, TEXT("value"));
	const TOptional<FString> Copy = Optional;
	Optional.Reset();
	EXPECT_FALSE(Optional == Copy);
	EXPECT_EQ(Copy->Len(), 5);
	EXPECT_TRUE(Optional == TOptional<FString>(NullOpt));
}

TEST(Tuple, GivesItsValuesByIndexAndByName)
{
	const TTuple<int32, FString, double> Tuple(1, TEXT("two"), 3.0);
	TPair<FString, int32> Pair(TEXT("key"), 7);
	auto& [Key, Value] = Pair;
	Value = 8;

	EXPECT_EQ(Tuple.Get<0>(), 1);
	EXPECT_EQ(Tuple.Get<1>(), TEXT("two"));
	EXPECT_EQ(Key, Pair.Key);
	EXPECT_EQ(Pair.Value, 8);
	EXPECT_EQ(MakeTuple(1, 2), (TPair<int32, int32>(1, 2)));
	EXPECT_TRUE((TPair<int32, int32>(1, 2)) < (TPair<int32, int32>(1, 3)));
}

TEST(Tuple, TieAssignsToVariables)
{
	int32 Number = 0;
	FString Text;

	Tie(Number, Text) = MakeTuple(5, FString(TEXT("five")));

	EXPECT_EQ(Number, 5);
	EXPECT_EQ(Text, TEXT("five"));
}

TEST(GuardValue, RestoresTheFormerValueAtTheEndOfTheScope)
{
	bool bSelecting = false;
	{
		TGuardValue<bool> Guard(bSelecting, true);
		EXPECT_TRUE(bSelecting);
	}
	EXPECT_FALSE(bSelecting);
}

TEST(EnumFlags, CombineAndTest)
{
	EFlags Flags = EFlags::A | EFlags::B;
	EXPECT_TRUE(EnumHasAllFlags(Flags, EFlags::A | EFlags::B));
	EXPECT_FALSE(EnumHasAllFlags(Flags, EFlags::A | EFlags::C));
	EXPECT_TRUE(EnumHasAnyFlags(Flags, EFlags::A | EFlags::C));
	EnumRemoveFlags(Flags, EFlags::A);
	EXPECT_EQ(Flags, EFlags::B);
	EXPECT_EQ(Flags & ~EFlags::B, EFlags::None);
}

TEST(EnumAsByte, TakesOneByteAndConvertsByItself)
{
	const TEnumAsByte<EPlain> Value = PlainTwo;
	const EPlain Converted = Value;

	EXPECT_EQ(sizeof(Value), 1u);
	EXPECT_EQ(Converted, PlainTwo);
	EXPECT_TRUE(Value == PlainTwo);
	EXPECT_EQ(Value.GetIntValue(), 2);
}
