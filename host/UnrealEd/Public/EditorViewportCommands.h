// SPDX-License-Identifier: MIT
// Commands that every editor viewport has.
#pragma once

#include "Framework/Commands/Commands.h"

/** The context "EditorViewport". */
class FEditorViewportCommands : public TCommands<FEditorViewportCommands>
{
public:
	FEditorViewportCommands();
	virtual void RegisterCommands() override;

	TSharedPtr<FUICommandInfo> Perspective;
	TSharedPtr<FUICommandInfo> Front;
	TSharedPtr<FUICommandInfo> Left;
	TSharedPtr<FUICommandInfo> Top;
	TSharedPtr<FUICommandInfo> Back;
	TSharedPtr<FUICommandInfo> Right;
	TSharedPtr<FUICommandInfo> Bottom;
	TSharedPtr<FUICommandInfo> WireframeMode;
	TSharedPtr<FUICommandInfo> UnlitMode;
	TSharedPtr<FUICommandInfo> LitMode;
	TSharedPtr<FUICommandInfo> ToggleRealTime;
};
