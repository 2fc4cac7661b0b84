// SPDX-License-Identifier: MIT
// Tabs that the user moves.
#include "DockingFixture.h"

#include "Host/Windows.h"

#include <cmath>

using Host::EDockPlace;

namespace
{
class DockingMove : public FDockingFixture
{
protected:
	void SetUp() override
	{
		FDockingFixture::SetUp();
		Restore();
	}

	bool Dock(const char* Moved, const char* Target, EDockPlace Place, int32 Index = INDEX_NONE)
	{
		return Host::DockTab(Tab(Moved).ToSharedRef(), Stack(Target), Place, Index);
	}

	TSharedRef<Host::SDockArea> Area() { return Host::LiveAreas(*Manager)[0]; }
};
} // namespace

TEST_F(DockingMove, ATabDocksOnEachSideOfAStackInHalfOfItsRoom)
{
	struct FCase
	{
		EDockPlace Place;
		const char* Expected;
		float Size;
	};
	for (const FCase& Case : {FCase{EDockPlace::Left, "V[{} H[{*Tree} {*Details} {*View} {*Settings}]]", 0.3f},
			 FCase{EDockPlace::Right, "V[{} H[{*Tree} {*View} {*Details} {*Settings}]]", 0.3f},
			 FCase{EDockPlace::Above, "V[{} H[{*Tree} V[{*Details} {*View}] {*Settings}]]", 0.5f},
			 FCase{EDockPlace::Below, "V[{} H[{*Tree} V[{*View} {*Details}] {*Settings}]]", 0.5f}})
	{
		Manager->CloseAllAreas();
		Restore();
		ASSERT_TRUE(Dock("Details", "View", Case.Place));
		EXPECT_EQ(Tabs(), Case.Expected);
		EXPECT_FLOAT_EQ(Stack("Details")->GetSizeCoefficient(), Case.Size) << Case.Expected;
		EXPECT_FLOAT_EQ(Stack("View")->GetSizeCoefficient(), Case.Size) << Case.Expected;
	}
}

TEST_F(DockingMove, ATabGoesIntoAStackAtAnIndex)
{
	ASSERT_TRUE(Dock("View", "Settings", EDockPlace::Into, 1));
	EXPECT_EQ(Tabs(), "V[{} H[{*Tree} {Settings *View Details}]]");
	ASSERT_TRUE(Dock("View", "Settings", EDockPlace::Into, 0));
	EXPECT_EQ(Tabs(), "V[{} H[{*Tree} {*View Settings Details}]]");
	ASSERT_TRUE(Dock("View", "Settings", EDockPlace::Into));
	EXPECT_EQ(Tabs(), "V[{} H[{*Tree} {Settings Details *View}]]");
}

TEST_F(DockingMove, ATabDocksBesideAWholeArea)
{
	ASSERT_TRUE(Host::DockTab(Tab("Details").ToSharedRef(), Area(), EDockPlace::Below));
	EXPECT_EQ(Tabs(), "V[{} H[{*Tree} {*View} {*Settings}] {*Details}]");
	ASSERT_TRUE(Host::DockTab(Tab("Tree").ToSharedRef(), Area(), EDockPlace::Left));
	EXPECT_EQ(Tabs(), "H[{*Tree} V[{} H[{*View} {*Settings}] {*Details}]]");
}

TEST_F(DockingMove, AMoveThatChangesNothingOrGoesNowhereIsRefused)
{
	const std::string Before = Tabs();
	EXPECT_FALSE(Dock("View", "View", EDockPlace::Left));
	EXPECT_FALSE(Host::DockTab(Tab("View").ToSharedRef(), Area(), EDockPlace::Into));
	const TSharedRef<Host::SDockStack> TakenOut = Stack("View");
	Manager->CloseAllAreas();
	Restore();
	EXPECT_FALSE(Host::DockTab(Tab("View").ToSharedRef(), TakenOut, EDockPlace::Into));
	EXPECT_FALSE(Host::DockTab(Owner.ToSharedRef(), Stack("View"), EDockPlace::Into));
	EXPECT_EQ(Tabs(), Before);
}

