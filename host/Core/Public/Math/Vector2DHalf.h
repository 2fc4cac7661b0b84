// SPDX-License-Identifier: MIT
/** Two half-precision numbers. */
#pragma once

#include "Math/Float16.h"
#include "Math/Vector2D.h"

/** A texture coordinate in half precision. */
struct FVector2DHalf
{
	FFloat16 X;
	FFloat16 Y;

	/** Zero. */
	constexpr FVector2DHalf() = default;
	FVector2DHalf(const FFloat16& InX, const FFloat16& InY)
		: X(InX)
		, Y(InY)
	{
	}
	FVector2DHalf(float InX, float InY)
		: X(InX)
		, Y(InY)
	{
	}
	FVector2DHalf(const FVector2f& V)
		: X(V.X)
		, Y(V.Y)
	{
	}
	FVector2DHalf(const FVector2d& V)
		: X(V.X)
		, Y(V.Y)
	{
	}

	operator FVector2f() const { return FVector2f(X.GetFloat(), Y.GetFloat()); }
	constexpr bool operator==(const FVector2DHalf& Other) const { return X == Other.X && Y == Other.Y; }
};
