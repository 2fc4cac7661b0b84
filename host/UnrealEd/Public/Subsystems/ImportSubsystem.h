// SPDX-License-Identifier: MIT
// News of assets that were imported.
#pragma once

#include "Delegates/DelegateCombinations.h"
#include "EditorSubsystem.h"
#include "ImportSubsystem.generated.h"

class UFactory;

UCLASS()
class UImportSubsystem : public UEditorSubsystem
{
	GENERATED_BODY()

public:
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnAssetPostImport, UFactory*, UObject*);

	/** After an asset was made from a file. */
	FOnAssetPostImport OnAssetPostImport;
};
