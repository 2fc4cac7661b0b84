// SPDX-License-Identifier: MIT
// A window that holds editor windows.
#pragma once

#include "CoreMinimal.h"
#include "Delegates/DelegateCombinations.h"

class FEditorModeTools;
class FTabManager;
class IAssetViewport;
class IToolkit;
class SWidget;
class UWorld;

class IToolkitHost
{
public:
	virtual ~IToolkitHost() = default;

	virtual TSharedRef<SWidget> GetParentWidget() = 0;
	virtual void BringToFront() = 0;
	virtual TSharedPtr<FTabManager> GetTabManager() const = 0;
	/** Called by the toolkit manager: the toolkit has come, the toolkit goes. */
	virtual void OnToolkitHostingStarted(const TSharedRef<IToolkit>& Toolkit) = 0;
	virtual void OnToolkitHostingFinished(const TSharedRef<IToolkit>& Toolkit) = 0;
	virtual UWorld* GetWorld() const = 0;
	virtual FEditorModeTools& GetEditorModeManager() const = 0;
	/** None for a host without a status bar. */
	virtual FName GetStatusBarName() const = 0;

	/** Widgets over the viewport; a host without one lets them go. */
	virtual void AddViewportOverlayWidget(
		TSharedRef<SWidget> InOverlaidWidget, TSharedPtr<IAssetViewport> InViewport = nullptr)
	{
		(void)InOverlaidWidget;
		(void)InViewport;
	}
	virtual void RemoveViewportOverlayWidget(
		TSharedRef<SWidget> InOverlaidWidget, TSharedPtr<IAssetViewport> InViewport = nullptr)
	{
		(void)InOverlaidWidget;
		(void)InViewport;
	}

	/** The former viewport and the one that is active now. */
	DECLARE_MULTICAST_DELEGATE_TwoParams(
		FOnActiveViewportChanged, TSharedPtr<IAssetViewport>, TSharedPtr<IAssetViewport>);
	virtual FOnActiveViewportChanged& OnActiveViewportChanged() = 0;
};
