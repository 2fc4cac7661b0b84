// SPDX-License-Identifier: MIT
#include "Editor/ZEFEditorToolkitPlacement.h"

#include "CoreGlobals.h"
#include "Framework/Docking/TabManager.h"
#include "Misc/ConfigCacheIni.h"
#include "Settings/EditorStyleSettings.h"
#include "UObject/Class.h"
#include "Widgets/Docking/SDockTab.h"

namespace
{

constexpr int32 DockedLocation = 0;
constexpr int32 StandaloneLocation = 1;
const TCHAR* const StandalonePlaceholder = TEXT("StandaloneToolkit");
const TCHAR* const DockedPlaceholder = TEXT("DockedToolkit");
const TCHAR* const MainWindowTab = TEXT("LevelEditor");
const TCHAR* const ContentBrowserTab = TEXT("ContentBrowserTab1");

int32 GetSavedLocation()
{
	int32 Location = StandaloneLocation;
	GConfig->GetInt(TEXT("ZEFEditorToolkitTabLocation"), TEXT("ZEFEditorToolkit"), Location, GEditorPerProjectIni);
	return Location;
}

void Insert(const TSharedRef<SDockTab>& Tab, const TCHAR* Placeholder, const FTabManager::FSearchPreference& Preference)
{
	FGlobalTabmanager::Get()->InsertNewDocumentTab(Placeholder, Preference, Tab);
}

} // namespace

void ZEFEditorToolkitPlacement::InsertMajorTab(const TSharedRef<SDockTab>& MajorTab)
{
	switch (GetDefault<UEditorStyleSettings>()->AssetEditorOpenLocation)
	{
		case EAssetEditorOpenLocation::Default:
			if (GetSavedLocation() == DockedLocation)
			{
				Insert(MajorTab, DockedPlaceholder, FTabManager::FLiveTabSearch(MainWindowTab));
				return;
			}
			break;
		case EAssetEditorOpenLocation::NewWindow:
			break;
		case EAssetEditorOpenLocation::MainWindow:
			Insert(MajorTab, DockedPlaceholder, FTabManager::FLiveTabSearch(MainWindowTab));
			return;
		case EAssetEditorOpenLocation::ContentBrowser:
			Insert(MajorTab, DockedPlaceholder, FTabManager::FLiveTabSearch(ContentBrowserTab));
			return;
		case EAssetEditorOpenLocation::LastDockedWindowOrNewWindow:
			Insert(MajorTab, DockedPlaceholder, FTabManager::FLastMajorOrNomadTab(NAME_None));
			return;
		case EAssetEditorOpenLocation::LastDockedWindowOrMainWindow:
			Insert(MajorTab, DockedPlaceholder, FTabManager::FLastMajorOrNomadTab(MainWindowTab));
			return;
		case EAssetEditorOpenLocation::LastDockedWindowOrContentBrowser:
			Insert(MajorTab, DockedPlaceholder, FTabManager::FLastMajorOrNomadTab(ContentBrowserTab));
			return;
	}
	Insert(MajorTab, StandalonePlaceholder, FTabManager::FRequireClosedTab());
}
