// SPDX-License-Identifier: MIT
/** Half-precision number. */
#pragma once

#include "CoreTypes.h"

/** A number of 16 bits: sign, five bits of exponent, ten of mantissa, as IEEE 754 has them. */
class FFloat16
{
public:
	uint16 Encoded;

	/** Zero. */
	constexpr FFloat16()
		: Encoded(0)
	{
	}
	FFloat16(float Value) { Set(Value); }
	FFloat16(double Value)
		: FFloat16(static_cast<float>(Value))
	{
	}

	FFloat16& operator=(float Value)
	{
		Set(Value);
		return *this;
	}
	operator float() const { return GetFloat(); }
	constexpr bool operator==(const FFloat16& Other) const { return Encoded == Other.Encoded; }

	/** Rounds to the nearest, ties to even. From 65520 on the result is infinite. */
	void Set(float Value);
	/** The same number, exactly. */
	float GetFloat() const;
};
