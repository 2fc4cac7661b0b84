// SPDX-License-Identifier: MIT
// Commands that every editor window understands.
#pragma once

#include "Framework/Commands/Commands.h"

class FUICommandList;

class FGlobalEditorCommonCommands : public TCommands<FGlobalEditorCommonCommands>
{
public:
	FGlobalEditorCommonCommands();
	void RegisterCommands() override;

	/** Maps what works the same everywhere: Ctrl+Tab goes to the next major tab. */
	static void MapActions(TSharedRef<FUICommandList>& ToolkitCommands);

	TSharedPtr<FUICommandInfo> SummonControlTabNavigation;
	/** Mapped by each window to its own page. */
	TSharedPtr<FUICommandInfo> OpenDocumentation;
};
