// SPDX-License-Identifier: MIT
#include "Host/EditorSession.h"

#include "Containers/StringConv.h"
#include "Editor/ZEFTandemProgress.h"
#include "Host/PackageStore.h"
#include "ProjectFolder.h"
#include "Zef/Address.h"

#include <cstdlib>

namespace Host
{

namespace
{

FString ToString(const std::filesystem::path& Path)
{
	return UTF8_TO_TCHAR(std::filesystem::absolute(Path).string().c_str());
}

} // namespace

FEditorSession::~FEditorSession()
{
	End();
}

std::string FEditorSession::Start(const FEditorSessionOptions& Options)
{
	std::string Error = PrepareProject(Options.Project);
	if (!Error.empty())
	{
		return Error;
	}
	if (!Options.Endpoint.empty())
	{
		setenv(Zef::EndpointVariable, Options.Endpoint.c_str(), 1);
	}
	SetPackageStore(&PackageStore);
	FEngineLoopOptions Boot;
	Boot.ProjectDir = ToString(Options.Project);
	Boot.PluginDir = ToString(Options.Plugin);
	Boot.Modules = {TEXT("ZEFTandemRuntime"), TEXT("ZEFTandemEditor")};
	FString BootError;
	return EngineLoop.Init(Boot, BootError) ? std::string() : std::string(TCHAR_TO_UTF8(*BootError));
}

void FEditorSession::End()
{
	if (EngineLoop.IsRunning())
	{
		DestroyProgress();
		EngineLoop.Exit();
		SetPackageStore(nullptr);
	}
}

} // namespace Host
