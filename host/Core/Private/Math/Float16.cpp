// SPDX-License-Identifier: MIT
/** Conversion between half and single precision. */

#include "Math/Float16.h"
#include <bit>

void FFloat16::Set(float Value)
{
	const uint32 Bits = std::bit_cast<uint32>(Value);
	const uint32 Sign = (Bits >> 16) & 0x8000u;
	const uint32 Magnitude = Bits & 0x7FFFFFFFu;

	if (Magnitude > 0x7F800000u)
	{
		// Not a number; the quiet bit keeps a payload that lies below the ten bits from turning it into infinity.
		Encoded = static_cast<uint16>(Sign | 0x7E00u | ((Magnitude >> 13) & 0x3FFu));
		return;
	}
	if (Magnitude >= 0x47800000u)
	{
		Encoded = static_cast<uint16>(Sign | 0x7C00u);
		return;
	}

	// From here on: a mantissa of 24 bits, of which `Drop` are rounded away.
	uint32 Result;
	uint32 Drop;
	uint32 Mantissa;
	if (Magnitude >= 0x38800000u)
	{
		Drop = 13;
		Mantissa = Magnitude - 0x38000000u;
	}
	else
	{
		const uint32 Exponent = Magnitude >> 23;
		Drop = 126u - Exponent;
		if (Drop > 24u)
		{
			Encoded = static_cast<uint16>(Sign);
			return;
		}
		Mantissa = (Magnitude & 0x7FFFFFu) | 0x800000u;
	}
	Result = Mantissa >> Drop;
	const uint32 Remainder = Mantissa & ((1u << Drop) - 1u);
	const uint32 Half = 1u << (Drop - 1u);
	if (Remainder > Half || (Remainder == Half && (Result & 1u) != 0))
	{
		// A carry out of the mantissa raises the exponent, up to infinity, which is what is wanted.
		++Result;
	}
	Encoded = static_cast<uint16>(Sign | Result);
}

float FFloat16::GetFloat() const
{
	const uint32 Sign = (uint32{Encoded} & 0x8000u) << 16;
	const uint32 Exponent = (uint32{Encoded} >> 10) & 0x1Fu;
	const uint32 Mantissa = uint32{Encoded} & 0x3FFu;
	if (Exponent == 31u)
	{
		return std::bit_cast<float>(Sign | 0x7F800000u | (Mantissa << 13));
	}
	if (Exponent != 0)
	{
		return std::bit_cast<float>(Sign | ((Exponent + 112u) << 23) | (Mantissa << 13));
	}
	// Without an implied bit the value is a multiple of 2^-24.
	const float Value = static_cast<float>(Mantissa) * 0x1p-24f;
	return Sign != 0 ? -Value : Value;
}
