// SPDX-License-Identifier: MIT
#pragma once

// Commands of the main window.

#include "Framework/Commands/Commands.h"

/** The context "MainFrame". */
class FLevelEditorFrameCommands : public TCommands<FLevelEditorFrameCommands>
{
public:
	FLevelEditorFrameCommands();
	void RegisterCommands() override;

	TSharedPtr<FUICommandInfo> Exit;
	TSharedPtr<FUICommandInfo> LoadDefaultLayout;
};
