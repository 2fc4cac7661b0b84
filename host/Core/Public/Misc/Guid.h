// SPDX-License-Identifier: MIT
/** Globally unique identity. */
#pragma once

#include "CoreTypes.h"
#include <compare>

class FString;

/** How a guid is written. */
enum class EGuidFormats
{
	/** 32 hexadecimal digits. */
	Digits,
	/** Groups of 8, 4, 4, 4 and 12 digits with hyphens between them. */
	DigitsWithHyphens,
	/** The same in braces. */
	DigitsWithHyphensInBraces
};

/** 128 bits that no other object has. All zero means none. */
struct FGuid
{
	uint32 A;
	uint32 B;
	uint32 C;
	uint32 D;

	/** None. */
	constexpr FGuid()
		: FGuid(0, 0, 0, 0)
	{
	}
	constexpr FGuid(uint32 InA, uint32 InB, uint32 InC, uint32 InD)
		: A(InA)
		, B(InB)
		, C(InC)
		, D(InD)
	{
	}

	/** A new random guid, never none. */
	static FGuid NewGuid();

	constexpr bool operator==(const FGuid& Other) const = default;
	/** Order by A, then B, C and D. */
	constexpr auto operator<=>(const FGuid& Other) const = default;

	constexpr bool IsValid() const { return (A | B | C | D) != 0; }
	constexpr void Invalidate() { *this = FGuid(); }

	/** Upper-case hexadecimal digits. */
	FString ToString(EGuidFormats Format = EGuidFormats::Digits) const;
};

constexpr uint32 GetTypeHash(const FGuid& Guid)
{
	return Guid.A ^ Guid.B * 0x9E3779B1u ^ Guid.C * 0x85EBCA77u ^ Guid.D * 0xC2B2AE3Du;
}
