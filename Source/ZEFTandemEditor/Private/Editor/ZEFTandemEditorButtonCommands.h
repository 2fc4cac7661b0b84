// SPDX-License-Identifier: MIT
/** The command that opens the editor from the level editor. */
#pragma once

#include "Framework/Commands/Commands.h"

class FZEFTandemEditorButtonCommands : public TCommands<FZEFTandemEditorButtonCommands>
{
public:
	FZEFTandemEditorButtonCommands();
	virtual void RegisterCommands() override;

	TSharedPtr<FUICommandInfo> OpenPluginWindow;
};
