// SPDX-License-Identifier: MIT
#include "Misc/PackageName.h"

#include "Host/PackageStore.h"
#include "Internationalization/Text.h"
#include "UObject/NameTypes.h"

namespace
{

bool Refuse(FText* OutReason, const FString& Reason)
{
	if (OutReason)
	{
		*OutReason = FText::FromString(Reason);
	}
	return false;
}

} // namespace

FString FPackageName::GetLongPackagePath(const FString& InLongPackageName)
{
	int32 Slash = INDEX_NONE;
	return InLongPackageName.FindLastChar(TEXT('/'), Slash) ? InLongPackageName.Left(Slash) : FString();
}

FString FPackageName::GetShortName(const FString& LongName)
{
	int32 Slash = INDEX_NONE;
	return LongName.FindLastChar(TEXT('/'), Slash) ? LongName.RightChop(Slash + 1) : LongName;
}

FString FPackageName::ObjectPathToPackageName(const FString& InObjectPath)
{
	int32 Dot = INDEX_NONE;
	return InObjectPath.FindChar(TEXT('.'), Dot) ? InObjectPath.Left(Dot) : InObjectPath;
}

FString FPackageName::ObjectPathToObjectName(const FString& InObjectPath)
{
	int32 Dot = INDEX_NONE;
	return InObjectPath.FindChar(TEXT('.'), Dot) ? InObjectPath.RightChop(Dot + 1) : InObjectPath;
}

bool FPackageName::DoesPackageExist(const FString& LongPackageName, FString* OutFilename, bool InAllowTextFormats)
{
	(void)InAllowTextFormats;
	const FString PackageName = ObjectPathToPackageName(LongPackageName);
	Host::IPackageStore* Store = Host::GetPackageStore();
	if (!Store || !Store->Exists(PackageName))
	{
		return false;
	}
	if (OutFilename)
	{
		Host::LongPackageNameToPath(PackageName, *OutFilename);
	}
	return true;
}

bool FPackageName::IsValidTextForLongPackageName(const FString& InLongPackageName, FText* OutReason)
{
	if (InLongPackageName.IsEmpty())
	{
		return Refuse(OutReason, TEXT("The package name is empty."));
	}
	if (InLongPackageName[0] != TEXT('/'))
	{
		return Refuse(OutReason, TEXT("The package name does not begin with '/'."));
	}
	if (InLongPackageName.EndsWith(TEXT("/")))
	{
		return Refuse(OutReason, TEXT("The package name ends with '/'."));
	}
	if (InLongPackageName.Contains(TEXT("//")))
	{
		return Refuse(OutReason, TEXT("The package name has an empty part."));
	}
	for (const TCHAR* Invalid = INVALID_LONGPACKAGE_CHARACTERS; *Invalid; ++Invalid)
	{
		int32 At = INDEX_NONE;
		if (InLongPackageName.FindChar(*Invalid, At))
		{
			return Refuse(OutReason,
				FString::Printf(TEXT("The package name holds the character '%c', which is not allowed."), *Invalid));
		}
	}
	return true;
}

bool FPackageName::IsValidLongPackageName(
	const FString& InLongPackageName, bool bIncludeReadOnlyRoots, FText* OutReason)
{
	if (!IsValidTextForLongPackageName(InLongPackageName, OutReason))
	{
		return false;
	}
	TArray<FString> Roots = Host::GetContentRoots();
	if (bIncludeReadOnlyRoots)
	{
		Roots.Append({FString(TEXT("/Engine/")), FString(TEXT("/Script/")), FString(TEXT("/Temp/"))});
	}
	FString Known;
	for (const FString& Root : Roots)
	{
		if (InLongPackageName.StartsWith(Root))
		{
			return true;
		}
		Known += (Known.IsEmpty() ? TEXT("") : TEXT(", ")) + Root;
	}
	return Refuse(OutReason, TEXT("The package name begins with none of the content roots: ") + Known);
}

bool FPackageName::TryConvertLongPackageNameToFilename(
	const FString& InLongPackageName, FString& OutFilename, const FString& InExtension)
{
	if (!Host::LongPackageNameToPath(InLongPackageName, OutFilename))
	{
		return false;
	}
	OutFilename += InExtension;
	return true;
}

bool FPackageName::TryConvertFilenameToLongPackageName(const FString& InFilename, FString& OutPackageName)
{
	return Host::PathToLongPackageName(InFilename, OutPackageName);
}
