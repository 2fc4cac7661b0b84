// SPDX-License-Identifier: MIT
#pragma once

// The main window: the level editor's menus and tool bar around the content browser's page.

#include "Framework/Docking/TabManager.h"
#include "Host/StatusLine.h"

class FUICommandList;
class SDockTab;
class SMultiBoxWidget;

namespace Host
{
/**
 * One frame at a time. The global tab manager's primary area fills the window: the tab "LevelEditor", and beside it
 * editors that are docked at "DockedToolkit"; the place "StandaloneToolkit" is a window of its own. Inside the level
 * editor lies "ContentBrowserTab1".
 *
 * Menus: "LevelEditor.MainMenu", whose parent is "MainFrame.MainMenu", and the tool bar
 * "LevelEditor.LevelEditorToolBar" with the section "Settings".
 */
class FLevelEditorFrame : public TSharedFromThis<FLevelEditorFrame>
{
public:
	/** Makes the frame and puts its window on the screen. A failed check when there is one already. */
	static TSharedRef<FLevelEditorFrame> Open();
	/** Empty when there is none. */
	static TSharedPtr<FLevelEditorFrame> Get();
	~FLevelEditorFrame();

	FLevelEditorFrame(const FLevelEditorFrame&) = delete;
	FLevelEditorFrame& operator=(const FLevelEditorFrame&) = delete;

	/** Saves the layouts and destroys the window with all that lies in it; nothing happens a second time. */
	void Close();
	bool IsOpen() const { return Window.IsValid(); }
	/** Told once, when the frame has closed, by the user too. */
	FSimpleMulticastDelegate& OnClosed() { return Closed; }

	/** Empty when the frame is closed, as is what follows. */
	TSharedPtr<SWindow> GetWindow() const { return Window; }
	TSharedPtr<SDockTab> GetTab() const { return Tab.Pin(); }
	/** Of the tabs inside the level editor. */
	TSharedPtr<FTabManager> GetTabManager() const { return TabManager; }
	TSharedPtr<SWidget> GetMenuBar() const;
	TSharedPtr<SWidget> GetToolBar() const { return ToolBar; }
	TSharedPtr<SStatusLine> GetStatusLine() const { return StatusLine; }
	/** What the keys of the frame run. */
	TSharedRef<FUICommandList> GetCommands() const { return Commands; }

	/** Puts all tabs where they are without a saved layout. Asks before it closes open editors. */
	void LoadDefaultLayout();

private:
	FLevelEditorFrame();

	void Construct();
	void MapCommands();
	/** Fills the window with the tabs of the layout. */
	void Restore(const TSharedRef<FTabManager::FLayout>& Layout);
	TSharedRef<SDockTab> SpawnLevelEditor(const FSpawnTabArgs& Args);
	TSharedRef<SDockTab> SpawnContentBrowser(const FSpawnTabArgs& Args);
	void RegisterTabs();
	void HandleWindowClosed(const TSharedRef<SWindow>& ClosedWindow);

	TSharedRef<FUICommandList> Commands;
	TSharedPtr<SWindow> Window;
	TWeakPtr<SDockTab> Tab;
	TSharedPtr<FTabManager> TabManager;
	TSharedPtr<SWidget> ToolBar;
	TSharedPtr<SStatusLine> StatusLine;
	FSimpleMulticastDelegate Closed;
};
} // namespace Host
