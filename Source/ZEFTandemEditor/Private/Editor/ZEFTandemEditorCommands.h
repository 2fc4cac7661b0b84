// SPDX-License-Identifier: MIT
/** Commands of the editor instance. */
#pragma once

#include "Framework/Commands/Commands.h"

class FZEFTandemEditorCommands : public TCommands<FZEFTandemEditorCommands>
{
public:
	FZEFTandemEditorCommands();
	virtual void RegisterCommands() override;

	TSharedPtr<FUICommandInfo> FocusCamera;
	TSharedPtr<FUICommandInfo> Tandem;
	TSharedPtr<FUICommandInfo> Update;
	TSharedPtr<FUICommandInfo> ToggleTandemConnectionState; // bound to nothing
	TSharedPtr<FUICommandInfo> SetUnifiedMaterial;
	TSharedPtr<FUICommandInfo> SetWeld; // bound to nothing
};
