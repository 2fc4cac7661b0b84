// SPDX-License-Identifier: MIT
// A mesh that does not deform.
#pragma once

#include "CoreMinimal.h"
#include "Engine/StreamableRenderAsset.h"
#include "UObject/ObjectMacros.h"
#include "StaticMesh.generated.h"

/** Stands for the assets of its class where only the class is asked for. */
UCLASS()
class ENGINE_API UStaticMesh : public UStreamableRenderAsset
{
	GENERATED_BODY()
};
