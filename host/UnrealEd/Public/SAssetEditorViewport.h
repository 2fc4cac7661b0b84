// SPDX-License-Identifier: MIT
// The viewport of an asset editor, one of the panes of a tab.
#pragma once

#include "AssetEditorViewportLayout.h"
#include "SEditorViewport.h"

class FViewportTabContent;

class SAssetEditorViewport : public SEditorViewport
{
public:
	SLATE_BEGIN_ARGS(SAssetEditorViewport) {}
	SLATE_END_ARGS()

	SAssetEditorViewport();
	virtual ~SAssetEditorViewport() override;

	void Construct(const FArguments& InArgs, const FAssetEditorViewportConstructionArgs& InViewportConstructionArgs);

	/** True for the arrangement of panes that this viewport stands in. */
	bool IsViewportConfigurationSet(FName ConfigurationName) const;

protected:
	friend class FEditorViewportTabContent;

	virtual void BindCommands() override;
	virtual TSharedRef<FEditorViewportClient> MakeEditorViewportClient() override;

	TWeakPtr<FViewportTabContent> ParentTabContent;
	FName ConfigKey;
};
