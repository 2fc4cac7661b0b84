// SPDX-License-Identifier: MIT
// Brings the whole engine layer up, moves it on, and takes it down.
#pragma once

#include "CoreMinimal.h"

namespace Host
{
class FLevelEditorFrame;

struct FEngineLoopOptions
{
	/** Folder with Config/, Content/ and Saved/, the last of which is written to. Empty: nothing is read or kept. */
	FString ProjectDir;
	/** Folder of a .uplugin file, or of folders of them; all that are found are enabled. Empty for none. */
	FString PluginDir;
	/** Loaded at the end of the start, in this order. */
	TArray<FName> Modules;
};

/**
 * One engine: configuration, content mounts, commands, the editor object, modules. One at a time in a process; another
 * one can follow. Game thread.
 */
class FEngineLoop
{
public:
	FEngineLoop() = default;
	/** Takes a running engine down. */
	~FEngineLoop();

	FEngineLoop(const FEngineLoop&) = delete;
	FEngineLoop& operator=(const FEngineLoop&) = delete;

	/**
	 * Brings everything up. `/Game` is the project's Content folder, `/Name` that of the plug-in of that name.
	 *
	 * @param OutError  one line that says what is wrong
	 * @return false, with everything down again, when the plug-in folder holds no plug-in or a module is missing
	 */
	bool Init(const FEngineLoopOptions& Options, FString& OutError);
	bool IsRunning() const { return bRunning; }

	/**
	 * The main window, made now when there is none. It is closed by the user, by itself or with the engine, which
	 * somebody has to end then. Programs that need no window do not ask for it.
	 */
	TSharedRef<FLevelEditorFrame> OpenLevelEditor();

	/**
	 * One frame: the clock advances, timers, editor objects and viewports tick, viewports that are out of date are
	 * drawn, notifications end, and garbage is collected when it was asked for or a minute has passed since the last
	 * time.
	 *
	 * @param DeltaSeconds  at least 0
	 */
	void Tick(double DeltaSeconds);

	/**
	 * Closes open editors without asking, shuts the modules down, ends the editor and the mounts and collects
	 * everything. Nobody may hold an editor instance any more. Nothing happens when no engine runs.
	 */
	void Exit();

private:
	bool MountContentFolders(const FEngineLoopOptions& Options, FString& OutError);

	TArray<FString> MountedRoots;
	TSharedPtr<FLevelEditorFrame> LevelEditor;
	bool bRunning = false;
};
} // namespace Host
