// SPDX-License-Identifier: MIT
/** Making and writing guids. */

#include "Misc/Guid.h"
#include "Containers/UnrealString.h"
#include <random>

FGuid FGuid::NewGuid()
{
	std::random_device Random;
	const uint32 First = Random();
	const uint32 Second = Random();
	const uint32 Third = Random();
	const uint32 Fourth = Random();
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
