// SPDX-License-Identifier: MIT
/** Finding and loading objects by path. */
#include "CoreGlobals.h"
#include "Host/PackageStore.h"
#include "Misc/PackageName.h"
#include "UObject/ObjectAccess.h"
#include "UObject/ObjectNames.h"
#include "UObject/Package.h"

namespace
{

bool Fits(const UObject* Object, const UClass* Class, bool bExactClass)
{
	constexpr EInternalObjectFlags Gone = EInternalObjectFlags::Garbage | EInternalObjectFlags::Unreachable;
	return !Object->HasAnyInternalFlags(Gone) &&
		   (!Class || (bExactClass ? Object->GetClass() == Class : Object->IsA(Class)));
}

/** Object by a path of names between dots and colons; `Outer` is where the first name lies. */
UObject* ResolvePath(UObject* Outer, const FString& Path)
{
	UObject* Object = Outer;
	int32 At = 0;
	while (At <= Path.Len())
	{
		int32 End = At;
		while (End < Path.Len() && Path[End] != TEXT('.') && Path[End] != TEXT(':'))
		{
			++End;
		}
		const FName Name(*Path.Mid(At, End - At), FNAME_Find);
		Object = Name.IsNone() ? nullptr : Host::FObjectNames::Find(Object, Name);
		if (!Object)
		{
			return nullptr;
		}
		At = End + 1;
	}
	return Object;
}

/** "Texture'/Game/A.A'" is "/Game/A.A". */
FString WithoutClassName(const FString& Path)
{
	FString Inner;
	if (Path.EndsWith(TEXT("'")) && Path.LeftChop(1).Split(TEXT("'"), nullptr, &Inner))
	{
		return Inner;
	}
	return Path;
}

} // namespace

UObject* StaticFindObjectFast(UClass* Class, UObject* InOuter, FName Name, bool bExactClass)
{
	UObject* Object = Host::FObjectNames::Find(InOuter, Name);
	return Object && Fits(Object, Class, bExactClass) ? Object : nullptr;
}

UObject* StaticFindObject(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass)
{
	const FString Path = WithoutClassName(FString(Name));
	UObject* Object = ResolvePath(Path.StartsWith(TEXT("/")) ? nullptr : InOuter, Path);
	return Object && Fits(Object, Class, ExactClass) ? Object : nullptr;
}

UPackage* FindPackage(UObject* InOuter, const TCHAR* PackageName)
{
	(void)InOuter;
	return FindObject<UPackage>(nullptr, PackageName);
}

UPackage* LoadPackage(UPackage* InOuter, const TCHAR* InLongPackageName, uint32 LoadFlags)
{
	(void)InOuter;
	UPackage* Package = FindPackage(nullptr, InLongPackageName);
	Host::IPackageStore* Store = Host::GetPackageStore();
	if (!Package && Store && Store->Exists(FString(InLongPackageName)))
	{
		Store->Load(FString(InLongPackageName));
		Package = FindPackage(nullptr, InLongPackageName);
	}
	if (!Package && !(LoadFlags & (LOAD_NoWarn | LOAD_Quiet)))
	{
		UE_LOG(LogTemp, Warning, TEXT("Failed to load the package %s"), InLongPackageName);
	}
	return Package;
}

UObject* StaticLoadObject(UClass* Class, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename, uint32 LoadFlags,
	UPackageMap* Sandbox, bool bAllowObjectReconciliation, const FLinkerInstancingContext* InstancingContext)
{
	(void)Filename;
	(void)Sandbox;
	(void)bAllowObjectReconciliation;
	(void)InstancingContext;
	FString Path = WithoutClassName(FString(Name));
	if (InOuter && !Path.StartsWith(TEXT("/")))
	{
		Path = InOuter->GetPathName() + (InOuter->IsA<UPackage>() ? TEXT(".") : TEXT(":")) + Path;
	}
	const FString PackageName = FPackageName::ObjectPathToPackageName(Path);
	const bool bOnlyPackage = PackageName.Len() == Path.Len();
	if (bOnlyPackage)
	{
		Path += TEXT(".") + FPackageName::GetShortName(PackageName);
	}
	UObject* Object = StaticFindObject(Class, nullptr, *Path);
	Host::IPackageStore* Store = Host::GetPackageStore();
	if (!Object && Store && Store->Exists(PackageName))
	{
		Store->Load(PackageName);
		Object = StaticFindObject(Class, nullptr, *Path);
	}
	if (!Object && PackageName.StartsWith(TEXT("/Script/")))
	{
		// Types exist from the start, their objects only when something asked for them.
		Host::RegisterAllTypes();
		Object = StaticFindObject(Class, nullptr, *Path);
	}
	if (!Object && bOnlyPackage)
	{
		// The name may mean the package itself.
		Object = StaticFindObject(Class, nullptr, *PackageName);
	}
	if (!Object && !(LoadFlags & (LOAD_NoWarn | LOAD_Quiet)))
	{
		UE_LOG(
			LogTemp, Warning, TEXT("Failed to find object '%s %s'"), Class ? *Class->GetName() : TEXT("Object"), *Path);
	}
	return Object;
}
