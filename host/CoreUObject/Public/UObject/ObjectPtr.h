// SPDX-License-Identifier: MIT
/** Object pointer for reflected members. */
#pragma once

#include "Templates/TypeHash.h"
#include "UObject/ObjectMacros.h"

#include <type_traits>

/** Holds a plain pointer and behaves like one; the form in which a UPROPERTY refers to an object. */
template <typename T>
struct TObjectPtr
{
	using ElementType = T;

	constexpr TObjectPtr() = default;
	constexpr TObjectPtr(decltype(nullptr)) {}
	constexpr TObjectPtr(T* Object)
		: Pointer(Object)
	{
	}
	template <typename U>
	requires(std::is_convertible_v<U*, T*> && !std::is_same_v<U, T>) constexpr TObjectPtr(U* Object)
		: Pointer(Object)
	{
	}
	template <typename U>
	requires(std::is_convertible_v<U*, T*> && !std::is_same_v<U, T>) constexpr TObjectPtr(const TObjectPtr<U>& Other)
		: Pointer(Other.Get())
	{
	}

	constexpr T* Get() const { return Pointer; }
	constexpr operator T*() const { return Pointer; }
	constexpr T* operator->() const { return Pointer; }
	constexpr T& operator*() const { return *Pointer; }
	/** Lets a cast name the class: `(USphere*)Pointer`. */
	template <typename U>
	requires(!std::is_same_v<U, T> && std::is_base_of_v<T, U>) constexpr explicit operator U*() const
	{
		return (U*)Pointer;
	}
	constexpr bool operator!() const { return !Pointer; }

	friend uint32 GetTypeHash(const TObjectPtr& Object) { return PointerHash(Object.Pointer); }

private:
	T* Pointer = nullptr;
};

template <typename T, typename U>
constexpr bool operator==(const TObjectPtr<T>& A, const TObjectPtr<U>& B)
{
	return A.Get() == B.Get();
}
template <typename T, typename U>
constexpr bool operator==(const TObjectPtr<T>& A, U* B)
{
	return A.Get() == B;
}
template <typename T>
constexpr bool operator==(const TObjectPtr<T>& A, decltype(nullptr))
{
	return A.Get() == nullptr;
}

template <typename T>
constexpr T* ToRawPtr(const TObjectPtr<T>& Object)
{
	return Object.Get();
}
template <typename T>
constexpr T* ToRawPtr(T* Object)
{
	return Object;
}

/** The same pointer as a TObjectPtr. */
template <typename T>
constexpr TObjectPtr<T> MakeObjectPtr(T* Object)
{
	return TObjectPtr<T>(Object);
}
