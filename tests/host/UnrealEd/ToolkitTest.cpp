// SPDX-License-Identifier: MIT
#include "CorePrinting.h"
#include "EditorModeManager.h"
#include "EngineFixture.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/Docking/TabManager.h"
#include "Framework/Docking/WorkspaceItem.h"
#include "Host/Docking.h"
#include "Host/Toolkits.h"
#include "Toolkits/BaseToolkit.h"
#include "Toolkits/GlobalEditorCommonCommands.h"
#include "Toolkits/IToolkitHost.h"
#include "Toolkits/ToolkitManager.h"
#include "UObject/Package.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/SNullWidget.h"

namespace
{
class FTestHost : public IToolkitHost
{
public:
	TSharedRef<SWidget> GetParentWidget() override { return SNullWidget::NullWidget; }
	void BringToFront() override { Calls += "front "; }
	TSharedPtr<FTabManager> GetTabManager() const override { return nullptr; }
	void OnToolkitHostingStarted(const TSharedRef<IToolkit>&) override { Calls += "started "; }
	void OnToolkitHostingFinished(const TSharedRef<IToolkit>&) override { Calls += "finished "; }
	UWorld* GetWorld() const override { return nullptr; }
	FEditorModeTools& GetEditorModeManager() const override { return Modes; }
	FName GetStatusBarName() const override { return NAME_None; }
	FOnActiveViewportChanged& OnActiveViewportChanged() override { return ActiveViewportChanged; }

	std::string Calls;
	mutable FEditorModeTools Modes;
	FOnActiveViewportChanged ActiveViewportChanged;
};

class FTestToolkit : public FBaseToolkit
{
public:
	void SetHost(const TSharedPtr<IToolkitHost>& InHost) { ToolkitHost = InHost; }
	FString Prefix() const { return GetTabPrefix(); }
	void SetMode(EToolkitMode::Type InMode) { ToolkitMode = InMode; }

	FName GetToolkitFName() const override { return FName(TEXT("TestToolkit")); }
	FText GetBaseToolkitName() const override { return FText::FromString(TEXT("Test")); }
	FText GetToolkitName() const override { return GetBaseToolkitName(); }
	FText GetToolkitToolTipText() const override { return GetBaseToolkitName(); }
	FString GetWorldCentricTabPrefix() const override { return TEXT("Prefix"); }
	bool IsAssetEditor() const override { return false; }
	const TArray<UObject*>* GetObjectsCurrentlyBeingEdited() const override { return &Edited; }
	FLinearColor GetWorldCentricTabColorScale() const override { return FLinearColor::White; }
	FEditorModeTools& GetEditorModeManager() const override { return Modes; }

	TArray<UObject*> Edited;
	mutable FEditorModeTools Modes;
};

class Toolkits : public FEngineFixture
{
protected:
	TSharedRef<FTestHost> Host = MakeShared<FTestHost>();
};
} // namespace

TEST_F(Toolkits, LiveWhileTheyAreOpen)
{
	TSharedPtr<FTestToolkit> Toolkit = MakeShared<FTestToolkit>();
	Toolkit->SetHost(Host);
	const TWeakPtr<FTestToolkit> Weak = Toolkit;
	FToolkitManager::Get().RegisterNewToolkit(Toolkit.ToSharedRef());
	Toolkit.Reset();
	ASSERT_TRUE(Weak.IsValid());
	EXPECT_TRUE(Weak.Pin()->IsHosted());

	FToolkitManager::Get().CloseToolkit(Weak.Pin().ToSharedRef());
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_EQ(Host->Calls, "started finished ");
}

TEST_F(Toolkits, ClosingOneThatIsNotOpenDoesNothing)
{
	const TSharedRef<FTestToolkit> Toolkit = MakeShared<FTestToolkit>();
	FToolkitManager::Get().CloseToolkit(Toolkit);
	Toolkit->BringToolkitToFront();
	EXPECT_FALSE(Toolkit->IsHosted());
	EXPECT_NE(CatchAssertion([&] { Toolkit->GetToolkitHost(); }), "");
}

TEST_F(Toolkits, GoWithTheirHost)
{
	const TSharedRef<FTestToolkit> Here = MakeShared<FTestToolkit>();
	const TSharedRef<FTestToolkit> Elsewhere = MakeShared<FTestToolkit>();
	const TSharedRef<FTestHost> OtherHost = MakeShared<FTestHost>();
	Here->SetHost(Host);
	Elsewhere->SetHost(OtherHost);
	FToolkitManager& Manager = FToolkitManager::Get();
	Manager.RegisterNewToolkit(Here);
	Manager.RegisterNewToolkit(Elsewhere);
	Manager.OnToolkitHostDestroyed(&Host.Get());
	EXPECT_EQ(Host->Calls, "started finished ");
	EXPECT_EQ(OtherHost->Calls, "started ");
	Manager.CloseToolkit(Elsewhere);
}

