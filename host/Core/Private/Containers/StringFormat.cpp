// SPDX-License-Identifier: MIT
#include "Containers/UnrealString.h"

#include <cstdio>

using UE::Core::Private::FFormatArgument;

namespace
{

/** One conversion of a format text: %[flags][width][.precision][length]letter. */
struct FConversion
{
	bool bLeft = false;
	bool bPlus = false;
	bool bBlank = false;
	bool bAlternate = false;
	bool bZero = false;
	int32 Width = 0;
	int32 Precision = -1;
	TCHAR Letter = 0;
};

/** Hands out the arguments in order; what was not passed reads as a missing one. */
class FArgumentReader
{
public:
	FArgumentReader(const FFormatArgument* InArgs, int32 InNum)
		: Args(InArgs)
		, Num(InNum)
	{
	}

	const FFormatArgument* Next()
	{
		checkf(Index < Num, TEXT("A format text asks for more than its %d arguments"), Num);
		return Index < Num ? &Args[Index++] : nullptr;
	}
	int32 NextNumber()
	{
		const FFormatArgument* Argument = Next();
		return Argument ? static_cast<int32>(Argument->Integer) : 0;
	}

private:
	const FFormatArgument* Args;
	int32 Num;
	int32 Index = 0;
};

int32 ReadNumber(const TCHAR*& Cursor)
{
	int32 Number = 0;
	for (; FChar::IsDigit(*Cursor); ++Cursor)
	{
		Number = Number < 100000 ? Number * 10 + FChar::ConvertCharDigitToInt(*Cursor) : Number;
	}
	return Number;
}

FConversion ReadConversion(const TCHAR*& Cursor, FArgumentReader& Arguments)
{
	FConversion Result;
	for (;; ++Cursor)
	{
		if (*Cursor == '-')
		{
			Result.bLeft = true;
		}
		else if (*Cursor == '+')
		{
			Result.bPlus = true;
		}
		else if (*Cursor == ' ')
		{
			Result.bBlank = true;
		}
		else if (*Cursor == '#')
		{
			Result.bAlternate = true;
		}
		else if (*Cursor == '0')
		{
			Result.bZero = true;
		}
		else
		{
			break;
		}
	}
	if (*Cursor == '*')
	{
		++Cursor;
		Result.Width = Arguments.NextNumber();
		if (Result.Width < 0)
		{
			Result.bLeft = true;
			Result.Width = -Result.Width;
		}
	}
	else
	{
		Result.Width = ReadNumber(Cursor);
	}
	if (*Cursor == '.')
	{
		++Cursor;
		if (*Cursor == '*')
		{
			++Cursor;
			Result.Precision = Arguments.NextNumber();
		}
		else
		{
			Result.Precision = ReadNumber(Cursor);
		}
	}
	// Arguments know their own width, so the length letters carry no information.
	while (*Cursor == 'l' || *Cursor == 'h' || *Cursor == 'z' || *Cursor == 'j' || *Cursor == 't' || *Cursor == 'q' ||
		   *Cursor == 'L')
	{
		++Cursor;
	}
	Result.Letter = *Cursor;
	if (*Cursor)
	{
		++Cursor;
	}
	return Result;
}

void AppendPadded(FString& Out, FStringView Text, const FConversion& Conversion)
{
	const int32 Padding = Conversion.Width - Text.Len();
	if (!Conversion.bLeft)
	{
		Out += FString::ChrN(Padding, ' ');
	}
	Out.Append(Text);
	if (Conversion.bLeft)
	{
		Out += FString::ChrN(Padding, ' ');
	}
}

/** Prints through the C library with the conversion's flags, which it knows all of. */
template <typename ValueType>
void AppendThroughC(FString& Out, const FConversion& Conversion, const char* Length, char Letter, ValueType Value)
{
	char Format[16];
	char* Cursor = Format;
	*Cursor++ = '%';
	for (const auto& [bFlag, Char] :
		{std::pair(Conversion.bLeft, '-'), std::pair(Conversion.bPlus, '+'), std::pair(Conversion.bBlank, ' '),
			std::pair(Conversion.bAlternate, '#'), std::pair(Conversion.bZero, '0')})
	{
		if (bFlag)
		{
			*Cursor++ = Char;
		}
	}
	*Cursor++ = '*';
	*Cursor++ = '.';
	*Cursor++ = '*';
	while (*Length)
	{
		*Cursor++ = *Length++;
	}
	*Cursor++ = Letter;
	*Cursor = '\0';

	char Short[128];
	const int Needed = std::snprintf(Short, sizeof(Short), Format, Conversion.Width, Conversion.Precision, Value);
	if (Needed < static_cast<int>(sizeof(Short)))
	{
		Out += FString(Needed, Short);
		return;
	}
	TArray<ANSICHAR> Long;
	Long.SetNumUninitialized(Needed + 1);
	std::snprintf(
		Long.GetData(), static_cast<SIZE_T>(Needed) + 1, Format, Conversion.Width, Conversion.Precision, Value);
	Out += FString(Needed, Long.GetData());
}

/** The argument as an integer cut to its own width, so that -1 of 32 bits prints as ffffffff. */
uint64 UnsignedValue(const FFormatArgument& Argument)
{
	const uint64 Value = Argument.Kind == FFormatArgument::EKind::Real
							 ? static_cast<uint64>(static_cast<int64>(Argument.Real))
							 : static_cast<uint64>(Argument.Integer);
	return Argument.Size >= sizeof(uint64) ? Value : Value & ((uint64(1) << (Argument.Size * 8)) - 1);
}

int64 SignedValue(const FFormatArgument& Argument)
{
	return Argument.Kind == FFormatArgument::EKind::Real ? static_cast<int64>(Argument.Real) : Argument.Integer;
}

double RealValue(const FFormatArgument& Argument)
{
	if (Argument.Kind == FFormatArgument::EKind::Real)
	{
		return Argument.Real;
	}
	return Argument.Kind == FFormatArgument::EKind::Unsigned
			   ? static_cast<double>(static_cast<uint64>(Argument.Integer))
			   : static_cast<double>(Argument.Integer);
}

void AppendText(FString& Out, const FConversion& Conversion, const FFormatArgument& Argument)
{
	FString Text;
	switch (Argument.Kind)
	{
		case FFormatArgument::EKind::Text:
			Text = Argument.Text ? Argument.Text : TEXT("(null)");
			break;
		case FFormatArgument::EKind::AnsiText:
			Text = FString(Argument.AnsiText ? Argument.AnsiText : "(null)");
			break;
		default:
			checkf(Argument.Kind == FFormatArgument::EKind::Pointer && !Argument.Pointer,
				TEXT("A format text asks for a text where another type was passed"));
			Text = TEXT("(null)");
			break;
	}
	AppendPadded(Out, Conversion.Precision >= 0 ? FStringView(Text).Left(Conversion.Precision) : Text, Conversion);
}

void AppendConversion(FString& Out, const FConversion& Conversion, FArgumentReader& Arguments)
{
	const TCHAR Letter = Conversion.Letter;
	if (Letter == '%')
	{
		Out.AppendChar('%');
		return;
	}
	const FFormatArgument* Argument = Arguments.Next();
	if (!Argument)
	{
		return;
	}
	switch (Letter)
	{
		case 'd':
		case 'i':
			AppendThroughC(Out, Conversion, "ll", 'd', SignedValue(*Argument));
			break;
		case 'u':
		case 'x':
		case 'X':
		case 'o':
			AppendThroughC(Out, Conversion, "ll", static_cast<char>(Letter), UnsignedValue(*Argument));
			break;
		case 'f':
		case 'F':
		case 'e':
		case 'E':
		case 'g':
		case 'G':
			AppendThroughC(Out, Conversion, "", static_cast<char>(Letter), RealValue(*Argument));
			break;
		case 'c':
			AppendPadded(Out, FString::Chr(static_cast<TCHAR>(Argument->Integer)), Conversion);
			break;
		case 's':
		case 'S':
			AppendText(Out, Conversion, *Argument);
			break;
		case 'p':
		{
			FConversion Address = Conversion;
			Address.bZero = true;
			Address.Width = 16;
			AppendThroughC(Out, Address, "ll", 'x', static_cast<uint64>(reinterpret_cast<UPTRINT>(Argument->Pointer)));
			break;
		}
		default:
			checkf(false, TEXT("A format text has the unknown conversion letter '%c'"), Letter);
			break;
	}
}

/** Replaces "{Key}" by what the look-up gives; without a value the braces stay. */
template <typename LookUpType>
FString ReplaceBraces(const TCHAR* Format, LookUpType LookUp)
{
	FString Result;
	for (const TCHAR* Cursor = Format; *Cursor;)
	{
		if (*Cursor == '`' && (Cursor[1] == '{' || Cursor[1] == '`'))
		{
			Result.AppendChar(Cursor[1]);
			Cursor += 2;
			continue;
		}
		const TCHAR* Close = *Cursor == '{' ? FCString::Strchr(Cursor, '}') : nullptr;
		if (Close)
		{
			const FStringView Key(Cursor + 1, static_cast<int32>(Close - Cursor - 1));
			if (const FStringFormatArg* Value = LookUp(Key))
			{
				Result += Value->Text;
				Cursor = Close + 1;
				continue;
			}
		}
		Result.AppendChar(*Cursor++);
	}
	return Result;
}

} // namespace

