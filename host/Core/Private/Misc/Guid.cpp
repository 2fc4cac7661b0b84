// SPDX-License-Identifier: MIT
/** Making and writing guids. */

#include "Misc/Guid.h"
#include "Containers/UnrealString.h"
#include "Misc/AssertionMacros.h"

#ifdef _WIN32
#include <random>
#else
#include <unistd.h>
#endif

namespace
{

/** From the system's source, so that no two programs agree, not even a program and its copy. */
void FillRandomly(uint32 (&Words)[4])
{
#ifdef _WIN32
	std::random_device Random;
	for (uint32& Word : Words)
	{
		Word = Random();
	}
#else
	verify(getentropy(Words, sizeof(Words)) == 0);
#endif
}

} // namespace

FGuid FGuid::NewGuid()
{
	uint32 Words[4];
	FillRandomly(Words);
	const auto [First, Second, Third, Fourth] = Words;
	// Version 4, variant 1 of RFC 4122; the fixed bits also keep the result from being none.
	return FGuid(First, (Second & 0xFFFF0FFFu) | 0x00004000u, (Third & 0x3FFFFFFFu) | 0x80000000u, Fourth);
}

FString FGuid::ToString(EGuidFormats Format) const
{
	switch (Format)
	{
		case EGuidFormats::DigitsWithHyphens:
			return FString::Printf(
				TEXT("%08X-%04X-%04X-%04X-%04X%08X"), A, B >> 16, B & 0xFFFFu, C >> 16, C & 0xFFFFu, D);
		case EGuidFormats::DigitsWithHyphensInBraces:
			return FString::Printf(
				TEXT("{%08X-%04X-%04X-%04X-%04X%08X}"), A, B >> 16, B & 0xFFFFu, C >> 16, C & 0xFFFFu, D);
		default:
			return FString::Printf(TEXT("%08X%08X%08X%08X"), A, B, C, D);
	}
}
