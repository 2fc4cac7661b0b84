// SPDX-License-Identifier: MIT
// Overrides of static parameters, which select code of a material instead of feeding it.
#pragma once

#include "CoreMinimal.h"
#include "MaterialTypes.h"
#include "Misc/Guid.h"
#include "UObject/ObjectMacros.h"
#include "StaticParameterSet.generated.h"

/** The override of one static switch. */
USTRUCT()
struct FStaticSwitchParameter
{
	GENERATED_BODY()

	UPROPERTY()
	FMaterialParameterInfo ParameterInfo;

	UPROPERTY()
	bool Value = false;

	/** Whether the override is in effect. */
	UPROPERTY()
	bool bOverride = false;

	/** The switch's node in the base material; invalid where the base material lacks it. */
	UPROPERTY()
	FGuid ExpressionGUID;
};
