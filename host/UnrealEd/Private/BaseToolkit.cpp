// SPDX-License-Identifier: MIT
#include "Toolkits/BaseToolkit.h"

#include "EditorModeManager.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/Docking/WorkspaceItem.h"
#include "Input/Events.h"
#include "Toolkits/IToolkitHost.h"
#include "Widgets/SWidget.h"

FBaseToolkit::FBaseToolkit()
	: ToolkitCommands(MakeShared<FUICommandList>())
	, WorkspaceMenuCategory(FWorkspaceItem::NewGroup(FText::GetEmpty()))
{
}

FBaseToolkit::~FBaseToolkit() = default;

FName FBaseToolkit::GetToolkitContextFName() const
{
	return GetToolkitFName();
}

FText FBaseToolkit::GetTabSuffix() const
{
	return FText::GetEmpty();
}

bool FBaseToolkit::ProcessCommandBindings(const FKeyEvent& InKeyEvent) const
{
	return ToolkitCommands->ProcessCommandBindings(InKeyEvent);
}

const TSharedRef<IToolkitHost> FBaseToolkit::GetToolkitHost() const
{
	return ToolkitHost.Pin().ToSharedRef();
}

void FBaseToolkit::RegisterTabSpawners(const TSharedRef<FTabManager>&) {}

void FBaseToolkit::UnregisterTabSpawners(const TSharedRef<FTabManager>&) {}

void FBaseToolkit::BringToolkitToFront()
{
	if (const TSharedPtr<IToolkitHost> Host = ToolkitHost.Pin())
	{
		Host->BringToFront();
	}
}

TSharedPtr<SWidget> FBaseToolkit::GetInlineContent() const
{
	return nullptr;
}

TSharedRef<FWorkspaceItem> FBaseToolkit::GetWorkspaceMenuCategory() const
{
	return WorkspaceMenuCategory.ToSharedRef();
}

FString FBaseToolkit::GetTabPrefix() const
{
	return IsWorldCentricAssetEditor() ? GetWorldCentricTabPrefix() : FString();
}

FLinearColor FBaseToolkit::GetTabColorScale() const
{
	return IsWorldCentricAssetEditor() ? GetWorldCentricTabColorScale() : FLinearColor(0.0f, 0.0f, 0.0f, 0.0f);
}

FEditorModeTools::~FEditorModeTools() = default;

void FEditorModeTools::SetToolkitHost(TSharedRef<IToolkitHost> Host)
{
	checkf(!ToolkitHost.IsValid(), TEXT("The modes of an editor window have a host already"));
	ToolkitHost = Host;
}
