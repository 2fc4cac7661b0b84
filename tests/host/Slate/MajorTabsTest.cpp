// SPDX-License-Identifier: MIT
// The global tab manager: documents, managers inside major tabs, windows.
#include "DockingFixture.h"

#include "AssertionRecorder.h"
#include "Host/Windows.h"

namespace
{
class MajorTabs : public FDockingFixture
{
protected:
	void SetUp() override
	{
		FDockingFixture::SetUp();
		for (const char* Id : {"LevelEditor", "Browser"})
		{
			Global().RegisterTabSpawner(Id, FOnSpawnTab::CreateLambda([](const FSpawnTabArgs& Args)
												{ return MakeMajorTab(*Args.GetTabId().ToString()); }));
		}
	}

	static FTabManager& Global() { return *FGlobalTabmanager::Get(); }

	/** The root window with the level editor, and a place for docked editors behind it. */
	void OpenFrame()
	{
		const TSharedRef<SWindow> Root = SNew(SWindow).Title(FText::FromString(TEXT("Frame")));
		FGlobalTabmanager::Get()->SetRootWindow(Root);
		FSlateApplication::Get().AddWindow(Root);
		Root->SetContent(Global()
							 .RestoreFrom(FTabManager::NewLayout("Frame_v1")
											  ->AddArea(FTabManager::NewPrimaryArea()->Split(
												  FTabManager::NewStack()
													  ->AddTab("LevelEditor", ETabState::OpenedTab)
													  ->AddTab("DockedToolkit", ETabState::ClosedTab))),
								 Root)
							 .ToSharedRef());
	}

	/** As an editor does: a major tab, its manager, and the panels' layout as its content. */
	void OpenEditor()
	{
		Restore();
		Owner->SetContent(Widget.ToSharedRef());
		Global().InsertNewDocumentTab("StandaloneToolkit", FTabManager::FRequireClosedTab(), Owner.ToSharedRef());
	}

	static std::string GlobalTabs()
	{
		std::string Result;
		for (const TSharedRef<Host::SDockArea>& Area : Host::LiveAreas(Global()))
		{
			Result += (Result.empty() ? "" : " + ") + DescribeNode(Area);
		}
		return Result;
	}
};
} // namespace

TEST_F(MajorTabs, ADocumentWithoutAPlaceOpensInAWindowOfTheRootWindow)
{
	OpenFrame();
	OpenEditor();
	EXPECT_EQ(GlobalTabs(), "H[{*LevelEditor}] + H[{*Editor}]");
	const TSharedPtr<SWindow> Window = Owner->GetParentWindow();
	EXPECT_EQ(Window->GetParentWindow(), FGlobalTabmanager::Get()->GetRootWindow());
	EXPECT_EQ(FSlateApplication::Get().GetActiveTopLevelWindow(), Window);
	EXPECT_TEXT_EQ(Window->GetTitle().ToString(), TEXT("Editor"));
	EXPECT_EQ(Tab("View")->GetParentWindow(), Window);
	EXPECT_TRUE(Owner->IsActive());
	EXPECT_EQ(Owner->GetLayoutIdentifier().TabType, FName("StandaloneToolkit"));
	EXPECT_EQ(Owner->GetTabManagerPtr(), FGlobalTabmanager::Get());
}

TEST_F(MajorTabs, ADocumentTakesTheClosedPlaceOfItsKind)
{
	OpenFrame();
	Global().InsertNewDocumentTab(
		"DockedToolkit", FTabManager::ESearchPreference::RequireClosedTab, Owner.ToSharedRef());
	EXPECT_EQ(GlobalTabs(), "H[{LevelEditor *Editor}]");
	// The place is used: the next one goes to a window, or beside a live one when it is asked to.
	const TSharedRef<SDockTab> Second = MakeMajorTab(TEXT("Second"));
	Global().InsertNewDocumentTab("DockedToolkit", FTabManager::ESearchPreference::RequireClosedTab, Second);
	EXPECT_EQ(GlobalTabs(), "H[{LevelEditor *Editor}] + H[{*Second}]");
	const TSharedRef<SDockTab> Third = MakeMajorTab(TEXT("Third"));
	Global().InsertNewDocumentTab("DockedToolkit", FTabManager::ESearchPreference::PreferLiveTab, Third);
	EXPECT_EQ(GlobalTabs(), "H[{LevelEditor Editor *Third}] + H[{*Second}]");
}

TEST_F(MajorTabs, ADocumentGoesBesideTheMajorTabThatWasUsedLast)
{
	OpenFrame();
	const TSharedRef<SDockTab> First = MakeMajorTab(TEXT("First"));
	Global().InsertNewDocumentTab("StandaloneToolkit", FTabManager::FRequireClosedTab(), First);
	const TSharedRef<SDockTab> Second = MakeMajorTab(TEXT("Second"));
	Global().InsertNewDocumentTab("DockedToolkit", FTabManager::FLastMajorOrNomadTab("LevelEditor"), Second);
	EXPECT_EQ(GlobalTabs(), "H[{*LevelEditor}] + H[{First *Second}]");
	Global().FindExistingLiveTab(FName("LevelEditor"))->ActivateInParent(ETabActivationCause::UserClickedOnTab);
	const TSharedRef<SDockTab> Third = MakeMajorTab(TEXT("Third"));
	Global().InsertNewDocumentTab("DockedToolkit", FTabManager::FLastMajorOrNomadTab("Browser"), Third);
	EXPECT_EQ(GlobalTabs(), "H[{LevelEditor *Third}] + H[{First *Second}]");
}

