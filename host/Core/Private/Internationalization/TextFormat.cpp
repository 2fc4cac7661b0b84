// SPDX-License-Identifier: MIT
#include "Internationalization/Text.h"

#include <cmath>

FNumberFormattingOptions& FNumberFormattingOptions::SetAlwaysSign(bool bValue)
{
	AlwaysSign = bValue;
	return *this;
}

FNumberFormattingOptions& FNumberFormattingOptions::SetUseGrouping(bool bValue)
{
	UseGrouping = bValue;
	return *this;
}

FNumberFormattingOptions& FNumberFormattingOptions::SetMinimumIntegralDigits(int32 Value)
{
	MinimumIntegralDigits = Value;
	return *this;
}

FNumberFormattingOptions& FNumberFormattingOptions::SetMaximumIntegralDigits(int32 Value)
{
	MaximumIntegralDigits = Value;
	return *this;
}

FNumberFormattingOptions& FNumberFormattingOptions::SetMinimumFractionalDigits(int32 Value)
{
	MinimumFractionalDigits = Value;
	return *this;
}

FNumberFormattingOptions& FNumberFormattingOptions::SetMaximumFractionalDigits(int32 Value)
{
	MaximumFractionalDigits = Value;
	return *this;
}

namespace
{

/** Sign, grouped whole digits, and fractional digits without needless zeros. */
FString AssembleNumber(bool bNegative, FString Whole, FString Fraction, const FNumberFormattingOptions& Options)
{
	if (Whole.Len() > Options.MaximumIntegralDigits)
	{
		Whole = Whole.Right(Options.MaximumIntegralDigits);
	}
	while (Whole.Len() < Options.MinimumIntegralDigits)
	{
		Whole.InsertAt(0, '0');
	}
	constexpr int32 GroupSize = 3;
	for (int32 Position = Whole.Len() - GroupSize; Options.UseGrouping && Position > 0; Position -= GroupSize)
	{
		Whole.InsertAt(Position, ',');
	}
	while (Fraction.Len() > Options.MinimumFractionalDigits && Fraction.EndsWith(TEXT("0")))
	{
		Fraction.LeftChopInline(1);
	}
	while (Fraction.Len() < Options.MinimumFractionalDigits)
	{
		Fraction.AppendChar('0');
	}
	const TCHAR* Sign = bNegative ? TEXT("-") : (Options.AlwaysSign ? TEXT("+") : TEXT(""));
	return Fraction.IsEmpty() ? Sign + Whole : Sign + Whole + TEXT(".") + Fraction;
}

const FNumberFormattingOptions& OrDefault(const FNumberFormattingOptions* Options)
{
	static const FNumberFormattingOptions Default;
	return Options ? *Options : Default;
}

FText FormatInteger(bool bNegative, uint64 Magnitude, const FNumberFormattingOptions* Options)
{
	return FText::FromString(
		AssembleNumber(bNegative, FString::Printf(TEXT("%llu"), Magnitude), FString(), OrDefault(Options)));
}

template <typename NumberType>
FText FormatSigned(NumberType Value, const FNumberFormattingOptions* Options)
{
	const uint64 Bits = static_cast<uint64>(static_cast<int64>(Value));
	return FormatInteger(Value < 0, Value < 0 ? 0 - Bits : Bits, Options);
}

FString FormatReal(double Value, const FNumberFormattingOptions& Options)
{
	if (std::isnan(Value))
	{
		return TEXT("NaN");
	}
	if (std::isinf(Value))
	{
		return Value < 0 ? TEXT("-\u221E") : TEXT("\u221E");
	}
	// The C library rounds the exact binary value, ties to even.
	const int32 MaxDigits = Options.MaximumFractionalDigits < Options.MinimumFractionalDigits
								? Options.MinimumFractionalDigits
								: Options.MaximumFractionalDigits;
	const FString Printed = FString::Printf(TEXT("%.*f"), MaxDigits, std::fabs(Value));
	FString Whole = Printed;
	FString Fraction;
	Printed.Split(TEXT("."), &Whole, &Fraction);
	return AssembleNumber(std::signbit(Value) && Value != 0.0, MoveTemp(Whole), MoveTemp(Fraction), Options);
}

/** Replaces "{Key}" of a pattern by what the look-up gives; without a value the braces stay. */
template <typename LookUpType>
FText FormatPattern(const FString& Pattern, LookUpType LookUp)
{
	FString Result;
	const FStringView Rest(Pattern);
	for (int32 Index = 0; Index < Rest.Len();)
	{
		const TCHAR Char = Rest[Index];
		const bool bEscapes = Char == '`' && Index + 1 < Rest.Len();
		if (bEscapes && (Rest[Index + 1] == '{' || Rest[Index + 1] == '}' || Rest[Index + 1] == '`'))
		{
			Result.AppendChar(Rest[Index + 1]);
			Index += 2;
			continue;
		}
		const int32 Close = Char == '{' ? Rest.Find(TEXT("}"), Index) : static_cast<int32>(INDEX_NONE);
		if (Close != INDEX_NONE)
		{
			const FString Key(Rest.Mid(Index + 1, Close - Index - 1).TrimStartAndEnd());
			if (const FFormatArgumentValue* Value = LookUp(Key))
			{
				Result += Value->Text.ToString();
				Index = Close + 1;
				continue;
			}
		}
		Result.AppendChar(Char);
		++Index;
	}
	return FText::FromString(MoveTemp(Result));
}

bool IsIndex(const FString& Key)
{
	for (const TCHAR Char : Key)
	{
		if (!FChar::IsDigit(Char))
		{
			return false;
		}
	}
	return !Key.IsEmpty();
}

} // namespace

