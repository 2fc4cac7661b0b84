// SPDX-License-Identifier: MIT
#include "EditorViewportCommands.h"

#include "Internationalization/Internationalization.h"
#include "Styling/AppStyle.h"

#define LOCTEXT_NAMESPACE "EditorViewportCommands"

FEditorViewportCommands::FEditorViewportCommands()
	: TCommands<FEditorViewportCommands>(TEXT("EditorViewport"),
		  NSLOCTEXT("Contexts", "EditorViewports", "Common Viewport Commands"), NAME_None,
		  FAppStyle::GetAppStyleSetName())
{
}

void FEditorViewportCommands::RegisterCommands()
{
	const EModifierKey::Type AltShift = EModifierKey::Alt | EModifierKey::Shift;
	UI_COMMAND(Perspective, "Perspective", "Switches the viewport to perspective view",
		EUserInterfaceActionType::RadioButton, FInputChord(EModifierKey::Alt, EKeys::G));
	UI_COMMAND(Front, "Front", "Switches the viewport to front view", EUserInterfaceActionType::RadioButton,
		FInputChord(EModifierKey::Alt, EKeys::H));
	UI_COMMAND(Left, "Left", "Switches the viewport to left view", EUserInterfaceActionType::RadioButton,
		FInputChord(EModifierKey::Alt, EKeys::K));
	UI_COMMAND(Top, "Top", "Switches the viewport to top view", EUserInterfaceActionType::RadioButton,
		FInputChord(EModifierKey::Alt, EKeys::J));
	UI_COMMAND(Back, "Back", "Switches the viewport to back view", EUserInterfaceActionType::RadioButton,
		FInputChord(AltShift, EKeys::H));
	UI_COMMAND(Right, "Right", "Switches the viewport to right view", EUserInterfaceActionType::RadioButton,
		FInputChord(AltShift, EKeys::K));
	UI_COMMAND(Bottom, "Bottom", "Switches the viewport to bottom view", EUserInterfaceActionType::RadioButton,
		FInputChord(AltShift, EKeys::J));
	UI_COMMAND(WireframeMode, "Wireframe", "Renders the scene as the edges of its triangles",
		EUserInterfaceActionType::RadioButton, FInputChord(EModifierKey::Alt, EKeys::Two));
	UI_COMMAND(UnlitMode, "Unlit", "Renders the scene with no lights", EUserInterfaceActionType::RadioButton,
		FInputChord(EModifierKey::Alt, EKeys::Three));
	UI_COMMAND(LitMode, "Lit", "Renders the scene with normal lighting", EUserInterfaceActionType::RadioButton,
		FInputChord(EModifierKey::Alt, EKeys::Four));
	UI_COMMAND(ToggleRealTime, "Realtime", "Toggles real time rendering in this viewport",
		EUserInterfaceActionType::ToggleButton, FInputChord(EModifierKey::Control, EKeys::R));
}

#undef LOCTEXT_NAMESPACE
