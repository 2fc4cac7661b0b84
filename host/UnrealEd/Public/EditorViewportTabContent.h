// SPDX-License-Identifier: MIT
// The tab content of an asset editor's viewports.
#pragma once

#include "AssetEditorViewportLayout.h"
#include "ViewportTabContent.h"

class SEditorViewport;

/** One pane with one viewport. */
class FEditorViewportTabContent : public FViewportTabContent, public TSharedFromThis<FEditorViewportTabContent>
{
public:
	/**
	 * Makes the viewport and puts it into the tab.
	 *
	 * @param InParentTab     empty to make the viewport without a tab
	 * @param InLayoutString  key under which the arrangement is kept
	 */
	virtual void Initialize(
		AssetEditorViewportFactoryFunction Func, TSharedPtr<SDockTab> InParentTab, const FString& InLayoutString);

	/** Empty before Initialize. */
	TSharedPtr<SEditorViewport> GetFirstViewport();

	/** Makes a viewport of a kind; empty for a kind that is not known. */
	TSharedPtr<SAssetEditorViewport> CreateSlateViewport(
		FName InTypeName, const FAssetEditorViewportConstructionArgs& ConstructionArgs) const;

	/** Puts the panes into the tab again. */
	void UpdateViewportTabWidget();

private:
	TMap<FName, AssetEditorViewportFactoryFunction> ViewportCreationFactories;
};
