// SPDX-License-Identifier: MIT
#include "Containers/StringConv.h"

namespace
{

constexpr uint32 ReplacementCharacter = 0xFFFD;

/** Code point at the cursor, which moves behind it. */
uint32 ReadUtf16(const TCHAR* Source, int32 Len, int32& Index)
{
	const uint32 First = Source[Index++];
	if (First < 0xD800 || First > 0xDFFF)
	{
		return First;
	}
	const bool bIsPair = First < 0xDC00 && Index < Len && Source[Index] >= 0xDC00 && Source[Index] <= 0xDFFF;
	if (!bIsPair)
	{
		return ReplacementCharacter;
	}
	const uint32 Second = Source[Index++];
	return 0x10000 + ((First - 0xD800) << 10) + (Second - 0xDC00);
}

/** Code point at the cursor, which moves behind it, or behind one byte when no character starts there. */
uint32 ReadUtf8(const ANSICHAR* Source, int32 Len, int32& Index)
{
	const uint32 First = static_cast<uint8>(Source[Index++]);
	if (First < 0x80)
	{
		return First;
	}
	int32 NumMore = 0;
	uint32 Smallest = 0;
	uint32 CodePoint = 0;
	if ((First & 0xE0) == 0xC0)
	{
		NumMore = 1;
		Smallest = 0x80;
		CodePoint = First & 0x1F;
	}
	else if ((First & 0xF0) == 0xE0)
	{
		NumMore = 2;
		Smallest = 0x800;
		CodePoint = First & 0x0F;
	}
	else if ((First & 0xF8) == 0xF0)
	{
		NumMore = 3;
		Smallest = 0x10000;
		CodePoint = First & 0x07;
	}
	if (NumMore == 0 || Index + NumMore > Len)
	{
		return ReplacementCharacter;
	}
	for (int32 Offset = 0; Offset < NumMore; ++Offset)
	{
		const uint32 Byte = static_cast<uint8>(Source[Index + Offset]);
		if ((Byte & 0xC0) != 0x80)
		{
			return ReplacementCharacter;
		}
		CodePoint = (CodePoint << 6) | (Byte & 0x3F);
	}
	// Longer forms than needed and halves of surrogate pairs are not UTF-8.
	if (CodePoint < Smallest || CodePoint > 0x10FFFF || (CodePoint >= 0xD800 && CodePoint <= 0xDFFF))
	{
		return ReplacementCharacter;
	}
	Index += NumMore;
	return CodePoint;
}

} // namespace

FTCHARToUTF8::FTCHARToUTF8(const TCHAR* Source)
	: FTCHARToUTF8(FStringView(Source))
{
}

FTCHARToUTF8::FTCHARToUTF8(const TCHAR* Source, int32 SourceLen)
{
	Buffer.Reserve(SourceLen + 1);
	for (int32 Index = 0; Index < SourceLen;)
	{
		const uint32 CodePoint = ReadUtf16(Source, SourceLen, Index);
		const auto AddByte = [this](uint32 Byte) { Buffer.Add(static_cast<ANSICHAR>(Byte)); };
		if (CodePoint < 0x80)
		{
			AddByte(CodePoint);
		}
		else if (CodePoint < 0x800)
		{
			AddByte(0xC0 | (CodePoint >> 6));
			AddByte(0x80 | (CodePoint & 0x3F));
		}
		else if (CodePoint < 0x10000)
		{
			AddByte(0xE0 | (CodePoint >> 12));
			AddByte(0x80 | ((CodePoint >> 6) & 0x3F));
			AddByte(0x80 | (CodePoint & 0x3F));
		}
		else
		{
			AddByte(0xF0 | (CodePoint >> 18));
			AddByte(0x80 | ((CodePoint >> 12) & 0x3F));
			AddByte(0x80 | ((CodePoint >> 6) & 0x3F));
			AddByte(0x80 | (CodePoint & 0x3F));
		}
	}
	Buffer.Add('\0');
}

FUTF8ToTCHAR::FUTF8ToTCHAR(const ANSICHAR* Source)
	: FUTF8ToTCHAR(Source, FAnsiStringView(Source).Len())
{
}

FUTF8ToTCHAR::FUTF8ToTCHAR(const ANSICHAR* Source, int32 SourceLen)
{
	Buffer.Reserve(SourceLen + 1);
	for (int32 Index = 0; Index < SourceLen;)
	{
		const uint32 CodePoint = ReadUtf8(Source, SourceLen, Index);
		if (CodePoint < 0x10000)
		{
			Buffer.Add(static_cast<TCHAR>(CodePoint));
		}
		else
		{
			Buffer.Add(static_cast<TCHAR>(0xD800 + ((CodePoint - 0x10000) >> 10)));
			Buffer.Add(static_cast<TCHAR>(0xDC00 + ((CodePoint - 0x10000) & 0x3FF)));
		}
	}
	Buffer.Add(0);
}
