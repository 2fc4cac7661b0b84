// SPDX-License-Identifier: MIT
// Parallel light, as from the sun.
#pragma once

#include "Components/LightComponent.h"
#include "DirectionalLightComponent.generated.h"

UCLASS()
class UDirectionalLightComponent : public ULightComponent
{
	GENERATED_BODY()
};
