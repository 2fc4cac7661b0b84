// SPDX-License-Identifier: MIT
#include "Framework/Commands/UICommandList.h"
#include "Framework/Docking/TabManager.h"
#include "Host/Docking.h"
#include "Internationalization/Internationalization.h"
#include "Styling/AppStyle.h"
#include "Toolkits/AssetEditorCommonCommands.h"
#include "Toolkits/GlobalEditorCommonCommands.h"
#include "Widgets/Docking/SDockTab.h"

namespace
{
void ActivateNextMajorTab()
{
	const TArray<TSharedRef<SDockTab>> Tabs = Host::OpenTabs(*FGlobalTabmanager::Get());
	int32 Latest = 0;
	for (int32 Index = 1; Index < Tabs.Num(); ++Index)
	{
		if (Tabs[Index]->GetLastActivationTime() > Tabs[Latest]->GetLastActivationTime() || Tabs[Index]->IsActive())
		{
			Latest = Index;
		}
	}
	if (Tabs.Num() > 1)
	{
		FGlobalTabmanager::Get()->DrawAttention(Tabs[(Latest + 1) % Tabs.Num()]);
	}
}
} // namespace

#define LOCTEXT_NAMESPACE "GlobalEditorCommonCommands"

FGlobalEditorCommonCommands::FGlobalEditorCommonCommands()
	: TCommands<FGlobalEditorCommonCommands>(TEXT("SystemWideCommands"),
		  NSLOCTEXT("Contexts", "SystemWideCommands", "System-wide"), NAME_None, FAppStyle::GetAppStyleSetName())
{
}

void FGlobalEditorCommonCommands::RegisterCommands()
{
	UI_COMMAND(SummonControlTabNavigation, "Next Tab", "Goes to the next window or tab",
		EUserInterfaceActionType::Button, FInputChord(EModifierKey::Control, EKeys::Tab));
	UI_COMMAND(OpenDocumentation, "Open Documentation...", "Opens documentation for this tool",
		EUserInterfaceActionType::Button, FInputChord(EKeys::F1));
}

void FGlobalEditorCommonCommands::MapActions(TSharedRef<FUICommandList>& ToolkitCommands)
{
	Register();
	ToolkitCommands->MapAction(Get().SummonControlTabNavigation, FExecuteAction::CreateStatic(&ActivateNextMajorTab));
}

#undef LOCTEXT_NAMESPACE
#define LOCTEXT_NAMESPACE "AssetEditorCommonCommands"

FAssetEditorCommonCommands::FAssetEditorCommonCommands()
	: TCommands<FAssetEditorCommonCommands>(TEXT("AssetEditor"), NSLOCTEXT("Contexts", "AssetEditor", "Asset Editor"),
		  NAME_None, FAppStyle::GetAppStyleSetName())
{
}

void FAssetEditorCommonCommands::RegisterCommands()
{
	UI_COMMAND(ReimportAsset, "Reimport", "Imports the edited assets again from their files",
		EUserInterfaceActionType::Button, FInputChord());
	UI_COMMAND(SwitchToStandaloneEditor, "Switch to Standalone Editor", "Opens the editor in a window of its own",
		EUserInterfaceActionType::Button, FInputChord());
	UI_COMMAND(SwitchToWorldCentricEditor, "Switch to World-Centric Editor", "Opens the editor in the level editor",
		EUserInterfaceActionType::Button, FInputChord());
}

#undef LOCTEXT_NAMESPACE
