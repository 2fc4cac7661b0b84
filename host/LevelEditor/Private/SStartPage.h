// SPDX-License-Identifier: MIT
#pragma once

// The content browser's page as long as there is no content to browse.

#include "Widgets/SCompoundWidget.h"

/** Says how content comes into the project, with the buttons of the editors that plug-ins added to the tool bar. */
class SStartPage : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SStartPage) {}
	SLATE_END_ARGS()

	/** @param ToolBar  the level editor's; the buttons of its section "Settings" are offered */
	void Construct(const FArguments& InArgs, const TSharedRef<SWidget>& ToolBar);
};
