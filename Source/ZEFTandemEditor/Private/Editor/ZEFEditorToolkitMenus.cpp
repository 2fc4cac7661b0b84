// SPDX-License-Identifier: MIT
// Menus and tool bars of a toolkit.
#include "Editor/ZEFEditorToolkit.h"

#include "Editor.h"
#include "Editor/ZEFEditorToolkitHost.h"
#include "Editor/ZEFEditorToolkitMenuContext.h"
#include "Editor/ZEFTandemEditorButtonStyle.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxExtender.h"
#include "StatusBarSubsystem.h"
#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "ToolMenu.h"
#include "ToolMenuContext.h"
#include "ToolMenuSection.h"
#include "ToolMenus.h"
#include "Toolkits/AssetEditorCommonCommands.h"
#include "Toolkits/GlobalEditorCommonCommands.h"
#include "Toolkits/IToolkitHost.h"
#include "UObject/UObjectGlobals.h"
#include "WidgetDrawerConfig.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SNullWidget.h"

namespace
{

const TCHAR* const DefaultToolBarName = TEXT("ZEFEditor.DefaultToolBar");
const TCHAR* const DefaultToolBarSection = TEXT("ZEFEditor");
const TCHAR* const MenuNamePrefix = TEXT("AssetEditor.");

FName MakeToolMenuName(const FName& AppName, const TCHAR* Suffix)
{
	return FName(*(MenuNamePrefix + AppName.ToString() + Suffix));
}

} // namespace

void FZEFEditorToolkit::AddMenuExtender(TSharedPtr<FExtender> Extender)
{
	MenuExtenders.AddUnique(Extender);
}

void FZEFEditorToolkit::RemoveMenuExtender(TSharedPtr<FExtender> Extender)
{
	MenuExtenders.Remove(Extender);
}

void FZEFEditorToolkit::AddToolbarExtender(TSharedPtr<FExtender> Extender)
{
	ToolbarExtenders.AddUnique(Extender);
}

void FZEFEditorToolkit::RemoveToolbarExtender(TSharedPtr<FExtender> Extender)
{
	ToolbarExtenders.Remove(Extender);
}

void FZEFEditorToolkit::AddSecondaryToolbarExtender(TSharedPtr<FExtender> Extender)
{
	SecondaryToolbarExtenders.AddUnique(Extender);
}

void FZEFEditorToolkit::AddToolbarWidget(TSharedRef<SWidget> Widget)
{
	ToolbarWidgets.AddUnique(Widget);
}

void FZEFEditorToolkit::RemoveAllToolbarWidgets()
{
	ToolbarWidgets.Empty();
}

void FZEFEditorToolkit::RegisterDrawer(FWidgetDrawerConfig&& Drawer, int32 SlotIndex)
{
	const TSharedPtr<IToolkitHost> Host = ToolkitHost.Pin();
	if (Host.IsValid() && Host->GetStatusBarName() != NAME_None)
	{
		GEditor->GetEditorSubsystem<UStatusBarSubsystem>()->RegisterDrawer(
			Host->GetStatusBarName(), MoveTemp(Drawer), SlotIndex);
	}
}

void FZEFEditorToolkit::SetMenuOverlay(TSharedRef<SWidget> Widget)
{
	if (const TSharedPtr<SZEFEditorToolkitHost> Host = StandaloneHost.Pin())
	{
		Host->SetMenuOverlay(Widget);
	}
}

void FZEFEditorToolkit::RegenerateMenusAndToolbars()
{
	RemoveAllToolbarWidgets();
	if (const TSharedPtr<SZEFEditorToolkitHost> Host = StandaloneHost.Pin())
	{
		Host->GenerateMenus();
	}
	if (Toolbar != SNullWidget::NullWidget)
	{
		GenerateToolbar();
	}
	PostRegenerateMenusAndToolbars();
}

FName FZEFEditorToolkit::GetToolMenuAppName() const
{
	return GetToolkitFName();
}

FName FZEFEditorToolkit::GetToolMenuName() const
{
	return MakeToolMenuName(GetToolMenuAppName(), TEXT(".MainMenu"));
}

FName FZEFEditorToolkit::GetToolMenuToolbarName(FName& OutParentName) const
{
	OutParentName = DefaultToolBarName;
	return MakeToolMenuName(GetToolMenuAppName(), TEXT(".ToolBar"));
}

