// SPDX-License-Identifier: MIT
#include "InvalidCharacters.h"

namespace Host
{
FString ReplaceCharacters(const FString& Text, const TCHAR* Characters, TCHAR Replacement)
{
	FString Result = Text;
	for (int32 Index = 0; Index < Result.Len(); ++Index)
	{
		for (const TCHAR* Invalid = Characters; *Invalid; ++Invalid)
		{
			if (Result[Index] == *Invalid)
			{
				Result[Index] = Replacement;
				break;
			}
		}
	}
	return Result;
}
} // namespace Host
