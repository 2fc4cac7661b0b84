// SPDX-License-Identifier: MIT
// Tab managers: layouts, spawners, places of closed tabs.
#include "DockingFixture.h"

#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"

namespace
{
using Docking = FDockingFixture;
} // namespace

TEST_F(Docking, OpensTheOpenTabsOfALayoutAndKeepsPlacesForTheOthers)
{
	Restore();
	EXPECT_EQ(Tabs(), "V[{} H[{*Tree} {*View} {*Settings Details}]]");
	EXPECT_EQ(Spawned, (std::map<std::string, int>{{"Tree", 1}, {"View", 1}, {"Details", 1}, {"Settings", 1}}));
	EXPECT_FALSE(Tab("Bar").IsValid());
}

TEST_F(Docking, ATabWithoutALabelOrAnIconHasThoseOfItsSpawner)
{
	FSlateStyleSet Style(TEXT("DockSample"));
	Style.Set(TEXT("Spawner"), new FSlateNoResource(FVector2D(16.0, 16.0)));
	FSlateStyleRegistry::RegisterSlateStyle(Style);
	FSlateNoResource Own;
	Manager->RegisterTabSpawner("Plain", FOnSpawnTab::CreateLambda([](const FSpawnTabArgs&) { return SNew(SDockTab); }))
		.SetDisplayName(FText::FromString(TEXT("Plain tab")))
		.SetIcon(FSlateIcon(TEXT("DockSample"), TEXT("Spawner")));
	Manager
		->RegisterTabSpawner("Fancy", FOnSpawnTab::CreateLambda([&](const FSpawnTabArgs&)
										  { return SNew(SDockTab).Label(FText::FromString(TEXT("Mine"))).Icon(&Own); }))
		.SetIcon(FSlateIcon(TEXT("DockSample"), TEXT("Spawner")));

	const TSharedPtr<SDockTab> Plain = Manager->TryInvokeTab(FName("Plain"));
	EXPECT_TEXT_EQ(Plain->GetTabLabel().ToString(), TEXT("Plain tab"));
	EXPECT_EQ(Plain->GetTabIcon(), Style.GetBrush(TEXT("Spawner")));
	const TSharedPtr<SDockTab> Fancy = Manager->TryInvokeTab(FName("Fancy"));
	EXPECT_TEXT_EQ(Fancy->GetTabLabel().ToString(), TEXT("Mine"));
	EXPECT_EQ(Fancy->GetTabIcon(), &Own);
	Manager->CloseAllAreas();
	FSlateStyleRegistry::UnRegisterSlateStyle(Style);
}

TEST_F(Docking, AClosedTabComesBackAtItsPlace)
{
	Restore();
	const TSharedPtr<SDockTab> Bar = Manager->TryInvokeTab(FName("Bar"));
	EXPECT_EQ(Bar, Tab("Bar"));
	EXPECT_EQ(Tabs(), "V[{*Bar} H[{*Tree} {*View} {*Settings Details}]]");

	const TSharedPtr<SDockTab> Former = Tab("Settings");
	EXPECT_TRUE(Former->RequestCloseTab());
	EXPECT_EQ(Tabs(), "V[{*Bar} H[{*Tree} {*View} {*Details}]]");
	EXPECT_NE(Manager->TryInvokeTab(FName("Settings")), Former);
	EXPECT_EQ(Tabs(), "V[{*Bar} H[{*Tree} {*View} {*Settings Details}]]");
	EXPECT_EQ(Spawned["Settings"], 2);
	EXPECT_EQ(Closed, (std::map<std::string, int>{{"Settings", 1}}));
}

TEST_F(Docking, InvokingALiveTabBringsItToTheFrontWithoutSpawning)
{
	Restore();
	const TSharedPtr<SDockTab> Details = Tab("Details");
	EXPECT_FALSE(Details->IsForeground());
	EXPECT_EQ(Manager->TryInvokeTab(FName("Details"), true), Details);
	EXPECT_FALSE(Details->IsForeground());
	EXPECT_EQ(Manager->TryInvokeTab(FName("Details")), Details);
	EXPECT_TRUE(Details->IsForeground());
	EXPECT_TRUE(Details->IsActive());
	EXPECT_EQ(Spawned["Details"], 1);
}

