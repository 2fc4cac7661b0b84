// SPDX-License-Identifier: MIT
/** Hash values of basic types. */
#pragma once

#include "HAL/Platform.h"
#include <type_traits>

/** Mixes two hash values; the order of the arguments matters. */
constexpr uint32 HashCombine(uint32 A, uint32 C)
{
	uint32 B = 0x9e3779b9u;
	A += B;
	A ^= C + 0x7f4a7c15u + (A << 6) + (A >> 2);
	A *= 0x85ebca6bu;
	return A ^ (A >> 13);
}

constexpr uint32 HashCombineFast(uint32 A, uint32 B)
{
	return A ^ (B + 0x9e3779b9u + (A << 6) + (A >> 2));
}

/** Hash of an address; the bits that alignment keeps zero do not count. */
inline uint32 PointerHash(const void* Key)
{
	const UPTRINT Value = reinterpret_cast<UPTRINT>(Key) >> 4;
	return static_cast<uint32>(Value) ^ static_cast<uint32>(static_cast<uint64>(Value) >> 28);
}

inline uint32 PointerHash(const void* Key, uint32 C)
{
	return HashCombine(PointerHash(Key), C);
}

template <typename T>
requires(std::is_integral_v<T>) constexpr uint32 GetTypeHash(T Value)
{
	if constexpr (sizeof(T) > 4)
	{
		const uint64 Wide = static_cast<uint64>(Value);
		return static_cast<uint32>(Wide) + static_cast<uint32>(Wide >> 32) * 23;
	}
	else
	{
		return static_cast<uint32>(Value);
	}
}

template <typename T>
requires(std::is_enum_v<T>) constexpr uint32 GetTypeHash(T Value)
{
	return GetTypeHash(static_cast<std::underlying_type_t<T>>(Value));
}

/** Equal numbers have equal hashes, 0 and -0 included. */
inline uint32 GetTypeHash(float Value)
{
	return __builtin_bit_cast(uint32, Value == 0.0f ? 0.0f : Value);
}

inline uint32 GetTypeHash(double Value)
{
	return GetTypeHash(__builtin_bit_cast(uint64, Value == 0.0 ? 0.0 : Value));
}

/** Hash of the address, not of what it points to; a text's pointer is refused because its address is rarely meant. */
template <typename T>
uint32 GetTypeHash(T* Value)
{
	static_assert(
		!std::is_same_v<std::remove_cv_t<T>, char> && !std::is_same_v<std::remove_cv_t<T>, char16_t>, "hash the text");
	return PointerHash(Value);
}

/** Finds the hash function of a type from inside a class that has a member of the same name. */
template <typename T>
uint32 GetTypeHashHelper(const T& Value)
{
	return GetTypeHash(Value);
}
