// SPDX-License-Identifier: MIT
#include "Modules/ModuleManager.h"
#include "Host/Modules.h"
#include "fixtures/AssertionsThrow.h"
#include "fixtures/CorePrinting.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace
{

/** What the sample modules did, in order. */
std::vector<std::string> Events;

class FSampleModule : public IModuleInterface
{
public:
	explicit FSampleModule(const char* InName)
		: Name(InName)
	{
		Events.push_back("make " + Name);
	}
	~FSampleModule() override { Events.push_back("destroy " + Name); }
	void StartupModule() override { Events.push_back("start " + Name); }
	void PreUnloadCallback() override { Events.push_back("leave " + Name); }
	void ShutdownModule() override { Events.push_back("stop " + Name); }
	virtual int32 Answer() const { return 42; }

private:
	std::string Name;
};

class FSampleBase final : public FSampleModule
{
public:
	FSampleBase()
		: FSampleModule("Base")
	{
	}
};

/** Loads the base while it starts. */
class FSampleUser final : public FSampleModule
{
public:
	FSampleUser()
		: FSampleModule("User")
	{
	}
	void StartupModule() override
	{
		EXPECT_TRUE(FModuleManager::Get().IsModuleLoaded(TEXT("SampleUser")));
		FModuleManager::Get().LoadModuleChecked(TEXT("SampleBase"));
		FSampleModule::StartupModule();
	}
	void ShutdownModule() override
	{
		FSampleModule::ShutdownModule();
		EXPECT_TRUE(FModuleManager::Get().IsModuleLoaded(TEXT("SampleBase")));
		EXPECT_TRUE(FModuleManager::Get().IsModuleLoaded(TEXT("SampleUser")));
	}
};

IMPLEMENT_MODULE(FSampleBase, SampleBase)
IMPLEMENT_MODULE(FSampleUser, SampleUser)
IMPLEMENT_MODULE(FDefaultModuleImpl, SamplePlain)

class Modules : public testing::Test
{
protected:
	Modules() { Events.clear(); }
	~Modules() override { Host::ShutdownModules(); }
};

} // namespace

TEST_F(Modules, AreMadeAndStartedOnce)
{
	IModuleInterface* const First = FModuleManager::Get().LoadModule(TEXT("SampleBase"));
	IModuleInterface* const Second = FModuleManager::Get().LoadModule(TEXT("samplebase"));

	EXPECT_NE(First, nullptr);
	EXPECT_EQ(First, Second);
	EXPECT_EQ(Events, (std::vector<std::string>{"make Base", "start Base"}));
}

TEST_F(Modules, AreShutDownInReverseOrderAfterThoseThatUseThem)
{
	FModuleManager::Get().LoadModule(TEXT("SampleUser"));
	Events.clear();

	Host::ShutdownModules();

	EXPECT_EQ(Events, (std::vector<std::string>{
						  "leave User", "stop User", "destroy User", "leave Base", "stop Base", "destroy Base"}));
	EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded(TEXT("SampleBase")));
}

TEST_F(Modules, CanBeLoadedAgainAfterShutdown)
{
	FModuleManager::Get().LoadModule(TEXT("SampleBase"));
	Host::ShutdownModules();
	Events.clear();

	EXPECT_NE(FModuleManager::LoadModulePtr<FSampleModule>(TEXT("SampleBase")), nullptr);
	EXPECT_EQ(Events, (std::vector<std::string>{"make Base", "start Base"}));
}

TEST_F(Modules, TemplatesGiveTheModulesOwnClass)
{
	EXPECT_EQ(FModuleManager::LoadModuleChecked<FSampleModule>(TEXT("SampleBase")).Answer(), 42);
	EXPECT_EQ(FModuleManager::GetModuleChecked<FSampleModule>(TEXT("SampleBase")).Answer(), 42);
	EXPECT_EQ(FModuleManager::GetModulePtr<FSampleModule>(TEXT("SampleUser")), nullptr);
}

TEST_F(Modules, AnUnknownModuleIsNullAndAFaultWhenChecked)
{
	FAssertionsThrow Assertions;

	EXPECT_EQ(FModuleManager::Get().LoadModule(TEXT("SampleMissing")), nullptr);
	EXPECT_EQ(FModuleManager::LoadModulePtr<IModuleInterface>(TEXT("SampleMissing")), nullptr);
	EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded(TEXT("SampleMissing")));
	EXPECT_FALSE(FModuleManager::Get().ModuleExists(TEXT("SampleMissing")));
	EXPECT_THROW(FModuleManager::Get().LoadModuleChecked(TEXT("SampleMissing")), FAssertionFailure);
	EXPECT_THROW(FModuleManager::GetModuleChecked<IModuleInterface>(TEXT("SampleBase")), FAssertionFailure);
}

TEST_F(Modules, CanBeUnloadedAlone)
{
	FModuleManager::Get().LoadModule(TEXT("SamplePlain"));

	EXPECT_TRUE(FModuleManager::Get().UnloadModule(TEXT("SamplePlain")));
	EXPECT_FALSE(FModuleManager::Get().UnloadModule(TEXT("SamplePlain")));
	EXPECT_TRUE(FModuleManager::Get().ModuleExists(TEXT("SamplePlain")));
}
