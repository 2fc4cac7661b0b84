// SPDX-License-Identifier: MIT
#include "UObject/Object.h"

#include "Host/ChangeRecorder.h"
#include "UObject/ObjectAccess.h"
#include "UObject/ObjectNames.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"
#include "Templates/Casts.h"
#include "UObject/UnrealType.h"

UObject::UObject() = default;

UObject::UObject(const FObjectInitializer& ObjectInitializer)
{
	check(ObjectInitializer.GetObj() == this);
}

void UObject::BeginDestroy()
{
	SetFlags(RF_BeginDestroyed);
}

void UObject::FinishDestroy()
{
	SetFlags(RF_FinishDestroyed);
}

bool UObject::ConditionalBeginDestroy()
{
	if (HasAnyFlags(RF_BeginDestroyed))
	{
		return false;
	}
	BeginDestroy();
	checkf(HasAnyFlags(RF_BeginDestroyed), TEXT("%s does not call Super::BeginDestroy"), *GetClass()->GetName());
	SetFlags(RF_BeginDestroyed);
	return true;
}

bool UObject::ConditionalFinishDestroy()
{
	if (HasAnyFlags(RF_FinishDestroyed))
	{
		return false;
	}
	FinishDestroy();
	checkf(HasAnyFlags(RF_FinishDestroyed), TEXT("%s does not call Super::FinishDestroy"), *GetClass()->GetName());
	SetFlags(RF_FinishDestroyed);
	return true;
}

void UObject::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	(void)InThis;
	(void)Collector;
}

#if WITH_EDITOR
void UObject::PreEditChange(FProperty* PropertyAboutToChange)
{
	FEditPropertyChain Chain;
	if (PropertyAboutToChange)
	{
		Chain.AddTail(PropertyAboutToChange);
		Chain.SetActivePropertyNode(PropertyAboutToChange);
	}
	FCoreUObjectDelegates::OnPreObjectPropertyChanged.Broadcast(this, Chain);
	Modify();
}

void UObject::PreEditChange(FEditPropertyChain& PropertyAboutToChange)
{
	const FEditPropertyChain::TDoubleLinkedListNode* Active = PropertyAboutToChange.GetActiveMemberNode();
	PreEditChange(Active ? Active->GetValue() : nullptr);
}

void UObject::PostEditChange()
{
	FPropertyChangedEvent Event(nullptr);
	PostEditChangeProperty(Event);
}

void UObject::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	FCoreUObjectDelegates::OnObjectPropertyChanged.Broadcast(this, PropertyChangedEvent);
}

void UObject::PostEditChangeChainProperty(FPropertyChangedChainEvent& PropertyChangedEvent)
{
	PostEditChangeProperty(PropertyChangedEvent);
}

bool UObject::CanEditChange(const FProperty* InProperty) const
{
	if (!InProperty || InProperty->HasAnyPropertyFlags(CPF_EditConst))
	{
		return InProperty == nullptr;
	}
	FString Condition = InProperty->GetMetaData(TEXT("EditCondition")).TrimStartAndEnd();
	const bool bNegated = Condition.RemoveFromStart(TEXT("!"));
	const FBoolProperty* Property =
		Condition.IsEmpty() ? nullptr : CastField<FBoolProperty>(GetClass()->FindPropertyByName(FName(*Condition)));
	return !Property || Property->GetPropertyValue_InContainer(this) != bNegated;
}
#endif

namespace
{
Host::FChangeRecorder ChangeRecorder = nullptr;
}

void Host::SetChangeRecorder(FChangeRecorder Recorder)
{
	ChangeRecorder = Recorder;
}

bool UObject::Modify(bool bAlwaysMarkDirty)
{
	const bool bRecorded = ChangeRecorder && HasAnyFlags(RF_Transactional) && ChangeRecorder(*this);
	if (bAlwaysMarkDirty || bRecorded)
	{
		MarkPackageDirty();
	}
	return bRecorded;
}

bool UObject::IsAsset() const
{
	return HasAnyFlags(RF_Public) && !HasAnyFlags(RF_Transient | RF_ClassDefaultObject) && GetOuter() &&
		   GetOuter()->GetClass() == UPackage::StaticClass() && !GetOuter()->HasAnyFlags(RF_Transient) &&
		   !HasAnyInternalFlags(EInternalObjectFlags::Garbage | EInternalObjectFlags::Native);
}

UWorld* UObject::GetWorld() const
{
	return GetOuter() ? GetOuter()->GetWorld() : nullptr;
}

bool UObject::Rename(const TCHAR* InName, UObject* NewOuter, ERenameFlags Flags)
{
	UObject* const OldOuter = GetOuter();
	const FName OldName = GetFName();
	UObject* const Outer = NewOuter ? NewOuter : OldOuter;
	const FName Name = InName ? FName(InName) : MakeUniqueObjectName(Outer, GetClass());
	const UObject* Existing = Host::FObjectNames::Find(Outer, Name);
	if (Existing && Existing != this)
	{
		checkf(Flags & REN_Test, TEXT("Renaming %s to %s: an object of that name exists"), *GetFullName(),
			*Existing->GetFullName());
		return false;
	}
	if (Flags & REN_Test)
	{
		return true;
	}
	if (!(Flags & REN_DoNotDirty))
	{
		MarkPackageDirty();
	}
	Host::FObjectAccess::SetIdentity(this, GetClass(), Outer, Name);
	if (!(Flags & REN_DoNotDirty))
	{
		MarkPackageDirty();
	}
	PostRename(OldOuter, OldName);
	return true;
}

UObject* UObject::GetDefaultSubobjectByName(FName ToFind)
{
	UObject* Object = StaticFindObjectFast(nullptr, this, ToFind);
	return Object && Object->IsDefaultSubobject() ? Object : nullptr;
}

void UObject::GetDefaultSubobjects(TArray<UObject*>& OutDefaultSubobjects)
{
	TArray<UObject*> Inner;
	GetObjectsWithOuter(this, Inner, false);
	for (UObject* Object : Inner)
	{
		if (Object->IsDefaultSubobject())
		{
			OutDefaultSubobjects.Add(Object);
		}
	}
}

UObject* UObject::GetArchetype() const
{
	UClass* const Class = HasAnyFlags(RF_ClassDefaultObject) ? GetClass()->GetSuperClass() : GetClass();
	return Class ? Class->GetDefaultObject() : nullptr;
}

UObject* UObject::CreateDefaultSubobject(
	FName SubobjectFName, UClass* ReturnType, UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient)
{
	return FObjectInitializer::Get().CreateDefaultSubobject(
		this, SubobjectFName, ReturnType, ClassToCreateByDefault, bIsRequired, bIsTransient);
}

void CastLogError(const UObject* Object, const UClass* ToClass)
{
	const FString From = Object ? Object->GetFullName() : FString(TEXT("nullptr"));
	checkf(false, TEXT("Cast of %s to %s failed"), *From, *ToClass->GetName());
}
