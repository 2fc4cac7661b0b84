// SPDX-License-Identifier: MIT
// A toolkit of another kind on the same base, and its host.
#include "Editor/ZEFEditorToolkit.h"

#include "CoreGlobals.h"
#include "Editor/ZEFEditorToolkitHost.h"
#include "Editor/ZEFExtensibilityManager.h"
#include "Editor/ZEFTandemEditorButtonStyle.h"
#include "EditorModeManager.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/Docking/LayoutService.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Host/DocumentationPages.h"
#include "Host/EditorStyle.h"
#include "Host/LevelEditorFrame.h"
#include "Host/MultiBoxes.h"
#include "Host/Toolkits.h"
#include "Host/WidgetTree.h"
#include "Misc/ConfigCacheIni.h"
#include "Source/Editor/ModuleFixture.h"
#include "StatusBarSubsystem.h"
#include "Styling/ISlateStyle.h"
#include "ToolMenus.h"
#include "Toolkits/AssetEditorCommonCommands.h"
#include "Toolkits/GlobalEditorCommonCommands.h"
#include "Toolkits/ToolkitManager.h"
#include "UObject/Package.h"
#include "WidgetDrawerConfig.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

namespace
{

const TCHAR* const LayoutName = TEXT("Standalone_Test_Layout_v1");

TSharedRef<FTabManager::FLayout> MakeLayout(const FName Name = LayoutName)
{
	return FTabManager::NewLayout(Name)->AddArea(FTabManager::NewPrimaryArea()->Split(
		FTabManager::NewStack()->AddTab("Test_Tab", ETabState::OpenedTab)->AddTab("Test_Other", ETabState::ClosedTab)));
}

class FTestToolkit : public FZEFEditorToolkit
{
public:
	explicit FTestToolkit(const ANSICHAR* InName = "TestToolkit")
		: Name(InName)
	{
	}

	void Open(const TSharedPtr<IToolkitHost>& Host = nullptr, bool bToolbar = true)
	{
		InitAssetEditor(Host, "TestApp", MakeLayout(), true, bToolbar, true, false);
	}

	FName GetToolkitFName() const override { return Name; }
	FText GetBaseToolkitName() const override { return FText::FromString(TEXT("Test")); }
	FString GetWorldCentricTabPrefix() const override { return TEXT("Test"); }
	FLinearColor GetWorldCentricTabColorScale() const override { return FLinearColor::White; }

	void RegisterTabSpawners(const TSharedRef<FTabManager>& Manager) override
	{
		Calls.push_back("register");
		FZEFEditorToolkit::RegisterTabSpawners(Manager);
		for (const ANSICHAR* const Id : {"Test_Tab", "Test_Other"})
		{
			if (!Manager->HasTabSpawner(Id))
			{
				Manager
					->RegisterTabSpawner(
						Id, FOnSpawnTab::CreateLambda([](const FSpawnTabArgs&) { return SNew(SDockTab); }))
					.SetGroup(GetWorkspaceMenuCategory());
			}
		}
	}
	void UnregisterTabSpawners(const TSharedRef<FTabManager>&) override { Calls.push_back("unregister"); }
	void OnToolkitHostingStarted(const TSharedRef<IToolkit>& Toolkit) override
	{
		Calls.push_back("came " + ToStdString(Toolkit->GetToolkitFName().ToString()));
	}
	void OnToolkitHostingFinished(const TSharedRef<IToolkit>& Toolkit) override
	{
		Calls.push_back("went " + ToStdString(Toolkit->GetToolkitFName().ToString()));
	}
	void PostInitAssetEditor() override { Calls.push_back("initialised"); }
	void PostRegenerateMenusAndToolbars() override { Calls.push_back("regenerated"); }
	bool OnRequestClose() override
	{
		Calls.push_back("asked");
		return bMayClose;
	}
	void OnClose() override { Calls.push_back("closes"); }

	/** Puts the toolkit into a host without opening anything. */
	void Visit(const TSharedRef<IToolkitHost>& Host)
	{
		ToolkitHost = Host;
		FToolkitManager::Get().RegisterNewToolkit(SharedThis(this));
	}

