// SPDX-License-Identifier: MIT
/** Weak pointer to an object of a class. */
#pragma once

#include "UObject/ObjectPtr.h"
#include "UObject/WeakObjectPtr.h"

#include <type_traits>

/** FWeakObjectPtr with a type. It may be declared and copied where T is only declared. */
template <class T>
struct TWeakObjectPtr
{
	using ElementType = T;

	constexpr TWeakObjectPtr() = default;
	constexpr TWeakObjectPtr(decltype(nullptr)) {}
	template <class U>
	requires(std::is_convertible_v<U*, T*>) TWeakObjectPtr(U* Object)
		: Pointer((const UObject*)Object)
	{
	}
	template <class U>
	requires(std::is_convertible_v<U*, T*>) TWeakObjectPtr(const TObjectPtr<U>& Object)
		: Pointer((const UObject*)Object.Get())
	{
	}
	template <class U>
	requires(std::is_convertible_v<U*, T*>) TWeakObjectPtr(const TWeakObjectPtr<U>& Other)
		: Pointer(Other.GetWeakPtr())
	{
	}

	/** Null when the object is gone or marked as garbage. */
	T* Get() const { return (T*)Pointer.Get(); }
	T* Get(bool bEvenIfPendingKill) const { return (T*)Pointer.Get(bEvenIfPendingKill); }
	T* GetEvenIfUnreachable() const { return (T*)Pointer.GetEvenIfUnreachable(); }
	T& operator*() const { return *Get(); }
	T* operator->() const { return Get(); }
	bool IsValid() const { return Pointer.IsValid(); }
	bool IsValid(bool bEvenIfPendingKill, bool bThreadsafeTest = false) const
	{
		return Pointer.IsValid(bEvenIfPendingKill, bThreadsafeTest);
	}
	bool IsStale(bool bIncludingGarbage = true, bool bThreadsafeTest = false) const
	{
		return Pointer.IsStale(bIncludingGarbage, bThreadsafeTest);
	}
	bool IsExplicitlyNull() const { return Pointer.IsExplicitlyNull(); }
	void Reset() { Pointer.Reset(); }
	explicit operator bool() const { return IsValid(); }

	const FWeakObjectPtr& GetWeakPtr() const { return Pointer; }

	template <class U>
	bool operator==(const TWeakObjectPtr<U>& Other) const
	{
		return Pointer == Other.GetWeakPtr();
	}
	template <class U>
	requires(std::is_convertible_v<U*, const T*> || std::is_convertible_v<T*, const U*>) bool operator==(
		U* Object) const
	{
		return (const void*)Get() == (const void*)Object;
	}
	bool operator==(decltype(nullptr)) const { return !IsValid(); }

	friend uint32 GetTypeHash(const TWeakObjectPtr& Weak) { return GetTypeHash(Weak.Pointer); }

private:
	FWeakObjectPtr Pointer;
};

/** Weak pointer without naming the class. */
template <class T>
TWeakObjectPtr<T> MakeWeakObjectPtr(T* Object)
{
	return TWeakObjectPtr<T>(Object);
}
template <class T>
TWeakObjectPtr<T> MakeWeakObjectPtr(const TObjectPtr<T>& Object)
{
	return TWeakObjectPtr<T>(Object.Get());
}
