// SPDX-License-Identifier: MIT
/** The tool bar over the preview: the engine's, with a Show menu of its own. */
#pragma once

#include "SCommonEditorViewportToolbarBase.h"

class SZEFTandemEditorViewportToolbar : public SCommonEditorViewportToolbarBase
{
public:
	SLATE_BEGIN_ARGS(SZEFTandemEditorViewportToolbar) {}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, TSharedPtr<ICommonEditorViewportToolbarInfoProvider> InInfoProvider);

	virtual TSharedRef<SWidget> GenerateShowMenu() const override;
};