	TSharedPtr<SWidget> GetToolbar() const { return Toolbar; }
	TSharedPtr<SZEFEditorToolkitHost> GetStandaloneHost() const { return StandaloneHost.Pin(); }
	TSharedPtr<IToolkitHost> GetPreviousHost() const { return PreviousWorldCentricToolkitHost.Pin(); }

	FName Name;
	std::vector<std::string> Calls;
	bool bMayClose = true;
};

class ToolkitBase : public FModuleFixture
{
protected:
	void SetUp() override
	{
		FModuleFixture::SetUp();
		Toolkit = MakeShared<FTestToolkit>();
	}
	void TearDown() override
	{
		Toolkit->bMayClose = true;
		FToolkitManager::Get().CloseToolkit(Toolkit.ToSharedRef());
		Toolkit.Reset();
		FModuleFixture::TearDown();
	}

	TSharedPtr<SDockTab> MajorTab() { return Toolkit->GetAssociatedTabManager()->GetOwnerTab(); }

	/** Entries of a menu of the toolkit's bar. */
	TArray<FString> MenuEntries(const ANSICHAR* Menu)
	{
		const TSharedPtr<SWidget> Bar = Toolkit->GetAssociatedTabManager()->GetMenuWidget();
		return Host::DescribeMultiBox(Host::FindMultiBoxItemByName(Bar.ToSharedRef(), Menu)->OpenMenu());
	}

	TSharedPtr<FTestToolkit> Toolkit;
};

} // namespace

TEST_F(ToolkitBase, OpensInATabOfItsOwnWithItsTabsMenuAndToolBar)
{
	Toolkit->Open();

	EXPECT_EQ(Toolkit->Calls, (std::vector<std::string>{"register", "initialised"}));
	EXPECT_TRUE(Toolkit->IsHosted());
	EXPECT_FALSE(Toolkit->IsWorldCentricAssetEditor());
	ASSERT_TRUE(MajorTab().IsValid());
	EXPECT_EQ(MajorTab()->GetTabRole(), ETabRole::MajorTab);
	EXPECT_EQ(MajorTab()->GetTabLabel().ToString(), FString(TEXT("Test")));
	EXPECT_EQ(MajorTab()->GetTabIcon(),
		FZEFTandemEditorButtonStyle::Get().GetBrush("ZEFTandemEditorButton.OpenPluginWindow"));
	EXPECT_EQ(Toolkit->GetDefaultTabColor(), FLinearColor::Transparent);
	EXPECT_TRUE(Toolkit->GetAssociatedTabManager()->FindExistingLiveTab(FName("Test_Tab")).IsValid());
	EXPECT_FALSE(Toolkit->GetAssociatedTabManager()->FindExistingLiveTab(FName("Test_Other")).IsValid());
	EXPECT_TRUE(Toolkit->GetAssociatedTabManager()->AllowsWindowMenuBar());
	EXPECT_TRUE(Toolkit->GetAssociatedTabManager()->GetMenuWidget().IsValid());
	EXPECT_NE(Toolkit->GetToolbar(), SNullWidget::NullWidget);
	EXPECT_EQ(Toolkit->GetEditorModeManager().GetToolkitHost(), Toolkit->GetToolkitHost());
}

TEST_F(ToolkitBase, NeedsANameForItsApplication)
{
	EXPECT_EQ(CatchAssertion(
				  [this] { Toolkit->InitAssetEditor(nullptr, NAME_None, MakeLayout(), true, true, false, false); }),
		"AppIdentifier != NAME_None");
}

TEST_F(ToolkitBase, HasNoToolBarWhereNoneIsAskedFor)
{
	Toolkit->Open(nullptr, false);
	EXPECT_EQ(Toolkit->GetToolbar(), SNullWidget::NullWidget);
	Toolkit->RegenerateMenusAndToolbars();
	EXPECT_EQ(Toolkit->GetToolbar(), SNullWidget::NullWidget);
	EXPECT_EQ(Toolkit->Calls.back(), "regenerated");
}

TEST_F(ToolkitBase, HasNoModesBeforeItIsOpen)
{
	EXPECT_EQ(CatchAssertion([this] { Toolkit->GetEditorModeManager(); }), "EditorModeManager.IsValid()");
}

