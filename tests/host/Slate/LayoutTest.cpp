// SPDX-License-Identifier: MIT
// Layouts that are saved and come back.
#include "DockingFixture.h"

#include "Host/Windows.h"
#include "Misc/ConfigCacheIni.h"

#include <fstream>
#include <sstream>

namespace
{
class Layouts : public FDockingFixture
{
protected:
	static TSharedRef<FTabManager::FLayout> Load(
		EOutputCanBeNullptr Output = EOutputCanBeNullptr::Never, FName Name = "Sample_v1")
	{
		return FLayoutSaveRestore::LoadFromConfig(GEditorLayoutIni, DefaultLayout(Name), Output);
	}
	static void Store(const TCHAR* Text)
	{
		GConfig->SetString(TEXT("EditorLayouts"), TEXT("Sample_v1"), Text, GEditorLayoutIni);
	}
};
} // namespace

TEST_F(Layouts, AreWrittenAsJson)
{
	const TSharedRef<FTabManager::FLayout> Layout =
		FTabManager::NewLayout("Two")
			->AddArea(FTabManager::NewPrimaryArea()
						  ->SetOrientation(Orient_Vertical)
						  ->Split(FTabManager::NewStack()
									  ->SetSizeCoefficient(0.25f)
									  ->SetHideTabWell(true)
									  ->AddTab("View", ETabState::OpenedTab)
									  ->AddTab(FTabId("Page", 3), ETabState::ClosedTab)
									  ->SetForegroundTab(FName("View"))))
			->AddArea(FTabManager::NewArea(640.0f, 480.0f)
						  ->SetWindow(FVector2D(10.0, 20.0), true)
						  ->Split(FTabManager::NewSplitter()->SetSizeCoefficient(0.5f)));
	EXPECT_TEXT_EQ(Layout->ToString(),
		TEXT("{\"Type\": \"Layout\", \"Name\": \"Two\", \"PrimaryAreaIndex\": 0, \"Areas\": [")
			TEXT("{\"SizeCoefficient\": 1, \"Type\": \"Area\", \"Orientation\": \"Orient_Vertical\", ")
				TEXT("\"WindowPlacement\": \"Placement_NoWindow\", \"Nodes\": [")
					TEXT("{\"SizeCoefficient\": 0.25, \"Type\": \"Stack\", \"HideTabWell\": true, ")
						TEXT("\"ForegroundTab\": \"View\", \"Tabs\": [")
							TEXT("{\"TabId\": \"View\", \"TabState\": \"OpenedTab\"}, ")
								TEXT("{\"TabId\": \"Page:3\", \"TabState\": \"ClosedTab\"}]}]}, ")
									TEXT("{\"SizeCoefficient\": 1, \"Type\": \"Area\", \"Orientation\": ")
										TEXT("\"Orient_Horizontal\", \"WindowPlacement\": \"Placement_Specified\", ")
											TEXT("\"WindowPosition_X\": 10.000000, \"WindowPosition_Y\": 20.000000, ")
												TEXT("\"WindowSize_X\": 640.000000, \"WindowSize_Y\": 480.000000, ")
													TEXT("\"bIsMaximized\": true, \"Nodes\": [")
														TEXT("{\"SizeCoefficient\": 0.5, \"Type\": \"Splitter\", ")
															TEXT("\"Orientation\": \"Orient_Horizontal\", ")
																TEXT("\"Nodes\": []}]}]}"));
}

TEST_F(Layouts, ComeBackFromTheirTextAsTheyWere)
{
	for (const TSharedRef<FTabManager::FLayout>& Layout :
		{DefaultLayout(), FTabManager::NewLayout("A \"quoted\" \\ name")->AddArea(FTabManager::NewPrimaryArea())})
	{
		const TSharedPtr<FTabManager::FLayout> Read = FTabManager::FLayout::NewFromString(Layout->ToString());
		ASSERT_TRUE(Read.IsValid());
		EXPECT_TEXT_EQ(Read->ToString(), Layout->ToString());
		EXPECT_EQ(Read->GetLayoutName(), Layout->GetLayoutName());
		EXPECT_TRUE(Read->GetPrimaryArea().IsValid());
	}
}

