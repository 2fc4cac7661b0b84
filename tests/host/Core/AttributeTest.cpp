// SPDX-License-Identifier: MIT
#include "Internationalization/Text.h"
#include "Misc/Attribute.h"
#include "fixtures/CorePrinting.h"

namespace
{

struct FSource : TSharedFromThis<FSource>
{
	FText GetText() const { return FText::AsNumber(Value); }
	int32 GetValue() const { return Value; }
	int32 GetSum(int32 Other) const { return Value + Other; }

	int32 Value = 1;
};

} // namespace

TEST(Attribute, IsSetByAValue)
{
	TAttribute<FString> Attribute;
	EXPECT_FALSE(Attribute.IsSet());
	EXPECT_EQ(Attribute.Get(TEXT("default")), TEXT("default"));
	EXPECT_TRUE(Attribute.Get().IsEmpty());

	Attribute = FString(TEXT("value"));
	EXPECT_TRUE(Attribute.IsSet());
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_EQ(Attribute.Get(), TEXT("value"));

	const TAttribute<FString> FromLiteral(TEXT("literal"));
	EXPECT_EQ(FromLiteral.Get(), TEXT("literal"));
}

TEST(Attribute, AsksItsGetterEachTime)
{
	const TSharedRef<FSource> Source = MakeShared<FSource>();
	const TAttribute<int32> Shared = MakeAttributeSP(Source, &FSource::GetValue);
	const TAttribute<FText> OfThis = TAttribute<FText>::CreateSP(&Source.Get(), &FSource::GetText);
	const TAttribute<int32> Raw = MakeAttributeRaw(&Source.Get(), &FSource::GetSum, 10);
	const TAttribute<bool> Lambda = TAttribute<bool>::CreateLambda([&] { return Source->Value > 1; });

	EXPECT_EQ(Shared.Get(), 1);
	EXPECT_FALSE(Lambda.Get());
	Source->Value = 5;
	EXPECT_EQ(Shared.Get(), 5);
	EXPECT_TEXT_EQ(OfThis.Get().ToString(), TEXT("5"));
	EXPECT_EQ(Raw.Get(), 15);
	EXPECT_TRUE(Lambda.Get());
	EXPECT_TRUE(Shared.IsBound());
}

TEST(Attribute, KeepsTheLastValueWhenItsObjectIsGone)
{
	TSharedPtr<FSource> Source = MakeShared<FSource>();
	Source->Value = 7;
	const TAttribute<int32> Attribute = MakeAttributeSP(Source.ToSharedRef(), &FSource::GetValue);
	EXPECT_EQ(Attribute.Get(), 7);

	Source->Value = 8;
	Source.Reset();

	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_TRUE(Attribute.IsSet());
	EXPECT_EQ(Attribute.Get(), 7);
}

TEST(Attribute, AValueReplacesAGetter)
{
	TAttribute<int32> Attribute = MakeAttributeLambda([] { return 3; });
	EXPECT_EQ(Attribute.Get(), 3);

	Attribute.Set(4);

	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_EQ(Attribute.Get(), 4);
}

TEST(Attribute, IsIdenticalByValueOrByBinding)
{
	const TAttribute<int32> Bound = MakeAttributeLambda([] { return 3; });
	const TAttribute<int32> Copy = Bound;

	EXPECT_TRUE(Bound.IdenticalTo(Copy));
	EXPECT_FALSE(Bound.IdenticalTo(MakeAttributeLambda([] { return 3; })));
	EXPECT_TRUE(TAttribute<int32>(3).IdenticalTo(TAttribute<int32>(3)));
	EXPECT_FALSE(TAttribute<int32>(0).IdenticalTo(TAttribute<int32>()));
}
