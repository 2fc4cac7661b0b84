// SPDX-License-Identifier: MIT
/** Questions and simple changes that every object answers without knowing its class. */
#pragma once

#include "Containers/UnrealString.h"
#include "UObject/UObjectBase.h"

class COREUOBJECT_API UObjectBaseUtility : public UObjectBase
{
public:
	void SetFlags(EObjectFlags NewFlags) { SetFlagsTo(GetFlags() | NewFlags); }
	void ClearFlags(EObjectFlags FlagsToClear) { SetFlagsTo(GetFlags() & ~FlagsToClear); }
	bool HasAnyFlags(EObjectFlags FlagsToCheck) const { return (GetFlags() & FlagsToCheck) != RF_NoFlags; }
	bool HasAllFlags(EObjectFlags FlagsToCheck) const { return (GetFlags() & FlagsToCheck) == FlagsToCheck; }
	EObjectFlags GetMaskedFlags(EObjectFlags Mask = RF_AllFlags) const { return GetFlags() & Mask; }
	bool HasAnyInternalFlags(EInternalObjectFlags FlagsToCheck) const;

	/** Keeps the object and all that it refers to until RemoveFromRoot; not counted. */
	void AddToRoot();
	void RemoveFromRoot();
	bool IsRooted() const;

	/**
	 * Gives the object up: IsValid is false from now on, weak pointers to it are stale, and the next collection clears
	 * the reflected references to it and destroys it. Rooted objects must not be marked.
	 */
	void MarkAsGarbage();
	void ClearGarbage();
	/** True from the moment when a collection finds that nothing refers to the object. */
	bool IsUnreachable() const;

	FString GetName() const { return GetFName().ToString(); }
	void GetName(FString& ResultString) const { ResultString = GetName(); }
	/**
	 * Path from the package down: "/Game/Dir/Package.Object:Sub.SubSub".
	 *
	 * @param StopOuter  leaves this outer and everything above it out
	 */
	FString GetPathName(const UObject* StopOuter = nullptr) const;
	/** Name of the class, a blank, and the path. */
	FString GetFullName(const UObject* StopOuter = nullptr) const;

	/** Package at the top of the outers; for a package itself. */
	UPackage* GetOutermost() const { return GetPackage(); }
	UPackage* GetPackage() const;
	/** First outer that is a `Target`, or null. */
	UObject* GetTypedOuter(UClass* Target) const;
	template <typename T>
	T* GetTypedOuter() const
	{
		return (T*)GetTypedOuter(T::StaticClass());
	}
	/** Whether `SomeOuter` is among the outers. */
	bool IsIn(const UObject* SomeOuter) const;
	bool IsInOuter(const UObject* SomeOuter) const { return IsIn(SomeOuter); }

	/**
	 * Marks the package as having unsaved changes.
	 *
	 * @return false when there is nothing to save: the object is transient or lies in the transient package
	 */
	bool MarkPackageDirty() const;

	/** Whether the object or one of its outers is a class default or another template. */
	bool IsTemplate(EObjectFlags TemplateTypes = RF_ArchetypeObject | RF_ClassDefaultObject) const;
	bool IsDefaultSubobject() const { return HasAnyFlags(RF_DefaultSubObject); }

	/** Whether the class is `SomeBase` or derived from it. */
	bool IsA(const UClass* SomeBase) const;
	template <typename T>
	bool IsA() const
	{
		return IsA(T::StaticClass());
	}

protected:
	UObjectBaseUtility() = default;
};
