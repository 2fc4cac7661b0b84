// SPDX-License-Identifier: MIT
/** Base of the editor instance: a toolkit that edits no asset. */
#pragma once

#include "CoreMinimal.h"
#include "Subsystems/AssetEditorSubsystem.h"
#include "Templates/SharedPointer.h"
#include "Toolkits/BaseToolkit.h"

class FEditorModeTools;
class FTabManager;
class IToolkitHost;
class UObject;

class FZEFEditorToolkit : public IAssetEditorInstance, public FBaseToolkit, public TSharedFromThis<FZEFEditorToolkit>
{
public:
	virtual ~FZEFEditorToolkit() override;

	// IAssetEditorInstance
	virtual void FocusWindow(UObject* ObjectToFocusOn = nullptr) override;
	virtual bool CloseWindow() override;
	virtual bool CloseWindow(EAssetEditorCloseReason InCloseReason) override;
	virtual bool IsPrimaryEditor() const override { return true; }
	virtual void InvokeTab(const FTabId& TabId) override;
	virtual TSharedPtr<FTabManager> GetAssociatedTabManager() override;
	virtual double GetLastActivationTime() override;
	virtual void RemoveEditingAsset(UObject* Asset) override;

	// FBaseToolkit
	virtual bool IsAssetEditor() const override { return true; }
	virtual const TArray<UObject*>* GetObjectsCurrentlyBeingEdited() const override { return nullptr; }
	virtual FEditorModeTools& GetEditorModeManager() const override;

	virtual bool ShouldPromptForNewFilesOnReload(const UObject& EditingObject) const;
	virtual bool OnRequestClose();
	virtual void OnClose();

protected:
	TSharedPtr<FTabManager> TabManager;
	TSharedPtr<FEditorModeTools> EditorModeManager;
};
