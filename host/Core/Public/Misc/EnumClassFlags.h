// SPDX-License-Identifier: MIT
/** Bit operators for enum classes whose values are flags. */
#pragma once

#include <type_traits>

#define ENUM_CLASS_FLAGS(Enum)                                                                                         \
	inline Enum& operator|=(Enum& Lhs, Enum Rhs)                                                                       \
	{                                                                                                                  \
		return Lhs = (Enum)((std::underlying_type_t<Enum>)Lhs | (std::underlying_type_t<Enum>)Rhs);                    \
	}                                                                                                                  \
	inline Enum& operator&=(Enum& Lhs, Enum Rhs)                                                                       \
	{                                                                                                                  \
		return Lhs = (Enum)((std::underlying_type_t<Enum>)Lhs & (std::underlying_type_t<Enum>)Rhs);                    \
	}                                                                                                                  \
	inline Enum& operator^=(Enum& Lhs, Enum Rhs)                                                                       \
	{                                                                                                                  \
		return Lhs = (Enum)((std::underlying_type_t<Enum>)Lhs ^ (std::underlying_type_t<Enum>)Rhs);                    \
	}                                                                                                                  \
	inline constexpr Enum operator|(Enum Lhs, Enum Rhs)                                                                \
	{                                                                                                                  \
		return (Enum)((std::underlying_type_t<Enum>)Lhs | (std::underlying_type_t<Enum>)Rhs);                          \
	}                                                                                                                  \
	inline constexpr Enum operator&(Enum Lhs, Enum Rhs)                                                                \
	{                                                                                                                  \
		return (Enum)((std::underlying_type_t<Enum>)Lhs & (std::underlying_type_t<Enum>)Rhs);                          \
	}                                                                                                                  \
	inline constexpr Enum operator^(Enum Lhs, Enum Rhs)                                                                \
	{                                                                                                                  \
		return (Enum)((std::underlying_type_t<Enum>)Lhs ^ (std::underlying_type_t<Enum>)Rhs);                          \
	}                                                                                                                  \
	inline constexpr bool operator!(Enum E)                                                                            \
	{                                                                                                                  \
		return !(std::underlying_type_t<Enum>)E;                                                                       \
	}                                                                                                                  \
	inline constexpr Enum operator~(Enum E)                                                                            \
	{                                                                                                                  \
		return (Enum) ~(std::underlying_type_t<Enum>)E;                                                                \
	}

/** True when every bit of Contains is set in Flags. */
template <typename Enum>
constexpr bool EnumHasAllFlags(Enum Flags, Enum Contains)
{
	using FBits = std::underlying_type_t<Enum>;
	return (static_cast<FBits>(Flags) & static_cast<FBits>(Contains)) == static_cast<FBits>(Contains);
}

/** True when at least one bit of Contains is set in Flags. */
template <typename Enum>
constexpr bool EnumHasAnyFlags(Enum Flags, Enum Contains)
{
	using FBits = std::underlying_type_t<Enum>;
	return (static_cast<FBits>(Flags) & static_cast<FBits>(Contains)) != 0;
}

template <typename Enum>
void EnumAddFlags(Enum& Flags, Enum FlagsToAdd)
{
	using FBits = std::underlying_type_t<Enum>;
	Flags = static_cast<Enum>(static_cast<FBits>(Flags) | static_cast<FBits>(FlagsToAdd));
}

template <typename Enum>
void EnumRemoveFlags(Enum& Flags, Enum FlagsToRemove)
{
	using FBits = std::underlying_type_t<Enum>;
	Flags = static_cast<Enum>(static_cast<FBits>(Flags) & ~static_cast<FBits>(FlagsToRemove));
}
