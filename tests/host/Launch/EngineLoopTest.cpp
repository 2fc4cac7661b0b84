// SPDX-License-Identifier: MIT
#include "Editor.h"
#include "EngineFixture.h"
#include "Engine/World.h"
#include "Host/Clock.h"
#include "Interfaces/IPluginManager.h"
#include "TimerManager.h"
#include "UObject/Package.h"
#include "UObject/WeakObjectPtrTemplates.h"

using FEngineLoop = FEngineFixture;

TEST_F(FEngineLoop, BringsUpAnEditorWithAWorldAtTheUsualFeatureLevel)
{
	ASSERT_NE(GEditor, nullptr);
	UWorld* const World = GEditor->GetEditorWorldContext().World();
	ASSERT_NE(World, nullptr);
	EXPECT_EQ(World->GetFeatureLevel(), ERHIFeatureLevel::SM5);
	EXPECT_EQ(World->WorldType, EWorldType::Editor);
}

TEST_F(FEngineLoop, FindsThePlugInAndEnablesIt)
{
	const TSharedPtr<IPlugin> Plugin = IPluginManager::Get().FindPlugin("ZEFTandem");
	ASSERT_TRUE(Plugin.IsValid());
	EXPECT_TRUE(Plugin->IsEnabled());
}

TEST_F(FEngineLoop, AFrameMovesClockAndTimersOn)
{
	const double Start = Host::AppTime();
	int Calls = 0;
	FTimerHandle Handle;
	GEditor->GetTimerManager()->SetTimer(Handle, FTimerDelegate::CreateLambda([&Calls] { ++Calls; }), 0.5f, true);

	Tick(0.4);
	EXPECT_EQ(Calls, 0);
	Tick(0.25);
	EXPECT_EQ(Calls, 1);
	EXPECT_DOUBLE_EQ(Host::AppTime(), Start + 0.65);
}

TEST_F(FEngineLoop, CollectsGarbageWhenAskedAndOnceAMinute)
{
	TWeakObjectPtr<UWorld> Forgotten = UWorld::CreateWorld(EWorldType::EditorPreview, false);
	Tick(0.1);
	EXPECT_TRUE(Forgotten.IsValid());
	GEngine->ForceGarbageCollection();
	Tick(0.1);
	EXPECT_FALSE(Forgotten.IsValid());

	Forgotten = UWorld::CreateWorld(EWorldType::EditorPreview, false);
	Tick(58.0);
	EXPECT_TRUE(Forgotten.IsValid());
	Tick(3.0);
	EXPECT_FALSE(Forgotten.IsValid());
}

TEST(EngineLoop, ComesUpAgainAfterItWentDown)
{
	for (int Round = 0; Round < 2; ++Round)
	{
		Host::FEngineLoop Loop;
		FString Error;
		ASSERT_TRUE(Loop.Init(Host::FEngineLoopOptions(), Error)) << ToStdString(Error);
		Loop.Tick(0.1);
		Loop.Exit();
		EXPECT_EQ(GEditor, nullptr);
		EXPECT_FALSE(Loop.IsRunning());
	}
}

TEST(EngineLoop, RefusesAFolderWithoutPlugInAndAModuleThatIsNotThere)
{
	Host::FEngineLoopOptions Options;
	Options.PluginDir = TEXT("/nowhere/at/all");
	FString Error;
	Host::FEngineLoop Loop;
	EXPECT_FALSE(Loop.Init(Options, Error));
	EXPECT_EQ(Error, FString(TEXT("There is no plug-in in the folder '/nowhere/at/all'")));
	EXPECT_FALSE(Loop.IsRunning());

	Options.PluginDir.Empty();
	Options.Modules.Add(FName(TEXT("NoSuchModule")));
	EXPECT_FALSE(Loop.Init(Options, Error));
	EXPECT_EQ(Error, FString(TEXT("The module 'NoSuchModule' is not part of this program")));
	EXPECT_EQ(GEditor, nullptr);
}
