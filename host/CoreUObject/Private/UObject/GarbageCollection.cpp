// SPDX-License-Identifier: MIT
/** Mark and sweep over all objects. */
#include "UObject/GCObject.h"

#include "UObject/ObjectAccess.h"
#include "UObject/ObjectDestruction.h"
#include "UObject/Package.h"

#include <vector>

namespace Host
{
namespace
{

FGCObject* FirstGCObject = nullptr;
bool bCollecting = false;

/** Marks what can be reached. Objects are taken from a list instead of by recursion: chains may be long. */
class FMarker : public FReferenceCollector
{
public:
	/** @param InTarget  object whose referencers matter; may be null @param bInClear  sets references to garbage to
	 * null */
	FMarker(bool bInClear, const UObject* InTarget)
		: bClear(bInClear)
		, Target(InTarget)
	{
	}

	/**
	 * Marks from the roots.
	 *
	 * @param NoRoot  object that is no root whatever its flags say; may be null
	 */
	void Run(EObjectFlags KeepFlags, EInternalObjectFlags InternalKeepFlags, const UObject* NoRoot)
	{
		const EInternalObjectFlags RootFlags =
			EInternalObjectFlags::RootSet | EInternalObjectFlags::Native | InternalKeepFlags;
		FUObjectArray& Array = GUObjectArray;
		for (int32 Index = 0; Index < Array.GetObjectArrayNum(); ++Index)
		{
			FUObjectItem& Item = *Array.IndexToObject(Index);
			if (!Item.Object)
			{
				continue;
			}
			UObject* const Object = static_cast<UObject*>(Item.Object);
			const bool bKept = Item.HasAnyFlags(RootFlags) ||
							   (Object->HasAnyFlags(KeepFlags) && !Item.HasAnyFlags(EInternalObjectFlags::Garbage));
			if (bKept && Object != NoRoot)
			{
				Item.ClearFlags(EInternalObjectFlags::Unreachable);
				Pending.push_back(Object);
			}
			else
			{
				Item.SetFlags(EInternalObjectFlags::Unreachable);
			}
		}
		FObjectAccess::ReportGCObjects(*this);
		while (!Pending.empty())
		{
			UObject* const Object = Pending.back();
			Pending.pop_back();
			Visit(Object);
		}
	}

	/** Whether something other than what lies inside the target refers to it. */
	bool FoundReferencer() const { return bFound; }

private:
	void Visit(UObject* Object)
	{
		UClass* const Class = Object->GetClass();
		Mark(Class);
		if (UObject* Outer = Object->GetOuter())
		{
			Mark(Outer);
		}
		ReportReferences(Class, Object, Object, *this);
		FObjectAccess::ReferencesOf(Class)(Object, *this);
	}

	void Mark(UObject* Object)
	{
		FUObjectItem& Item = FObjectAccess::ItemOf(Object);
		if (Item.HasAnyFlags(EInternalObjectFlags::Unreachable))
		{
			Item.ClearFlags(EInternalObjectFlags::Unreachable);
			Pending.push_back(Object);
		}
	}

	virtual void HandleObjectReference(
		UObject*& InObject, const UObject* InReferencingObject, const FProperty*) override
	{
		if (!InObject)
		{
			return;
		}
		if (InObject == Target)
		{
			bFound |= !InReferencingObject || (InReferencingObject != Target && !InReferencingObject->IsIn(Target));
		}
		if (bClear && InObject->HasAnyInternalFlags(EInternalObjectFlags::Garbage))
		{
			InObject = nullptr;
			return;
		}
		Mark(InObject);
	}

	const bool bClear;
	const UObject* const Target;
	std::vector<UObject*> Pending;
	bool bFound = false;
};

/** Takes the objects that Run left unmarked; or, for a question only, takes their marks away again. */
std::vector<UObject*> TakeUnreachable(bool bOnlyUnmark)
{
	std::vector<UObject*> Result;
	for (int32 Index = 0; Index < GUObjectArray.GetObjectArrayNum(); ++Index)
	{
		FUObjectItem& Item = *GUObjectArray.IndexToObject(Index);
		if (Item.Object && Item.HasAnyFlags(EInternalObjectFlags::Unreachable))
		{
			if (bOnlyUnmark)
			{
				Item.ClearFlags(EInternalObjectFlags::Unreachable);
			}
			else
			{
				Result.push_back(static_cast<UObject*>(Item.Object));
			}
		}
	}
	return Result;
}

} // namespace

void DestroyObjects(const std::vector<UObject*>& Objects)
{
	// In three passes, so that BeginDestroy and FinishDestroy may still look at other objects.
	for (UObject* Object : Objects)
	{
		Object->ConditionalBeginDestroy();
	}
	for (UObject* Object : Objects)
	{
		while (!Object->IsReadyForFinishDestroy())
		{
		}
		Object->ConditionalFinishDestroy();
	}
	for (UObject* Object : Objects)
	{
		FObjectAccess::Delete(Object);
	}
}

void FObjectAccess::ReportGCObjects(FReferenceCollector& Collector)
{
	for (FGCObject* Object = FirstGCObject; Object; Object = Object->Next)
	{
		Object->AddReferencedObjects(Collector);
	}
}

} // namespace Host

FGCObject::FGCObject()
	: Next(Host::FirstGCObject)
{
	if (Next)
	{
		Next->Previous = this;
	}
	Host::FirstGCObject = this;
}

FGCObject::FGCObject(const FGCObject&)
	: FGCObject()
{
}

FGCObject::~FGCObject()
{
	(Previous ? Previous->Next : Host::FirstGCObject) = Next;
	if (Next)
	{
		Next->Previous = Previous;
	}
}

void CollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge)
{
	using namespace Host;
	(void)bPerformFullPurge;
	checkf(!bCollecting, TEXT("A collection cannot start another one"));
	if (bCollecting)
	{
		return;
	}
	FCoreUObjectDelegates::GetPreGarbageCollectDelegate().Broadcast();
	EnsureIntrinsicClasses();
	bCollecting = true;
	FMarker(true, nullptr).Run(KeepFlags, EInternalObjectFlags::None, nullptr);
	DestroyObjects(TakeUnreachable(false));
	GUObjectArray.TrimFreePlaces();
	bCollecting = false;
	FCoreUObjectDelegates::GetPostGarbageCollect().Broadcast();
}

bool IsGarbageCollecting()
{
	return Host::bCollecting;
}

bool IsReferenced(UObject*& Res, EObjectFlags KeepFlags, EInternalObjectFlags InternalKeepFlags, bool bCheckSubObjects)
{
	using namespace Host;
	FMarker Marker(false, Res);
	Marker.Run(KeepFlags, InternalKeepFlags, Res);
	const bool bReachable = !Res->IsUnreachable();
	TakeUnreachable(true);
	return Marker.FoundReferencer() || (bCheckSubObjects && bReachable);
}
