// SPDX-License-Identifier: MIT

#include "Brushes/SlateImageBrush.h"
#include "EditorStyle.h"
#include "Host/StyleResources.h"
#include "Styling/SlateStyle.h"

namespace
{
struct FIcon
{
	/** Key of the brush. */
	const TCHAR* Key;
	/** Name of the picture, without folder and extension. */
	const TCHAR* Picture;
	/** Width and height, slate units. */
	double Size = 16.0;
	/** Drawn in its own colours in place of that of the text. */
	bool bOwnColors = false;
};

const FIcon Icons[] = {
	{TEXT("LevelEditor.Tab"), TEXT("World")},
	{TEXT("LevelEditor.Tabs.Viewports"), TEXT("Viewport")},
	{TEXT("LevelEditor.Tabs.Details"), TEXT("Details")},
	{TEXT("LevelEditor.Tabs.Outliner"), TEXT("Tree")},
	{TEXT("LevelEditor.Tabs.Toolbar"), TEXT("Toolbar")},
	{TEXT("LevelEditor.Save"), TEXT("Save"), 20.0},
	{TEXT("Toolbar.Icon"), TEXT("Toolbar")},
	{TEXT("ContentBrowser.TabIcon"), TEXT("Content")},
	{TEXT("ContentBrowser.AssetTreeFolderClosed"), TEXT("Folder")},
	{TEXT("ContentBrowser.AssetTreeFolderOpen"), TEXT("FolderOpen")},
	{TEXT("MainFrame.SaveAll"), TEXT("SaveAll")},
	{TEXT("AssetEditor.SaveAsset"), TEXT("Save"), 20.0},
	{TEXT("Icons.Save"), TEXT("Save")},
	{TEXT("Icons.Settings"), TEXT("Settings")},
	{TEXT("Icons.Search"), TEXT("Search")},
	{TEXT("Icons.Filter"), TEXT("Filter")},
	{TEXT("Icons.X"), TEXT("Close")},
	{TEXT("Icons.Check"), TEXT("Check")},
	{TEXT("Icons.ChevronDown"), TEXT("ChevronDown")},
	{TEXT("Icons.ChevronRight"), TEXT("ChevronRight")},
	{TEXT("Icons.Plus"), TEXT("Plus")},
	{TEXT("Icons.Delete"), TEXT("Delete")},
	{TEXT("Icons.Edit"), TEXT("Rename")},
	{TEXT("Icons.Help"), TEXT("Help")},
	{TEXT("Icons.Lock"), TEXT("Lock")},
	{TEXT("Icons.Layout"), TEXT("Layout")},
	{TEXT("Icons.Refresh"), TEXT("Refresh")},
	{TEXT("Icons.FolderClosed"), TEXT("Folder")},
	{TEXT("Icons.FolderOpen"), TEXT("FolderOpen")},
	{TEXT("Icons.Info"), TEXT("Info"), 16.0, true},
	{TEXT("Icons.Warning"), TEXT("Warning"), 16.0, true},
	{TEXT("Icons.Error"), TEXT("Error"), 16.0, true},
	{TEXT("Icons.Success"), TEXT("Success"), 16.0, true},
	{TEXT("Icons.InfoWithColor.Large"), TEXT("Info"), 32.0, true},
	{TEXT("Icons.WarningWithColor.Large"), TEXT("Warning"), 32.0, true},
	{TEXT("Icons.ErrorWithColor.Large"), TEXT("Error"), 32.0, true},
	{TEXT("Icons.SuccessWithColor.Large"), TEXT("Success"), 32.0, true},
	{TEXT("NotificationList.SuccessImage"), TEXT("Success"), 20.0, true},
	{TEXT("NotificationList.FailImage"), TEXT("Error"), 20.0, true},
	{TEXT("NotificationList.DefaultMessage"), TEXT("Info"), 20.0, true},
	{TEXT("GenericCommands.Cut"), TEXT("Cut")},
	{TEXT("GenericCommands.Copy"), TEXT("Copy")},
	{TEXT("GenericCommands.Paste"), TEXT("Paste")},
	{TEXT("GenericCommands.Duplicate"), TEXT("Duplicate")},
	{TEXT("GenericCommands.Undo"), TEXT("Undo")},
	{TEXT("GenericCommands.Redo"), TEXT("Redo")},
	{TEXT("GenericCommands.Delete"), TEXT("Delete")},
	{TEXT("GenericCommands.Rename"), TEXT("Rename")},
	{TEXT("EditorViewport.Perspective"), TEXT("Perspective")},
	{TEXT("EditorViewport.LitMode"), TEXT("Lit")},
	{TEXT("EditorViewport.UnlitMode"), TEXT("Unlit")},
	{TEXT("EditorViewport.WireframeMode"), TEXT("Wireframe")},
	{TEXT("EditorViewport.ToggleRealTime"), TEXT("Realtime")},
	{TEXT("EditorViewport.ShowGrid"), TEXT("Grid")},
};
} // namespace

void EditorStyle::AddIcons(FSlateStyleSet& Style)
{
	for (const FIcon& Icon : Icons)
	{
		const FSlateColor Tint = Icon.bOwnColors ? FSlateColor(FLinearColor::White) : FSlateColor::UseForeground();
		Style.Set(
			Icon.Key, new FSlateImageBrush(Style.RootToContentDir(FString(TEXT("Icons/")) + Icon.Picture, TEXT(".png")),
						  FVector2D(Icon.Size, Icon.Size), Tint));
	}
}
