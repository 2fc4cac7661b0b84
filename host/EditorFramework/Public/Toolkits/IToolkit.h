// SPDX-License-Identifier: MIT
// What an editor window is to the window that hosts it.
#pragma once

#include "CoreMinimal.h"

class FEditorModeTools;
class FTabManager;
class FWorkspaceItem;
class IToolkitHost;
class SWidget;
class UObject;
struct FKeyEvent;

namespace EToolkitMode
{
enum Type
{
	/** In a window or a tab of its own. */
	Standalone,
	/** Inside the level editor. */
	WorldCentric,
};
}

class IToolkit
{
public:
	virtual ~IToolkit() = default;

	virtual FName GetToolkitFName() const = 0;
	virtual FName GetToolkitContextFName() const = 0;
	virtual FText GetBaseToolkitName() const = 0;
	virtual FText GetToolkitName() const = 0;
	virtual FText GetTabSuffix() const = 0;
	virtual FText GetToolkitToolTipText() const = 0;
	virtual FString GetWorldCentricTabPrefix() const = 0;
	virtual bool IsAssetEditor() const = 0;
	/** Null when it edits none. */
	virtual const TArray<UObject*>* GetObjectsCurrentlyBeingEdited() const = 0;
	virtual FLinearColor GetWorldCentricTabColorScale() const = 0;
	virtual bool ProcessCommandBindings(const FKeyEvent& InKeyEvent) const = 0;
	virtual bool IsHosted() const = 0;
	/** A failed check while it is not hosted. */
	virtual const TSharedRef<IToolkitHost> GetToolkitHost() const = 0;
	virtual void RegisterTabSpawners(const TSharedRef<FTabManager>& InTabManager) = 0;
	virtual void UnregisterTabSpawners(const TSharedRef<FTabManager>& InTabManager) = 0;
	virtual void BringToolkitToFront() = 0;
	virtual TSharedPtr<SWidget> GetInlineContent() const = 0;
	virtual bool IsBlueprintEditor() const = 0;
	virtual TSharedRef<FWorkspaceItem> GetWorkspaceMenuCategory() const = 0;
	virtual FEditorModeTools& GetEditorModeManager() const = 0;
};
