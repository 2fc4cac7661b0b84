// SPDX-License-Identifier: MIT
/** Number of a frame. */
#pragma once

#include "CoreTypes.h"
#include <compare>

/** A whole frame, counted from 0; its duration is a matter of the frame rate. */
struct FFrameNumber
{
	int32 Value;

	/** 0 */
	constexpr FFrameNumber()
		: Value(0)
	{
	}
	constexpr FFrameNumber(int32 InValue)
		: Value(InValue)
	{
	}

	constexpr auto operator<=>(const FFrameNumber& Other) const = default;

	constexpr FFrameNumber& operator++()
	{
		++Value;
		return *this;
	}
	constexpr FFrameNumber& operator--()
	{
		--Value;
		return *this;
	}
	constexpr FFrameNumber& operator+=(FFrameNumber Other)
	{
		Value += Other.Value;
		return *this;
	}
	constexpr FFrameNumber& operator-=(FFrameNumber Other)
	{
		Value -= Other.Value;
		return *this;
	}
	friend constexpr FFrameNumber operator+(FFrameNumber Left, FFrameNumber Right) { return Left.Value + Right.Value; }
	friend constexpr FFrameNumber operator-(FFrameNumber Left, FFrameNumber Right) { return Left.Value - Right.Value; }
	constexpr FFrameNumber operator-() const { return -Value; }
};

constexpr uint32 GetTypeHash(FFrameNumber Number)
{
	return static_cast<uint32>(Number.Value);
}
