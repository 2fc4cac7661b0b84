// SPDX-License-Identifier: MIT
// How the viewports of an asset editor are made and arranged.
#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineBaseTypes.h"
#include "Misc/Attribute.h"
#include "Templates/Function.h"

class FAssetEditorViewportLayout;
class SAssetEditorViewport;

/** What a pane tells the viewport that is made for it. */
struct FAssetEditorViewportConstructionArgs
{
	TSharedPtr<FAssetEditorViewportLayout> ParentLayout;
	ELevelViewportType ViewportType = LVT_Perspective;
	bool bRealtime = false;
	/** Under which the viewport keeps its settings. */
	FName ConfigKey;
	TAttribute<bool> IsEnabled = true;
};

typedef TFunction<TSharedRef<SAssetEditorViewport>(const FAssetEditorViewportConstructionArgs&)>
	AssetEditorViewportFactoryFunction;