void FString::AppendFormat(const TCHAR* Format, const FFormatArgument* Args, int32 NumArgs)
{
	FArgumentReader Arguments(Args, NumArgs);
	for (const TCHAR* Cursor = Format; *Cursor;)
	{
		const TCHAR* Start = Cursor;
		while (*Cursor && *Cursor != '%')
		{
			++Cursor;
		}
		Append(Start, static_cast<int32>(Cursor - Start));
		if (*Cursor == '%')
		{
			++Cursor;
			const FConversion Conversion = ReadConversion(Cursor, Arguments);
			AppendConversion(*this, Conversion, Arguments);
		}
	}
}

FString FString::Format(const TCHAR* InFormatString, const FStringFormatOrderedArguments& InOrderedArguments)
{
	return ReplaceBraces(InFormatString,
		[&](FStringView Key) -> const FStringFormatArg*
		{
			const FString Digits(Key.TrimStartAndEnd());
			if (!Digits.IsNumeric())
			{
				return nullptr;
			}
			const int32 Index = FCString::Atoi(*Digits);
			return InOrderedArguments.IsValidIndex(Index) ? &InOrderedArguments[Index] : nullptr;
		});
}

FString FString::Format(const TCHAR* InFormatString, const FStringFormatNamedArguments& InNamedArguments)
{
	return ReplaceBraces(
		InFormatString, [&](FStringView Key) { return InNamedArguments.Find(FString(Key.TrimStartAndEnd())); });
}

