// SPDX-License-Identifier: MIT
// The tabs of the editor instance: who makes them, where they lie, and what of it is kept.
#include "Components/PrimitiveComponent.h"
#include "CoreGlobals.h"
#include "Editor/Widgets/TandemViewport/SZEFTandemEditorViewport.h"
#include "Framework/Docking/LayoutService.h"
#include "Framework/Docking/TabManager.h"
#include "Host/Docking.h"
#include "Host/WidgetTree.h"
#include "Source/Editor/ModuleFixture.h"
#include "Source/SampleMeshes.h"
#include "Styling/AppStyle.h"
#include "Toolkits/IToolkitHost.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/SNullWidget.h"
#include "ZEFTandemClientComponent.h"

#include <gtest/gtest.h>

namespace
{

const TCHAR* const LayoutName = TEXT("Standalone_ZEFTandemEditor_Layout_v0.1");

class EditorTabs : public FModuleFixture
{
protected:
	void TearDown() override
	{
		if (Module().IsEditorOpen())
		{
			Module().GetEditor()->CloseWindow();
		}
		FModuleFixture::TearDown();
	}

	TSharedPtr<FTabManager> Tabs() { return OpenEditor()->GetAssociatedTabManager(); }

	TSharedPtr<SDockTab> Tab(const TCHAR* Id) { return Tabs()->FindExistingLiveTab(FName(Id)); }

	void Reopen()
	{
		Module().GetEditor()->CloseWindow();
		ASSERT_TRUE(PressEntry());
	}
};

struct FExpectedTab
{
	const TCHAR* Id;
	const TCHAR* Label;
	const ANSICHAR* SpawnerIcon;
	const ANSICHAR* TabIcon; // null for the spawner's
};

const FExpectedTab ExpectedTabs[] = {
	{TEXT("ZEFTandemEditor_Viewport"), TEXT("Viewport"), "LevelEditor.Tabs.Viewports", nullptr},
	{TEXT("ZEFTandemEditor_Properties"), TEXT("Details"), "LevelEditor.Tabs.Details",
		"ZEFTandemEditor.Tabs.Properties"},
	{TEXT("ZEFTandemEditor_PreviewScene"), TEXT("Preview Scene Settings"), "LevelEditor.Tabs.Details", nullptr},
	{TEXT("ZEFTandemEditor_TandemTree"), TEXT("Tandem Tree"), "LevelEditor.Tabs.Details", nullptr},
	{TEXT("ZEFTandemEditor_SecondaryToolbar"), TEXT("Secondary Toolbar"), "Toolbar.Icon", "LevelEditor.Tabs.Toolbar"},
};

} // namespace

TEST_F(EditorTabs, AreFiveUnderOneCategoryOfTheWindowMenuInTheirOrder)
{
	ASSERT_TRUE(PressEntry());
	const TArray<TSharedRef<FWorkspaceItem>>& Categories = Tabs()->GetLocalWorkspaceMenuRoot()->GetChildItems();
	ASSERT_EQ(Categories.Num(), 1);
	EXPECT_EQ(Categories[0]->GetDisplayName().ToString(), FString(TEXT("ZEF/KR Tandem Editor")));
	ASSERT_EQ(Categories[0]->GetChildItems().Num(), 5);
	for (int32 Index = 0; Index < 5; ++Index)
	{
		const TSharedPtr<FTabSpawnerEntry> Entry = Categories[0]->GetChildItems()[Index]->AsSpawnerEntry();
		ASSERT_TRUE(Entry.IsValid());
		EXPECT_EQ(Entry->GetTabType(), FName(ExpectedTabs[Index].Id));
		EXPECT_EQ(Entry->GetDisplayName().ToString(), FString(ExpectedTabs[Index].Label));
		EXPECT_EQ(Entry->GetIcon().GetStyleName(), FName(ExpectedTabs[Index].SpawnerIcon));
		EXPECT_EQ(Entry->GetIcon().GetStyleSetName(), FAppStyle::GetAppStyleSetName());
	}
}