FText FText::AsNumber(float Value, const FNumberFormattingOptions* Options)
{
	return AsNumber(static_cast<double>(Value), Options);
}

FText FText::AsNumber(double Value, const FNumberFormattingOptions* Options)
{
	return FromString(FormatReal(Value, OrDefault(Options)));
}

FText FText::AsNumber(int8 Value, const FNumberFormattingOptions* Options)
{
	return FormatSigned(Value, Options);
}

FText FText::AsNumber(int16 Value, const FNumberFormattingOptions* Options)
{
	return FormatSigned(Value, Options);
}

FText FText::AsNumber(int32 Value, const FNumberFormattingOptions* Options)
{
	return FormatSigned(Value, Options);
}

FText FText::AsNumber(int64 Value, const FNumberFormattingOptions* Options)
{
	return FormatSigned(Value, Options);
}

FText FText::AsNumber(long Value, const FNumberFormattingOptions* Options)
{
	return FormatSigned(Value, Options);
}

FText FText::AsNumber(uint8 Value, const FNumberFormattingOptions* Options)
{
	return FormatInteger(false, Value, Options);
}

FText FText::AsNumber(uint16 Value, const FNumberFormattingOptions* Options)
{
	return FormatInteger(false, Value, Options);
}

FText FText::AsNumber(uint32 Value, const FNumberFormattingOptions* Options)
{
	return FormatInteger(false, Value, Options);
}

FText FText::AsNumber(uint64 Value, const FNumberFormattingOptions* Options)
{
	return FormatInteger(false, Value, Options);
}

FText FText::AsNumber(unsigned long Value, const FNumberFormattingOptions* Options)
{
	return FormatInteger(false, Value, Options);
}

FText FText::AsPercent(double Value, const FNumberFormattingOptions* Options)
{
	FNumberFormattingOptions PercentOptions;
	PercentOptions.MaximumFractionalDigits = 0;
	constexpr double HundredPercent = 100.0;
	return FromString(FormatReal(Value * HundredPercent, Options ? *Options : PercentOptions) + TEXT("%"));
}

FText FText::Format(const FTextFormat& Pattern, FFormatNamedArguments Arguments)
{
	return FormatPattern(Pattern.GetSourceText().ToString(), [&](const FString& Key) { return Arguments.Find(Key); });
}

FText FText::Format(const FTextFormat& Pattern, FFormatOrderedArguments Arguments)
{
	return FormatPattern(Pattern.GetSourceText().ToString(),
		[&](const FString& Key) -> const FFormatArgumentValue*
		{
			const int32 Index = IsIndex(Key) ? FCString::Atoi(*Key) : static_cast<int32>(INDEX_NONE);
			return Arguments.IsValidIndex(Index) ? &Arguments[Index] : nullptr;
		});
}
