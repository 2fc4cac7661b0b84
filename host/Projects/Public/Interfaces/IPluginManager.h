// SPDX-License-Identifier: MIT
/** Finding plug-ins by name. */
#pragma once

#include "Containers/Array.h"
#include "Containers/StringView.h"
#include "Containers/UnrealString.h"
#include "Templates/SharedPointer.h"

/** A plug-in that was discovered, enabled or not. */
class IPlugin
{
public:
	virtual ~IPlugin() = default;
	/** Name of the .uplugin file without its extension. */
	virtual const FString& GetName() const = 0;
	/** Full path of the .uplugin file. */
	virtual const FString& GetDescriptorFileName() const = 0;
	/** Folder of the .uplugin file, without a slash at the end. */
	virtual FString GetBaseDir() const = 0;
	/** The folder's Content folder. */
	virtual FString GetContentDir() const = 0;
	/** Root of the paths of its assets: "/Name/". */
	virtual FString GetMountedAssetPath() const = 0;
	virtual bool IsEnabled() const = 0;
};

/** All plug-ins of the program. Names ignore case. Game thread only. */
class PROJECTS_API IPluginManager
{
public:
	static IPluginManager& Get();
	virtual ~IPluginManager() = default;

	/** Any discovered plug-in; null when there is none of this name. */
	virtual TSharedPtr<IPlugin> FindPlugin(const FStringView Name) = 0;
	TSharedPtr<IPlugin> FindPlugin(const ANSICHAR* Name);
	/** The plug-in whose asset root starts the path, "/Name/..." or "Name"; null when there is none. */
	virtual TSharedPtr<IPlugin> FindPluginFromPath(const FString& PluginPath) = 0;
	/** The plug-in when it is discovered and enabled, else null. */
	virtual TSharedPtr<IPlugin> FindEnabledPlugin(const FStringView Name) = 0;
	virtual TArray<TSharedRef<IPlugin>> GetEnabledPlugins() = 0;
	virtual TArray<TSharedRef<IPlugin>> GetDiscoveredPlugins() = 0;
};
