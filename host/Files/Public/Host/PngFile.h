// SPDX-License-Identifier: MIT
// Images written as PNG files.
#pragma once

#include "CoreMinimal.h"

namespace Host
{
/** Pixels of an image, not owned: row after row from the top, without padding, 16-bit samples in native order. */
struct FImagePixels
{
	int32 Width = 0;
	int32 Height = 0;

	/** 1 grey, 2 grey and alpha, 3 red, green, blue, 4 red, green, blue, alpha. */
	int32 Channels = 4;

	/** 8 or 16 a channel. */
	int32 Bits = 8;

	/** [Width * Height * Channels] of Bits / 8 bytes. */
	const void* Data = nullptr;
};

/**
 * Writes an image beside its target and renames it over it, so that a failure leaves the old file whole.
 *
 * @param OutError  what went wrong, with the file; may be null
 * @return whether the file is there
 */
bool WritePng(const FString& Path, const FImagePixels& Pixels, FString* OutError = nullptr);
bool WritePng(const FString& Path, int32 Width, int32 Height, int32 Channels, int32 Bits, const void* Data,
	FString* OutError = nullptr);
} // namespace Host