TEST_F(Docking, AStackWithoutOpenTabsIsCollapsedAndSoIsASplitterOfSuch)
{
	Restore();
	const TSharedRef<Host::SDockArea> Area = Host::LiveAreas(*Manager)[0];
	const TSharedRef<Host::SDockNode> Row = Area->GetNode(1);
	EXPECT_EQ(Area->GetNode(0)->GetVisibility(), EVisibility::Collapsed);
	EXPECT_EQ(Row->GetVisibility(), EVisibility::Visible);
	for (const char* Id : {"Tree", "View", "Settings", "Details"})
	{
		Tab(Id)->RequestCloseTab();
	}
	EXPECT_EQ(Row->GetVisibility(), EVisibility::Collapsed);
	EXPECT_FALSE(Area->HasOpenTabs());
	Manager->TryInvokeTab(FName("View"));
	EXPECT_EQ(Tabs(), "V[{} H[{} {*View} {}]]");
}

TEST_F(Docking, OnlyTheTabInFrontIsVisibleAndAllKnowTheirWindow)
{
	Restore();
	const TSharedRef<SWindow> Window = SNew(SWindow)[Widget.ToSharedRef()];
	EXPECT_EQ(Tab("Settings")->GetVisibility(), EVisibility::Visible);
	EXPECT_EQ(Tab("Details")->GetVisibility(), EVisibility::Collapsed);
	EXPECT_EQ(Tab("Details")->GetParentWindow(), Window);
	EXPECT_EQ(FSlateApplication::Get().FindWidgetWindow(Tab("Details")->GetContent()), Window);
}

TEST_F(Docking, ATabWellIsHiddenWhileThereIsOneTabOnly)
{
	Restore();
	EXPECT_TRUE(Stack("Tree")->IsTabWellHidden());
	EXPECT_FALSE(Stack("Settings")->IsTabWellHidden());
	EXPECT_FALSE(Host::HideTabWell(*Stack("Settings")));
	Host::ShowTabWell(*Stack("Tree"));
	EXPECT_FALSE(Stack("Tree")->IsTabWellHidden());
	EXPECT_TRUE(Host::HideTabWell(*Stack("Tree")));
	EXPECT_TRUE(Stack("Tree")->IsTabWellHidden());
	ASSERT_TRUE(Host::DockTab(Tab("View").ToSharedRef(), Stack("Tree"), Host::EDockPlace::Into));
	EXPECT_FALSE(Stack("Tree")->IsTabWellHidden());
}

TEST_F(Docking, TheTabThatWasUsedBeforeComesToTheFrontWhenOneCloses)
{
	Restore();
	Host::DockTab(Tab("Tree").ToSharedRef(), Stack("Settings"), Host::EDockPlace::Into);
	Host::DockTab(Tab("View").ToSharedRef(), Stack("Settings"), Host::EDockPlace::Into);
	EXPECT_EQ(Tabs(), "V[{} {Settings Details Tree *View}]");
	Tab("Details")->ActivateInParent(ETabActivationCause::UserClickedOnTab);
	Tab("View")->ActivateInParent(ETabActivationCause::UserClickedOnTab);
	Tab("View")->RequestCloseTab();
	EXPECT_TRUE(Tab("Details")->IsForeground());
	Tab("Details")->RequestCloseTab();
	EXPECT_TRUE(Tab("Tree")->IsForeground());
}

TEST_F(Docking, ATabThatNobodyMakesIsRefusedWithALine)
{
	Restore();
	EXPECT_FALSE(Manager->TryInvokeTab(FName("Nothing")).IsValid());
	EXPECT_EQ(Log().CountContaining("The tab 'Nothing' cannot be opened: it is not registered"), 1);
	Manager->RegisterTabSpawner("Shy", FOnSpawnTab::CreateLambda([](const FSpawnTabArgs&) { return SNew(SDockTab); }),
		FCanSpawnTab::CreateLambda([](const FSpawnTabArgs&) { return false; }));
	EXPECT_FALSE(Manager->TryInvokeTab(FName("Shy")).IsValid());
	EXPECT_EQ(Log().CountContaining("The tab 'Shy' cannot be opened: its spawner does not want to"), 1);
}

