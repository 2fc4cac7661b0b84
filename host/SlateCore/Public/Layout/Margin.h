// SPDX-License-Identifier: MIT
#pragma once

// The space around the four sides of a widget, in slate units.

#include "CoreMinimal.h"

struct FMargin
{
	float Left = 0.0f;
	float Top = 0.0f;
	float Right = 0.0f;
	float Bottom = 0.0f;

	FMargin() = default;
	FMargin(float UniformMargin)
		: FMargin(UniformMargin, UniformMargin)
	{
	}
	FMargin(float Horizontal, float Vertical)
		: FMargin(Horizontal, Vertical, Horizontal, Vertical)
	{
	}
	FMargin(float InLeft, float InTop, float InRight, float InBottom)
		: Left(InLeft)
		, Top(InTop)
		, Right(InRight)
		, Bottom(InBottom)
	{
	}

	/** The two sides along the given axis, added up. */
	float GetTotalHorizontal() const { return Left + Right; }
	float GetTotalVertical() const { return Top + Bottom; }

	bool operator==(const FMargin& Other) const
	{
		return Left == Other.Left && Top == Other.Top && Right == Other.Right && Bottom == Other.Bottom;
	}
	bool operator!=(const FMargin& Other) const { return !(*this == Other); }
};
