// SPDX-License-Identifier: MIT
#include "Settings/EditorStyleSettings.h"

#include "CoreGlobals.h"
#include "Host/EditorStyle.h"
#include "Logging/LogMacros.h"
#include "Misc/ConfigCacheIni.h"
#include "UObject/Class.h"

DEFINE_LOG_CATEGORY_STATIC(LogEditorStyle, Log, All);

namespace
{
struct FLocationName
{
	const TCHAR* Name;
	EAssetEditorOpenLocation Location;
};

const FLocationName LocationNames[] = {
	{TEXT("Default"), EAssetEditorOpenLocation::Default},
	{TEXT("NewWindow"), EAssetEditorOpenLocation::NewWindow},
	{TEXT("MainWindow"), EAssetEditorOpenLocation::MainWindow},
	{TEXT("ContentBrowser"), EAssetEditorOpenLocation::ContentBrowser},
	{TEXT("LastDockedWindowOrNewWindow"), EAssetEditorOpenLocation::LastDockedWindowOrNewWindow},
	{TEXT("LastDockedWindowOrMainWindow"), EAssetEditorOpenLocation::LastDockedWindowOrMainWindow},
	{TEXT("LastDockedWindowOrContentBrowser"), EAssetEditorOpenLocation::LastDockedWindowOrContentBrowser},
};

EAssetEditorOpenLocation ReadOpenLocation()
{
	FString Text;
	if (!GConfig->GetString(TEXT("/Script/EditorStyle.EditorStyleSettings"), TEXT("AssetEditorOpenLocation"), Text,
			GEditorPerProjectIni))
	{
		return EAssetEditorOpenLocation::Default;
	}
	FString Known;
	for (const FLocationName& Entry : LocationNames)
	{
		if (Text == Entry.Name)
		{
			return Entry.Location;
		}
		Known += Known.IsEmpty() ? FString(Entry.Name) : FString(TEXT(", ")) + Entry.Name;
	}
	UE_LOG(LogEditorStyle, Warning, TEXT("AssetEditorOpenLocation is '%s' and is passed over; it may be one of: %s"),
		*Text, *Known);
	return EAssetEditorOpenLocation::Default;
}
} // namespace

void Host::LoadEditorStyleSettings()
{
	GetMutableDefault<UEditorStyleSettings>()->AssetEditorOpenLocation = ReadOpenLocation();
}
