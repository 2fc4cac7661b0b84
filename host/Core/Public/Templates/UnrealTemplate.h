// SPDX-License-Identifier: MIT
/** Moving, forwarding, swapping and scope guards. */
#pragma once

#include "CoreTypes.h"
#include <type_traits>
#include <utility>

template <typename T>
constexpr std::remove_reference_t<T>&& MoveTemp(T&& Obj) noexcept
{
	static_assert(std::is_lvalue_reference_v<T>, "MoveTemp is called on an rvalue");
	static_assert(!std::is_const_v<std::remove_reference_t<T>>, "MoveTemp is called on a const object");
	return static_cast<std::remove_reference_t<T>&&>(Obj);
}

/** MoveTemp for generic code, where the argument may be const or an rvalue. */
template <typename T>
constexpr std::remove_reference_t<T>&& MoveTempIfPossible(T&& Obj) noexcept
{
	return static_cast<std::remove_reference_t<T>&&>(Obj);
}

template <typename T>
constexpr T&& Forward(std::remove_reference_t<T>& Obj) noexcept
{
	return static_cast<T&&>(Obj);
}

template <typename T>
constexpr T&& Forward(std::remove_reference_t<T>&& Obj) noexcept
{
	return static_cast<T&&>(Obj);
}

template <typename T>
T CopyTemp(T& Value)
{
	return const_cast<const T&>(Value);
}

template <typename T>
constexpr void Swap(T& A, T& B)
{
	T Temp = MoveTemp(A);
	A = MoveTemp(B);
	B = MoveTemp(Temp);
}

template <typename T>
void Exchange(T& A, T& B)
{
	Swap(A, B);
}

template <typename T>
constexpr T&& DeclVal() noexcept;

template <typename T>
constexpr const T& AsConst(T& Ref)
{
	return Ref;
}

/** Constrains an argument to be deduced elsewhere. */
template <typename T>
using TIdentity_T = std::type_identity_t<T>;
template <typename T>
struct TIdentity
{
	using Type = T;
};

template <typename T, SIZE_T N>
char (&UE_ArrayCountHelper(const T (&)[N]))[N];
/** Number of elements of a C array. */
#define UE_ARRAY_COUNT(Array) (sizeof(UE_ArrayCountHelper(Array)))

/** Offset of a member in bytes. */
#define STRUCT_OFFSET(Struct, Member) offsetof(Struct, Member)

/** Sets a variable for the time of a scope and restores its former value at the scope's end. */
template <typename RefType, typename AssignedType = RefType>
struct TGuardValue
{
	TGuardValue(RefType& ReferenceValue, const AssignedType& NewValue)
		: RefValue(ReferenceValue)
		, OriginalValue(ReferenceValue)
	{
		RefValue = NewValue;
	}
	~TGuardValue() { RefValue = OriginalValue; }
	TGuardValue(const TGuardValue&) = delete;
	TGuardValue& operator=(const TGuardValue&) = delete;

	const AssignedType& operator*() const { return OriginalValue; }
	const AssignedType& GetOriginalValue() const { return OriginalValue; }

private:
	RefType& RefValue;
	AssignedType OriginalValue;
};

/** Counts a variable up for the time of a scope. */
template <typename Type>
struct TScopeCounter
{
	explicit TScopeCounter(Type& ReferenceValue)
		: RefValue(ReferenceValue)
	{
		++RefValue;
	}
	~TScopeCounter() { --RefValue; }
	TScopeCounter(const TScopeCounter&) = delete;
	TScopeCounter& operator=(const TScopeCounter&) = delete;

private:
	Type& RefValue;
};

/** Base of types that must not be copied. */
class FNoncopyable
{
protected:
	FNoncopyable() = default;
	~FNoncopyable() = default;

private:
	FNoncopyable(const FNoncopyable&) = delete;
	FNoncopyable& operator=(const FNoncopyable&) = delete;
};

template <typename T>
struct TIsEnum
{
	static constexpr bool Value = std::is_enum_v<T>;
};