TEST_F(DockingMove, APanelStaysWithItsManagerAndANomadDoesNot)
{
	const TSharedRef<SDockTab> OtherOwner = MakeMajorTab(TEXT("Other"));
	const TSharedRef<FTabManager> Other = FGlobalTabmanager::Get()->NewTabManager(OtherOwner);
	FGlobalTabmanager::Get()->RegisterNomadTabSpawner(
		"Nomad", FOnSpawnTab::CreateLambda([](const FSpawnTabArgs&)
					 { return SNew(SDockTab).TabRole(ETabRole::NomadTab).Label(FText::FromString(TEXT("Nomad"))); }));
	const TSharedPtr<SDockTab> Nomad = Other->TryInvokeTab(FName("Nomad"));
	ASSERT_TRUE(Nomad.IsValid());

	EXPECT_FALSE(Host::CanDock(Tab("View").ToSharedRef(), Host::StackOf(*Nomad).ToSharedRef(), EDockPlace::Into));
	ASSERT_TRUE(Host::DockTab(Nomad.ToSharedRef(), Stack("View"), EDockPlace::Into));
	EXPECT_EQ(Nomad->GetTabManagerPtr(), Manager);
	EXPECT_EQ(Tabs(), "V[{} H[{*Tree} {View *Nomad} {*Settings Details}]]");
	EXPECT_EQ(Host::LiveAreas(*Other).Num(), 0);
	Manager->CloseAllAreas();
}

TEST_F(DockingMove, TheContentIsNotMadeAnewAndKeepsTheFocus)
{
	const TSharedPtr<SDockTab> View = Tab("View");
	const TSharedRef<SWidget> Content = View->GetContent();
	ASSERT_TRUE(Host::FloatTab(View.ToSharedRef(), FVector2D(100.0, 50.0)));
	ASSERT_TRUE(Dock("View", "Settings", EDockPlace::Above));
	EXPECT_EQ(Tab("View"), View);
	EXPECT_EQ(View->GetContent(), Content);
	EXPECT_EQ(Spawned["View"], 1);
	EXPECT_EQ(Closed["View"], 0);
}

TEST_F(DockingMove, AFloatedTabHasAWindowWithItsTitleAtThePosition)
{
	const TSharedPtr<SDockTab> View = Tab("View");
	ASSERT_TRUE(Host::FloatTab(View.ToSharedRef(), FVector2D(100.0, 50.0), FVector2D(640.0, 480.0)));
	const TSharedPtr<SWindow> Window = View->GetParentWindow();
	ASSERT_TRUE(Window.IsValid());
	EXPECT_TRUE(Window->IsVisible());
	EXPECT_TEXT_EQ(Window->GetTitle().ToString(), TEXT("View"));
	EXPECT_EQ(Window->GetPositionInScreen(), FVector2D(100.0, 50.0));
	EXPECT_EQ(Window->GetClientSizeInScreen(), FVector2D(640.0, 480.0));
	EXPECT_EQ(Tabs(), "V[{} H[{*Tree} {*Settings Details}]] + H[{*View}]");
	View->SetLabel(FText::FromString(TEXT("Sight")));
	EXPECT_TEXT_EQ(Window->GetTitle().ToString(), TEXT("Sight"));
}

TEST_F(DockingMove, AWindowGoesWithItsLastTab)
{
	Host::FloatTab(Tab("View").ToSharedRef(), FVector2D(100.0, 50.0));
	const TSharedPtr<SWindow> Window = Tab("View")->GetParentWindow();
	ASSERT_TRUE(Dock("Tree", "View", EDockPlace::Right));
	EXPECT_EQ(Tabs(), "V[{} {*Settings Details}] + H[{*View} {*Tree}]");
	Tab("View")->RequestCloseTab();
	EXPECT_TRUE(Window->IsVisible());
	EXPECT_TEXT_EQ(Window->GetTitle().ToString(), TEXT("Tree"));
	ASSERT_TRUE(Dock("Tree", "Settings", EDockPlace::Left));
	EXPECT_FALSE(Window->IsVisible());
}

TEST_F(DockingMove, ATabOfAClosedWindowComesBackWhereTheWindowWas)
{
	Host::FloatTab(Tab("View").ToSharedRef(), FVector2D(100.0, 50.0), FVector2D(640.0, 480.0));
	Host::CloseWindowByUser(Tab("View")->GetParentWindow().ToSharedRef());
	EXPECT_FALSE(Tab("View").IsValid());
	EXPECT_EQ(Closed["View"], 1);
	ASSERT_TRUE(Manager->TryInvokeTab(FName("View")).IsValid());
	EXPECT_EQ(Tab("View")->GetParentWindow()->GetPositionInScreen(), FVector2D(100.0, 50.0));
	EXPECT_EQ(Tab("View")->GetParentWindow()->GetClientSizeInScreen(), FVector2D(640.0, 480.0));
}