TEST_F(ToolkitBase, NamesItsMenus)
{
	EXPECT_EQ(Toolkit->GetToolMenuName(), FName("AssetEditor.TestToolkit.MainMenu"));
	EXPECT_EQ(Toolkit->GetToolMenuToolbarName(), FName("AssetEditor.TestToolkit.ToolBar"));
	FName Parent;
	static_cast<const FZEFEditorToolkit&>(*Toolkit).GetToolMenuToolbarName(Parent);
	EXPECT_EQ(Parent, FName("ZEFEditor.DefaultToolBar"));

	Toolkit->Open();
	UToolMenus* const Menus = UToolMenus::Get();
	EXPECT_EQ(Menus->FindMenu("AssetEditor.TestToolkit.MainMenu")->MenuParent, FName("MainFrame.MainMenu"));
	EXPECT_EQ(Menus->FindMenu("AssetEditor.TestToolkit.ToolBar")->MenuParent, FName("ZEFEditor.DefaultToolBar"));
	ASSERT_NE(Menus->FindMenu("ZEFEditor.DefaultToolBar")->FindSection("ZEFEditor"), nullptr);
	EXPECT_FALSE(Menus->FindMenu("ZEFEditor.DefaultToolBar")->FindSection("ZEFEditor")->Label.IsSet());
}

TEST_F(ToolkitBase, TakesExtendersOfItsOwnAndOfItsKind)
{
	const TSharedRef<FExtender> Shared = MakeShared<FExtender>();
	Shared->AddMenuExtension("WindowLocalTabSpawners", EExtensionHook::After, nullptr,
		FMenuExtensionDelegate::CreateLambda(
			[](FMenuBuilder& Menu) {
				Menu.AddMenuEntry(
					FText::FromString(TEXT("Shared")), FText(), FSlateIcon(), FUIAction(), "Shared entry");
			}));
	FZEFEditorToolkit::GetSharedMenuExtensibilityManager()->AddExtender(Shared);
	const TSharedRef<FExtender> Own = MakeShared<FExtender>();
	Own->AddToolBarExtension("ZEFEditor", EExtensionHook::After, Toolkit->GetToolkitCommands(),
		FToolBarExtensionDelegate::CreateLambda([](FToolBarBuilder& Builder)
			{ Builder.AddToolBarButton(FUIAction(), "Own", FText::FromString(TEXT("Own"))); }));
	Toolkit->Open();
	FZEFEditorToolkit::GetSharedMenuExtensibilityManager()->RemoveExtender(Shared);
	EXPECT_TRUE(
		MenuEntries("Window").ContainsByPredicate([](const FString& Entry) { return Entry.Contains(TEXT("Shared")); }));

	EXPECT_FALSE(Host::FindMultiBoxItemByName(Toolkit->GetToolbar().ToSharedRef(), "Own").IsValid());
	Toolkit->AddToolbarExtender(Own);
	Toolkit->RegenerateMenusAndToolbars();
	EXPECT_TRUE(Host::FindMultiBoxItemByName(Toolkit->GetToolbar().ToSharedRef(), "Own").IsValid());
	Toolkit->RemoveToolbarExtender(Own);
	Toolkit->RegenerateMenusAndToolbars();
	EXPECT_FALSE(Host::FindMultiBoxItemByName(Toolkit->GetToolbar().ToSharedRef(), "Own").IsValid());
}

TEST_F(ToolkitBase, HasTheSameSharedManagersForAll)
{
	const TSharedPtr<FZEFExtensibilityManager> Menus = FZEFEditorToolkit::GetSharedMenuExtensibilityManager();
	const TSharedPtr<FZEFExtensibilityManager> ToolBars = FZEFEditorToolkit::GetSharedToolBarExtensibilityManager();
	ASSERT_TRUE(Menus.IsValid() && ToolBars.IsValid());
	EXPECT_NE(Menus, ToolBars);
	EXPECT_EQ(Menus, FZEFEditorToolkit::GetSharedMenuExtensibilityManager());
	EXPECT_EQ(ToolBars, FZEFEditorToolkit::GetSharedToolBarExtensibilityManager());
}

