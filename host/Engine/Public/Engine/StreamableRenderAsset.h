// SPDX-License-Identifier: MIT
// The base of assets whose render data may be streamed in parts.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "StreamableRenderAsset.generated.h"

/** An asset whose render data may be streamed in parts: a texture or a mesh. */
UCLASS(Abstract)
class UStreamableRenderAsset : public UObject
{
	GENERATED_BODY()
};
