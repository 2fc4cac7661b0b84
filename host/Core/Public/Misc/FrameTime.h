// SPDX-License-Identifier: MIT
/** Time in frames. */
#pragma once

#include "Misc/FrameNumber.h"
#include <cmath>

/** A frame and the part of it that has passed. */
struct FFrameTime
{
	FFrameNumber FrameNumber;

	/** 0 */
	constexpr FFrameTime()
		: FrameNumber(0)
		, SubFrame(0.0f)
	{
	}
	constexpr FFrameTime(int32 InFrameNumber)
		: FrameNumber(InFrameNumber)
		, SubFrame(0.0f)
	{
	}
	constexpr FFrameTime(FFrameNumber InFrameNumber)
		: FrameNumber(InFrameNumber)
		, SubFrame(0.0f)
	{
	}
	/** InSubFrame is limited to [0, 1). */
	constexpr FFrameTime(FFrameNumber InFrameNumber, float InSubFrame)
		: FrameNumber(InFrameNumber)
		, SubFrame(InSubFrame < 0.0f ? 0.0f : (InSubFrame < 1.0f ? InSubFrame : MaxSubframe))
	{
	}

	/** Largest sub-frame, the float before 1. */
	static constexpr float MaxSubframe = 0.999999940f;

	/** Of a number of frames with its fraction; below 0 the frame is the next lower one. */
	static FFrameTime FromDecimal(double InDecimalFrame)
	{
		const double Floor = std::floor(InDecimalFrame);
		return FFrameTime(FFrameNumber(static_cast<int32>(Floor)), static_cast<float>(InDecimalFrame - Floor));
	}

	constexpr FFrameNumber GetFrame() const { return FrameNumber; }
	/** 0 and more, less than 1. */
	constexpr float GetSubFrame() const { return SubFrame; }
	constexpr FFrameNumber FloorToFrame() const { return FrameNumber; }
	constexpr FFrameNumber CeilToFrame() const { return SubFrame == 0.0f ? FrameNumber : FrameNumber + 1; }
	constexpr FFrameNumber RoundToFrame() const { return SubFrame < 0.5f ? FrameNumber : FrameNumber + 1; }
	constexpr double AsDecimal() const { return double(FrameNumber.Value) + double(SubFrame); }

	constexpr bool operator==(const FFrameTime& Other) const
	{
		return FrameNumber == Other.FrameNumber && SubFrame == Other.SubFrame;
	}
	constexpr bool operator<(const FFrameTime& Other) const
	{
		return FrameNumber < Other.FrameNumber || (FrameNumber == Other.FrameNumber && SubFrame < Other.SubFrame);
	}
	friend FFrameTime operator+(const FFrameTime& Left, const FFrameTime& Right)
	{
		return FromDecimal(Left.AsDecimal() + Right.AsDecimal());
	}
	friend FFrameTime operator-(const FFrameTime& Left, const FFrameTime& Right)
	{
		return FromDecimal(Left.AsDecimal() - Right.AsDecimal());
	}

private:
	float SubFrame;
};