TEST_F(EditorTabs, CarryTheirTitlesAndIcons)
{
	ASSERT_TRUE(PressEntry());
	Tabs()->TryInvokeTab(FName("ZEFTandemEditor_SecondaryToolbar"));
	for (const FExpectedTab& Expected : ExpectedTabs)
	{
		const TSharedPtr<SDockTab> Live = Tab(Expected.Id);
		ASSERT_TRUE(Live.IsValid());
		EXPECT_EQ(Live->GetTabLabel().ToString(), FString(Expected.Label));
		EXPECT_EQ(Live->GetTabIcon(),
			Expected.TabIcon != nullptr ? FAppStyle::GetBrush(Expected.TabIcon)
										: FSlateIcon(FAppStyle::GetAppStyleSetName(), Expected.SpawnerIcon).GetIcon());
	}
}

TEST_F(EditorTabs, AreMadeByTheirOwnSpawnersAlone)
{
	ASSERT_TRUE(PressEntry());
	const struct
	{
		const TCHAR* Id;
		const char* Condition;
	} Expected[] = {
		{TEXT("ZEFTandemEditor_Viewport"), "Args.GetTabId() == ViewportTabId"},
		{TEXT("ZEFTandemEditor_Properties"), "Args.GetTabId() == PropertiesTabId"},
		{TEXT("ZEFTandemEditor_PreviewScene"), "Args.GetTabId() == PreviewSceneSettingsTabId"},
		{TEXT("ZEFTandemEditor_TandemTree"), "Args.GetTabId() == TandemTreeTabId"},
		{TEXT("ZEFTandemEditor_SecondaryToolbar"), "Args.GetTabId() == SecondaryToolbarTabId"},
	};
	for (const auto& Refused : Expected)
	{
		// A second tab of the kind has a number behind its name.
		EXPECT_EQ(CatchAssertion([&] { Tabs()->TryInvokeTab(FTabId(FName(Refused.Id), 2)); }), Refused.Condition);
	}
}

TEST_F(EditorTabs, LieInTheStatedLayout)
{
	ASSERT_TRUE(PressEntry());
	const TSharedRef<FTabManager::FLayout> Layout = Tabs()->PersistLayout();
	EXPECT_EQ(Layout->GetLayoutName(), FName(LayoutName));
	const TSharedPtr<FTabManager::FArea> Area = Layout->GetPrimaryArea().Pin();
	ASSERT_TRUE(Area.IsValid());
	EXPECT_EQ(Area->GetOrientation(), Orient_Vertical);
	ASSERT_EQ(Area->GetChildNodes().Num(), 2);
	EXPECT_TRUE(Area->GetChildNodes()[0]->AsStack().IsValid());
	EXPECT_FLOAT_EQ(Area->GetChildNodes()[0]->GetSizeCoefficient(), 0.1f);
	const TSharedPtr<FTabManager::FSplitter> Columns = Area->GetChildNodes()[1]->AsSplitter();
	ASSERT_TRUE(Columns.IsValid());
	EXPECT_FLOAT_EQ(Columns->GetSizeCoefficient(), 0.9f);
	EXPECT_EQ(Columns->GetOrientation(), Orient_Horizontal);
	ASSERT_EQ(Columns->GetChildNodes().Num(), 3);
	EXPECT_FLOAT_EQ(Columns->GetChildNodes()[0]->GetSizeCoefficient(), 0.2f);
	EXPECT_FLOAT_EQ(Columns->GetChildNodes()[1]->GetSizeCoefficient(), 0.6f);
	EXPECT_FLOAT_EQ(Columns->GetChildNodes()[2]->GetSizeCoefficient(), 0.2f);
	const TSharedPtr<FTabManager::FSplitter> Right = Columns->GetChildNodes()[2]->AsSplitter();
	ASSERT_TRUE(Right.IsValid());
	EXPECT_EQ(Right->GetOrientation(), Orient_Vertical);
	ASSERT_EQ(Right->GetChildNodes().Num(), 1);
	EXPECT_FLOAT_EQ(Right->GetChildNodes()[0]->GetSizeCoefficient(), 0.7f);

	const TSharedPtr<SDockTab> Scene = Tab(TEXT("ZEFTandemEditor_PreviewScene"));
	ASSERT_TRUE(Scene.IsValid());
	EXPECT_TRUE(Scene->HasSiblingTab(FName("ZEFTandemEditor_Properties")));
	EXPECT_TRUE(Tab(TEXT("ZEFTandemEditor_TandemTree")).IsValid());
	EXPECT_TRUE(Tab(TEXT("ZEFTandemEditor_Viewport")).IsValid());
	EXPECT_TRUE(Host::StackOf(*Tab(TEXT("ZEFTandemEditor_TandemTree")))->IsTabWellHidden());
	EXPECT_TRUE(Host::StackOf(*Tab(TEXT("ZEFTandemEditor_Viewport")))->IsTabWellHidden());
	EXPECT_FALSE(Host::StackOf(*Scene)->IsTabWellHidden());
}

