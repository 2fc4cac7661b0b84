// SPDX-License-Identifier: MIT
/** Commands of the editor instance. */
#pragma once

#include "Framework/Commands/Commands.h"

struct FToolMenuSection;

class FZEFTandemEditorCommands : public TCommands<FZEFTandemEditorCommands>
{
public:
	FZEFTandemEditorCommands();
	virtual void RegisterCommands() override;

	/** Adds a button "ConnectToTandem" for the state of the connection; for whoever offers one. */
	static void BuildToolbar(FToolMenuSection& Section, bool bUnused);

	TSharedPtr<FUICommandInfo> FocusCamera;
	TSharedPtr<FUICommandInfo> Tandem;
	TSharedPtr<FUICommandInfo> Update;
	TSharedPtr<FUICommandInfo> ToggleTandemConnectionState; // bound to nothing
	TSharedPtr<FUICommandInfo> SetUnifiedMaterial;
	TSharedPtr<FUICommandInfo> SetWeld; // bound to nothing
	TSharedPtr<FUICommandInfo> SaveAsStaticMesh;
	TSharedPtr<FUICommandInfo> SaveAsSkeletalMesh;
	TSharedPtr<FUICommandInfo> SaveAsGeometryCache;
	TSharedPtr<FUICommandInfo> SaveAsAnimSequence;
	TSharedPtr<FUICommandInfo> SetShowGrid;
	TSharedPtr<FUICommandInfo> SetShowNormals;
	TSharedPtr<FUICommandInfo> SetShowTangents;
	TSharedPtr<FUICommandInfo> SetShowBinormals;
	TSharedPtr<FUICommandInfo> MetahumanExportAsTandem;
	TSharedPtr<FUICommandInfo> StaticMeshExportAsTandem;
};
