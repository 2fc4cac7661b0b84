// SPDX-License-Identifier: MIT
// Light from all of the sky.
#pragma once

#include "Components/LightComponentBase.h"
#include "SkyLightComponent.generated.h"

UCLASS()
class USkyLightComponent : public ULightComponentBase
{
	GENERATED_BODY()
};
