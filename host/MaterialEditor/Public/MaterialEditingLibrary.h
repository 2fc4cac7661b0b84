// SPDX-License-Identifier: MIT
// Operations of the material editor that other editor code may call.
#pragma once

#include "CoreMinimal.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "UObject/ObjectMacros.h"
#include "MaterialEditingLibrary.generated.h"

class UMaterial;

/** Operations of the material editor that other editor code may call. */
UCLASS()
class UMaterialEditingLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Places the nodes of a material's graph in a grid; rendering stays as it is. A null material changes nothing. */
	MATERIALEDITOR_API static void LayoutMaterialExpressions(UMaterial* Material);
};
