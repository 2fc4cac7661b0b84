// SPDX-License-Identifier: MIT
#include "SCommonEditorViewportToolbarBase.h"

#include "EditorViewportClient.h"
#include "EditorViewportCommands.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Internationalization/Internationalization.h"
#include "SEditorViewport.h"
#include "Widgets/SBoxPanel.h"

#define LOCTEXT_NAMESPACE "SCommonEditorViewportToolbarBase"

namespace
{
/** Menus are filled when they open: the viewport may have changed by then. */
FMenuBuilder MakeBuilder(ICommonEditorViewportToolbarInfoProvider& Provider)
{
	return FMenuBuilder(true, Provider.GetViewportWidget()->GetCommandList(), Provider.GetExtenders());
}
} // namespace

SCommonEditorViewportToolbarBase::~SCommonEditorViewportToolbarBase() = default;

void SCommonEditorViewportToolbarBase::Construct(
	const FArguments&, TSharedPtr<ICommonEditorViewportToolbarInfoProvider> InInfoProvider)
{
	InfoProviderPtr = InInfoProvider;
	FToolBarBuilder Bar(nullptr, FMultiBoxCustomization::None);
	const auto AddMenu = [&](const TAttribute<FText>& Label, const FText& ToolTip,
							 TSharedRef<SWidget> (SCommonEditorViewportToolbarBase::*Generate)() const, FName Name)
	{
		Bar.AddComboButton(
			FUIAction(), FOnGetContent::CreateSP(this, Generate), Label, ToolTip, FSlateIcon(), false, Name);
	};
	Bar.BeginSection(TEXT("Viewport"));
	AddMenu(LOCTEXT("Options", "Options"), LOCTEXT("OptionsTip", "Options of this viewport"),
		&SCommonEditorViewportToolbarBase::GenerateOptionsMenu, TEXT("EditorViewportToolBar.MenuDropdown"));
	AddMenu(TAttribute<FText>::CreateSP(this, &SCommonEditorViewportToolbarBase::GetCameraMenuLabel),
		LOCTEXT("CameraTip", "Projection and direction of the view"),
		&SCommonEditorViewportToolbarBase::GenerateCameraMenu, TEXT("EditorViewportToolBar.CameraMenu"));
	AddMenu(TAttribute<FText>::CreateSP(this, &SCommonEditorViewportToolbarBase::GetViewMenuLabel),
		LOCTEXT("ViewTip", "How the scene is shaded"), &SCommonEditorViewportToolbarBase::GenerateViewMenu,
		TEXT("EditorViewportToolBar.ViewMenu"));
	AddMenu(LOCTEXT("Show", "Show"), LOCTEXT("ShowTip", "What the view shows"),
		&SCommonEditorViewportToolbarBase::GenerateShowMenu, TEXT("EditorViewportToolBar.ShowMenu"));
	Bar.EndSection();

	const TSharedRef<SHorizontalBox> MainBox = SNew(SHorizontalBox);
	MainBox->AddSlot().AutoWidth().Padding(4.0f)[Bar.MakeWidget()];
	ExtendLeftAlignedToolbarSlots(MainBox, SharedThis(this));
	ChildSlot[MainBox];
}

ICommonEditorViewportToolbarInfoProvider& SCommonEditorViewportToolbarBase::GetInfoProvider() const
{
	// The viewport holds the tool bar and the provider is the viewport: the pointer outlives the pin.
	return *InfoProviderPtr.Pin();
}

void SCommonEditorViewportToolbarBase::ExtendLeftAlignedToolbarSlots(
	TSharedPtr<SHorizontalBox>, TSharedPtr<SViewportToolBar>) const
{
}

TSharedRef<SWidget> SCommonEditorViewportToolbarBase::GenerateOptionsMenu() const
{
	const FEditorViewportCommands& Commands = FEditorViewportCommands::Get();
	FMenuBuilder Menu = MakeBuilder(GetInfoProvider());
	Menu.BeginSection(TEXT("LevelViewportViewportOptions"), LOCTEXT("OptionsMenuHeader", "Viewport Options"));
	Menu.AddMenuEntry(Commands.ToggleRealTime);
	Menu.EndSection();
	return Menu.MakeWidget();
}

TSharedRef<SWidget> SCommonEditorViewportToolbarBase::GenerateCameraMenu() const
{
	const FEditorViewportCommands& Commands = FEditorViewportCommands::Get();
	FMenuBuilder Menu = MakeBuilder(GetInfoProvider());
	Menu.AddMenuEntry(Commands.Perspective);
	Menu.BeginSection(TEXT("LevelViewportCameraType_Ortho"), LOCTEXT("CameraTypeHeader_Ortho", "Orthographic"));
	for (const TSharedPtr<FUICommandInfo>& Command :
		{Commands.Top, Commands.Bottom, Commands.Left, Commands.Right, Commands.Front, Commands.Back})
	{
		Menu.AddMenuEntry(Command);
	}
	Menu.EndSection();
	return Menu.MakeWidget();
}

TSharedRef<SWidget> SCommonEditorViewportToolbarBase::GenerateViewMenu() const
{
	const FEditorViewportCommands& Commands = FEditorViewportCommands::Get();
	FMenuBuilder Menu = MakeBuilder(GetInfoProvider());
	Menu.BeginSection(TEXT("ViewMode"), LOCTEXT("ViewModeHeader", "View Mode"));
	for (const TSharedPtr<FUICommandInfo>& Command : {Commands.LitMode, Commands.UnlitMode, Commands.WireframeMode})
	{
		Menu.AddMenuEntry(Command);
	}
	Menu.EndSection();
	return Menu.MakeWidget();
}

TSharedRef<SWidget> SCommonEditorViewportToolbarBase::GenerateShowMenu() const
{
	return MakeBuilder(GetInfoProvider()).MakeWidget();
}

FText SCommonEditorViewportToolbarBase::GetCameraMenuLabel() const
{
	const FEditorViewportCommands& Commands = FEditorViewportCommands::Get();
	switch (GetInfoProvider().GetViewportWidget()->GetViewportClient()->GetViewportType())
	{
		case LVT_OrthoTop:
			return Commands.Top->GetLabel();
		case LVT_OrthoBottom:
			return Commands.Bottom->GetLabel();
		case LVT_OrthoLeft:
			return Commands.Left->GetLabel();
		case LVT_OrthoRight:
			return Commands.Right->GetLabel();
		case LVT_OrthoFront:
			return Commands.Front->GetLabel();
		case LVT_OrthoBack:
			return Commands.Back->GetLabel();
		default:
			return Commands.Perspective->GetLabel();
	}
}

FText SCommonEditorViewportToolbarBase::GetViewMenuLabel() const
{
	const FEditorViewportCommands& Commands = FEditorViewportCommands::Get();
	switch (GetInfoProvider().GetViewportWidget()->GetViewportClient()->GetViewMode())
	{
		case VMI_Wireframe:
		case VMI_BrushWireframe:
			return Commands.WireframeMode->GetLabel();
		case VMI_Unlit:
			return Commands.UnlitMode->GetLabel();
		default:
			return Commands.LitMode->GetLabel();
	}
}

#undef LOCTEXT_NAMESPACE