TEST_F(ToolkitBase, ShowsWidgetsBehindItsToolBarUntilItIsMadeAnew)
{
	const auto IsShown = [this](const TSharedRef<SWidget>& Wanted)
	{
		bool bFound = false;
		Host::ForEachWidget(Toolkit->GetToolkitHost()->GetParentWidget(),
			[&](const TSharedRef<SWidget>& Widget) { bFound = bFound || Widget == Wanted; });
		return bFound;
	};
	const TSharedRef<STextBlock> Text = SNew(STextBlock).Text(FText::FromString(TEXT("Behind")));
	Toolkit->AddToolbarWidget(Text);
	Toolkit->Open();
	EXPECT_TRUE(IsShown(Text));
	Toolkit->RegenerateMenusAndToolbars();
	EXPECT_FALSE(IsShown(Text));
}

TEST_F(ToolkitBase, OpensItsDocumentationWithTheSharedPrefix)
{
	Toolkit->Open();
	std::vector<std::string> Shown;
	Host::FShowDocument Former = Host::SetDocumentViewer(
		[&Shown](const FString& Path)
		{
			Shown.push_back(ToStdString(Path));
			return true;
		});
	EXPECT_EQ(Toolkit->GetDocumentationLink(), FString(TEXT("%ROOT%")));
	ASSERT_TRUE(Toolkit->GetToolkitCommands()->ExecuteAction(
		FGlobalEditorCommonCommands::Get().OpenDocumentation.ToSharedRef()));
	Host::SetDocumentViewer(Former);

	EXPECT_EQ(Shown, std::vector<std::string>{std::string(ZEF_SOURCE_DIR) + "/README.md"});
	EXPECT_EQ(MenuEntries("Help"), TArray<FString>({TEXT("Open Documentation...")}));
}

TEST_F(ToolkitBase, IsClosedByItsOwnerAndByItsTabAlike)
{
	Toolkit->Open();
	Toolkit->Calls.clear();
	EXPECT_TRUE(Toolkit->CloseWindow(EAssetEditorCloseReason::CloseAllAssetEditors));
	EXPECT_EQ(Toolkit->Calls, (std::vector<std::string>{"asked", "closes", "unregister"}));
	EXPECT_FALSE(Toolkit->IsHosted());

	Toolkit = MakeShared<FTestToolkit>();
	Toolkit->Open();
	Toolkit->Calls.clear();
	EXPECT_TRUE(MajorTab()->RequestCloseTab());
	EXPECT_EQ(Toolkit->Calls, (std::vector<std::string>{"asked", "closes", "unregister"}));
	EXPECT_FALSE(Toolkit->IsHosted());
	EXPECT_EQ(Host::OpenToolkits().Num(), 0);
}

TEST_F(ToolkitBase, MayRefuseToClose)
{
	Toolkit->Open();
	Toolkit->bMayClose = false;
	EXPECT_TRUE(Toolkit->CloseWindow());
	EXPECT_FALSE(MajorTab()->RequestCloseTab());
	EXPECT_TRUE(Toolkit->IsHosted());
	EXPECT_EQ(Host::OpenToolkits().Num(), 1);
}

TEST_F(ToolkitBase, GoesOverToAnotherLayoutAndComesBack)
{
	Toolkit->Open();
	Toolkit->InvokeTab(FTabId("Test_Other"));
	const TSharedRef<FTabManager::FLayout> Other =
		FTabManager::NewLayout("Standalone_Other_v1")
			->AddArea(FTabManager::NewPrimaryArea()->Split(
				FTabManager::NewStack()->AddTab("Test_Other", ETabState::OpenedTab)));
	Toolkit->RestoreFromLayout(Other);
	EXPECT_FALSE(Toolkit->GetAssociatedTabManager()->FindExistingLiveTab(FName("Test_Tab")).IsValid());

	Toolkit->RestoreFromLayout(MakeLayout());
	EXPECT_TRUE(Toolkit->GetAssociatedTabManager()->FindExistingLiveTab(FName("Test_Tab")).IsValid());
	EXPECT_TRUE(Toolkit->GetAssociatedTabManager()->FindExistingLiveTab(FName("Test_Other")).IsValid());
}

TEST_F(ToolkitBase, NeedsALayoutWithAPrimaryArea)
{
	Toolkit->Open();
	EXPECT_EQ(CatchAssertion([this]
				  { Toolkit->GetStandaloneHost()->RestoreFromLayout(FTabManager::NewLayout("Standalone_Empty_v1")); }),
		"RestoredUI.IsValid()");
}

