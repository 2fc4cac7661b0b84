// SPDX-License-Identifier: MIT
#include "Editor/ZEFEditorToolkit.h"

#include "Toolkits/ToolkitManager.h"

FZEFEditorToolkit::~FZEFEditorToolkit() = default;

void FZEFEditorToolkit::FocusWindow(UObject* /*ObjectToFocusOn*/)
{
	BringToolkitToFront();
}

bool FZEFEditorToolkit::CloseWindow()
{
	if (OnRequestClose())
	{
		OnClose();
		FToolkitManager::Get().CloseToolkit(AsShared());
	}
	return true;
}

bool FZEFEditorToolkit::CloseWindow(EAssetEditorCloseReason /*InCloseReason*/)
{
	return CloseWindow();
}

void FZEFEditorToolkit::InvokeTab(const FTabId& /*TabId*/) {}

TSharedPtr<FTabManager> FZEFEditorToolkit::GetAssociatedTabManager()
{
	return TabManager;
}

double FZEFEditorToolkit::GetLastActivationTime()
{
	return 0.0;
}

void FZEFEditorToolkit::RemoveEditingAsset(UObject* /*Asset*/) {}

FEditorModeTools& FZEFEditorToolkit::GetEditorModeManager() const
{
	check(EditorModeManager.IsValid());
	return *EditorModeManager;
}

bool FZEFEditorToolkit::ShouldPromptForNewFilesOnReload(const UObject& /*EditingObject*/) const
{
	return true;
}

bool FZEFEditorToolkit::OnRequestClose()
{
	return true;
}

void FZEFEditorToolkit::OnClose() {}
