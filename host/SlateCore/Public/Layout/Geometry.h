// SPDX-License-Identifier: MIT
#pragma once

// Where a widget stands on the screen.

#include "CoreMinimal.h"

/** Position and size of a widget, in slate units. */
struct FGeometry
{
	/** Top left corner, from the top left of the desktop. */
	FVector2D AbsolutePosition = FVector2D(0.0, 0.0);

	FGeometry() = default;
	FGeometry(const FVector2D& InAbsolutePosition, const FVector2D& InLocalSize)
		: AbsolutePosition(InAbsolutePosition)
		, Size(InLocalSize)
	{
	}

	const FVector2D& GetLocalSize() const { return Size; }
	FVector2D AbsoluteToLocal(const FVector2D& Absolute) const { return Absolute - AbsolutePosition; }
	FVector2D LocalToAbsolute(const FVector2D& Local) const { return Local + AbsolutePosition; }
	bool IsUnderLocation(const FVector2D& Absolute) const
	{
		const FVector2D Local = AbsoluteToLocal(Absolute);
		return Local.X >= 0.0 && Local.Y >= 0.0 && Local.X < Size.X && Local.Y < Size.Y;
	}

private:
	FVector2D Size = FVector2D(0.0, 0.0);
};
