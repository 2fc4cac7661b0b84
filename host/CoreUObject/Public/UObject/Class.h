// SPDX-License-Identifier: MIT
/** Classes, structs and enumerations as objects. */
#pragma once

#include "UObject/Field.h"
#include "UObject/Object.h"
#include "UObject/ReflectedTypeName.h"

class FProperty;

namespace Host
{
struct FClassRegistration;
struct FStructRegistration;
struct FEnumRegistration;
struct FStructOps;
/** Finds a reflected enumeration or struct by what TypeName gives for it; null when no module registered it. */
COREUOBJECT_API UObject* FindReflectedType(const char* CppName);
} // namespace Host

/** A type that has a name in a script package and metadata. */
class COREUOBJECT_API UField : public UObject
{
public:
	using Super = UObject;
	using ThisClass = UField;
	static UClass* StaticClass();

	const FString* FindMetaData(const FName& Key) const;
	bool HasMetaData(const FName& Key) const { return FindMetaData(Key) != nullptr; }
	/** Empty when there is none of that key. */
	const FString& GetMetaData(const FName& Key) const;
	bool GetBoolMetaData(const FName& Key) const;
	void SetMetaData(const FName& Key, const FString& Value);

	/** The metadata DisplayName, or the name in words. */
	FText GetDisplayNameText() const;
	/** The metadata ToolTip, which is the comment in the header, or the display name. */
	FText GetToolTipText(bool bShortTooltip = false) const;

protected:
	friend class Host::FTypeBuilder;
	friend class Host::FEnumBuilder;

	/** Reads what the header tool wrote about the members, when somebody first asks: all libraries are loaded then. */
	void EnsureDescribed() const
	{
		if (!bDescribed)
		{
			bDescribed = true;
			DescribeMembers();
		}
	}
	virtual void DescribeMembers() const {}

	mutable TMap<FName, FString> MetaDataMap;

private:
	mutable bool bDescribed = false;
};

/** Type with properties. */
class COREUOBJECT_API UStruct : public UField
{
public:
	using Super = UField;
	using ThisClass = UStruct;
	static UClass* StaticClass();

	virtual ~UStruct() override;

	UStruct* GetSuperStruct() const { return SuperStruct; }
	/** Whether this is `SomeBase` or derived from it; false for null. */
	bool IsChildOf(const UStruct* SomeBase) const
	{
		for (const UStruct* Struct = this; Struct; Struct = Struct->SuperStruct)
		{
			if (Struct == SomeBase)
			{
				return true;
			}
		}
		return false;
	}
	template <class T>
	bool IsChildOf() const
	{
		return IsChildOf(T::StaticClass());
	}

	/** Size of an instance in bytes. */
	int32 GetPropertiesSize() const { return PropertiesSize; }
	int32 GetStructureSize() const { return PropertiesSize; }
	int32 GetMinAlignment() const { return MinAlignment; }

	/** First property that the type itself declares; the others follow by FField::Next. */
	FField* GetChildProperties() const;
	/** Property of the type or of what it derives from, or null. */
	FProperty* FindPropertyByName(FName InName) const;
	/** Properties of the type and of its super types that hold references to objects. */
	const TArray<FProperty*>& GetReferenceProperties() const;
	/** Whether there are such properties; true as well while they are being found, for structs that hold their own
	 * kind. */
	bool MayHoldReferences() const;

protected:
	friend class Host::FTypeBuilder;
	friend struct Host::FObjectAccess;

	UStruct* SuperStruct = nullptr;
	int32 PropertiesSize = 0;
	int32 MinAlignment = 1;
	mutable FField* ChildProperties = nullptr;

private:
	enum class EReferences : uint8
	{
		Unknown,
		Searching,
		Known
	};
	mutable EReferences References = EReferences::Unknown;
	mutable TArray<FProperty*> ReferenceProperties;
};

/** A USTRUCT. */
class COREUOBJECT_API UScriptStruct : public UStruct
{
public:
	using Super = UStruct;
	using ThisClass = UScriptStruct;
	static UClass* StaticClass();

	/** Constructs a value in raw memory of GetStructureSize() bytes. */
	void InitializeStruct(void* Dest) const;
	void DestroyStruct(void* Dest) const;
	void CopyScriptStruct(void* Dest, const void* Src) const;
	/** Compares all reflected members. */
	bool CompareScriptStruct(const void* A, const void* B) const;
	/** Name as written in C++, such as "FVector". */
	FString GetStructCPPName() const { return FString(TEXT("F")) + GetName(); }

protected:
	virtual void DescribeMembers() const override;

private:
	friend struct Host::FObjectAccess;

