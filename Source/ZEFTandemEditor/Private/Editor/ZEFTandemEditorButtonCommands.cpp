// SPDX-License-Identifier: MIT
#include "Editor/ZEFTandemEditorButtonCommands.h"

#include "Editor/ZEFTandemEditorButtonStyle.h"
#include "Internationalization/Internationalization.h"

#define LOCTEXT_NAMESPACE "FZEFTandemEditorModule"

FZEFTandemEditorButtonCommands::FZEFTandemEditorButtonCommands()
	: TCommands<FZEFTandemEditorButtonCommands>(TEXT("ZEFTandemEditorButton"),
		  NSLOCTEXT("Contexts", "ZEFTandemEditorButton", "ZEFTandemEditor Plugin"), NAME_None,
		  FZEFTandemEditorButtonStyle::GetStyleSetName())
{
}

void FZEFTandemEditorButtonCommands::RegisterCommands()
{
	UI_COMMAND(OpenPluginWindow, "ZEF/KR Tandem Editor", "Open ZEF/KR Tandem Editor", EUserInterfaceActionType::Button,
		FInputChord());
}

#undef LOCTEXT_NAMESPACE
