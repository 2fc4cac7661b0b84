// SPDX-License-Identifier: MIT
/** Argument of FString::Format. */
#pragma once

#include "Containers/Map.h"
#include "Containers/UnrealString.h"

/** A number or a text, kept as the text that it prints as. */
struct CORE_API FStringFormatArg
{
	FStringFormatArg(int32 Value)
		: Text(LexToString(Value))
	{
	}
	FStringFormatArg(uint32 Value)
		: Text(LexToString(Value))
	{
	}
	FStringFormatArg(int64 Value)
		: Text(LexToString(Value))
	{
	}
	FStringFormatArg(uint64 Value)
		: Text(LexToString(Value))
	{
	}
	FStringFormatArg(float Value)
		: Text(FString::SanitizeFloat(Value))
	{
	}
	FStringFormatArg(double Value)
		: Text(FString::SanitizeFloat(Value))
	{
	}
	FStringFormatArg(FString Value)
		: Text(MoveTemp(Value))
	{
	}
	FStringFormatArg(FStringView Value)
		: Text(Value)
	{
	}
	FStringFormatArg(const TCHAR* Value)
		: Text(Value)
	{
	}
	FStringFormatArg(const ANSICHAR* Value)
		: Text(Value)
	{
	}

	FString Text;
};
