// SPDX-License-Identifier: MIT
/**
 * Base of all objects that the object system names, finds and collects.
 *
 * A class is declared in a header of its own, whose last include is the header that the header tool writes for it:
 *
 *     #include "CoreMinimal.h"
 *     #include "UObject/Object.h"
 *     #include "Lamp.generated.h"
 *
 *     UCLASS(Transient)
 *     class ENGINE_API ULamp : public UObject
 *     {
 *         GENERATED_BODY()
 *
 *     public:
 *         ULamp(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
 *
 *         UPROPERTY(EditAnywhere, Category = "Lamp")
 *         TObjectPtr<UTexture> Shade;
 *     };
 *
 * The constructor may also be `ULamp()`, or be left out. Objects are made with NewObject, never with `new` and never
 * on the stack; only pointers marked UPROPERTY keep what they point to. GENERATED_BODY leaves the access private.
 */
#pragma once

#include "UObject/UObjectBaseUtility.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtrTemplates.h"

class FProperty;
class FEditPropertyChain;
struct FPropertyChangedEvent;
struct FPropertyChangedChainEvent;
class UWorld;

class COREUOBJECT_API UObject : public UObjectBaseUtility
{
public:
	using Super = UObject;
	using ThisClass = UObject;
	static UClass* StaticClass();

	UObject();
	explicit UObject(const FObjectInitializer& ObjectInitializer);

	/** Called once the constructor and the copy of a template are done. */
	virtual void PostInitProperties() {}
	/** Called by loaders when all values are in place; may also be called on a new object that was filled by hand. */
	virtual void PostLoad() {}
	/** Called on the copy when DuplicateObject has filled it. */
	virtual void PostDuplicate(bool bDuplicateForPIE) { (void)bDuplicateForPIE; }
	virtual void PostRename(UObject* OldOuter, const FName OldName)
	{
		(void)OldOuter;
		(void)OldName;
	}

	/** First step of destruction; other objects may still be looked at. Overrides call their super class last. */
	virtual void BeginDestroy();
	/** False while something outside still works on the object's data; asked until it is true. */
	virtual bool IsReadyForFinishDestroy() { return true; }
	/** Last step before the destructor; overrides call their super class last. */
	virtual void FinishDestroy();
	/** Runs BeginDestroy unless it ran before, and tells whether it did. */
	bool ConditionalBeginDestroy();
	bool ConditionalFinishDestroy();

	/**
	 * Reports references that no UPROPERTY holds. A class overrides it by declaring a static function of this name; it
	 * calls its super class's at the end.
	 */
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

#if WITH_EDITOR
	/** Announces a change; null stands for "no particular property". */
	virtual void PreEditChange(FProperty* PropertyAboutToChange);
	virtual void PreEditChange(FEditPropertyChain& PropertyAboutToChange);
	/** Announces the end of a change of no particular property. */
	virtual void PostEditChange();
	/** Broadcasts OnObjectPropertyChanged; overrides call their super class last. */
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent);
	virtual void PostEditChangeChainProperty(FPropertyChangedChainEvent& PropertyChangedEvent);
	/** False for a property that is only shown or whose edit condition does not hold. */
	virtual bool CanEditChange(const FProperty* InProperty) const;
	virtual void PreEditUndo()
	{
		PreEditChange(nullptr);
	}
	virtual void PostEditUndo()
	{
		PostEditChange();
	}
#endif

	/** Notes that the object is about to change: marks its package dirty. */
	virtual bool Modify(bool bAlwaysMarkDirty = true);
	/** Whether the object is one that a content browser lists: public, not transient, directly in a package. */
	virtual bool IsAsset() const;
	/** World that the object belongs to; asks its outer. */
	virtual UWorld* GetWorld() const;

	/**
	 * Gives the object another name, outer or both.
	 *
	 * @param InName  null makes a unique name
	 * @param NewOuter  null keeps the outer
	 * @return false, and with REN_Test nothing else, when another object has that name; without REN_Test that is a
	 *         fatal error
	 */
	virtual bool Rename(const TCHAR* InName = nullptr, UObject* NewOuter = nullptr, ERenameFlags Flags = REN_None);

	/** Part made by CreateDefaultSubobject, by its name, or null. */
	UObject* GetDefaultSubobjectByName(FName ToFind);
	/** Appends the parts made by CreateDefaultSubobject. */
	void GetDefaultSubobjects(TArray<UObject*>& OutDefaultSubobjects);
	/** Object that this one took its first values from: the class default, for a class default that of the super. */
	UObject* GetArchetype() const;

	/**
	 * Makes a part of this object; only in its constructor.
	 *
	 * @param bTransient  the part is never saved
	 * @return null only when a derived class declined the part with DoNotCreateDefaultSubobject
	 */
	template <class TReturnType>
	TReturnType* CreateDefaultSubobject(FName SubobjectName, bool bTransient = false)
	{
		return CreateDefaultSubobject<TReturnType, TReturnType>(SubobjectName, bTransient);
	}
	template <class TReturnType, class TClassToConstructByDefault>
	TReturnType* CreateDefaultSubobject(FName SubobjectName, bool bTransient = false)
	{
		return static_cast<TReturnType*>(CreateDefaultSubobject(
			SubobjectName, TReturnType::StaticClass(), TClassToConstructByDefault::StaticClass(), true, bTransient));
	}
	UObject* CreateDefaultSubobject(
		FName SubobjectFName, UClass* ReturnType, UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient);
};

/** Whether there is an object, and it is neither marked as garbage nor being collected. */
inline bool IsValid(const UObject* Test)
{
	return Test && !Test->HasAnyInternalFlags(EInternalObjectFlags::Garbage | EInternalObjectFlags::Unreachable);
}