TEST_F(EditorTabs, KeepTheSecondaryToolbarClosedUntilItIsAskedForInTheWindowMenu)
{
	ASSERT_TRUE(PressEntry());
	EXPECT_FALSE(Tab(TEXT("ZEFTandemEditor_SecondaryToolbar")).IsValid());

	const TSharedPtr<SWidget> MainMenu = Tabs()->GetMenuWidget();
	ASSERT_TRUE(MainMenu.IsValid());
	const TSharedPtr<Host::SMultiBoxItem> Window =
		Host::FindMultiBoxItem(MainMenu.ToSharedRef(), FText::FromString(TEXT("Window")));
	ASSERT_TRUE(Window.IsValid());
	const TSharedPtr<Host::SMultiBoxItem> Entry =
		Host::FindMultiBoxItem(Window->OpenMenu(), FText::FromString(TEXT("Secondary Toolbar")));
	ASSERT_TRUE(Entry.IsValid());
	EXPECT_EQ(Entry->GetCheckState(), ECheckBoxState::Unchecked);
	ASSERT_TRUE(Entry->Press());

	EXPECT_TRUE(Tab(TEXT("ZEFTandemEditor_SecondaryToolbar")).IsValid());
	EXPECT_EQ(Entry->GetCheckState(), ECheckBoxState::Checked);
}

TEST_F(EditorTabs, ShowNothingInThePreviewSceneSettings)
{
	ASSERT_TRUE(PressEntry());
	TArray<TSharedRef<SWidget>> Content;
	Host::ForEachWidget(Tab(TEXT("ZEFTandemEditor_PreviewScene")).ToSharedRef(),
		[&Content](const TSharedRef<SWidget>& Widget) { Content.Add(Widget); });
	EXPECT_TRUE(Content.Contains(SNullWidget::NullWidget));
}

TEST_F(EditorTabs, GiveNoViewportBeforeTheirTabHasSpawned)
{
	// The user closed the viewport and left.
	ASSERT_TRUE(PressEntry());
	ASSERT_TRUE(Tab(TEXT("ZEFTandemEditor_Viewport"))->RequestCloseTab());
	Reopen();

	EXPECT_FALSE(OpenEditor()->GetViewport().IsValid());
	EXPECT_EQ(OpenEditor()->AddObject(2, SampleMeshes::MakeRigid()), nullptr);
	EXPECT_EQ(OpenEditor()->GetObjectComponents(2).Num(), 0);
	EXPECT_EQ(OpenEditor()->GetObjectStats(2), FIntVector(0, 0, 0));

	ASSERT_TRUE(Tabs()->TryInvokeTab(FName("ZEFTandemEditor_Viewport")).IsValid());
	EXPECT_TRUE(OpenEditor()->GetViewport().IsValid());
	EXPECT_NE(OpenEditor()->AddObject(2, SampleMeshes::MakeRigid()), nullptr);
}

