// SPDX-License-Identifier: MIT
#include "UObject/UObjectBase.h"

#include "UObject/ObjectAccess.h"
#include "UObject/ObjectNames.h"

#include <new>
#include <type_traits>

namespace Host
{
namespace
{

struct FAnnouncement
{
	void* Address = nullptr;
	FObjectIdentity Identity;
};
FAnnouncement Announcement;

} // namespace

void FObjectAccess::Announce(void* Address, const FObjectIdentity& Identity)
{
	Announcement = {Address, Identity};
}

void FObjectAccess::Retract()
{
	Announcement.Address = nullptr;
}

void* FObjectAccess::Allocate(SIZE_T Size, SIZE_T Alignment)
{
	// The alignment is kept in the class, which may be gone when an object is freed: one kind of memory serves all.
	constexpr SIZE_T MaxAlignment = __STDCPP_DEFAULT_NEW_ALIGNMENT__;
	checkf(Alignment <= MaxAlignment, TEXT("Objects cannot be aligned to %d bytes"), static_cast<int32>(Alignment));
	return ::operator new(Size);
}

void FObjectAccess::Destruct(UObjectBase* Object)
{
	Object->~UObjectBase();
}

void FObjectAccess::Delete(UObjectBase* Object)
{
	Object->~UObjectBase();
	::operator delete(static_cast<void*>(Object));
}

void FObjectAccess::SetIdentity(UObjectBase* Object, UClass* Class, UObject* Outer, FName Name)
{
	UObject* const AsObject = static_cast<UObject*>(Object);
	FObjectNames::Remove(AsObject, Object->OuterPrivate, Object->NamePrivate);
	Object->ClassPrivate = Class;
	Object->OuterPrivate = Outer;
	Object->NamePrivate = Name;
	FObjectNames::Add(AsObject, Outer, Name);
}

} // namespace Host

UObjectBase::UObjectBase()
{
	const bool bAnnounced = Host::Announcement.Address == this;
	checkf(bAnnounced, TEXT("Objects are made with NewObject, not with new and not on the stack"));
	if (!bAnnounced)
	{
		return;
	}
	const Host::FObjectIdentity& Identity = Host::Announcement.Identity;
	ObjectFlags = Identity.Flags;
	ClassPrivate = Identity.Class;
	NamePrivate = Identity.Name;
	OuterPrivate = Identity.Outer;
	InternalIndex = GUObjectArray.AllocateUObjectIndex(this);
	GUObjectArray.IndexToObject(InternalIndex)->SetFlags(Identity.InternalFlags);
	// The base class lies at the start of every object, and its constructor is the first to run.
	Host::FObjectNames::Add(reinterpret_cast<UObject*>(this), OuterPrivate, NamePrivate);
	Host::FObjectAccess::Retract();
}

UObjectBase::~UObjectBase()
{
	if (InternalIndex >= 0)
	{
		Host::FObjectNames::Remove(reinterpret_cast<UObject*>(this), OuterPrivate, NamePrivate);
		GUObjectArray.FreeUObjectIndex(InternalIndex);
	}
}
