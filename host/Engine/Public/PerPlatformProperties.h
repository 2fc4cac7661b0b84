// SPDX-License-Identifier: MIT
// Settings that may differ by platform.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "PerPlatformProperties.generated.h"

/** A number that may differ by platform; there is one platform here, so it has one value. */
USTRUCT()
struct FPerPlatformFloat
{
	GENERATED_BODY()

	FPerPlatformFloat() = default;
	FPerPlatformFloat(float InDefault)
		: Default(InDefault)
	{
	}

	UPROPERTY(EditAnywhere, Category = PerPlatform)
	float Default = 0.0f;

	float GetValue() const { return Default; }
	float GetDefault() const { return Default; }
};
