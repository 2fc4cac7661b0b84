// SPDX-License-Identifier: MIT
// A window that holds editor windows.
#pragma once

#include "CoreMinimal.h"

class FEditorModeTools;
class FTabManager;
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
	virtual FName GetStatusBarName() const = 0;
};
