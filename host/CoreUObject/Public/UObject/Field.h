// SPDX-License-Identifier: MIT
/** Reflected members: their names, kinds and metadata. */
#pragma once

#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "Internationalization/Text.h"
#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"

class UStruct;

/** Kind of a field, such as FFloatProperty; one object for each kind. */
class COREUOBJECT_API FFieldClass
{
public:
	constexpr FFieldClass(const ANSICHAR* InName, const FFieldClass* InSuperClass)
		: Name(InName)
		, SuperClass(InSuperClass)
	{
	}

	/** Without prefix, such as "FloatProperty". */
	FString GetName() const { return FString(Name); }
	FName GetFName() const { return FName(Name); }
	const FFieldClass* GetSuperClass() const { return SuperClass; }
	bool IsChildOf(const FFieldClass* Other) const
	{
		for (const FFieldClass* Class = this; Class; Class = Class->SuperClass)
		{
			if (Class == Other)
			{
				return true;
			}
		}
		return false;
	}

private:
	const ANSICHAR* Name;
	const FFieldClass* SuperClass;
};

/** Declares what CastField needs to know. */
#define DECLARE_FIELD(TClass, TSuper)                                                                                  \
public:                                                                                                                \
	using Super = TSuper;                                                                                              \
	static const FFieldClass* StaticClass()                                                                            \
	{                                                                                                                  \
		static const FFieldClass Class(&#TClass[1], TSuper::StaticClass());                                            \
		return &Class;                                                                                                 \
	}                                                                                                                  \
	virtual const FFieldClass* GetClass() const override                                                               \
	{                                                                                                                  \
		return StaticClass();                                                                                          \
	}

/** Owned by the struct, class or property that it is part of. */
class COREUOBJECT_API FField
{
public:
	FField() = default;
	virtual ~FField() = default;
	FField(const FField&) = delete;
	FField& operator=(const FField&) = delete;

	static const FFieldClass* StaticClass();
	virtual const FFieldClass* GetClass() const { return StaticClass(); }
	bool IsA(const FFieldClass* FieldClass) const { return GetClass()->IsChildOf(FieldClass); }
	template <typename T>
	bool IsA() const
	{
		return IsA(T::StaticClass());
	}

	FName GetFName() const { return NamePrivate; }
	FString GetName() const { return NamePrivate.ToString(); }
	/** The struct or class that declares the field, also for a part of another property. */
	UStruct* GetOwnerStruct() const { return Owner; }
	UClass* GetOwnerClass() const;

	/** Text of a metadata entry, or null when there is none of that key. */
	const FString* FindMetaData(const FName& Key) const { return MetaDataMap.Find(Key); }
	bool HasMetaData(const FName& Key) const { return MetaDataMap.Contains(Key); }
	/** Empty when there is none of that key. */
	const FString& GetMetaData(const FName& Key) const;
	/** Whether the entry exists and is empty or says true. */
	bool GetBoolMetaData(const FName& Key) const;
	int32 GetIntMetaData(const FName& Key) const;
	float GetFloatMetaData(const FName& Key) const;
	void SetMetaData(const FName& Key, const FString& Value) { MetaDataMap.Add(Key, Value); }

	/** The metadata DisplayName, or the name in words: "bUseMikkTSpace" is "Use Mikk TSpace". */
	FText GetDisplayNameText() const;
	/** The metadata ToolTip, which is the comment in the header, or the display name. */
	FText GetToolTipText(bool bShortTooltip = false) const;

	/** Next field of the same struct. */
	FField* Next = nullptr;
	FName NamePrivate;

protected:
	friend class Host::FTypeBuilder;

	UStruct* Owner = nullptr;
	TMap<FName, FString> MetaDataMap;
};

/** The field as a `T`; null when it is null or of another kind. */
template <typename T>
T* CastField(FField* Src)
{
	return Src && Src->IsA(T::StaticClass()) ? static_cast<T*>(Src) : nullptr;
}
template <typename T>
const T* CastField(const FField* Src)
{
	return Src && Src->IsA(T::StaticClass()) ? static_cast<const T*>(Src) : nullptr;
}
/** Like CastField, but another kind is a fatal error. */
template <typename T>
T* CastFieldChecked(FField* Src)
{
	T* Result = CastField<T>(Src);
	check(Result);
	return Result;
}
