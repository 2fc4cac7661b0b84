// SPDX-License-Identifier: MIT
/** Chooses the kind of property for a C++ type. Only sources written by the header tool need it. */
#pragma once

#include "Containers/EnumAsByte.h"
#include "Containers/Map.h"
#include "Containers/Set.h"
#include "Templates/SubclassOf.h"
#include "UObject/ReflectedTypeName.h"
#include "UObject/UnrealType.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include <new>
#include <type_traits>

namespace Host
{

/** Class that TypeName<T>() names, or UObject when no module registered it. */
COREUOBJECT_API UClass* FindReflectedClass(const char* CppName);

template <typename T>
const FStructOps& StructOps()
{
	static const FStructOps Ops = {sizeof(T), alignof(T), TypeName<T>(), [](void* Dest) { ::new (Dest) T(); },
		[](void* Dest) { static_cast<T*>(Dest)->~T(); },
		[](void* Dest, const void* Src) { *static_cast<T*>(Dest) = *static_cast<const T*>(Src); },
		[]() -> bool (*)(const void*, const void*)
		{
			if constexpr (requires(const T& Value) { bool(Value == Value); })
			{
				return [](const void* A, const void* B) -> bool
				{ return *static_cast<const T*>(A) == *static_cast<const T*>(B); };
			}
			else
			{
				return nullptr;
			}
		}()};
	return Ops;
}

template <typename T>
const FArrayOps& ArrayOps()
{
	using FArray = TArray<T>;
	static const FArrayOps Ops = {[](const void* Array) -> int32 { return static_cast<const FArray*>(Array)->Num(); },
		[](void* Array, int32 Index) -> void* { return static_cast<FArray*>(Array)->GetData() + Index; },
		[](void* Array, int32 Count) { static_cast<FArray*>(Array)->SetNum(Count); },
		[](void* Array, int32 Index) { static_cast<FArray*>(Array)->Insert(T(), Index); },
		[](void* Array, int32 Index, int32 Count) { static_cast<FArray*>(Array)->RemoveAt(Index, Count); },
		[](void* Dest) { ::new (Dest) FArray(); }, [](void* Dest) { static_cast<FArray*>(Dest)->~FArray(); },
		[](void* Dest, const void* Src) { *static_cast<FArray*>(Dest) = *static_cast<const FArray*>(Src); }};
	return Ops;
}

template <typename K, typename V>
const FMapOps& MapOps()
{
	using FMap = TMap<K, V>;
	static const FMapOps Ops = {[](const void* Map) -> int32 { return static_cast<const FMap*>(Map)->Num(); },
		[](void* Map, FMapOps::FVisitor Visitor, void* Context)
		{
			for (auto& Pair : *static_cast<FMap*>(Map))
			{
				Visitor(&Pair.Key, &Pair.Value, Context);
			}
		},
		[](void* Map, const void* Key) -> void*
		{ return &static_cast<FMap*>(Map)->FindOrAdd(*static_cast<const K*>(Key)); },
		[](const void* Map, const void* Key) -> const void*
		{ return static_cast<const FMap*>(Map)->Find(*static_cast<const K*>(Key)); },
		[](void* Map, const void* Key) { static_cast<FMap*>(Map)->Remove(*static_cast<const K*>(Key)); },
		[](void* Map) { static_cast<FMap*>(Map)->Empty(); }, [](void* Dest) { ::new (Dest) FMap(); },
		[](void* Dest) { static_cast<FMap*>(Dest)->~FMap(); },
		[](void* Dest, const void* Src) { *static_cast<FMap*>(Dest) = *static_cast<const FMap*>(Src); }, sizeof(FMap)};
	return Ops;
}

template <typename T>
const FMapOps& SetOps()
{
	using FSet = TSet<T>;
	static const FMapOps Ops = {[](const void* Set) -> int32 { return static_cast<const FSet*>(Set)->Num(); },
		[](void* Set, FMapOps::FVisitor Visitor, void* Context)
		{
			for (auto& Element : *static_cast<FSet*>(Set))
			{
				Visitor(&Element, nullptr, Context);
			}
		},
		[](void* Set, const void* Key) -> void*
		{
			static_cast<FSet*>(Set)->Add(*static_cast<const T*>(Key));
			return nullptr;
		},
		[](const void* Set, const void* Key) -> const void*
		{ return static_cast<const FSet*>(Set)->Contains(*static_cast<const T*>(Key)) ? Key : nullptr; },
		[](void* Set, const void* Key) { static_cast<FSet*>(Set)->Remove(*static_cast<const T*>(Key)); },
		[](void* Set) { static_cast<FSet*>(Set)->Empty(); }, [](void* Dest) { ::new (Dest) FSet(); },
		[](void* Dest) { static_cast<FSet*>(Dest)->~FSet(); },
		[](void* Dest, const void* Src) { *static_cast<FSet*>(Dest) = *static_cast<const FSet*>(Src); }, sizeof(FSet)};
	return Ops;
}

/** Object of a struct or enumeration type, or null when it is not reflected. */
template <typename T>
UScriptStruct* StructOf()
{
	if constexpr (requires { requires std::is_same_v<typename T::ThisStruct, T>; })
	{
		return T::StaticStruct();
	}
	else
	{
		return static_cast<UScriptStruct*>(FindReflectedType(TypeName<T>()));
	}
}

/** Any type that is not named below is an enumeration or a struct. */
template <typename T>
struct TPropertyType
{
	static FProperty* New()
	{
		if constexpr (std::is_enum_v<T>)
		{
			return new FEnumProperty(static_cast<UEnum*>(FindReflectedType(TypeName<T>())), sizeof(T));
		}
		else
		{
			static_assert(std::is_class_v<T> || std::is_union_v<T>, "no property can hold a value of this type");
			return new FStructProperty(StructOf<T>(), StructOps<T>());
		}
	}
};

template <typename PropertyType>
struct TSimplePropertyType
{
	static FProperty* New() { return new PropertyType(); }
};
// clang-format off
template <> struct TPropertyType<int8> : TSimplePropertyType<FInt8Property> {};
template <> struct TPropertyType<int16> : TSimplePropertyType<FInt16Property> {};
template <> struct TPropertyType<int32> : TSimplePropertyType<FIntProperty> {};
template <> struct TPropertyType<int64> : TSimplePropertyType<FInt64Property> {};
template <> struct TPropertyType<uint8> : TSimplePropertyType<FByteProperty> {};
template <> struct TPropertyType<uint16> : TSimplePropertyType<FUInt16Property> {};
template <> struct TPropertyType<uint32> : TSimplePropertyType<FUInt32Property> {};
template <> struct TPropertyType<uint64> : TSimplePropertyType<FUInt64Property> {};
template <> struct TPropertyType<float> : TSimplePropertyType<FFloatProperty> {};
template <> struct TPropertyType<double> : TSimplePropertyType<FDoubleProperty> {};
template <> struct TPropertyType<bool> : TSimplePropertyType<FBoolProperty> {};
template <> struct TPropertyType<FString> : TSimplePropertyType<FStrProperty> {};
template <> struct TPropertyType<FName> : TSimplePropertyType<FNameProperty> {};
template <> struct TPropertyType<FText> : TSimplePropertyType<FTextProperty> {};
// clang-format on

template <typename T>
struct TPropertyType<TEnumAsByte<T>>
{
	static FProperty* New()
	{
		FByteProperty* Property = new FByteProperty();
		Property->Enum = static_cast<UEnum*>(FindReflectedType(TypeName<T>()));
		return Property;
	}
};

template <typename T>
struct TPropertyType<T*>
{
	static FProperty* New()
	{
		FObjectProperty* Property = new FObjectProperty();
		Property->PropertyClass = FindReflectedClass(TypeName<std::remove_const_t<T>>());
		return Property;
	}
};
template <typename T>
struct TPropertyType<TObjectPtr<T>> : TPropertyType<T*>
{
};

template <typename T>
FProperty* NewClassProperty()
{
	FClassProperty* Property = new FClassProperty();
	Property->PropertyClass = UClass::StaticClass();
	Property->MetaClass = FindReflectedClass(TypeName<T>());
	return Property;
}
template <>
struct TPropertyType<UClass*>
{
	static FProperty* New() { return NewClassProperty<UObject>(); }
};
template <typename T>
struct TPropertyType<TSubclassOf<T>>
{
	static FProperty* New() { return NewClassProperty<T>(); }
};

template <typename T>
struct TPropertyType<TWeakObjectPtr<T>>
{
	static FProperty* New()
	{
		FWeakObjectProperty* Property = new FWeakObjectProperty();
		Property->PropertyClass = FindReflectedClass(TypeName<std::remove_const_t<T>>());
		return Property;
	}
};

template <typename T>
struct TPropertyType<TArray<T>>
{
	static FProperty* New() { return new FArrayProperty(TPropertyType<T>::New(), ArrayOps<T>()); }
};
template <typename T>
struct TPropertyType<TSet<T>>
{
	static FProperty* New() { return new FSetProperty(TPropertyType<T>::New(), SetOps<T>()); }
};
template <typename K, typename V>
struct TPropertyType<TMap<K, V>>
{
	static FProperty* New()
	{
		return new FMapProperty(TPropertyType<K>::New(), TPropertyType<V>::New(), MapOps<K, V>());
	}
};

} // namespace Host
