// SPDX-License-Identifier: MIT
/** Frames per second as a fraction. */
#pragma once

#include "Misc/FrameNumber.h"
#include "Misc/FrameTime.h"

/** Numerator / Denominator frames per second. */
struct FFrameRate
{
	int32 Numerator;
	int32 Denominator;

	/** 60000 frames per second. */
	constexpr FFrameRate()
		: Numerator(60000)
		, Denominator(1)
	{
	}
	constexpr FFrameRate(uint32 InNumerator, uint32 InDenominator)
		: Numerator(static_cast<int32>(InNumerator))
		, Denominator(static_cast<int32>(InDenominator))
	{
	}

	/** Whether the denominator is above 0. */
	constexpr bool IsValid() const { return Denominator > 0; }
	/** Frames per second. */
	constexpr double AsDecimal() const { return double(Numerator) / double(Denominator); }
	/** Seconds per frame. */
	constexpr double AsInterval() const { return double(Denominator) / double(Numerator); }
	constexpr FFrameRate Reciprocal() const
	{
		return FFrameRate(static_cast<uint32>(Denominator), static_cast<uint32>(Numerator));
	}

	/** Seconds at a time counted in frames of this rate. */
	constexpr double AsSeconds(FFrameTime FrameTime) const
	{
		return FrameTime.AsDecimal() * double(Denominator) / double(Numerator);
	}
	/** Frames of this rate at a time in seconds. */
	FFrameTime AsFrameTime(double TimeInSeconds) const
	{
		return FFrameTime::FromDecimal(TimeInSeconds * double(Numerator) / double(Denominator));
	}
	/** The frame that a time in seconds lies in. */
	FFrameNumber AsFrameNumber(double TimeInSeconds) const { return AsFrameTime(TimeInSeconds).FloorToFrame(); }

	/** Same numerator and same denominator: 30/1 and 60/2 differ. */
	constexpr bool operator==(const FFrameRate& Other) const = default;
};
