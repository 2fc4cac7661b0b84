// SPDX-License-Identifier: MIT
// A material instance that is made and changed at run time.
#pragma once

#include "CoreMinimal.h"
#include "Materials/MaterialInstance.h"
#include "UObject/ObjectMacros.h"
#include "MaterialInstanceDynamic.generated.h"

/** A material instance that is made and changed at run time. */
UCLASS()
class UMaterialInstanceDynamic : public UMaterialInstance
{
	GENERATED_BODY()

public:
	/**
	 * Makes an instance of `ParentMaterial`; never null.
	 *
	 * @param ParentMaterial  null is allowed: the instance then shows the default material
	 * @param InOuter         null stands for the transient package
	 */
	ENGINE_API static UMaterialInstanceDynamic* Create(UMaterialInterface* ParentMaterial, UObject* InOuter);

	/** As above, under a name: an instance of that name in the outer is constructed over. */
	ENGINE_API static UMaterialInstanceDynamic* Create(
		UMaterialInterface* ParentMaterial, UObject* InOuter, FName Name);
};
