// SPDX-License-Identifier: MIT
// Operations on assets by their path.
#pragma once

#include "CoreMinimal.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "UObject/ObjectMacros.h"
#include "EditorAssetLibrary.generated.h"

/** Operations on assets by their path. */
UCLASS()
class UEditorAssetLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/**
	 * Whether there is an asset in memory or on disk.
	 *
	 * @param AssetPath  "/Path/Name.Name" or "/Path/Name"; anything else gives false
	 */
	EDITORSCRIPTINGUTILITIES_API static bool DoesAssetExist(const FString& AssetPath);
};
