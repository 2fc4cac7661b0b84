// SPDX-License-Identifier: MIT
#include "Editor/ZEFTandemEditorCommands.h"

#include "Internationalization/Internationalization.h"
#include "Styling/AppStyle.h"

#define LOCTEXT_NAMESPACE "ZEFTandemEditorCommands"

FZEFTandemEditorCommands::FZEFTandemEditorCommands()
	: TCommands<FZEFTandemEditorCommands>(TEXT("ZEFTandemEditor"),
		  NSLOCTEXT("Contexts", "ZEFTandemEditor", "ZEF/KR Tandem Editor"), TEXT("EditorViewport"),
		  FAppStyle::GetAppStyleSetName())
{
}

void FZEFTandemEditorCommands::RegisterCommands()
{
	UI_COMMAND(FocusCamera, "Focus Camera", "Focus the camera on the current selection",
		EUserInterfaceActionType::Button, FInputChord());
	UI_COMMAND(Tandem, "Tandem", "Enables or disables Tandem.", EUserInterfaceActionType::ToggleButton, FInputChord());
	UI_COMMAND(Update, "Update", "Update.", EUserInterfaceActionType::Button, FInputChord());
	UI_COMMAND(ToggleTandemConnectionState, "Toggle Tandem Connection State", "Toggle Tandem Connection State",
		EUserInterfaceActionType::Button, FInputChord());
	UI_COMMAND(SetUnifiedMaterial, "Unified Material", "Toggles to receive the garment material as a unified material.",
		EUserInterfaceActionType::ToggleButton, FInputChord());
	UI_COMMAND(SetWeld, "Weld", "Weld.", EUserInterfaceActionType::ToggleButton, FInputChord());
}

#undef LOCTEXT_NAMESPACE
