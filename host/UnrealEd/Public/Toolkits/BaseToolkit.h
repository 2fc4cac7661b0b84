// SPDX-License-Identifier: MIT
// Base of the editor windows.
#pragma once

#include "Toolkits/IToolkit.h"

class FUICommandList;

class FBaseToolkit : public IToolkit
{
public:
	FBaseToolkit();
	virtual ~FBaseToolkit() override;

	FName GetToolkitContextFName() const override;
	FText GetTabSuffix() const override;
	bool ProcessCommandBindings(const FKeyEvent& InKeyEvent) const override;
	bool IsHosted() const override { return ToolkitHost.IsValid(); }
	const TSharedRef<IToolkitHost> GetToolkitHost() const override;
	void RegisterTabSpawners(const TSharedRef<FTabManager>& InTabManager) override;
	void UnregisterTabSpawners(const TSharedRef<FTabManager>& InTabManager) override;
	/** Nothing happens while it is not hosted. */
	void BringToolkitToFront() override;
	TSharedPtr<SWidget> GetInlineContent() const override;
	bool IsBlueprintEditor() const override { return false; }
	TSharedRef<FWorkspaceItem> GetWorkspaceMenuCategory() const override;
	virtual FEditorModeTools& GetEditorModeManager() const override = 0;

	bool IsWorldCentricAssetEditor() const { return ToolkitMode == EToolkitMode::WorldCentric; }
	const TSharedRef<FUICommandList> GetToolkitCommands() const { return ToolkitCommands; }

protected:
	/** Before the label of a tab; empty unless the toolkit stands in the level editor. */
	FString GetTabPrefix() const;
	FLinearColor GetTabColorScale() const;
	virtual void CreateEditorModeManager() {}

	TWeakPtr<IToolkitHost> ToolkitHost;
	EToolkitMode::Type ToolkitMode = EToolkitMode::Standalone;
	TSharedRef<FUICommandList> ToolkitCommands;
	TSharedPtr<FWorkspaceItem> WorkspaceMenuCategory;
};
