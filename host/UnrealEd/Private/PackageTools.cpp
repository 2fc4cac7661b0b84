// SPDX-License-Identifier: MIT
#include "PackageTools.h"

#include "InvalidCharacters.h"
#include "UObject/NameTypes.h"

FString UPackageTools::SanitizePackageName(const FString& InPackageName)
{
	const FString Sanitized = Host::ReplaceCharacters(InPackageName, INVALID_LONGPACKAGE_CHARACTERS, TEXT('_'));
	FString Result;
	Result.Reserve(Sanitized.Len());
	for (int32 Index = 0; Index < Sanitized.Len(); ++Index)
	{
		const bool bSecondSlash = Sanitized[Index] == TEXT('/') && Index > 0 && Sanitized[Index - 1] == TEXT('/');
		if (!bSecondSlash)
		{
			Result.AppendChar(Sanitized[Index]);
		}
	}
	return Result;
}