TEST_F(Docking, ASpawnersEntryMovesToItsGroupAndLeavesWithIt)
{
	const TSharedRef<FWorkspaceItem> Root = Manager->GetLocalWorkspaceMenuRoot();
	const TSharedRef<FWorkspaceItem> Group = Manager->AddLocalWorkspaceMenuCategory(FText::FromString(TEXT("Mine")));
	FTabSpawnerEntry& Entry = Manager
								  ->RegisterTabSpawner("Extra",
									  FOnSpawnTab::CreateLambda([](const FSpawnTabArgs&) { return SNew(SDockTab); }))
								  .SetGroup(Root)
								  .SetGroup(Group)
								  .SetTooltipText(FText::FromString(TEXT("More")))
								  .SetMenuType(ETabSpawnerMenuType::Disabled);
	ASSERT_EQ(Root->GetChildItems().Num(), 1);
	ASSERT_EQ(Group->GetChildItems().Num(), 1);
	EXPECT_EQ(Group->GetChildItems()[0]->AsSpawnerEntry().Get(), &Entry);
	EXPECT_FALSE(Group->AsSpawnerEntry().IsValid());
	EXPECT_EQ(Entry.GetMenuType(), ETabSpawnerMenuType::Disabled);

	EXPECT_TRUE(Manager->UnregisterTabSpawner("Extra"));
	EXPECT_FALSE(Manager->UnregisterTabSpawner("Extra"));
	EXPECT_EQ(Group->GetChildItems().Num(), 0);
	Manager->ClearLocalWorkspaceMenuCategories();
	EXPECT_EQ(Root->GetChildItems().Num(), 0);
}

TEST_F(Docking, ATabMayRefuseToClose)
{
	Restore();
	bool bMayClose = false;
	Tab("View")->SetCanCloseTab(SDockTab::FCanCloseTab::CreateLambda([&] { return bMayClose; }));
	EXPECT_FALSE(Tab("View")->RequestCloseTab());
	EXPECT_TRUE(Tab("View").IsValid());
	bMayClose = true;
	EXPECT_TRUE(Tab("View")->RequestCloseTab());
	EXPECT_EQ(Closed["View"], 1);
}

TEST_F(Docking, ATabThatClosesItselfAgainFromItsOwnCloseClosesOnce)
{
	Restore();
	const TSharedPtr<SDockTab> View = Tab("View");
	int Calls = 0;
	View->SetOnTabClosed(SDockTab::FOnTabClosedCallback::CreateLambda(
		[&](TSharedRef<SDockTab> Closing)
		{
			++Calls;
			EXPECT_FALSE(Closing->RequestCloseTab());
			EXPECT_FALSE(Closing->GetParentWidget().IsValid());
		}));
	EXPECT_TRUE(View->RequestCloseTab());
	EXPECT_EQ(Calls, 1);
}

TEST_F(Docking, SiblingsAreTheOpenTabsOfTheSameStack)
{
	Restore();
	EXPECT_TRUE(Tab("Settings")->HasSiblingTab(FName("Details")));
	EXPECT_FALSE(Tab("Settings")->HasSiblingTab(FName("Settings")));
	EXPECT_FALSE(Tab("Settings")->HasSiblingTab(FName("View")));
	const TSharedRef<SDockTab> Document = MakeMajorTab(TEXT("Document"));
	Manager->InsertNewDocumentTab("Page", FTabManager::FLiveTabSearch("Settings"), Document);
	EXPECT_TRUE(Tab("Settings")->HasSiblingTab(FName("Page")));
	EXPECT_FALSE(Tab("Settings")->HasSiblingTab(FName("Page"), false));
	EXPECT_TRUE(Tab("Settings")->HasSiblingTab(Document->GetLayoutIdentifier(), false));
}

TEST_F(Docking, CloseAllAreasTellsEachTabOnceAndForgetsThePlaces)
{
	Restore();
	Host::FloatTab(Tab("View").ToSharedRef(), FVector2D(10.0, 20.0));
	const TSharedPtr<SWindow> Window = Tab("View")->GetParentWindow();
	Manager->CloseAllAreas();
	EXPECT_EQ(Closed, (std::map<std::string, int>{{"Tree", 1}, {"View", 1}, {"Details", 1}, {"Settings", 1}}));
	EXPECT_FALSE(Window->IsVisible());
	EXPECT_EQ(Host::LiveAreas(*Manager).Num(), 0);
	Restore();
	EXPECT_EQ(Tabs(), "V[{} H[{*Tree} {*View} {*Settings Details}]]");
}