FString FString::FromInt(int32 Number)
{
	return Printf(TEXT("%d"), Number);
}

FString FString::FormatAsNumber(int32 Number)
{
	FString Digits =
		FString::Printf(TEXT("%lld"), Number < 0 ? -static_cast<int64>(Number) : static_cast<int64>(Number));
	for (int32 Position = Digits.Len() - 3; Position > 0; Position -= 3)
	{
		Digits.InsertAt(Position, ',');
	}
	return Number < 0 ? TEXT("-") + Digits : Digits;
}

FString FString::SanitizeFloat(double Number, int32 MinFractionalDigits)
{
	// A negative zero would print its sign.
	FString Result = Printf(TEXT("%f"), Number == 0.0 ? 0.0 : Number);
	int32 Point = INDEX_NONE;
	if (!Result.FindChar('.', Point))
	{
		return Result;
	}
	int32 Keep = Result.Len();
	const int32 Least = Point + 1 + MinFractionalDigits;
	while (Keep > Least && Result[Keep - 1] == '0')
	{
		--Keep;
	}
	if (Keep > 0 && Result[Keep - 1] == '.')
	{
		--Keep;
	}
	Result.LeftInline(Keep);
	while (Result.Len() < Least && MinFractionalDigits > 0)
	{
		Result.AppendChar('0');
	}
	return Result;
}

FString LexToString(int32 Value)
{
	return FString::Printf(TEXT("%d"), Value);
}

FString LexToString(uint32 Value)
{
	return FString::Printf(TEXT("%u"), Value);
}

FString LexToString(int64 Value)
{
	return FString::Printf(TEXT("%lld"), Value);
}

FString LexToString(uint64 Value)
{
	return FString::Printf(TEXT("%llu"), Value);
}

FString LexToString(float Value)
{
	return FString::SanitizeFloat(Value);
}

FString LexToString(double Value)
{
	return FString::SanitizeFloat(Value);
}

FString LexToString(bool bValue)
{
	return bValue ? TEXT("true") : TEXT("false");
}

FString BytesToHex(const uint8* Bytes, int32 NumBytes)
{
	FString Result;
	for (int32 Index = 0; Index < NumBytes; ++Index)
	{
		Result.Appendf(TEXT("%02X"), Bytes[Index]);
	}
	return Result;
}
