// SPDX-License-Identifier: MIT
/** Plain enumeration stored in one byte. */
#pragma once

#include "HAL/Platform.h"
#include "Templates/TypeHash.h"

/** Holds a value of a plain enumeration in one byte and converts to it by itself. */
template <typename TEnum>
class TEnumAsByte
{
public:
	using EnumType = TEnum;

	constexpr TEnumAsByte() = default;
	constexpr TEnumAsByte(TEnum InValue)
		: Value(static_cast<uint8>(InValue))
	{
	}
	constexpr explicit TEnumAsByte(int32 InValue)
		: Value(static_cast<uint8>(InValue))
	{
	}
	constexpr explicit TEnumAsByte(uint8 InValue)
		: Value(InValue)
	{
	}

	constexpr operator TEnum() const { return static_cast<TEnum>(Value); }
	constexpr TEnum GetValue() const { return static_cast<TEnum>(Value); }
	constexpr uint8 GetIntValue() const { return Value; }
	constexpr bool operator==(TEnum InValue) const { return static_cast<TEnum>(Value) == InValue; }
	constexpr bool operator==(TEnumAsByte InValue) const { return Value == InValue.Value; }

	friend uint32 GetTypeHash(TEnumAsByte Enum) { return ::GetTypeHash(Enum.Value); }

private:
	uint8 Value = 0;
};