TEST_F(Toolkits, GoWithAHostThatIsInItsDestructor)
{
	TSharedPtr<FTestHost> Dying = MakeShared<FTestHost>();
	const TSharedRef<FTestToolkit> Toolkit = MakeShared<FTestToolkit>();
	Toolkit->SetHost(Dying);
	FToolkitManager::Get().RegisterNewToolkit(Toolkit);
	FTestHost* const Address = Dying.Get();
	Dying.Reset();
	FToolkitManager::Get().OnToolkitHostDestroyed(Address);
	EXPECT_EQ(Host::OpenToolkits().Num(), 0);
}

TEST_F(Toolkits, AreClosedAllAtOnceAtTheEndOfTheProgram)
{
	for (int Index = 0; Index < 3; ++Index)
	{
		const TSharedRef<FTestToolkit> Toolkit = MakeShared<FTestToolkit>();
		Toolkit->SetHost(Host);
		FToolkitManager::Get().RegisterNewToolkit(Toolkit);
	}
	EXPECT_EQ(Host::OpenToolkits().Num(), 3);
	Host::CloseAllToolkits();
	EXPECT_EQ(Host::OpenToolkits().Num(), 0);
	EXPECT_EQ(Host->Calls, "started started started finished finished finished ");
}

TEST_F(Toolkits, TakeCtrlTabAndLeaveTheDocumentationToTheirOwners)
{
	TSharedRef<FUICommandList> Commands = MakeShared<FUICommandList>();
	FGlobalEditorCommonCommands::MapActions(Commands);
	const FGlobalEditorCommonCommands& Known = FGlobalEditorCommonCommands::Get();
	EXPECT_TRUE(Commands->IsActionMapped(Known.SummonControlTabNavigation));
	EXPECT_FALSE(Commands->IsActionMapped(Known.OpenDocumentation));
	EXPECT_TRUE(Known.OpenDocumentation->HasDefaultChord(FInputChord(EKeys::F1)));
}

TEST_F(Toolkits, GoToTheNextMajorTabWithCtrlTab)
{
	for (int Index = 0; Index < 3; ++Index)
	{
		FGlobalTabmanager::Get()->InsertNewDocumentTab(
			"Test", FTabManager::FLiveTabSearch(), SNew(SDockTab).TabRole(ETabRole::MajorTab));
		Tick(0.1);
	}
	const TArray<TSharedRef<SDockTab>> Tabs = Host::OpenTabs(*FGlobalTabmanager::Get());
	ASSERT_EQ(Tabs.Num(), 3);
	TSharedRef<FUICommandList> Commands = MakeShared<FUICommandList>();
	FGlobalEditorCommonCommands::MapActions(Commands);
	FGlobalTabmanager::Get()->DrawAttention(Tabs[1]);
	for (const int Expected : {2, 0, 1})
	{
		Tick(0.1);
		Commands->ExecuteAction(FGlobalEditorCommonCommands::Get().SummonControlTabNavigation.ToSharedRef());
		EXPECT_EQ(FGlobalTabmanager::Get()->GetActiveTab(), Tabs[Expected]);
	}
}

TEST_F(Toolkits, AreFoundByWhatTheyEdit)
{
	const TSharedRef<FTestToolkit> Toolkit = MakeShared<FTestToolkit>();
	Toolkit->SetHost(Host);
	Toolkit->Edited.Add(GetTransientPackage());
	FToolkitManager::Get().RegisterNewToolkit(Toolkit);
	EXPECT_EQ(FToolkitManager::Get().FindEditorForAsset(GetTransientPackage()), Toolkit);
	FToolkitManager::Get().CloseToolkit(Toolkit);
	EXPECT_FALSE(FToolkitManager::Get().FindEditorForAsset(GetTransientPackage()).IsValid());
}

TEST_F(Toolkits, PutTheirPrefixOnTabsOfTheLevelEditorOnly)
{
	FTestToolkit Toolkit;
	EXPECT_EQ(Toolkit.Prefix(), FString());
	Toolkit.SetMode(EToolkitMode::WorldCentric);
	EXPECT_EQ(Toolkit.Prefix(), FString(TEXT("Prefix")));
	EXPECT_EQ(Toolkit.GetToolkitContextFName(), FName(TEXT("TestToolkit")));
}

TEST_F(Toolkits, TheirModesTakeOneHost)
{
	FEditorModeTools Modes;
	Modes.SetToolkitHost(Host);
	EXPECT_EQ(Modes.GetToolkitHost(), Host);
	EXPECT_NE(CatchAssertion([&] { Modes.SetToolkitHost(Host); }), "");
}

TEST(WorkspaceItems, FormATree)
{
	const TSharedRef<FWorkspaceItem> Root = FWorkspaceItem::NewGroup(FText::FromString(TEXT("Root")));
	const TSharedRef<FWorkspaceItem> Child = Root->AddGroup(FText::FromString(TEXT("Child")));
	EXPECT_EQ(Child->GetParent(), Root);
	ASSERT_EQ(Root->GetChildItems().Num(), 1);
	EXPECT_EQ(Root->GetChildItems()[0]->GetDisplayName().ToString(), FString(TEXT("Child")));
	Root->RemoveItem(Child);
	EXPECT_FALSE(Child->GetParent().IsValid());
	Root->AddItem(Child);
	Root->ClearItems();
	EXPECT_EQ(Root->GetChildItems().Num(), 0);
	EXPECT_FALSE(Child->GetParent().IsValid());
}
