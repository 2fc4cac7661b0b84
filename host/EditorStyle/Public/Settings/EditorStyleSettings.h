// SPDX-License-Identifier: MIT
// How the user wants the editor to look and to open its windows.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "EditorStyleSettings.generated.h"

/** Where a new asset editor opens. */
UENUM()
enum class EAssetEditorOpenLocation : uint8
{
	/** As the editor of the same asset did last. */
	Default,
	NewWindow,
	MainWindow,
	ContentBrowser,
	LastDockedWindowOrNewWindow,
	LastDockedWindowOrMainWindow,
	LastDockedWindowOrContentBrowser,
};

UCLASS(Config = EditorPerProjectUserSettings)
class UEditorStyleSettings : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(Config)
	EAssetEditorOpenLocation AssetEditorOpenLocation = EAssetEditorOpenLocation::Default;
};
