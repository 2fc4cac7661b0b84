// SPDX-License-Identifier: MIT
#include "Host/EngineLoop.h"

#include "Editor.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Commands/GenericCommands.h"
#include "Framework/Docking/TabManager.h"
#include "Framework/Notifications/NotificationManager.h"
#include "Host/Clock.h"
#include "Host/ConfigDirs.h"
#include "Host/Docking.h"
#include "Host/DocumentationPages.h"
#include "Host/EditorStyle.h"
#include "Host/LevelEditorFrame.h"
#include "Host/MainFrame.h"
#include "Host/Modules.h"
#include "Host/Notifications.h"
#include "Host/PackageStore.h"
#include "Host/Plugins.h"
#include "Host/ToolMenusRuntime.h"
#include "Host/Toolkits.h"
#include "Host/Windows.h"
#include "Interfaces/IPluginManager.h"
#include "Logging/LogMacros.h"
#include "Misc/ConfigCacheIni.h"
#include "Modules/ModuleManager.h"
#include "Toolkits/AssetEditorCommonCommands.h"
#include "Toolkits/GlobalEditorCommonCommands.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"

DEFINE_LOG_CATEGORY_STATIC(LogInit, Log, All);

namespace Host
{
FEngineLoop::~FEngineLoop()
{
	Exit();
}

bool FEngineLoop::Init(const FEngineLoopOptions& Options, FString& OutError)
{
	checkf(!GEditor, TEXT("An engine runs already"));
	bRunning = true;
	if (Options.ProjectDir.IsEmpty())
	{
		SetConfigDirs(FString(), FString(), FString());
	}
	else
	{
		SetConfigDirs(FString(), Options.ProjectDir / TEXT("Config"), Options.ProjectDir / TEXT("Saved/Config"));
	}
	if (!MountContentFolders(Options, OutError))
	{
		Exit();
		return false;
	}
	FSlateApplication::Create();
	FGenericCommands::Register();
	FGlobalEditorCommonCommands::Register();
	FAssetEditorCommonCommands::Register();
	LoadEditorStyleSettings();
	SetDocumentationFolder(Options.PluginDir);

	UEditorEngine* const Editor = NewObject<UEditorEngine>(GetTransientPackage(), NAME_None, RF_Transient);
	Editor->AddToRoot();
	GEngine = Editor;
	GEditor = Editor;
	Editor->InitEditor();

	for (const FName Module : Options.Modules)
	{
		if (!FModuleManager::Get().LoadModule(Module))
		{
			OutError = FString::Printf(TEXT("The module '%s' is not part of this program"), *Module.ToString());
			Exit();
			return false;
		}
	}
	RegisterMainFrameMenu();
	StartToolMenus();
	UE_LOG(LogInit, Log, TEXT("The engine is up"));
	return true;
}

bool FEngineLoop::MountContentFolders(const FEngineLoopOptions& Options, FString& OutError)
{
	const auto Mount = [this](const FString& Root, const FString& Directory)
	{
		MountContent(Root, Directory);
		MountedRoots.Add(Root);
	};
	if (!Options.ProjectDir.IsEmpty())
	{
		Mount(TEXT("/Game/"), Options.ProjectDir / TEXT("Content"));
	}
	if (Options.PluginDir.IsEmpty())
	{
		return true;
	}
	if (AddPluginSearchPath(Options.PluginDir) == 0)
	{
		OutError = FString::Printf(TEXT("There is no plug-in in the folder '%s'"), *Options.PluginDir);
		return false;
	}
	for (const TSharedRef<IPlugin>& Plugin : IPluginManager::Get().GetDiscoveredPlugins())
	{
		SetPluginEnabled(Plugin->GetName(), true);
		Mount(Plugin->GetMountedAssetPath(), Plugin->GetContentDir());
	}
	return true;
}

TSharedRef<FLevelEditorFrame> FEngineLoop::OpenLevelEditor()
{
	checkf(bRunning, TEXT("The level editor needs a running engine"));
	if (!LevelEditor.IsValid() || !LevelEditor->IsOpen())
	{
		LevelEditor = FLevelEditorFrame::Open();
	}
	return LevelEditor.ToSharedRef();
}

void FEngineLoop::Tick(double DeltaSeconds)
{
	AdvanceTime(DeltaSeconds);
	GEditor->Tick(static_cast<float>(DeltaSeconds), false);
	FSlateNotificationManager::Get().Tick();
	TickToolMenus();
	FSlateApplication::Get().Tick();
	GEngine->ConditionalCollectGarbage();
}

void FEngineLoop::Exit()
{
	if (!bRunning)
	{
		return;
	}
	bRunning = false;
	if (LevelEditor.IsValid())
	{
		LevelEditor->Close();
		LevelEditor.Reset();
	}
	FGlobalTabmanager::Get()->SaveAllVisualState();
	CloseAllToolkits();
	ShutdownModules();
	if (GEditor)
	{
		GEditor->PreExit();
		GEditor->RemoveFromRoot();
		GEditor = nullptr;
		GEngine = nullptr;
	}
	FSlateApplication::Shutdown();
	ResetDocking();
	ForgetModalAnswers();
	ResetNotifications();
	ResetToolMenus();
	CollectGarbage(RF_NoFlags);
	for (const FString& Root : MountedRoots)
	{
		UnmountContent(Root);
	}
	MountedRoots.Empty();
	ForgetPlugins();
	SetDocumentationFolder(FString());
	if (GConfig)
	{
		GConfig->Flush(false);
	}
	SetConfigDirs(FString(), FString(), FString());
}
} // namespace Host
