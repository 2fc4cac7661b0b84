// SPDX-License-Identifier: MIT
#include "UObject/Package.h"

#include "UObject/ObjectAccess.h"

UPackage* CreatePackage(const TCHAR* PackageName)
{
	const FString Name(PackageName);
	const bool bFullName = Name.StartsWith(TEXT("/")) && !Name.EndsWith(TEXT("/")) && !Name.Contains(TEXT("//"));
	checkf(bFullName, TEXT("A package needs a full name such as /Game/Name, not '%s'"), *Name);
	if (!bFullName)
	{
		return nullptr;
	}
	if (UPackage* Existing = FindObjectFast<UPackage>(nullptr, FName(*Name)))
	{
		return Existing;
	}
	return NewObject<UPackage>(nullptr, FName(*Name), RF_Public);
}

UPackage* GetTransientPackage()
{
	static const FName Name(TEXT("/Engine/Transient"));
	UPackage* Package = FindObjectFast<UPackage>(nullptr, Name);
	if (!Package)
	{
		Package = NewObject<UPackage>(nullptr, Name, RF_Public | RF_Transient);
		Package->AddToRoot();
	}
	return Package;
}
