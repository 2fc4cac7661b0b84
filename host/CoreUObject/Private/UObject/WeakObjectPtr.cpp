// SPDX-License-Identifier: MIT
#include "UObject/WeakObjectPtr.h"

#include "UObject/Object.h"

FWeakObjectPtr& FWeakObjectPtr::operator=(const UObject* Object)
{
	ObjectIndex = Object ? static_cast<int32>(Object->GetUniqueID()) : -1;
	ObjectSerialNumber = Object ? GUObjectArray.AllocateSerialNumber(ObjectIndex) : 0;
	return *this;
}

UObject* FWeakObjectPtr::GetEvenIfUnreachable() const
{
	const FUObjectItem* Item = GUObjectArray.IndexToObject(ObjectIndex);
	const bool bSame = Item && Item->Object && Item->SerialNumber == ObjectSerialNumber;
	return bSame ? static_cast<UObject*>(Item->Object) : nullptr;
}

UObject* FWeakObjectPtr::Get(bool bEvenIfPendingKill) const
{
	const EInternalObjectFlags Refused =
		EInternalObjectFlags::Unreachable |
		(bEvenIfPendingKill ? EInternalObjectFlags::None : EInternalObjectFlags::Garbage);
	UObject* Object = GetEvenIfUnreachable();
	return Object && !Object->HasAnyInternalFlags(Refused) ? Object : nullptr;
}

bool FWeakObjectPtr::IsStale(bool bIncludingGarbage, bool bThreadsafeTest) const
{
	(void)bThreadsafeTest;
	return !IsExplicitlyNull() && Get(!bIncludingGarbage) == nullptr;
}