TEST_F(DockingMove, AWindowStaysWhenOneOfItsTabsMayNotClose)
{
	Host::FloatTab(Tab("View").ToSharedRef(), FVector2D(100.0, 50.0));
	ASSERT_TRUE(Dock("Tree", "View", EDockPlace::Right));
	Tab("Tree")->SetCanCloseTab(SDockTab::FCanCloseTab::CreateLambda([] { return false; }));
	const TSharedRef<SWindow> Window = Tab("View")->GetParentWindow().ToSharedRef();
	Host::CloseWindowByUser(Window);
	EXPECT_TRUE(Window->IsVisible());
	EXPECT_EQ(Closed["View"], 0);
	Tab("Tree")->SetCanCloseTab(SDockTab::FCanCloseTab());
	Host::CloseWindowByUser(Window);
	EXPECT_FALSE(Window->IsVisible());
	EXPECT_EQ(Closed["View"] + Closed["Tree"], 2);
}

TEST_F(DockingMove, ASplitterTakesNewSharesOnlyWhenAllAreGood)
{
	auto& Row = static_cast<Host::SDockSplitter&>(*Area()->GetNode(1));
	EXPECT_FALSE(Host::ResizeSplitter(Row, {1.0f, 2.0f}));
	EXPECT_FALSE(Host::ResizeSplitter(Row, {1.0f, 0.0f, 1.0f}));
	EXPECT_FALSE(Host::ResizeSplitter(Row, {1.0f, std::nanf(""), 1.0f}));
	EXPECT_FLOAT_EQ(Stack("View")->GetSizeCoefficient(), 0.6f);
	EXPECT_TRUE(Host::ResizeSplitter(Row, {1.0f, 2.0f, 3.0f}));
	EXPECT_FLOAT_EQ(Stack("View")->GetSizeCoefficient(), 2.0f);
	EXPECT_FLOAT_EQ(Stack("Details")->GetSizeCoefficient(), 3.0f);
}

TEST_F(DockingMove, ADragEndsInNothingWhenItsTabClosesMeanwhile)
{
	Host::FTabDrag Drag(Tab("View").ToSharedRef());
	EXPECT_TRUE(Drag.CanDrop(Stack("Tree"), EDockPlace::Left));
	Tab("View")->RequestCloseTab();
	EXPECT_FALSE(Drag.GetTab().IsValid());
	EXPECT_FALSE(Drag.CanDrop(Stack("Tree"), EDockPlace::Left));
	EXPECT_FALSE(Drag.Drop(Stack("Tree"), EDockPlace::Left));
	EXPECT_FALSE(Drag.DropOutside(FVector2D(0.0, 0.0)));
	EXPECT_EQ(Tabs(), "V[{} H[{*Tree} {} {*Settings Details}]]");
}

TEST_F(DockingMove, ADragEndsInNothingWhenItsTargetOrAllAreasGo)
{
	Host::FTabDrag Drag(Tab("View").ToSharedRef());
	Host::FloatTab(Tab("Tree").ToSharedRef(), FVector2D(0.0, 0.0));
	const TWeakPtr<Host::SDockNode> Target = Stack("Tree");
	Tab("Tree")->RequestCloseTab();
	EXPECT_FALSE(Drag.Drop(Target, EDockPlace::Into));
	EXPECT_TRUE(Tab("View").IsValid());
	Manager->CloseAllAreas();
	EXPECT_FALSE(Drag.DropOutside(FVector2D(0.0, 0.0)));
}

TEST_F(DockingMove, ADragDropsIntoAWindowOrBesideAStack)
{
	Host::FTabDrag Drag(Tab("View").ToSharedRef());
	EXPECT_TRUE(Drag.DropOutside(FVector2D(5.0, 6.0)));
	EXPECT_EQ(Tab("View")->GetParentWindow()->GetPositionInScreen(), FVector2D(5.0, 6.0));
	EXPECT_TRUE(Drag.Drop(Stack("Tree"), EDockPlace::Below));
	EXPECT_EQ(Tabs(), "V[{} H[V[{*Tree} {*View}] {*Settings Details}]]");
}
