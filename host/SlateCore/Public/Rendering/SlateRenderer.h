// SPDX-License-Identifier: MIT
#pragma once

// Who draws the widgets.

#include "CoreMinimal.h"

class FSlateRenderer
{
public:
	virtual ~FSlateRenderer() = default;

	/** Reads the image files of all brushes anew, at the next drawing. */
	virtual void ReloadTextureResources();
};
