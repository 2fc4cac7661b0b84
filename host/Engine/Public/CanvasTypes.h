// SPDX-License-Identifier: MIT
// The flat surface in front of a view.
#pragma once

#include "CoreMinimal.h"

class FHitProxyConsumer;

/** Only its size is modelled: text over a view stands in widgets. */
class FCanvas
{
public:
	explicit FCanvas(const FIntPoint& InSize, FHitProxyConsumer* InHitProxyConsumer = nullptr)
		: Size(InSize)
		, HitProxyConsumer(InHitProxyConsumer)
	{
	}

	/** Pixels. */
	FIntPoint GetParentCanvasSize() const { return Size; }
	/** Not owned; null for a picture that is meant to be seen. */
	FHitProxyConsumer* GetHitProxyConsumer() const { return HitProxyConsumer; }

private:
	FIntPoint Size;
	FHitProxyConsumer* HitProxyConsumer;
};
