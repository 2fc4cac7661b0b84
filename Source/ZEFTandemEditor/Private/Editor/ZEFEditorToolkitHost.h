// SPDX-License-Identifier: MIT
/** What stands in a toolkit's major tab: its main menu, its tool bar and its tabs. */
#pragma once

#include "CoreMinimal.h"
#include "Framework/Docking/TabManager.h"
#include "Templates/SharedPointer.h"
#include "Toolkits/IToolkitHost.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class FZEFEditorToolkit;
class SBox;
class SDockTab;
class SVerticalBox;

/** Hosts the toolkit that made it, its owner, and toolkits that come to it later. Goes with its major tab. */
class SZEFEditorToolkitHost : public SCompoundWidget, public IToolkitHost
{
public:
	SLATE_BEGIN_ARGS(SZEFEditorToolkitHost) {}
	SLATE_END_ARGS()

	SZEFEditorToolkitHost();
	virtual ~SZEFEditorToolkitHost() override;

	/** @param InAppName  names the host's status bar */
	void Construct(const FArguments& InArgs, const TSharedPtr<FTabManager>& InTabManager, FName InAppName);

	/**
	 * Puts the host into its tab and opens the tabs inside it. A toolkit must have come before.
	 *
	 * @param bCreateDefaultStandaloneMenu  registers the owner's menu and fills it, unless it is registered
	 */
	void SetupInitialContent(const TSharedRef<FTabManager::FLayout>& DefaultLayout,
		const TSharedPtr<SDockTab>& InHostTab, bool bCreateDefaultStandaloneMenu);

	/** Closes the tabs inside and opens those of the layout; one without a primary area is an assertion. */
	void RestoreFromLayout(const TSharedRef<FTabManager::FLayout>& NewLayout);

	/** Makes the main menu anew from the owner's extenders. */
	void GenerateMenus();
	void SetMenuOverlay(const TSharedRef<SWidget>& Widget);
	void SetToolbar(const TSharedRef<SWidget>& Widget);

	/** The major tab is closed: clears the menu, notes where edited assets stood, and closes the owner. */
	void OnTabClosed(TSharedRef<SDockTab> TabClosed);

	// IToolkitHost
	virtual TSharedRef<SWidget> GetParentWidget() override;
	virtual void BringToFront() override;
	virtual TSharedPtr<FTabManager> GetTabManager() const override { return MyTabManager; }
	virtual void OnToolkitHostingStarted(const TSharedRef<IToolkit>& Toolkit) override;
	virtual void OnToolkitHostingFinished(const TSharedRef<IToolkit>& Toolkit) override;
	virtual UWorld* GetWorld() const override;
	virtual FEditorModeTools& GetEditorModeManager() const override;
	virtual FName GetStatusBarName() const override { return StatusBarName; }
	virtual void AddViewportOverlayWidget(
		TSharedRef<SWidget> InOverlaidWidget, TSharedPtr<IAssetViewport> InViewport = nullptr) override;
	virtual void RemoveViewportOverlayWidget(
		TSharedRef<SWidget> InOverlaidWidget, TSharedPtr<IAssetViewport> InViewport = nullptr) override;
	virtual FOnActiveViewportChanged& OnActiveViewportChanged() override { return ActiveViewportChangedEvent; }

	// SWidget
	virtual bool SupportsKeyboardFocus() const override { return true; }
	/** Keys go to the commands of the hosted toolkits. */
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

private:
	bool CanCloseHostTab() const;
	void SaveTabLocations(const SDockTab& TabClosed) const;
	void ShutDown();

	TSharedPtr<FTabManager> MyTabManager;
	TWeakPtr<SDockTab> HostTabPtr;
	TArray<TSharedPtr<IToolkit>> HostedToolkits;
	TSharedPtr<FZEFEditorToolkit> HostedZEFEditorToolkit;
	TSharedPtr<SBox> MenuOverlayBox;
	TSharedPtr<SBox> ToolbarBox;
	TSharedPtr<SVerticalBox> ContentArea;
	FName StatusBarName;
	FOnActiveViewportChanged ActiveViewportChangedEvent;
};