TEST_F(ToolkitBase, OpensWhereTheUsersPreferenceSays)
{
	const TSharedRef<Host::FLevelEditorFrame> Frame = Engine().OpenLevelEditor();
	const TCHAR* const Section = TEXT("/Script/EditorStyle.EditorStyleSettings");
	const TCHAR* const Key = TEXT("AssetEditorOpenLocation");
	const auto OpensInTheMainWindow = [&]
	{
		Toolkit = MakeShared<FTestToolkit>();
		Toolkit->Open();
		const bool bMain = MajorTab()->GetParentWindow() == Frame->GetWindow();
		Toolkit->CloseWindow();
		return bMain;
	};
	EXPECT_FALSE(OpensInTheMainWindow());
	GConfig->SetInt(TEXT("ZEFEditorToolkitTabLocation"), TEXT("ZEFEditorToolkit"), 0, GEditorPerProjectIni);
	EXPECT_TRUE(OpensInTheMainWindow());
	GConfig->SetInt(TEXT("ZEFEditorToolkitTabLocation"), TEXT("ZEFEditorToolkit"), 1, GEditorPerProjectIni);
	EXPECT_FALSE(OpensInTheMainWindow());

	GConfig->SetString(Section, Key, TEXT("MainWindow"), GEditorPerProjectIni);
	Host::LoadEditorStyleSettings();
	EXPECT_TRUE(OpensInTheMainWindow());
	GConfig->SetString(Section, Key, TEXT("NewWindow"), GEditorPerProjectIni);
	Host::LoadEditorStyleSettings();
	EXPECT_FALSE(OpensInTheMainWindow());
	GConfig->RemoveKey(Section, Key, GEditorPerProjectIni);
	Host::LoadEditorStyleSettings();
}

TEST_F(ToolkitBase, StandsInAHostThatItIsGiven)
{
	Toolkit->Open();
	const TSharedPtr<FTestToolkit> Guest = MakeShared<FTestToolkit>("Guest");
	Guest->Open(Toolkit->GetToolkitHost());

	EXPECT_TRUE(Guest->IsWorldCentricAssetEditor());
	EXPECT_EQ(Guest->GetAssociatedTabManager(), Toolkit->GetAssociatedTabManager());
	EXPECT_EQ(Toolkit->Calls.back(), "came Guest");
	EXPECT_EQ(CatchAssertion([&] { FZEFEditorToolkit::SwitchToWorldCentricEditor_Execute(Guest); }),
		"!ThisToolkit->IsWorldCentricAssetEditor()");
	EXPECT_EQ(CatchAssertion([&] { FZEFEditorToolkit::SwitchToStandaloneEditor_Execute(Toolkit); }),
		"ThisToolkit->IsWorldCentricAssetEditor()");

	ASSERT_TRUE(Guest->GetToolkitCommands()->ExecuteAction(
		FAssetEditorCommonCommands::Get().SwitchToStandaloneEditor.ToSharedRef()));
	EXPECT_EQ(Toolkit->Calls.back(), "went Guest");
	EXPECT_EQ(Guest->Calls.back(), "unregister");
	const TSharedPtr<FTestToolkit> Next = MakeShared<FTestToolkit>("Next");
	Next->Open();
	EXPECT_EQ(Next->GetPreviousHost(), Toolkit->GetToolkitHost());
	Next->CloseWindow();
	const TSharedPtr<FTestToolkit> Later = MakeShared<FTestToolkit>("Later");
	Later->Open();
	EXPECT_FALSE(Later->GetPreviousHost().IsValid());
	Later->CloseWindow();
}

TEST_F(ToolkitBase, RunsItsCommandsByKeys)
{
	Toolkit->Open();
	int NumRuns = 0;
	Toolkit->GetToolkitCommands()->MapAction(
		FGlobalEditorCommonCommands::Get().OpenDocumentation, FExecuteAction::CreateLambda([&NumRuns] { ++NumRuns; }));
	FSlateApplication::Get().SetKeyboardFocus(Toolkit->GetToolkitHost()->GetParentWidget());
	const FKeyEvent Key(EKeys::F1, FModifierKeysState(), 0, false, 0, 0);

	EXPECT_TRUE(FSlateApplication::Get().ProcessKeyDownEvent(Key));
	EXPECT_EQ(NumRuns, 1);
}