TEST_F(Layouts, AreLookedUpByTheirOwnNameInTheSettingsFile)
{
	const TSharedRef<FTabManager::FLayout> Default = DefaultLayout();
	EXPECT_EQ(FLayoutSaveRestore::LoadFromConfig(GEditorLayoutIni, Default), Default);

	FLayoutSaveRestore::SaveToConfig(GEditorLayoutIni,
		FTabManager::NewLayout("Sample_v1")
			->AddArea(
				FTabManager::NewPrimaryArea()->Split(FTabManager::NewStack()->AddTab("Bar", ETabState::OpenedTab))));
	GConfig->Flush(true, GEditorLayoutIni);
	Restore(Load());
	EXPECT_EQ(Tabs(), "H[{*Bar}]");
	// Another version is another layout.
	Manager->CloseAllAreas();
	Restore(Load(EOutputCanBeNullptr::Never, "Sample_v2"));
	EXPECT_EQ(Tabs(), "V[{} H[{*Tree} {*View} {*Settings Details}]]");

	std::ifstream File(Project() / "Saved/Config/EditorLayout.ini");
	std::stringstream Written;
	Written << File.rdbuf();
	EXPECT_NE(Written.str().find("[EditorLayouts]"), std::string::npos);
	EXPECT_NE(Written.str().find("Sample_v1={\"Type\": \"Layout\""), std::string::npos);
}

TEST_F(Layouts, ABrokenTextGivesTheDefaultAndALineThatSaysWhy)
{
	struct FCase
	{
		const TCHAR* Text;
		const char* Reason;
	};
	const FCase Cases[] = {
		{TEXT(""), "at character 1: a value is expected"},
		{TEXT("rubbish"), "at character 1: a value is expected"},
		{TEXT("{\"Type\": \"Layout\", \"Name\": \"Sample_v1\", \"Areas\": ["), "at character 51: a value is expected"},
		{TEXT("{\"Type\" \"Layout\"}"), "at character 9: ':' is expected"},
		{TEXT("{\"Type\": \"Layout\"} x"), "at character 20: nothing more is expected"},
		{TEXT("{\"Type\": \"Lay\\out\"}"), "an escape is not known"},
		{TEXT("{\"Type\": \"Layout"), "a text has no end"},
		{TEXT("[]"), "it is no layout with a name"},
		{TEXT("{\"Type\": \"Layout\", \"Name\": \"Sample_v1\"}"), "the list 'Areas' is missing"},
		{TEXT("{\"Type\": \"Layout\", \"Name\": \"Other\", \"Areas\": []}"), "it is that of 'Other'"},
		{TEXT("{\"Type\": \"Layout\", \"Name\": \"Sample_v1\", \"Areas\": []}"), "it has no primary area"},
		{TEXT("{\"Type\": \"Layout\", \"Name\": \"Sample_v1\", \"Areas\": [7]}"), "an area is expected"},
		{TEXT("{\"Type\": \"Layout\", \"Name\": \"Sample_v1\", \"Areas\": [{\"Type\": \"Area\", ")
				TEXT("\"WindowPlacement\": \"Somewhere\"}]}"),
			"the window placement 'Somewhere' is not known"},
		{TEXT("{\"Type\": \"Layout\", \"Name\": \"Sample_v1\", \"Areas\": [{\"Type\": \"Area\", ")
				TEXT("\"WindowPlacement\": \"Placement_NoWindow\", \"Nodes\": [{\"Type\": \"Circle\"}]}]}"),
			"the node type 'Circle' is not known"},
		{TEXT("{\"Type\": \"Layout\", \"Name\": \"Sample_v1\", \"Areas\": [{\"Type\": \"Area\", ")
				TEXT("\"WindowPlacement\": \"Placement_NoWindow\", \"Nodes\": [{\"Type\": \"Stack\", ")
					TEXT("\"Tabs\": [{}]}]}]}"),
			"a tab has no identifier"},
	};
	for (const FCase& Case : Cases)
	{
		Store(Case.Text);
		const int Before = Log().CountContaining(Case.Reason);
		EXPECT_TEXT_EQ(Load()->ToString(), DefaultLayout()->ToString());
		EXPECT_EQ(Log().CountContaining(Case.Reason), Before + 1) << Case.Reason;
	}
	EXPECT_EQ(Log().CountContaining("The saved layout 'Sample_v1' in '"), int(std::size(Cases)));
}

TEST_F(Layouts, TooDeepANestIsBrokenText)
{
	FString Deep;
	for (int32 Level = 0; Level < 100000; ++Level)
	{
		Deep += TEXT("[");
	}
	Store(*Deep);
	EXPECT_TEXT_EQ(Load()->ToString(), DefaultLayout()->ToString());
	EXPECT_EQ(Log().CountContaining("values are nested too deep"), 1);
}

TEST_F(Layouts, ALayoutWithoutAPrimaryAreaIsGoodWhenTheCallerSaysSo)
{
	Store(TEXT("{\"Type\": \"Layout\", \"Name\": \"Sample_v1\", \"Areas\": []}"));
	EXPECT_FALSE(Load(EOutputCanBeNullptr::IfNoTabValid)->GetPrimaryArea().IsValid());
}