TEST_F(EditorTabs, FailAnArrivalWhileTheTreeHasNotSpawned)
{
	ASSERT_TRUE(PressEntry());
	ASSERT_TRUE(Tab(TEXT("ZEFTandemEditor_TandemTree"))->RequestCloseTab());
	Reopen();

	EXPECT_NE(CatchAssertion(
				  [this]
				  {
					  OpenEditor()->GetClient()->OnSurfaceMeshReceived.Broadcast(
						  ZefTandemCore::TandemObjectType::Garment, FZEFSurfaceMesh());
				  }),
		"");
}

TEST_F(EditorTabs, AreWhereTheUserLeftThemAtTheNextOpen)
{
	ASSERT_TRUE(PressEntry());
	Tabs()->TryInvokeTab(FName("ZEFTandemEditor_SecondaryToolbar"));
	ASSERT_TRUE(Tab(TEXT("ZEFTandemEditor_Properties"))->RequestCloseTab());
	Reopen();

	EXPECT_TRUE(Tab(TEXT("ZEFTandemEditor_SecondaryToolbar")).IsValid());
	EXPECT_FALSE(Tab(TEXT("ZEFTandemEditor_Properties")).IsValid());
	EXPECT_TRUE(Tab(TEXT("ZEFTandemEditor_Viewport")).IsValid());
}

TEST_F(EditorTabs, PassOverALayoutOfAnotherVersion)
{
	const TSharedRef<FTabManager::FLayout> Former =
		FTabManager::NewLayout("Standalone_ZEFTandemEditor_Layout_v0.0")
			->AddArea(FTabManager::NewPrimaryArea()->Split(
				FTabManager::NewStack()->AddTab("ZEFTandemEditor_TandemTree", ETabState::OpenedTab)));
	FLayoutSaveRestore::SaveToConfig(GEditorLayoutIni, Former);
	ASSERT_TRUE(PressEntry());
	EXPECT_TRUE(Tab(TEXT("ZEFTandemEditor_Viewport")).IsValid());
	Module().GetEditor()->CloseWindow();

	const TSharedRef<FTabManager::FLayout> Present =
		FTabManager::NewLayout(LayoutName)
			->AddArea(FTabManager::NewPrimaryArea()->Split(
				FTabManager::NewStack()->AddTab("ZEFTandemEditor_TandemTree", ETabState::OpenedTab)));
	FLayoutSaveRestore::SaveToConfig(GEditorLayoutIni, Present);
	ASSERT_TRUE(PressEntry());
	EXPECT_TRUE(Tab(TEXT("ZEFTandemEditor_TandemTree")).IsValid());
	EXPECT_FALSE(Tab(TEXT("ZEFTandemEditor_Viewport")).IsValid());
}

TEST_F(EditorTabs, KeepTheirObjectsWhenTheViewportIsClosedAndOpenedAgain)
{
	ASSERT_TRUE(PressEntry());
	UPrimitiveComponent* const Component = OpenEditor()->AddObject(2, SampleMeshes::MakeRigid());
	ASSERT_TRUE(Tab(TEXT("ZEFTandemEditor_Viewport"))->RequestCloseTab());
	ASSERT_TRUE(Tabs()->TryInvokeTab(FName("ZEFTandemEditor_Viewport")).IsValid());

	EXPECT_TRUE(Component->IsRegistered());
	EXPECT_EQ(OpenEditor()->GetObjectComponents(2), TArray<UPrimitiveComponent*>({Component}));
	ASSERT_TRUE(OpenEditor()->GetViewport().IsValid());
	OpenEditor()->RemoveObject(2, Component);
	EXPECT_EQ(OpenEditor()->GetObjectComponents(2).Num(), 0);
}

TEST_F(EditorTabs, AreAnnouncedToThoseWhoAddTheirOwn)
{
	ASSERT_TRUE(PressEntry());
	std::vector<FTabManager*> Told;
	OpenEditor()->OnUnregisterTabs().AddLambda(
		[&Told](const TSharedPtr<FTabManager>& Manager) { Told.push_back(Manager.Get()); });
	FTabManager* const Manager = Tabs().Get();
	Module().GetEditor()->CloseWindow();

	EXPECT_EQ(Told, std::vector<FTabManager*>{Manager});
}
