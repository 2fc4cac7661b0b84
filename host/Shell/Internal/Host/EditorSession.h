// SPDX-License-Identifier: MIT
/** The engine layer with the plug-in in it, up and running on a project. */
#pragma once

#include "Host/EngineLoop.h"
#include "Host/FilePackageStore.h"

#include <filesystem>
#include <string>

namespace Host
{

struct FEditorSessionOptions
{
	/** Project folder with Config/, Content/ and Saved/; made when it is not there. */
	std::filesystem::path Project;
	/** Folder of ZEFTandem.uplugin. */
	std::filesystem::path Plugin;
	/** ZeroMQ endpoint in place of the one of the channel "Tandem"; empty for the channel's. */
	std::string Endpoint;
};

/** One at a time in a process. Game thread. */
class FEditorSession
{
public:
	FEditorSession() = default;
	/** Ends a running progress and takes the engine down; editor instances must be gone. */
	~FEditorSession();
	FEditorSession(const FEditorSession&) = delete;
	FEditorSession& operator=(const FEditorSession&) = delete;

	/**
	 * Boots the engine on the project and loads the plug-in's modules.
	 *
	 * @return an error of one line, empty on success
	 */
	std::string Start(const FEditorSessionOptions& Options);
	/** What the destructor does, now. */
	void End();

	FEngineLoop& Engine() { return EngineLoop; }

private:
	FFilePackageStore PackageStore;
	FEngineLoop EngineLoop;
};

} // namespace Host
