// SPDX-License-Identifier: MIT
// The viewports of one tab.
#pragma once

#include "CoreMinimal.h"
#include "Delegates/DelegateCombinations.h"
#include "Templates/Function.h"

class SAssetEditorViewport;
class SDockTab;
class SWidget;

/** One pane of a viewport tab. */
class IEditorViewportLayoutEntity : public TSharedFromThis<IEditorViewportLayoutEntity>
{
public:
	virtual ~IEditorViewportLayoutEntity() = default;

	virtual TSharedRef<SWidget> AsWidget() const = 0;
	/** Empty when the pane shows something else. */
	virtual TSharedPtr<SAssetEditorViewport> AsAssetEditorViewport() const { return nullptr; }
	virtual void SetKeyboardFocus() = 0;
	virtual void OnLayoutDestroyed() = 0;
	virtual void SaveConfig(const FString& ConfigSection) = 0;
	virtual FName GetType() const = 0;
	virtual void TakeHighResScreenShot() const = 0;
};

DECLARE_MULTICAST_DELEGATE(FViewportTabContentLayoutChangedEvent);

class FViewportTabContent
{
public:
	typedef TFunction<void(FName, TSharedPtr<IEditorViewportLayoutEntity>)> ViewportActionFunction;

	virtual ~FViewportTabContent() = default;

	/** True when the tab's content stands in its tab, or in no tab at all. */
	bool IsVisible() const;
	bool BelongsToTab(TSharedRef<SDockTab> InParentTab) const;
	/** True for the name of the present arrangement of panes. */
	bool IsViewportConfigurationSet(const FName& ConfigurationName) const;

	/** Null before the panes are made. */
	const TMap<FName, TSharedPtr<IEditorViewportLayoutEntity>>* GetViewports() const;
	/** Calls the function for each pane, with the pane's name. */
	void PerformActionOnViewports(ViewportActionFunction& TFuncPtr);

	/** Broadcast when the panes were made or arranged anew. */
	virtual FViewportTabContentLayoutChangedEvent& OnViewportTabContentLayoutChanged()
	{
		return OnViewportTabContentLayoutChangedEvent;
	}

protected:
	TWeakPtr<SDockTab> ParentTab;
	/** Key under which the arrangement is kept. */
	FString LayoutString;
	FName ConfigurationName;
	TMap<FName, TSharedPtr<IEditorViewportLayoutEntity>> Viewports;
	bool bHasLayout = false;
	FViewportTabContentLayoutChangedEvent OnViewportTabContentLayoutChangedEvent;
};
