// SPDX-License-Identifier: MIT
// Keeping what a viewport shows as a file.
#pragma once

#include "CoreMinimal.h"

class FViewport;

namespace Host
{
/** Whoever has the pictures. Called on the game thread. */
class IScreenshotTaker
{
public:
	virtual ~IScreenshotTaker() = default;

	/**
	 * Writes the picture of the viewport.
	 *
	 * @param File       full path that is free, ending in ".png"; its folder need not exist
	 * @param OutReason  one line on failure
	 * @return true when the file is there
	 */
	virtual bool TakeScreenshot(FViewport& Viewport, const FString& File, FString& OutReason) = 0;
};

/** Not owned, null for none; gives back the former one. */
IScreenshotTaker* SetScreenshotTaker(IScreenshotTaker* NewTaker);

/** Writes the next free Saved/Screenshots/ScreenshotNNNNN.png of the project and logs its name, or why there is none.
 */
void TakeScreenshot(FViewport& Viewport);
} // namespace Host
