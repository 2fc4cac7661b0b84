// SPDX-License-Identifier: MIT
// The base of classes that only group static functions.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "BlueprintFunctionLibrary.generated.h"

/** The base of classes that only group static functions. */
UCLASS(Abstract)
class UBlueprintFunctionLibrary : public UObject
{
	GENERATED_BODY()
};
