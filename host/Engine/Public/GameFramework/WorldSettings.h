// SPDX-License-Identifier: MIT
// The one actor that every world has.
#pragma once

#include "GameFramework/Actor.h"
#include "WorldSettings.generated.h"

/** Its root is what a preview scene attaches components to when asked. */
UCLASS()
class AWorldSettings : public AActor
{
	GENERATED_BODY()
};
