// SPDX-License-Identifier: MIT
/** What the sources written by the header tool need: registration of types and construction of their properties. */
#pragma once

#include "UObject/GeneratedPropertyTypes.h"
#include "UObject/Package.h"

#include <initializer_list>

namespace Host
{

/** Key and text of a metadata entry, in UTF-8. */
struct FMetadataEntry
{
	const char* Key;
	const char* Value;
};
using FMetadataList = std::initializer_list<FMetadataEntry>;

/** Receives the members of a class or struct when somebody first asks for them. */
class COREUOBJECT_API FTypeBuilder
{
public:
	explicit FTypeBuilder(const UStruct& InType)
		: Type(InType)
	{
	}

	void Metadata(FMetadataList Entries);
	/** Function that reports the native references of a class; inherited ones count too. */
	void References(void (*Function)(UObject*, FReferenceCollector&));
	template <typename T>
	void Property(const char* Name, SIZE_T Offset, EPropertyFlags Flags, FMetadataList Metadata)
	{
		using FElement = std::remove_extent_t<T>;
		FProperty* NewProperty = TPropertyType<std::remove_cv_t<FElement>>::New();
		NewProperty->ArrayDim = std::is_array_v<T> ? static_cast<int32>(std::extent_v<T>) : 1;
		Add(NewProperty, Name, Offset, Flags, Metadata);
	}
	void Bit(const char* Name, FBoolProperty::FBitGetter Getter, FBoolProperty::FBitSetter Setter, EPropertyFlags Flags,
		FMetadataList Metadata);

private:
	void Add(FProperty* Property, const char* Name, SIZE_T Offset, EPropertyFlags Flags, FMetadataList Metadata);

	const UStruct& Type;
	FField* Last = nullptr;
};

/** Receives the values of an enumeration. */
class COREUOBJECT_API FEnumBuilder
{
public:
	explicit FEnumBuilder(const UEnum& InEnum)
		: Enum(InEnum)
	{
	}

	void Metadata(FMetadataList Entries);
	void Value(const char* Name, int64 Value, FMetadataList Metadata);

private:
	const UEnum& Enum;
};

/** A class as compiled; lives as long as its library. */
struct FClassRegistration
{
	/** C++ name with prefix. */
	const char* CppName;
	const char* PackageName;
	SIZE_T Size;
	SIZE_T Alignment;
	EClassFlags Flags;
	UClass* (*GetSuper)();
	/** Null of a class that C++ calls abstract. */
	void (*Construct)(const FObjectInitializer&);
	void (*Describe)(FTypeBuilder&);
	/** The object of the class while the object system is up. */
	UClass* Class = nullptr;
};

struct FStructRegistration
{
	const char* Name;
	const char* PackageName;
	const FStructOps& Ops;
	/** Null without a reflected super struct. */
	UScriptStruct* (*GetSuper)();
	void (*Describe)(FTypeBuilder&);
	UScriptStruct* Struct = nullptr;
};

struct FEnumRegistration
{
	const char* Name;
	const char* PackageName;
	void (*Describe)(FEnumBuilder&);
	UEnum* Enum = nullptr;
};

/** Make the object of a type, or give the one that was made. */
COREUOBJECT_API UClass* GetClass(FClassRegistration& Registration);
COREUOBJECT_API UScriptStruct* GetStruct(FStructRegistration& Registration);
COREUOBJECT_API UEnum* GetEnum(FEnumRegistration& Registration);

/** Puts a type into the list of all types. Needs no other static object, so it works in every library. */
class COREUOBJECT_API FTypeAtStart
{
public:
	template <typename T>
	FTypeAtStart(const char* InCppName, T* (*InGetter)())
		: CppName(InCppName)
		, Getter(reinterpret_cast<void (*)()>(InGetter))
		, Caller([](void (*Erased)()) -> UObject* { return reinterpret_cast<T* (*)()>(Erased)(); })
	{
		Link();
	}

	UObject* Get() const { return Caller(Getter); }

	const char* const CppName;
	const FTypeAtStart* Next = nullptr;

private:
	void Link();

	void (*Getter)();
	UObject* (*Caller)(void (*)());
};

/** StaticStruct of a super struct that is reflected, otherwise null. */
template <typename T>
constexpr UScriptStruct* (*StructGetter())()
{
	if constexpr (requires { typename T::ThisStruct; })
	{
		return &T::StaticStruct;
	}
	else
	{
		return nullptr;
	}
}

} // namespace Host
