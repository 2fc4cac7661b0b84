// SPDX-License-Identifier: MIT
#pragma once

// The commands that every editor knows.

#include "Framework/Commands/Commands.h"

class FGenericCommands : public TCommands<FGenericCommands>
{
public:
	FGenericCommands();

	void RegisterCommands() override;

	TSharedPtr<FUICommandInfo> Cut;
	TSharedPtr<FUICommandInfo> Copy;
	TSharedPtr<FUICommandInfo> Paste;
	TSharedPtr<FUICommandInfo> Duplicate;
	TSharedPtr<FUICommandInfo> Undo;
	TSharedPtr<FUICommandInfo> Redo;
	TSharedPtr<FUICommandInfo> Delete;
	TSharedPtr<FUICommandInfo> Rename;
	TSharedPtr<FUICommandInfo> SelectAll;
};
