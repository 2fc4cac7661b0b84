// SPDX-License-Identifier: MIT
#include "UObject/PropertyText.h"

#include <charconv>
#include <string>
#include <string_view>

namespace Host
{
namespace
{

bool IsWordCharacter(TCHAR C)
{
	return (C >= TEXT('0') && C <= TEXT('9')) || (C >= TEXT('a') && C <= TEXT('z')) ||
		   (C >= TEXT('A') && C <= TEXT('Z')) || C == TEXT('_') || C == TEXT('.') || C == TEXT(':') || C == TEXT('+') ||
		   C == TEXT('-') || C > 127;
}

/** The characters at the front that a number can consist of. */
std::string NumberPrefix(const TCHAR* Text)
{
	std::string Result;
	if (*Text == TEXT('+'))
	{
		++Text;
	}
	for (; *Text && *Text < 128 &&
		   std::string_view("0123456789+-.eEinfaIxXNT").find(static_cast<char>(*Text)) != std::string_view::npos;
		 ++Text)
	{
		Result += static_cast<char>(*Text);
	}
	return Result;
}

template <typename NumberType>
const TCHAR* Read(const TCHAR* Text, NumberType& Out)
{
	Text = SkipBlanks(Text);
	const std::string Digits = NumberPrefix(Text);
	const auto [End, Error] = std::from_chars(Digits.data(), Digits.data() + Digits.size(), Out);
	return Error == std::errc() ? Text + (*Text == TEXT('+') ? 1 : 0) + (End - Digits.data()) : nullptr;
}

} // namespace

const TCHAR* SkipBlanks(const TCHAR* Text)
{
	while (*Text == TEXT(' ') || *Text == TEXT('\t') || *Text == TEXT('\n') || *Text == TEXT('\r'))
	{
		++Text;
	}
	return Text;
}

void AppendText(FString& Out, const FString& Text, bool bQuoted)
{
	if (!bQuoted)
	{
		Out += Text;
		return;
	}
	Out += TEXT('"');
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		const TCHAR C = Text[Index];
		if (C == TEXT('"') || C == TEXT('\\'))
		{
			Out += TEXT('\\');
			Out += C;
		}
		else if (C == TEXT('\n'))
		{
			Out += TEXT("\\n");
		}
		else
		{
			Out += C;
		}
	}
	Out += TEXT('"');
}

const TCHAR* ReadText(const TCHAR* Text, bool bInList, FString& Out)
{
	Out.Reset();
	const TCHAR* At = bInList ? SkipBlanks(Text) : Text;
	if (*At != TEXT('"'))
	{
		while (*At && !(bInList && (*At == TEXT(',') || *At == TEXT(')'))))
		{
			Out += *At++;
		}
		return At;
	}
	for (++At; *At != TEXT('"'); ++At)
	{
		if (*At == TEXT('\\') && At[1])
		{
			++At;
			Out += *At == TEXT('n') ? TEXT('\n') : *At;
		}
		else if (*At)
		{
			Out += *At;
		}
		else
		{
			return nullptr;
		}
	}
	return At + 1;
}

const TCHAR* ReadWord(const TCHAR* Text, FString& Out)
{
	Out.Reset();
	const TCHAR* At = SkipBlanks(Text);
	while (IsWordCharacter(*At))
	{
		Out += *At++;
	}
	return At;
}

FString NumberToText(double Number, bool bSingle)
{
	char Buffer[64];
	const std::to_chars_result Written =
		bSingle ? std::to_chars(Buffer, Buffer + sizeof(Buffer), static_cast<float>(Number))
				: std::to_chars(Buffer, Buffer + sizeof(Buffer), Number);
	std::string Text(Buffer, Written.ptr);
	if (Text.find_first_not_of("-0123456789") == std::string::npos)
	{
		Text += ".0";
	}
	return FString(Text.c_str());
}

const TCHAR* ReadNumber(const TCHAR* Text, double& Out)
{
	return Read(Text, Out);
}

const TCHAR* ReadInteger(const TCHAR* Text, int64& Out)
{
	return Read(Text, Out);
}

} // namespace Host