TEST_F(ToolkitBase, PutsDrawersIntoTheStatusBarOfItsHost)
{
	FWidgetDrawerConfig Early("Early");
	Toolkit->RegisterDrawer(MoveTemp(Early));
	Toolkit->Open();
	FWidgetDrawerConfig Drawer("Drawer");
	Drawer.ButtonText = FText::FromString(TEXT("Drawer"));
	Toolkit->RegisterDrawer(MoveTemp(Drawer));

	const TSharedRef<SWidget> Window = Toolkit->GetToolkitHost()->GetParentWidget();
	EXPECT_TRUE(Host::FindMultiBoxItemByName(Window, "Drawer").IsValid());
	EXPECT_FALSE(Host::FindMultiBoxItemByName(Window, "Early").IsValid());
}

TEST_F(ToolkitBase, NamesObjects)
{
	EXPECT_EQ(FZEFEditorToolkit::GetLabelForObject(GetTransientPackage()).ToString(), GetTransientPackage()->GetName());
	EXPECT_EQ(FZEFEditorToolkit::GetToolTipTextForObject(GetTransientPackage()).ToString(),
		GetTransientPackage()->GetPathName());
}

TEST_F(ToolkitBase, HasDefaultsForWhatNobodyOverrides)
{
	EXPECT_TRUE(Toolkit->ShouldPromptForNewFilesOnReload(*GetTransientPackage()));
	EXPECT_TRUE(Toolkit->IsAssetEditor());
	EXPECT_TRUE(Toolkit->IsPrimaryEditor());
	EXPECT_EQ(Toolkit->GetObjectsCurrentlyBeingEdited(), nullptr);
	EXPECT_EQ(Toolkit->GetWorkspaceMenuCategory()->GetDisplayName().ToString(), FString(TEXT("ZEF Editor")));
	EXPECT_EQ(Toolkit->GetToolkitName().ToString(), FString(TEXT("Test")));
	EXPECT_EQ(Toolkit->GetEditorName(), FName("TestToolkit"));
}

TEST_F(ToolkitBase, HostsOthersUnderItsOwner)
{
	Toolkit->Open();
	Toolkit->Calls.clear();
	const TSharedPtr<FTestToolkit> Guest = MakeShared<FTestToolkit>("Guest");
	Guest->Visit(Toolkit->GetToolkitHost());
	EXPECT_EQ(Guest->Calls, std::vector<std::string>{"register"});
	FToolkitManager::Get().CloseToolkit(Guest.ToSharedRef());
	EXPECT_EQ(Guest->Calls, (std::vector<std::string>{"register", "unregister"}));
	EXPECT_EQ(Toolkit->Calls, (std::vector<std::string>{"came Guest", "went Guest"}));

	Guest->Visit(Toolkit->GetToolkitHost());
	Toolkit->CloseWindow();
	EXPECT_FALSE(Guest->IsHosted());
	EXPECT_EQ(Host::OpenToolkits().Num(), 0);
}

TEST_F(ToolkitBase, ItsHostHasNoWorldAndRefusesTabsOfOthers)
{
	Toolkit->Open();
	const TSharedPtr<SZEFEditorToolkitHost> Host = Toolkit->GetStandaloneHost();
	EXPECT_EQ(CatchAssertion([&] { Host->GetWorld(); }), "false");
	EXPECT_EQ(CatchAssertion([&] { Host->OnTabClosed(SNew(SDockTab)); }), "TabClosed == HostTabPtr.Pin()");
	EXPECT_EQ(&Host->GetEditorModeManager(), &Toolkit->GetEditorModeManager());
	EXPECT_EQ(Host->GetTabManager(), Toolkit->GetAssociatedTabManager());
	EXPECT_EQ(Host->GetStatusBarName(), FName("TestApp.StatusBar"));
	Toolkit->CloseWindow();
	EXPECT_EQ(CatchAssertion([&] { Host->GetEditorModeManager(); }), "HostedZEFEditorToolkit.IsValid()");
}
