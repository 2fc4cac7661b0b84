// SPDX-License-Identifier: MIT

#include "Docking/JsonText.h"

namespace Host
{
namespace
{
constexpr int32 MaxDepth = 64;

class FJsonReader
{
public:
	explicit FJsonReader(const FString& InText)
		: Text(InText)
	{
	}

	bool Read(FJsonValue& OutValue, FString& OutError)
	{
		bool bGood = ReadValue(OutValue, 0);
		SkipBlanks();
		if (bGood && At < Text.Len())
		{
			bGood = Fail(TEXT("nothing more is expected"));
		}
		if (!bGood)
		{
			OutError = FString::Printf(TEXT("at character %d: %s"), At + 1, Reason);
		}
		return bGood;
	}

private:
	bool Fail(const TCHAR* InReason)
	{
		Reason = InReason;
		return false;
	}

	TCHAR Peek() const { return At < Text.Len() ? Text[At] : TCHAR(0); }

	void SkipBlanks()
	{
		while (Peek() == ' ' || Peek() == '\t' || Peek() == '\n' || Peek() == '\r')
		{
			++At;
		}
	}

	bool Take(TCHAR Character)
	{
		SkipBlanks();
		if (Peek() != Character)
		{
			return false;
		}
		++At;
		return true;
	}

	bool TakeWord(FStringView Word)
	{
		if (!FStringView(Text).Mid(At, Word.Len()).Equals(Word))
		{
			return Fail(TEXT("a value is expected"));
		}
		At += Word.Len();
		return true;
	}

	bool ReadValue(FJsonValue& Out, int32 Depth)
	{
		SkipBlanks();
		if (Depth > MaxDepth)
		{
			return Fail(TEXT("values are nested too deep"));
		}
		switch (Peek())
		{
			case '{':
				return ReadObject(Out, Depth);
			case '[':
				return ReadArray(Out, Depth);
			case '"':
				Out.Kind = FJsonValue::EKind::String;
				return ReadString(Out.String);
			case 't':
				Out.Kind = FJsonValue::EKind::Bool;
				Out.bBool = true;
				return TakeWord(TEXT("true"));
			case 'f':
				Out.Kind = FJsonValue::EKind::Bool;
				return TakeWord(TEXT("false"));
			case 'n':
				return TakeWord(TEXT("null"));
			default:
				Out.Kind = FJsonValue::EKind::Number;
				return ReadNumber(Out.Number);
		}
	}

	bool ReadObject(FJsonValue& Out, int32 Depth)
	{
		Out.Kind = FJsonValue::EKind::Object;
		++At;
		if (Take('}'))
		{
			return true;
		}
		do
		{
			SkipBlanks();
			FString Key;
			if (Peek() != '"')
			{
				return Fail(TEXT("a name in quotation marks is expected"));
			}
			if (!ReadString(Key))
			{
				return false;
			}
			if (!Take(':'))
			{
				return Fail(TEXT("':' is expected"));
			}
			Out.Keys.Add(Key);
			Out.Items.AddDefaulted();
			if (!ReadValue(Out.Items.Last(), Depth + 1))
			{
				return false;
			}
		} while (Take(','));
		return Take('}') || Fail(TEXT("',' or '}' is expected"));
	}

	bool ReadArray(FJsonValue& Out, int32 Depth)
	{
		Out.Kind = FJsonValue::EKind::Array;
		++At;
		if (Take(']'))
		{
			return true;
		}
		do
		{
			Out.Items.AddDefaulted();
			if (!ReadValue(Out.Items.Last(), Depth + 1))
			{
				return false;
			}
		} while (Take(','));
		return Take(']') || Fail(TEXT("',' or ']' is expected"));
	}

	bool ReadString(FString& Out)
	{
		for (++At; At < Text.Len(); ++At)
		{
			TCHAR Character = Text[At];
			if (Character == '"')
			{
				++At;
				return true;
			}
			if (Character < 0x20)
			{
				return Fail(TEXT("a text holds a control character"));
			}
			if (Character == '\\' && !ReadEscape(Character))
			{
				return false;
			}
			Out.AppendChar(Character);
		}
		return Fail(TEXT("a text has no end"));
	}

	/** At the backslash; ends at the last character of the escape. */
	bool ReadEscape(TCHAR& Out)
	{
		++At;
		switch (Peek())
		{
			case '"':
			case '\\':
			case '/':
				Out = Peek();
				return true;
			case 'b':
				Out = '\b';
				return true;
			case 'f':
				Out = '\f';
				return true;
			case 'n':
				Out = '\n';
				return true;
			case 'r':
				Out = '\r';
				return true;
			case 't':
				Out = '\t';
				return true;
			case 'u':
				break;
			default:
				return Fail(TEXT("an escape is not known"));
		}
		uint32 Code = 0;
		for (int32 Digit = 0; Digit < 4; ++Digit)
		{
			++At;
			const int32 Value = FChar::ConvertCharDigitToInt(Peek());
			if (!FChar::IsHexDigit(Peek()))
			{
				return Fail(TEXT("four hexadecimal digits are expected"));
			}
			Code = Code * 16 + static_cast<uint32>(Value);
		}
		Out = static_cast<TCHAR>(Code);
		return true;
	}

	bool TakeDigits()
	{
		const int32 Start = At;
		while (FChar::IsDigit(Peek()))
		{
			++At;
		}
		return At > Start;
	}

	bool ReadNumber(double& Out)
	{
		const int32 Start = At;
		At += Peek() == '-' ? 1 : 0;
		bool bGood = TakeDigits();
		if (bGood && Peek() == '.')
		{
			++At;
			bGood = TakeDigits();
		}
		if (bGood && (Peek() == 'e' || Peek() == 'E'))
		{
			++At;
			At += Peek() == '-' || Peek() == '+' ? 1 : 0;
			bGood = TakeDigits();
		}
		if (!bGood)
		{
			At = Start;
			return Fail(TEXT("a value is expected"));
		}
		Out = FCString::Atod(*Text.Mid(Start, At - Start));
		return true;
	}

	const FString& Text;
	int32 At = 0;
	const TCHAR* Reason = TEXT("");
};
} // namespace

FJsonValue::FJsonValue() = default;
FJsonValue::FJsonValue(const FJsonValue& Other) = default;
FJsonValue::FJsonValue(FJsonValue&& Other) noexcept = default;
FJsonValue& FJsonValue::operator=(const FJsonValue& Other) = default;
FJsonValue& FJsonValue::operator=(FJsonValue&& Other) noexcept = default;
FJsonValue::~FJsonValue() = default;

const FJsonValue* FJsonValue::Find(const TCHAR* Key) const
{
	for (int32 Index = Keys.Num() - 1; Index >= 0; --Index)
	{
		if (Keys[Index].Equals(Key))
		{
			return &Items[Index];
		}
	}
	return nullptr;
}

bool ReadJson(const FString& Text, FJsonValue& OutValue, FString& OutError)
{
	return FJsonReader(Text).Read(OutValue, OutError);
}

FString QuoteJson(const FString& Text)
{
	FString Quoted = TEXT("\"");
	for (const TCHAR Character : Text)
	{
		if (Character == '"' || Character == '\\')
		{
			Quoted.AppendChar('\\');
			Quoted.AppendChar(Character);
		}
		else if (Character < 0x20)
		{
			Quoted += FString::Printf(TEXT("\\u%04x"), static_cast<uint32>(Character));
		}
		else
		{
			Quoted.AppendChar(Character);
		}
	}
	return Quoted + TEXT("\"");
}
} // namespace Host
