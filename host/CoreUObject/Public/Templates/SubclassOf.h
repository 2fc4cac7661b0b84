// SPDX-License-Identifier: MIT
/** Pointer to a class that is T or derived from it. */
#pragma once

#include "UObject/Class.h"

/** Holds any class, but answers only one that is a T: another is null when it is read. */
template <typename T>
class TSubclassOf
{
public:
	TSubclassOf() = default;
	TSubclassOf(decltype(nullptr)) {}
	TSubclassOf(UClass* From)
		: Class(From)
	{
	}
	template <typename OtherType>
	requires(std::is_convertible_v<OtherType*, T*>) TSubclassOf(const TSubclassOf<OtherType>& Other)
		: Class(Other.Get())
	{
	}

	UClass* Get() const { return Class && Class->IsChildOf(T::StaticClass()) ? Class : nullptr; }
	operator UClass*() const { return Get(); }
	UClass* operator*() const { return Get(); }
	UClass* operator->() const { return Get(); }
	/** Default object of the class, or null. */
	T* GetDefaultObject() const { return Get() ? Get()->template GetDefaultObject<T>() : nullptr; }

	friend uint32 GetTypeHash(const TSubclassOf& SubclassOf) { return PointerHash(SubclassOf.Class); }

private:
	UClass* Class = nullptr;
};
