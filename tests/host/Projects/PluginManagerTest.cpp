// SPDX-License-Identifier: MIT
#include "Interfaces/IPluginManager.h"
#include "Host/Plugins.h"
#include "fixtures/CorePrinting.h"
#include "fixtures/TemporaryFolder.h"

#include <fstream>
#include <gtest/gtest.h>

namespace
{

class PluginManager : public testing::Test
{
protected:
	~PluginManager() override { Host::ForgetPlugins(); }

	void AddPlugin(const std::string& Directory, const std::string& Name) const
	{
		std::filesystem::create_directories(Folder / Directory);
		std::ofstream(Folder / (Directory + "/" + Name + ".uplugin")) << "{}";
	}

	FString Path(const std::string& Name) const { return FString(UTF8_TO_TCHAR((Folder / Name).c_str())); }

	FTemporaryFolder Folder;
};

} // namespace

TEST_F(PluginManager, FindsPluginsInAFolderAndBelowIt)
{
	AddPlugin("Plugins/Cloth", "ZEFTandem");
	AddPlugin("Plugins/Deep/er", "Substance");
	AddPlugin("Plugins/Cloth/Source", "NotLookedAt");

	EXPECT_EQ(Host::AddPluginSearchPath(Path("Plugins")), 2);
	EXPECT_TRUE(IPluginManager::Get().FindPlugin("ZEFTandem").IsValid());
	EXPECT_TRUE(IPluginManager::Get().FindPlugin(TEXT("substance")).IsValid());
	EXPECT_FALSE(IPluginManager::Get().FindPlugin("NotLookedAt").IsValid());
	EXPECT_FALSE(IPluginManager::Get().FindPlugin("Missing").IsValid());
}

TEST_F(PluginManager, AFolderThatIsThePluginItselfServes)
{
	AddPlugin("Cloth", "ZEFTandem");

	EXPECT_EQ(Host::AddPluginSearchPath(Path("Cloth/")), 1);
	EXPECT_EQ(Host::AddPluginSearchPath(Path("Cloth")), 0);
	EXPECT_EQ(IPluginManager::Get().GetDiscoveredPlugins().Num(), 1);
}

TEST_F(PluginManager, TellsWhereAPluginLies)
{
	AddPlugin("Cloth", "ZEFTandem");
	Host::AddPluginSearchPath(Path("Cloth/"));
	const TSharedPtr<IPlugin> Plugin = IPluginManager::Get().FindPlugin("ZEFTandem");
	ASSERT_TRUE(Plugin.IsValid());

	EXPECT_TEXT_EQ(Plugin->GetName(), "ZEFTandem");
	EXPECT_TEXT_EQ(Plugin->GetBaseDir(), Path("Cloth"));
	EXPECT_TEXT_EQ(Plugin->GetBaseDir() / TEXT("Resources"), Path("Cloth/Resources"));
	EXPECT_TEXT_EQ(Plugin->GetContentDir(), Path("Cloth/Content"));
	EXPECT_TEXT_EQ(Plugin->GetDescriptorFileName(), Path("Cloth/ZEFTandem.uplugin"));
	EXPECT_TEXT_EQ(Plugin->GetMountedAssetPath(), "/ZEFTandem/");
}

TEST_F(PluginManager, ADiscoveredPluginIsFoundBeforeItIsEnabled)
{
	AddPlugin("Cloth", "ZEFTandem");
	Host::AddPluginSearchPath(Path("Cloth"));

	EXPECT_TRUE(IPluginManager::Get().FindPlugin("ZEFTandem").IsValid());
	EXPECT_FALSE(IPluginManager::Get().FindEnabledPlugin(TEXT("ZEFTandem")).IsValid());
	EXPECT_EQ(IPluginManager::Get().GetEnabledPlugins().Num(), 0);

	EXPECT_TRUE(Host::SetPluginEnabled(TEXT("ZEFTandem"), true));
	EXPECT_FALSE(Host::SetPluginEnabled(TEXT("Missing"), true));
	EXPECT_TRUE(IPluginManager::Get().FindEnabledPlugin(TEXT("ZEFTandem")).IsValid());
	EXPECT_EQ(IPluginManager::Get().GetEnabledPlugins().Num(), 1);
}

TEST_F(PluginManager, FindsThePluginOfAnAssetPath)
{
	AddPlugin("Cloth", "ZEFTandem");
	Host::AddPluginSearchPath(Path("Cloth"));

	EXPECT_TRUE(IPluginManager::Get().FindPluginFromPath(TEXT("/ZEFTandem/Material/UE/M_Fabric")).IsValid());
	EXPECT_TRUE(IPluginManager::Get().FindPluginFromPath(TEXT("ZEFTandem")).IsValid());
	EXPECT_FALSE(IPluginManager::Get().FindPluginFromPath(TEXT("/Game/ZEFTandem")).IsValid());
	EXPECT_FALSE(IPluginManager::Get().FindPluginFromPath(TEXT("")).IsValid());
}

TEST_F(PluginManager, AMissingFolderHasNoPlugins)
{
	EXPECT_EQ(Host::AddPluginSearchPath(Path("Nowhere")), 0);
}
