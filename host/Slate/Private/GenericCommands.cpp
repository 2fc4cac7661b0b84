// SPDX-License-Identifier: MIT

#include "Framework/Commands/GenericCommands.h"

#include "Internationalization/Internationalization.h"
#include "Styling/AppStyle.h"

#define LOCTEXT_NAMESPACE "GenericCommands"

FGenericCommands::FGenericCommands()
	: TCommands<FGenericCommands>(TEXT("GenericCommands"),
		  NSLOCTEXT("GenericCommands", "Generic Commands", "Common Commands"), NAME_None,
		  FAppStyle::GetAppStyleSetName())
{
}

void FGenericCommands::RegisterCommands()
{
	UI_COMMAND(
		Cut, "Cut", "Cut selection", EUserInterfaceActionType::Button, FInputChord(EModifierKey::Control, EKeys::X));
	UI_COMMAND(
		Copy, "Copy", "Copy selection", EUserInterfaceActionType::Button, FInputChord(EModifierKey::Control, EKeys::C));
	UI_COMMAND(Paste, "Paste", "Paste clipboard contents", EUserInterfaceActionType::Button,
		FInputChord(EModifierKey::Control, EKeys::V));
	UI_COMMAND(Duplicate, "Duplicate", "Duplicate selection", EUserInterfaceActionType::Button,
		FInputChord(EModifierKey::Control, EKeys::D));
	UI_COMMAND(Undo, "Undo", "Undo the last action", EUserInterfaceActionType::Button,
		FInputChord(EModifierKey::Control, EKeys::Z));
	UI_COMMAND(Redo, "Redo", "Redo the last undone action", EUserInterfaceActionType::Button,
		FInputChord(EModifierKey::Control, EKeys::Y));
	UI_COMMAND(Delete, "Delete", "Delete current selection", EUserInterfaceActionType::Button,
		FInputChord(EKeys::Platform_Delete));
	UI_COMMAND(Rename, "Rename", "Rename current selection", EUserInterfaceActionType::Button, FInputChord(EKeys::F2));
	UI_COMMAND(SelectAll, "Select All", "Select everything", EUserInterfaceActionType::Button,
		FInputChord(EModifierKey::Control, EKeys::A));
}

#undef LOCTEXT_NAMESPACE
