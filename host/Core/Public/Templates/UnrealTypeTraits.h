// SPDX-License-Identifier: MIT
/** Type traits under the engine's names. */
#pragma once

#include "HAL/Platform.h"
#include <type_traits>

template <bool Predicate, typename Result = void>
using TEnableIf = std::enable_if<Predicate, Result>;

template <typename A, typename B>
struct TIsSame
{
	static constexpr bool Value = std::is_same_v<A, B>;
};
template <typename Derived, typename Base>
struct TIsDerivedFrom
{
	static constexpr bool Value = std::is_base_of_v<Base, Derived>;
	static constexpr bool IsDerived = Value;
};
template <typename From, typename To>
struct TPointerIsConvertibleFromTo
{
	static constexpr bool Value = std::is_convertible_v<From*, To*>;
};
template <typename T>
struct TIsTriviallyCopyable
{
	static constexpr bool Value = std::is_trivially_copyable_v<T>;
};
template <typename T>
struct TIsTriviallyDestructible
{
	static constexpr bool Value = std::is_trivially_destructible_v<T>;
};
template <typename T>
struct TIsArithmetic
{
	static constexpr bool Value = std::is_arithmetic_v<T>;
};
template <typename T>
struct TIsPointer
{
	static constexpr bool Value = std::is_pointer_v<T>;
};
template <typename T>
struct TRemoveReference
{
	using Type = std::remove_reference_t<T>;
};
template <typename T>
struct TRemoveCV
{
	using Type = std::remove_cv_t<T>;
};
template <typename T>
struct TRemovePointer
{
	using Type = std::remove_pointer_t<T>;
};
template <typename T>
struct TDecay
{
	using Type = std::decay_t<T>;
};
template <bool Predicate, typename A, typename B>
struct TChooseClass
{
	using Result = std::conditional_t<Predicate, A, B>;
};

namespace UE::Core::Private
{

/** Whether an object may be moved to another address by copying its bytes and forgetting the original. */
template <typename T>
struct TCanBitwiseRelocate
{
	static constexpr bool Value = std::is_trivially_copyable_v<T>;
};

} // namespace UE::Core::Private
