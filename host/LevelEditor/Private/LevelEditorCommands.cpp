// SPDX-License-Identifier: MIT

#include "LevelEditorCommands.h"

#include "Internationalization/Internationalization.h"
#include "Styling/AppStyle.h"

#define LOCTEXT_NAMESPACE "MainFrameCommands"

FLevelEditorFrameCommands::FLevelEditorFrameCommands()
	: TCommands<FLevelEditorFrameCommands>(TEXT("MainFrame"), NSLOCTEXT("Contexts", "MainFrame", "Main Frame"),
		  NAME_None, FAppStyle::GetAppStyleSetName())
{
}

void FLevelEditorFrameCommands::RegisterCommands()
{
	UI_COMMAND(Exit, "Exit", "Closes all windows and ends the program", EUserInterfaceActionType::Button,
		FInputChord(EModifierKey::Alt, EKeys::F4));
	UI_COMMAND(LoadDefaultLayout, "Load Default Layout", "Puts all tabs where they were at the first start",
		EUserInterfaceActionType::Button, FInputChord());
}

#undef LOCTEXT_NAMESPACE
