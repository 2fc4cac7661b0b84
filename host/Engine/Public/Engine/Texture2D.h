// SPDX-License-Identifier: MIT
// A texture asset of one image.
#pragma once

#include "CoreMinimal.h"
#include "Engine/Texture.h"
#include "UObject/ObjectMacros.h"
#include "Texture2D.generated.h"

/** A texture asset of one image. */
UCLASS()
class UTexture2D : public UTexture
{
	GENERATED_BODY()

public:
	/** Width in pixels; 0 without a valid source. */
	int32 GetSizeX() const { return Source.IsValid() ? Source.GetSizeX() : 0; }

	/** Height in pixels; 0 without a valid source. */
	int32 GetSizeY() const { return Source.IsValid() ? Source.GetSizeY() : 0; }
};