TEST_F(Docking, ALayoutWithNothingToOpenMayGiveNoWidget)
{
	const auto Layout = [](ETabState::Type State)
	{
		return FTabManager::NewLayout("Empty")->AddArea(
			FTabManager::NewPrimaryArea()->Split(FTabManager::NewStack()->AddTab("View", State)));
	};
	const auto Restored = [&](ETabState::Type State, EOutputCanBeNullptr Output)
	{
		const bool bValid = Manager->RestoreFrom(Layout(State), nullptr, false, Output).IsValid();
		Manager->CloseAllAreas();
		return bValid;
	};
	EXPECT_TRUE(Restored(ETabState::ClosedTab, EOutputCanBeNullptr::Never));
	EXPECT_TRUE(Restored(ETabState::ClosedTab, EOutputCanBeNullptr::IfNoTabValid));
	EXPECT_FALSE(Restored(ETabState::ClosedTab, EOutputCanBeNullptr::IfNoOpenTabValid));
	EXPECT_TRUE(Restored(ETabState::OpenedTab, EOutputCanBeNullptr::IfNoOpenTabValid));
	Manager->UnregisterTabSpawner("View");
	EXPECT_FALSE(Restored(ETabState::OpenedTab, EOutputCanBeNullptr::IfNoTabValid));
	EXPECT_TRUE(Restored(ETabState::OpenedTab, EOutputCanBeNullptr::Never));
	EXPECT_FALSE(Manager->RestoreFrom(FTabManager::NewLayout("No area"), nullptr).IsValid());
}

TEST_F(Docking, ATabThatStandsTwiceInALayoutOpensOnce)
{
	Restore(FTabManager::NewLayout("Twice")->AddArea(
		FTabManager::NewPrimaryArea()
			->Split(FTabManager::NewStack()->AddTab("View", ETabState::OpenedTab))
			->Split(
				FTabManager::NewStack()->AddTab("View", ETabState::OpenedTab)->AddTab("Tree", ETabState::OpenedTab))));
	EXPECT_EQ(Tabs(), "H[{*View} {*Tree}]");
	EXPECT_EQ(Spawned["View"], 1);
}

TEST_F(Docking, ASpawnerMayOpenAnotherTabOfTheSameLayout)
{
	Manager->UnregisterTabSpawner("Tree");
	Manager->RegisterTabSpawner("Tree", FOnSpawnTab::CreateLambda(
											[this](const FSpawnTabArgs&)
											{
												EXPECT_TRUE(Manager->TryInvokeTab(FName("View")).IsValid());
												return SNew(SDockTab).Label(FText::FromString(TEXT("Tree")));
											}));
	Restore();
	EXPECT_EQ(Tabs(), "V[{} H[{*Tree} {*View} {*Settings Details}]]");
	EXPECT_EQ(Spawned["View"], 1);
}

TEST_F(Docking, TwoHundredTimesOpenAndClosedLeavesNothingBehind)
{
	Restore();
	TArray<TWeakPtr<SDockTab>> Former;
	for (int32 Round = 0; Round < 200; ++Round)
	{
		Former.Add(Manager->TryInvokeTab(FName("Bar")));
		Former.Last().Pin()->RequestCloseTab();
		Host::FloatTab(Tab("View").ToSharedRef(), FVector2D(10.0, 20.0));
		ASSERT_TRUE(Host::DockTab(Tab("View").ToSharedRef(), Stack("Tree"), Host::EDockPlace::Right));
	}
	EXPECT_FALSE(Former.ContainsByPredicate([](const TWeakPtr<SDockTab>& Weak) { return Weak.IsValid(); }));
	EXPECT_EQ(Tabs(), "V[{} H[{*Tree} {*View} {*Settings Details}]]");
	EXPECT_EQ(FSlateApplication::Get().GetTopLevelWindows().Num(), 0);
	EXPECT_EQ(Host::LiveAreas(*Manager).Num(), 1);
}