TEST_F(MajorTabs, TheSearchForALiveTabFallsBackToTheClosedPlace)
{
	OpenFrame();
	Global().InsertNewDocumentTab("DockedToolkit", FTabManager::FLiveTabSearch("Browser"), Owner.ToSharedRef());
	EXPECT_EQ(GlobalTabs(), "H[{LevelEditor *Editor}]");
	const TSharedRef<SDockTab> Second = MakeMajorTab(TEXT("Second"));
	Global().InsertNewDocumentTab("DockedToolkit", FTabManager::FLiveTabSearch("LevelEditor"), Second);
	EXPECT_EQ(GlobalTabs(), "H[{LevelEditor *Second Editor}]");
}

TEST_F(MajorTabs, TheNextEditorOpensWhereTheClosedOneWas)
{
	OpenFrame();
	OpenEditor();
	Host::WindowWasMoved(*Owner->GetParentWindow(), FVector2D(30.0, 40.0), FVector2D(900.0, 700.0), false);
	EXPECT_TRUE(Owner->RequestCloseTab());
	EXPECT_EQ(GlobalTabs(), "H[{*LevelEditor}]");
	const TSharedRef<SDockTab> Next = MakeMajorTab(TEXT("Next"));
	Global().InsertNewDocumentTab("StandaloneToolkit", FTabManager::FRequireClosedTab(), Next);
	EXPECT_EQ(Next->GetParentWindow()->GetPositionInScreen(), FVector2D(30.0, 40.0));
	EXPECT_EQ(Next->GetParentWindow()->GetClientSizeInScreen(), FVector2D(900.0, 700.0));
}

TEST_F(MajorTabs, ASavedFrameRemembersWhereEditorsWere)
{
	OpenFrame();
	OpenEditor();
	Host::WindowWasMoved(*Owner->GetParentWindow(), FVector2D(30.0, 40.0), FVector2D(900.0, 700.0), false);
	const TSharedPtr<FTabManager::FLayout> Saved =
		FTabManager::FLayout::NewFromString(Global().PersistLayout()->ToString());
	Owner->RequestCloseTab();
	Global().CloseAllAreas();
	Global().RestoreFrom(Saved.ToSharedRef(), FGlobalTabmanager::Get()->GetRootWindow());
	const TSharedRef<SDockTab> Next = MakeMajorTab(TEXT("Next"));
	Global().InsertNewDocumentTab("StandaloneToolkit", FTabManager::FRequireClosedTab(), Next);
	EXPECT_EQ(Next->GetParentWindow()->GetPositionInScreen(), FVector2D(30.0, 40.0));
}

TEST_F(MajorTabs, ClosingAMajorTabSavesAndClosesWhatIsInside)
{
	OpenFrame();
	OpenEditor();
	Host::FloatTab(Tab("View").ToSharedRef(), FVector2D(1.0, 2.0));
	const TSharedPtr<SWindow> Floating = Tab("View")->GetParentWindow();
	EXPECT_EQ(Floating->GetParentWindow(), Owner->GetParentWindow());
	std::vector<std::string> Events;
	Manager->SetOnPersistLayout(
		FTabManager::FOnPersistLayout::CreateLambda([&](const TSharedRef<FTabManager::FLayout>& Layout)
			{ Events.push_back(Layout->ToString().Contains(TEXT("OpenedTab")) ? "saved" : "saved empty"); }));
	Owner->SetOnTabClosed(SDockTab::FOnTabClosedCallback::CreateLambda(
		[&](TSharedRef<SDockTab>) { Events.push_back("closed with " + std::to_string(Closed.size())); }));
	EXPECT_TRUE(Owner->RequestCloseTab());
	EXPECT_EQ(Events, (std::vector<std::string>{"saved", "closed with 0"}));
	EXPECT_EQ(Closed.size(), 4u);
	EXPECT_FALSE(Floating->IsVisible());
	EXPECT_FALSE(FGlobalTabmanager::Get()->GetTabManagerForMajorTab(Owner).IsValid());
}

TEST_F(MajorTabs, ATabInsideMayKeepAMajorTabOpen)
{
	OpenFrame();
	OpenEditor();
	Tab("Tree")->SetCanCloseTab(SDockTab::FCanCloseTab::CreateLambda([] { return false; }));
	EXPECT_FALSE(Owner->RequestCloseTab());
	Host::CloseWindowByUser(Owner->GetParentWindow().ToSharedRef());
	EXPECT_TRUE(Owner->GetParentWindow()->IsVisible());
	EXPECT_EQ(Closed.size(), 0u);
}

