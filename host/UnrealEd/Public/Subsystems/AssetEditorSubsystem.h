// SPDX-License-Identifier: MIT
// What an open asset editor is to the rest of the editor.
#pragma once

#include "CoreMinimal.h"

class FTabManager;
class UObject;
struct FTabId;

/** Why an asset editor is closed. */
enum class EAssetEditorCloseReason : uint8
{
	CloseAllEditorsForAsset,
	CloseOtherEditors,
	RemoveAssetFromAllEditors,
	CloseAllAssetEditors,
	AssetEditorHostClosed,
	AssetUnloadingOrInvalid,
	EditorRefreshRequested,
	AssetForceDeleted,
};

class IAssetEditorInstance
{
public:
	virtual ~IAssetEditorInstance() = default;

	virtual FName GetEditorName() const = 0;
	/** Brings the editor to the front. */
	virtual void FocusWindow(UObject* ObjectToFocusOn = nullptr) = 0;
	virtual bool CloseWindow() { return false; }
	/** False when the editor refused. */
	virtual bool CloseWindow(EAssetEditorCloseReason InCloseReason)
	{
		(void)InCloseReason;
		return CloseWindow();
	}
	virtual bool IsPrimaryEditor() const = 0;
	virtual void InvokeTab(const FTabId& TabId) = 0;
	virtual FName GetToolbarTabId() const { return NAME_None; }
	virtual FName GetEditingAssetTypeName() const { return NAME_None; }
	virtual TSharedPtr<FTabManager> GetAssociatedTabManager() = 0;
	/** Seconds on the application's clock. */
	virtual double GetLastActivationTime() = 0;
	virtual void RemoveEditingAsset(UObject* Asset) = 0;
};
