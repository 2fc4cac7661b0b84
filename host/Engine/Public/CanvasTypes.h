// SPDX-License-Identifier: MIT
// The flat surface in front of a view.
#pragma once

#include "CoreMinimal.h"

/** Only its size is modelled: text over a view stands in widgets. */
class FCanvas
{
public:
	explicit FCanvas(const FIntPoint& InSize)
		: Size(InSize)
	{
	}

	/** Pixels. */
	FIntPoint GetParentCanvasSize() const { return Size; }

private:
	FIntPoint Size;
};