TEST_F(MajorTabs, AFloatingEditorGoesWithTheRootWindow)
{
	OpenFrame();
	OpenEditor();
	int Calls = 0;
	Owner->SetOnTabClosed(SDockTab::FOnTabClosedCallback::CreateLambda([&](TSharedRef<SDockTab>) { ++Calls; }));
	FGlobalTabmanager::Get()->GetRootWindow()->RequestDestroyWindow();
	EXPECT_EQ(Calls, 1);
	EXPECT_EQ(Closed.size(), 4u);
	EXPECT_EQ(FSlateApplication::Get().GetTopLevelWindows().Num(), 0);
	EXPECT_FALSE(FSlateApplication::Get().GetActiveTopLevelWindow().IsValid());
}

TEST_F(MajorTabs, TheWindowsOfPanelsMoveWithTheirEditor)
{
	OpenFrame();
	OpenEditor();
	Host::FloatTab(Tab("View").ToSharedRef(), FVector2D(1.0, 2.0));
	const TSharedPtr<SWindow> Panel = Tab("View")->GetParentWindow();
	const TSharedPtr<SWindow> Former = Owner->GetParentWindow();
	// The editor's window goes with its only tab; the panel's must not go with it.
	const TSharedPtr<SDockTab> Level = Global().FindExistingLiveTab(FName("LevelEditor"));
	ASSERT_TRUE(Host::DockTab(Owner.ToSharedRef(), Host::StackOf(*Level).ToSharedRef(), Host::EDockPlace::Into));
	EXPECT_FALSE(Former->IsVisible());
	EXPECT_TRUE(Panel->IsVisible());
	EXPECT_EQ(Panel->GetParentWindow(), FGlobalTabmanager::Get()->GetRootWindow());
	EXPECT_EQ(Tab("View")->GetParentWindow(), Panel);
	ASSERT_TRUE(Host::FloatTab(Owner.ToSharedRef(), FVector2D(3.0, 4.0)));
	EXPECT_EQ(Panel->GetParentWindow(), Owner->GetParentWindow());
	EXPECT_EQ(Closed.size(), 0u);
}

TEST_F(MajorTabs, AttentionBringsTheTabItsMajorTabAndTheWindowToTheFront)
{
	OpenFrame();
	Restore();
	Owner->SetContent(Widget.ToSharedRef());
	Global().InsertNewDocumentTab("DockedToolkit", FTabManager::FRequireClosedTab(), Owner.ToSharedRef());
	Global().TryInvokeTab(FName("LevelEditor"));
	EXPECT_FALSE(Owner->IsForeground());
	FGlobalTabmanager::Get()->DrawAttention(Tab("Details").ToSharedRef());
	EXPECT_TRUE(Owner->IsForeground());
	EXPECT_TRUE(Tab("Details")->IsForeground());
	EXPECT_TRUE(Tab("Details")->IsActive());
	EXPECT_TRUE(FGlobalTabmanager::Get()->GetRootWindow()->IsActive());
}

TEST_F(MajorTabs, ATabThatIsInALayoutOrWasClosedIsNotInsertedAgain)
{
	OpenFrame();
	OpenEditor();
	const std::string Before = GlobalTabs();
	FAssertionRecorder Assertions;
	Global().InsertNewDocumentTab("Page", FTabManager::FRequireClosedTab(), Owner.ToSharedRef());
	EXPECT_EQ(Assertions.Num(), 1);
	EXPECT_EQ(GlobalTabs(), Before);
}

TEST_F(MajorTabs, TwoHundredEditorsOpenAndCloseWithoutATrace)
{
	OpenFrame();
	TArray<TWeakPtr<SDockTab>> Tabs;
	TArray<TWeakPtr<FTabManager>> Managers;
	TArray<TWeakPtr<SWindow>> Windows;
	FString AfterOne;
	for (int32 Round = 0; Round < 200; ++Round)
	{
		OpenEditor();
		Host::FloatTab(Tab("View").ToSharedRef(), FVector2D(1.0, 2.0));
		Tabs.Add(Owner);
		Managers.Add(Manager);
		Windows.Add(Owner->GetParentWindow());
		Windows.Add(Tab("View")->GetParentWindow());
		ASSERT_TRUE(Owner->RequestCloseTab());
		Owner = MakeMajorTab(TEXT("Editor"));
		Widget.Reset();
		Manager = FGlobalTabmanager::Get()->NewTabManager(Owner.ToSharedRef());
		RegisterPanels(*Manager);
		Tick(0.01);
		AfterOne = Round == 0 ? Global().PersistLayout()->ToString() : AfterOne;
	}
	const auto IsAlive = [](const auto& Weak) { return Weak.IsValid(); };
	EXPECT_FALSE(Tabs.ContainsByPredicate(IsAlive));
	EXPECT_FALSE(Managers.ContainsByPredicate(IsAlive));
	EXPECT_FALSE(Windows.ContainsByPredicate(IsAlive));
	EXPECT_EQ(GlobalTabs(), "H[{*LevelEditor}]");
	// One place is kept for the next editor, however many there were.
	EXPECT_TEXT_EQ(Global().PersistLayout()->ToString(), AfterOne);
}
