// SPDX-License-Identifier: MIT
/** A widget that lets key presses reach a command list of the whole process. */
#pragma once

#include "Widgets/SCompoundWidget.h"

class FUICommandList;

class STandemActions : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(STandemActions) {}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
};

/** Made when the module is loaded. */
extern TSharedPtr<FUICommandList> TandemActionsCommandList;

/** The widget that had the last call; empty after a key that was no command. */
extern TSharedPtr<STandemActions> CurrentTandemActions;
