// SPDX-License-Identifier: MIT
/** The list of discovered plug-ins. */

#include "Host/Plugins.h"
#include "Interfaces/IPluginManager.h"
#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace
{
namespace fs = std::filesystem;

class FPlugin : public IPlugin
{
public:
	FPlugin(FString InName, FString InDescriptor, FString InBaseDir)
		: Name(MoveTemp(InName))
		, Descriptor(MoveTemp(InDescriptor))
		, BaseDir(MoveTemp(InBaseDir))
	{
	}

	const FString& GetName() const override { return Name; }
	const FString& GetDescriptorFileName() const override { return Descriptor; }
	FString GetBaseDir() const override { return BaseDir; }
	FString GetContentDir() const override { return BaseDir / TEXT("Content"); }
	FString GetMountedAssetPath() const override { return TEXT("/") + Name + TEXT("/"); }
	bool IsEnabled() const override { return bEnabled; }

	bool bEnabled = false;

private:
	FString Name;
	FString Descriptor;
	FString BaseDir;
};

class FPluginManager final : public IPluginManager
{
public:
	using IPluginManager::FindPlugin;

	TSharedPtr<IPlugin> FindPlugin(const FStringView Name) override { return Find(Name); }

	TSharedPtr<IPlugin> FindEnabledPlugin(const FStringView Name) override
	{
		const TSharedPtr<FPlugin> Found = Find(Name);
		return Found.IsValid() && Found->IsEnabled() ? Found : nullptr;
	}

	TSharedPtr<IPlugin> FindPluginFromPath(const FString& PluginPath) override
	{
		const int32 Start = PluginPath.StartsWith(TEXT("/")) ? 1 : 0;
		int32 End = Start;
		while (End < PluginPath.Len() && PluginPath[End] != TEXT('/'))
		{
			++End;
		}
		return Find(FStringView(*PluginPath + Start, End - Start));
	}

	TArray<TSharedRef<IPlugin>> GetEnabledPlugins() override { return Select(true); }
	TArray<TSharedRef<IPlugin>> GetDiscoveredPlugins() override { return Select(false); }

	TSharedPtr<FPlugin> Find(const FStringView Name) const
	{
		for (const TSharedRef<FPlugin>& Plugin : Plugins)
		{
			if (FStringView(Plugin->GetName()).Equals(Name, ESearchCase::IgnoreCase))
			{
				return Plugin;
			}
		}
		return nullptr;
	}

	TArray<TSharedRef<FPlugin>> Plugins;

private:
	TArray<TSharedRef<IPlugin>> Select(bool bOnlyEnabled) const
	{
		TArray<TSharedRef<IPlugin>> Result;
		for (const TSharedRef<FPlugin>& Plugin : Plugins)
		{
			if (!bOnlyEnabled || Plugin->IsEnabled())
			{
				Result.Add(Plugin);
			}
		}
		return Result;
	}
};

FPluginManager& Manager()
{
	static FPluginManager Instance;
	return Instance;
}

FString ToFString(const fs::path& Path)
{
	return FString(UTF8_TO_TCHAR(Path.generic_string().c_str()));
}

/** Adds the descriptors at or below a folder, in the order of their paths, so that the outcome is the same anywhere. */
void CollectDescriptors(const fs::path& Directory, std::vector<fs::path>& Descriptors)
{
	std::error_code Error;
	std::vector<fs::path> Folders;
	bool bIsPlugin = false;
	for (fs::directory_iterator It(Directory, Error), End; !Error && It != End; It.increment(Error))
	{
		std::error_code TypeError;
		if (It->path().extension() == ".uplugin" && It->is_regular_file(TypeError))
		{
			Descriptors.push_back(It->path());
			bIsPlugin = true;
		}
		else if (It->is_directory(TypeError) && !It->is_symlink(TypeError))
		{
			Folders.push_back(It->path());
		}
	}
	if (bIsPlugin)
	{
		return;
	}
	std::sort(Folders.begin(), Folders.end());
	for (const fs::path& Folder : Folders)
	{
		CollectDescriptors(Folder, Descriptors);
	}
}
} // namespace

IPluginManager& IPluginManager::Get()
{
	return Manager();
}

TSharedPtr<IPlugin> IPluginManager::FindPlugin(const ANSICHAR* Name)
{
	const FString Wide(UTF8_TO_TCHAR(Name));
	return FindPlugin(FStringView(Wide));
}

namespace Host
{

int32 AddPluginSearchPath(const FString& Directory)
{
	std::error_code Error;
	const fs::path Root = fs::absolute(fs::path(TCHAR_TO_UTF8(*Directory)), Error).lexically_normal();
	std::vector<fs::path> Descriptors;
	CollectDescriptors(Root, Descriptors);
	int32 NumNew = 0;
	for (const fs::path& Descriptor : Descriptors)
	{
		FString Name = ToFString(Descriptor.stem());
		if (!Manager().Find(FStringView(Name)).IsValid())
		{
			Manager().Plugins.Add(
				MakeShared<FPlugin>(MoveTemp(Name), ToFString(Descriptor), ToFString(Descriptor.parent_path())));
			++NumNew;
		}
	}
	return NumNew;
}

bool SetPluginEnabled(const FString& Name, bool bEnabled)
{
	const TSharedPtr<FPlugin> Plugin = Manager().Find(FStringView(Name));
	if (!Plugin.IsValid())
	{
		return false;
	}
	Plugin->bEnabled = bEnabled;
	return true;
}

void ForgetPlugins()
{
	Manager().Plugins.Empty();
}

} // namespace Host
