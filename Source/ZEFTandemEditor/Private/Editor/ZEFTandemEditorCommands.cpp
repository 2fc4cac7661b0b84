// SPDX-License-Identifier: MIT
#include "Editor/ZEFTandemEditorCommands.h"

#include "Internationalization/Internationalization.h"
#include "Styling/AppStyle.h"
#include "ToolMenuEntry.h"
#include "ToolMenuSection.h"

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

	UI_COMMAND(
		SaveAsStaticMesh, "as StaticMesh", "Save as StaticMesh.", EUserInterfaceActionType::Button, FInputChord());
	UI_COMMAND(SaveAsSkeletalMesh, "as SkeletalMesh", "Save as SkeletalMesh.", EUserInterfaceActionType::Button,
		FInputChord());
	UI_COMMAND(SaveAsGeometryCache, "as GeometryCache", "Save Animation as GeometryCache.",
		EUserInterfaceActionType::Button, FInputChord());
	UI_COMMAND(SaveAsAnimSequence, "as AnimSequence", "Save as AnimationSequence", EUserInterfaceActionType::Button,
		FInputChord());

	UI_COMMAND(
		SetShowGrid, "Grid", "Displays the viewport grid.", EUserInterfaceActionType::ToggleButton, FInputChord());
	UI_COMMAND(SetShowNormals, "Normals", "Toggles display of vertex normals in the Preview Pane.",
		EUserInterfaceActionType::ToggleButton, FInputChord());
	UI_COMMAND(SetShowTangents, "Tangents", "Toggles display of vertex tangents in the Preview Pane.",
		EUserInterfaceActionType::ToggleButton, FInputChord());
	UI_COMMAND(SetShowBinormals, "Binormals",
		"Toggles display of vertex binormals (orthogonal vector to normal and tangent) in the Preview Pane.",
		EUserInterfaceActionType::ToggleButton, FInputChord());

	UI_COMMAND(MetahumanExportAsTandem, "As Tandem", "Export mesh as Tandem and request.",
		EUserInterfaceActionType::Button, FInputChord());
	UI_COMMAND(StaticMeshExportAsTandem, "StaticMesh as Tandem", "Export StaticMesh as Tandem",
		EUserInterfaceActionType::Button, FInputChord());
}

void FZEFTandemEditorCommands::BuildToolbar(FToolMenuSection& Section, bool /*bUnused*/)
{
	const TSharedPtr<FUICommandInfo> Command = Get().ToggleTandemConnectionState;
	const TAttribute<FText> Label = TAttribute<FText>::CreateLambda([] { return FText::FromString(TEXT("Test")); });
	const TAttribute<FSlateIcon> Icon = TAttribute<FSlateIcon>::CreateLambda([Command] { return Command->GetIcon(); });
	Section.AddEntry(FToolMenuEntry::InitToolBarButton(
		Command, Label, TAttribute<FText>(), Icon, NAME_None, FName(TEXT("ConnectToTandem"))));
}

#undef LOCTEXT_NAMESPACE
