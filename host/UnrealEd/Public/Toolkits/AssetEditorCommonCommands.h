// SPDX-License-Identifier: MIT
// Commands of editor windows that edit assets.
#pragma once

#include "Framework/Commands/Commands.h"

class FAssetEditorCommonCommands : public TCommands<FAssetEditorCommonCommands>
{
public:
	FAssetEditorCommonCommands();
	void RegisterCommands() override;

	TSharedPtr<FUICommandInfo> ReimportAsset;
	TSharedPtr<FUICommandInfo> SwitchToStandaloneEditor;
	TSharedPtr<FUICommandInfo> SwitchToWorldCentricEditor;
};
