// SPDX-License-Identifier: MIT
// Base of the lights that shine from somewhere.
#pragma once

#include "Components/LightComponentBase.h"
#include "LightComponent.generated.h"

UCLASS(Abstract)
class ULightComponent : public ULightComponentBase
{
	GENERATED_BODY()

public:
	/** Unit vector along which the light shines. */
	FVector GetDirection() const;
};