	Host::FStructRegistration* Registration = nullptr;
};

/** A UENUM. */
class COREUOBJECT_API UEnum : public UField
{
public:
	using Super = UField;
	using ThisClass = UEnum;
	static UClass* StaticClass();

	int32 NumEnums() const { return GetEntries().Num(); }
	/** "EKind::Metal"; none for an index out of range. */
	FName GetNameByIndex(int32 Index) const;
	/** "Metal". */
	FString GetNameStringByIndex(int32 Index) const;
	FString GetNameStringByValue(int64 Value) const { return GetNameStringByIndex(GetIndexByValue(Value)); }
	FName GetNameByValue(int64 Value) const { return GetNameByIndex(GetIndexByValue(Value)); }
	/** The metadata DisplayName of the value, or its name in words. */
	FText GetDisplayNameTextByIndex(int32 Index) const;
	FText GetDisplayNameTextByValue(int64 Value) const { return GetDisplayNameTextByIndex(GetIndexByValue(Value)); }
	/** INDEX_NONE for an index out of range. */
	int64 GetValueByIndex(int32 Index) const;
	/** Accepts "Metal" and "EKind::Metal"; INDEX_NONE for an unknown name. */
	int64 GetValueByNameString(const FString& SearchString) const;
	int32 GetIndexByNameString(const FString& SearchString) const;
	/** INDEX_NONE for a value without a name. */
	int32 GetIndexByValue(int64 Value) const;
	bool IsValidEnumValue(int64 Value) const { return GetIndexByValue(Value) != INDEX_NONE; }
	/** Whether the value carries the metadata `Key`, such as Hidden. */
	bool HasMetaData(const TCHAR* Key, int32 NameIndex) const;

private:
	friend struct Host::FObjectAccess;
	friend class Host::FEnumBuilder;

	struct FEntry
	{
		FString Name;
		int64 Value;
		TMap<FName, FString> Metadata;
	};
	const TArray<FEntry>& GetEntries() const;
	virtual void DescribeMembers() const override;

	Host::FEnumRegistration* Registration = nullptr;
	mutable TArray<FEntry> Entries;
};

/** A UCLASS. One object for each class; comparing the pointers compares the classes. */
class COREUOBJECT_API UClass : public UStruct
{
public:
	using Super = UStruct;
	using ThisClass = UClass;
	static UClass* StaticClass();

	UClass* GetSuperClass() const { return static_cast<UClass*>(SuperStruct); }
	EClassFlags GetClassFlags() const { return ClassFlags; }
	bool HasAnyClassFlags(EClassFlags FlagsToCheck) const { return (ClassFlags & FlagsToCheck) != CLASS_None; }
	bool HasAllClassFlags(EClassFlags FlagsToCheck) const { return (ClassFlags & FlagsToCheck) == FlagsToCheck; }

	/**
	 * The object that holds the default values, "Default__Name" in the package of the class.
	 *
	 * @param bCreateIfNeeded  makes it when it was not needed so far
	 * @return null for a class that C++ cannot construct, and when it was not to be made
	 */
	UObject* GetDefaultObject(bool bCreateIfNeeded = true) const;
	template <class T>
	T* GetDefaultObject() const
	{
		return static_cast<T*>(GetDefaultObject());
	}
	FName GetDefaultObjectName() const { return FName(*(FString(TEXT("Default__")) + GetName())); }
	/** 'A' for actors, 'U' for the others. */
	const TCHAR* GetPrefixCPP() const;

	EClassFlags ClassFlags = CLASS_None;

protected:
	virtual void DescribeMembers() const override;

private:
	friend struct Host::FObjectAccess;
	friend class Host::FTypeBuilder;

	Host::FClassRegistration* Registration = nullptr;
	mutable UObject* ClassDefaultObject = nullptr;
	mutable void (*ReferencesFunction)(UObject*, FReferenceCollector&) = nullptr;
	/** Number of the next object that gets its name from the class. */
	mutable int32 NextUniqueNumber = 0;
};

/** Object that describes the enumeration T, or null when T is not reflected. */
template <typename T>
UEnum* StaticEnum()
{
	return static_cast<UEnum*>(Host::FindReflectedType(Host::TypeName<T>()));
}
/** Object that describes the struct T. */
template <typename T>
UScriptStruct* StaticStruct()
{
	return T::StaticStruct();
}

/** Object that describes a math type of Core: `TBaseStructure<FVector>::Get()`. */
template <typename T>
struct TBaseStructure
{
	static UScriptStruct* Get() { return static_cast<UScriptStruct*>(Host::FindReflectedType(Host::TypeName<T>())); }
};
