// SPDX-License-Identifier: MIT
#include "Support/EngineSession.h"

#include "Containers/StringConv.h"
#include "Editor/ZEFTandemEditor.h"
#include "Editor/ZEFTandemEditorModule.h"
#include "Host/EngineLoop.h"
#include "Host/FilePackageStore.h"
#include "Modules/ModuleManager.h"
#include "UObject/GarbageCollection.h"
#include "UObject/UObjectGlobals.h"
#include "Zef/Address.h"

#include <cstdlib>
#include <filesystem>
#include <memory>

namespace Bench
{

namespace
{

/** An empty project, removed at the end of the program. */
struct FSession
{
	std::string Folder = (std::filesystem::temp_directory_path() / "zef-bench-XXXXXX").string();
	Host::FFilePackageStore PackageStore;
	Host::FEngineLoop Engine;
	std::string Error;

	FSession()
	{
		if (mkdtemp(Folder.data()) == nullptr)
		{
			Error = "no temporary folder can be made";
			return;
		}
		for (const char* Part : {"Config", "Content", "Saved"})
		{
			std::filesystem::create_directory(std::filesystem::path(Folder) / Part);
		}
		Host::SetPackageStore(&PackageStore);
		Host::FEngineLoopOptions Options;
		Options.ProjectDir = FString(UTF8_TO_TCHAR(Folder.c_str()));
		Options.PluginDir = TEXT(ZEF_SOURCE_DIR);
		Options.Modules = {TEXT("ZEFTandemRuntime"), TEXT("ZEFTandemEditor")};
		FString BootError;
		if (!Engine.Init(Options, BootError))
		{
			Error = TCHAR_TO_UTF8(*BootError);
		}
	}
	~FSession()
	{
		Engine.Exit();
		Host::SetPackageStore(nullptr);
		std::error_code Ignored;
		std::filesystem::remove_all(Folder, Ignored);
	}
};

/** Ended by StopEngine and not at the program's exit, when parts of the engine that were made later are gone. */
std::unique_ptr<FSession> Session;

} // namespace

std::string StartEngine()
{
	if (!Session)
	{
		Session = std::make_unique<FSession>();
	}
	return Session->Error;
}

void StopEngine()
{
	Session.reset();
}

TSharedPtr<FZEFTandemEditor> OpenEditor(const std::string& Endpoint)
{
	setenv(Zef::EndpointVariable, Endpoint.c_str(), 1);
	FZEFTandemEditorModule& Module = FModuleManager::LoadModuleChecked<FZEFTandemEditorModule>(TEXT("ZEFTandemEditor"));
	return StaticCastSharedPtr<FZEFTandemEditor>(Module.CreateEditor());
}

void TickEngine(double Seconds)
{
	Session->Engine.Tick(Seconds);
}

void CollectObjects()
{
	CollectGarbage(RF_NoFlags);
}

} // namespace Bench