FName FZEFEditorToolkit::GetToolMenuToolbarName() const
{
	FName ParentName;
	return GetToolMenuToolbarName(ParentName);
}

void FZEFEditorToolkit::InitToolMenuContext(FToolMenuContext& /*MenuContext*/) {}

void FZEFEditorToolkit::PostRegenerateMenusAndToolbars() {}

void FZEFEditorToolkit::AddGraphEditorPinActionsToContextMenu(FToolMenuSection& /*Section*/) const {}

FToolMenuContext FZEFEditorToolkit::MakeToolMenuContext(const TArray<TSharedPtr<FExtender>>& Extenders)
{
	FToolMenuContext Context(ToolkitCommands, FExtender::Combine(Extenders));
	UZEFEditorToolkitMenuContext* const ToolkitContext = NewObject<UZEFEditorToolkitMenuContext>();
	ToolkitContext->Toolkit = SharedThis(this);
	Context.AddObject(ToolkitContext);
	InitToolMenuContext(Context);
	return Context;
}

void FZEFEditorToolkit::RegisterDefaultToolBar()
{
	UToolMenus* const Menus = UToolMenus::Get();
	if (!Menus->IsMenuRegistered(DefaultToolBarName))
	{
		UToolMenu* const ToolBar =
			Menus->RegisterMenu(DefaultToolBarName, NAME_None, EMultiBoxType::SlimHorizontalToolBar);
		ToolBar->AddSection(DefaultToolBarSection);
	}
}

void FZEFEditorToolkit::GenerateToolbar()
{
	RegisterDefaultToolBar();
	UToolMenus* const Menus = UToolMenus::Get();
	FName ParentName;
	const FName ToolBarName = GetToolMenuToolbarName(ParentName);
	if (!Menus->IsMenuRegistered(ToolBarName))
	{
		Menus->RegisterMenu(ToolBarName, ParentName, EMultiBoxType::SlimHorizontalToolBar);
	}

	UToolMenu* const Generated = Menus->GenerateMenu(ToolBarName, MakeToolMenuContext(ToolbarExtenders));
	Generated->bToolBarIsFocusable = bIsToolbarFocusable;
	Generated->bToolBarForceSmallIcons = bIsToolbarUsingSmallIcons;
	const TSharedRef<SHorizontalBox> Row =
		SNew(SHorizontalBox) + SHorizontalBox::Slot().FillWidth(1.0f)[Menus->GenerateWidget(Generated)];
	for (const TSharedRef<SWidget>& Widget : ToolbarWidgets)
	{
		Row->AddSlot().AutoWidth().VAlign(VAlign_Center)[Widget];
	}
	Toolbar = SNew(SBorder).BorderImage(FAppStyle::GetBrush("Brushes.Panel"))[Row];
	if (const TSharedPtr<SZEFEditorToolkitHost> Host = StandaloneHost.Pin())
	{
		Host->SetToolbar(Toolbar.ToSharedRef());
	}
}

void FZEFEditorToolkit::FillDefaultFileMenuCommands(FToolMenuSection& Section)
{
	const FAssetEditorCommonCommands& Commands = FAssetEditorCommonCommands::Get();
	if (IsWorldCentricAssetEditor())
	{
		Section.AddMenuEntry(Commands.SwitchToStandaloneEditor);
	}
	else if (PreviousWorldCentricToolkitHost.IsValid())
	{
		Section.AddMenuEntry(Commands.SwitchToWorldCentricEditor);
	}
}

void FZEFEditorToolkit::FillDefaultAssetMenuCommands(FToolMenuSection& Section)
{
	// Only an edited asset can be imported again.
	const TArray<UObject*>* const Edited = GetObjectsCurrentlyBeingEdited();
	if (Edited != nullptr && !Edited->IsEmpty())
	{
		Section.AddMenuEntry(FAssetEditorCommonCommands::Get().ReimportAsset);
	}
}

void FZEFEditorToolkit::FillDefaultHelpMenuCommands(FToolMenuSection& Section)
{
	Section.AddMenuEntry(FGlobalEditorCommonCommands::Get().OpenDocumentation);
}

const FSlateBrush* FZEFEditorToolkit::GetDefaultTabIcon() const
{
	return FZEFTandemEditorButtonStyle::Get().GetBrush("ZEFTandemEditorButton.OpenPluginWindow");
}

FLinearColor FZEFEditorToolkit::GetDefaultTabColor() const
{
	return FLinearColor::Transparent;
}