TEST_F(Layouts, NumbersThatMakeNoSenseGetTheirDefaults)
{
	Store(TEXT(
		"{\"Type\": \"Layout\", \"Name\": \"Sample_v1\", \"Areas\": [{\"Type\": \"Area\", \"SizeCoefficient\": -1, ")
			TEXT("\"WindowPlacement\": \"Placement_NoWindow\", \"Nodes\": [{\"Type\": \"Stack\", ") TEXT(
				"\"SizeCoefficient\": 1e999, \"Tabs\": [{\"TabId\": \"View\", \"TabState\": \"OpenedTab\"}]}]}, ")
				TEXT("{\"Type\": \"Area\", \"WindowPlacement\": \"Placement_Specified\", \"WindowPosition_X\": 1e30, ")
					TEXT("\"WindowSize_X\": -5, \"WindowSize_Y\": \"tall\", \"Nodes\": [{\"Type\": \"Stack\", ")
						TEXT("\"Tabs\": [{\"TabId\": \"Tree\", \"TabState\": \"OpenedTab\"}]}]}]}"));
	Restore(Load());
	EXPECT_EQ(Tabs(), "H[{*View}] + H[{*Tree}]");
	EXPECT_FLOAT_EQ(Stack("View")->GetSizeCoefficient(), 1.0f);
	EXPECT_EQ(Tab("Tree")->GetParentWindow()->GetPositionInScreen(), FVector2D(0.0, 0.0));
	EXPECT_EQ(Tab("Tree")->GetParentWindow()->GetClientSizeInScreen(), FVector2D(0.0, 0.0));
}

TEST_F(Layouts, APersistedLayoutRestoresSizesWindowsAndTheTabInFront)
{
	Restore();
	auto& Row = static_cast<Host::SDockSplitter&>(*Host::LiveAreas(*Manager)[0]->GetNode(1));
	Host::ResizeSplitter(Row, {0.3f, 0.4f, 0.3f});
	Tab("Details")->ActivateInParent(ETabActivationCause::UserClickedOnTab);
	Host::FloatTab(Tab("View").ToSharedRef(), FVector2D(100.0, 50.0), FVector2D(640.0, 480.0));
	Host::WindowWasMoved(*Tab("View")->GetParentWindow(), FVector2D(7.0, 8.0), FVector2D(300.0, 200.0), true);
	Host::ShowTabWell(*Stack("Tree"));

	const TSharedRef<FTabManager::FLayout> Saved = Manager->PersistLayout();
	EXPECT_EQ(Saved->GetLayoutName(), FName("Sample_v1"));
	const TSharedPtr<FTabManager::FLayout> Read = FTabManager::FLayout::NewFromString(Saved->ToString());
	Manager->CloseAllAreas();
	Restore(Read.ToSharedRef());
	EXPECT_EQ(Tabs(), "V[{} H[{*Tree} {Settings *Details}]] + H[{*View}]");
	EXPECT_FLOAT_EQ(Stack("Tree")->GetSizeCoefficient(), 0.3f);
	EXPECT_FALSE(Stack("Tree")->IsTabWellHidden());
	const TSharedPtr<SWindow> Window = Tab("View")->GetParentWindow();
	EXPECT_EQ(Window->GetPositionInScreen(), FVector2D(7.0, 8.0));
	EXPECT_EQ(Window->GetClientSizeInScreen(), FVector2D(300.0, 200.0));
	EXPECT_TRUE(Window->IsWindowMaximized());
	EXPECT_TEXT_EQ(Manager->PersistLayout()->ToString(), Saved->ToString());
}

TEST_F(Layouts, TheWindowOfAClosedTabIsPersistedToo)
{
	Restore();
	Host::FloatTab(Tab("View").ToSharedRef(), FVector2D(100.0, 50.0), FVector2D(640.0, 480.0));
	Tab("View")->RequestCloseTab();
	const TSharedRef<FTabManager::FLayout> Saved = Manager->PersistLayout();
	Manager->CloseAllAreas();
	Restore(Saved);
	EXPECT_EQ(FSlateApplication::Get().GetTopLevelWindows().Num(), 0);
	Manager->TryInvokeTab(FName("View"));
	EXPECT_EQ(Tab("View")->GetParentWindow()->GetPositionInScreen(), FVector2D(100.0, 50.0));
}

TEST_F(Layouts, AreSavedOnceATickWhenSomethingChanged)
{
	int Saves = 0;
	Manager->SetOnPersistLayout(
		FTabManager::FOnPersistLayout::CreateLambda([&](const TSharedRef<FTabManager::FLayout>&) { ++Saves; }));
	Restore();
	Tick(0.1);
	EXPECT_EQ(Saves, 0);
	Host::DockTab(Tab("View").ToSharedRef(), Stack("Tree"), Host::EDockPlace::Into);
	Tab("Details")->ActivateInParent(ETabActivationCause::UserClickedOnTab);
	EXPECT_EQ(Saves, 0);
	Tick(0.1);
	Tick(0.1);
	EXPECT_EQ(Saves, 1);
	Manager->SavePersistentLayout();
	EXPECT_EQ(Saves, 2);
}
