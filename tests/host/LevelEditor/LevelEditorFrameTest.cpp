// SPDX-License-Identifier: MIT
#include "Host/LevelEditorFrame.h"

#include "EngineFixture.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Commands/GenericCommands.h"
#include "Framework/Commands/UICommandList.h"
#include "Host/Docking.h"
#include "Host/DocumentationPages.h"
#include "Host/MultiBoxes.h"
#include "Host/WidgetTree.h"
#include "Host/Windows.h"
#include "Input/Events.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Paths.h"
#include "ToolMenus.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
using FLines = TArray<FString>;

FText Text(const TCHAR* Source)
{
	return FText::FromString(Source);
}

class LevelEditorFrame : public FEngineFixture
{
protected:
	void TearDown() override
	{
		Frame.Reset();
		FEngineFixture::TearDown();
	}

	void Open() { Frame = Engine().OpenLevelEditor(); }

	/** What a plug-in does at its start. */
	void AddPluginEntries()
	{
		const FUIAction Action(FExecuteAction::CreateLambda([this] { ++Opened; }));
		UToolMenus::Get()
			->ExtendMenu(TEXT("LevelEditor.MainMenu.Window"))
			->AddMenuEntry(TEXT("WindowLayout"),
				FToolMenuEntry::InitMenuEntry(TEXT("OpenSewing"), Text(TEXT("Sewing")), FText(), FSlateIcon(), Action));
		UToolMenus::Get()
			->ExtendMenu(TEXT("LevelEditor.LevelEditorToolBar"))
			->AddMenuEntry(
				TEXT("Settings"), FToolMenuEntry::InitToolBarButton(TEXT("OpenSewing"), Action, Text(TEXT("Sewing"))));
	}

	TSharedRef<SWidget> OpenMenu(const TCHAR* Name)
	{
		return Host::FindMultiBoxItemByName(Frame->GetMenuBar().ToSharedRef(), Name)->OpenMenu();
	}
	TSharedRef<SWidget> Content() { return ConstCastSharedRef<SWidget>(Frame->GetWindow()->GetContent()); }
	TSharedPtr<SDockTab> ContentBrowser()
	{
		return Frame->GetTabManager()->FindExistingLiveTab(FTabId("ContentBrowserTab1"));
	}
	static TSharedRef<SDockTab> MakeEditorTab()
	{
		return SNew(SDockTab).TabRole(ETabRole::MajorTab).Label(Text(TEXT("Sewing")));
	}
	static bool Press(const FKey& Key, bool bControl, bool bAlt)
	{
		const FModifierKeysState Keys(false, false, bControl, false, bAlt, false, false, false, false);
		return FSlateApplication::Get().ProcessKeyDownEvent(FKeyEvent(Key, Keys, 0, false, 0, 0));
	}

	TSharedPtr<Host::FLevelEditorFrame> Frame;
	int Opened = 0;
};
} // namespace

TEST_F(LevelEditorFrame, IsAWindowWithMenusAToolBarAndTheContentBrowser)
{
	Open();
	EXPECT_EQ(Host::FLevelEditorFrame::Get(), Frame);
	EXPECT_EQ(Engine().OpenLevelEditor(), Frame);
	EXPECT_TRUE(Frame->GetWindow()->IsVisible());
	EXPECT_EQ(FGlobalTabmanager::Get()->GetRootWindow(), Frame->GetWindow());
	EXPECT_EQ(Host::DescribeMultiBox(Frame->GetMenuBar().ToSharedRef()),
		FLines({TEXT("File >"), TEXT("Edit >"), TEXT("Window >"), TEXT("Help >")}));
	EXPECT_EQ(Host::DescribeMultiBox(OpenMenu(TEXT("File"))), FLines({TEXT("Exit")}));
	EXPECT_EQ(Host::DescribeMultiBox(OpenMenu(TEXT("Edit"))), FLines({TEXT("# History"), TEXT("Undo"), TEXT("Redo")}));
	EXPECT_EQ(Host::DescribeMultiBox(OpenMenu(TEXT("Window"))),
		FLines({TEXT("# Level Editor"), TEXT("[x] Content Browser"), TEXT("---"), TEXT("# Layout"),
			TEXT("Load Default Layout")}));
	EXPECT_EQ(Host::DescribeMultiBox(OpenMenu(TEXT("Help"))), FLines({TEXT("Open Documentation...")}));
	EXPECT_EQ(Host::DescribeMultiBox(Frame->GetToolBar().ToSharedRef()), FLines({TEXT("Undo"), TEXT("Redo")}));
	ASSERT_TRUE(ContentBrowser().IsValid());
	EXPECT_EQ(ContentBrowser()->GetParentWindow(), Frame->GetWindow());
	EXPECT_FALSE(Frame->GetTab()->RequestCloseTab());
}

TEST_F(LevelEditorFrame, ShowsWhatAPlugInAddedToTheWindowMenuAndTheToolBar)
{
	AddPluginEntries();
	Open();
	EXPECT_EQ(Host::DescribeMultiBox(Frame->GetToolBar().ToSharedRef()),
		FLines({TEXT("Undo"), TEXT("Redo"), TEXT("---"), TEXT("Sewing")}));
	EXPECT_TRUE(Host::FindMultiBoxItem(Frame->GetToolBar().ToSharedRef(), Text(TEXT("Sewing")))->Press());
	EXPECT_TRUE(Host::FindMultiBoxItem(OpenMenu(TEXT("Window")), Text(TEXT("Sewing")))->Press());
	EXPECT_EQ(Opened, 2);
}

TEST_F(LevelEditorFrame, TheFirstPageLeadsToThePlugInsButton)
{
	AddPluginEntries();
	Open();
	TSharedPtr<STextBlock> Hint;
	Host::ForEachWidget(Content(),
		[&](const TSharedRef<SWidget>& Widget)
		{
			if (Widget->GetTag() == FName("FirstRunHint"))
			{
				Hint = StaticCastSharedRef<STextBlock>(Widget);
			}
		});
	ASSERT_TRUE(Hint.IsValid());
	EXPECT_TEXT_EQ(Hint->GetText().ToString(),
		TEXT("Open \"Sewing\" to bring in avatars, garments and props. What you save there appears here."));
	const TSharedPtr<Host::SMultiBoxItem> Button =
		Host::FindMultiBoxItem(ContentBrowser()->GetContent(), Text(TEXT("Sewing")));
	ASSERT_TRUE(Button.IsValid());
	EXPECT_TRUE(Button->Press());
	EXPECT_EQ(Opened, 1);
}

TEST_F(LevelEditorFrame, TheFirstPageSaysWhatToDoWithoutAPlugIn)
{
	Open();
	TArray<FString> Texts;
	for (const TSharedRef<SWidget>& Block :
		Host::FindWidgetsOfType(ContentBrowser()->GetContent(), FName("STextBlock")))
	{
		Texts.Add(StaticCastSharedRef<STextBlock>(Block)->GetText().ToString());
	}
	EXPECT_EQ(Texts, FLines({TEXT("This project has no content yet"),
						 TEXT("No plug-in has added an editor to the tool bar. Start the program with --plugin and the "
							  "folder of a .uplugin file.")}));
}

TEST_F(LevelEditorFrame, EditorsDockBesideItOrStandInWindowsOfTheirOwn)
{
	Open();
	const TSharedRef<SDockTab> Docked = MakeEditorTab();
	FGlobalTabmanager::Get()->InsertNewDocumentTab("DockedToolkit", FTabManager::FLiveTabSearch("LevelEditor"), Docked);
	EXPECT_EQ(Docked->GetParentWindow(), Frame->GetWindow());
	EXPECT_EQ(Host::StackOf(*Docked), Host::StackOf(*Frame->GetTab()));

	const TSharedRef<SDockTab> Alone = MakeEditorTab();
	FGlobalTabmanager::Get()->InsertNewDocumentTab("StandaloneToolkit", FTabManager::FRequireClosedTab(), Alone);
	ASSERT_TRUE(Alone->GetParentWindow().IsValid());
	EXPECT_NE(Alone->GetParentWindow(), Frame->GetWindow());
	EXPECT_EQ(Alone->GetParentWindow()->GetClientSizeInScreen(), FVector2D(1400.0, 850.0));
}

TEST_F(LevelEditorFrame, ClosingItClosesEverythingAndTellsOnce)
{
	Open();
	int Closed = 0;
	Frame->OnClosed().AddLambda([&] { ++Closed; });
	int EditorsClosed = 0;
	const TSharedRef<SDockTab> Editor = MakeEditorTab();
	Editor->SetOnTabClosed(
		SDockTab::FOnTabClosedCallback::CreateLambda([&](TSharedRef<SDockTab>) { ++EditorsClosed; }));
	FGlobalTabmanager::Get()->InsertNewDocumentTab("StandaloneToolkit", FTabManager::FRequireClosedTab(), Editor);

	Host::CloseWindowByUser(Frame->GetWindow().ToSharedRef());
	EXPECT_EQ(Closed, 1);
	EXPECT_EQ(EditorsClosed, 1);
	EXPECT_FALSE(Frame->IsOpen());
	EXPECT_FALSE(Frame->GetWindow().IsValid());
	EXPECT_FALSE(Host::FLevelEditorFrame::Get().IsValid());
	EXPECT_EQ(FSlateApplication::Get().GetTopLevelWindows().Num(), 0);
	Frame->Close();
	EXPECT_EQ(Closed, 1);

	Open();
	EXPECT_TRUE(Frame->IsOpen());
	EXPECT_TRUE(ContentBrowser().IsValid());
}

TEST_F(LevelEditorFrame, ClosedTabsStayClosedAtTheNextStartAndComeBackFromTheMenu)
{
	Open();
	EXPECT_TRUE(ContentBrowser()->RequestCloseTab());
	Frame->Close();
	Open();
	EXPECT_FALSE(ContentBrowser().IsValid());
	const TSharedRef<SWidget> Menu = OpenMenu(TEXT("Window"));
	const TSharedPtr<Host::SMultiBoxItem> Entry = Host::FindMultiBoxItem(Menu, Text(TEXT("Content Browser")));
	EXPECT_EQ(Entry->GetCheckState(), ECheckBoxState::Unchecked);
	EXPECT_TRUE(Entry->Press());
	EXPECT_TRUE(ContentBrowser().IsValid());
	EXPECT_EQ(ContentBrowser()->GetParentWindow(), Frame->GetWindow());
}

TEST_F(LevelEditorFrame, EditorsFindTheirPlacesAgainAfterAnEndWithOpenEditors)
{
	const auto Insert = [](const TCHAR* Place, const FTabManager::FSearchPreference& Preference)
	{
		const TSharedRef<SDockTab> Editor = MakeEditorTab();
		FGlobalTabmanager::Get()->InsertNewDocumentTab(Place, Preference, Editor);
		return Editor;
	};
	Open();
	Insert(TEXT("DockedToolkit"), FTabManager::FLiveTabSearch("LevelEditor"));
	const TSharedRef<SDockTab> Alone = Insert(TEXT("StandaloneToolkit"), FTabManager::FRequireClosedTab());
	Alone->GetParentWindow()->Resize(FVector2D(900.0, 700.0));
	Frame->Close();

	Open();
	EXPECT_EQ(Host::OpenTabs(*FGlobalTabmanager::Get()).Num(), 1);
	EXPECT_EQ(FSlateApplication::Get().GetTopLevelWindows().Num(), 1);
	const TSharedRef<SDockTab> Docked = Insert(TEXT("DockedToolkit"), FTabManager::FLiveTabSearch("LevelEditor"));
	EXPECT_EQ(Docked->GetParentWindow(), Frame->GetWindow());
	const TSharedRef<SDockTab> Again = Insert(TEXT("StandaloneToolkit"), FTabManager::FRequireClosedTab());
	EXPECT_EQ(Again->GetParentWindow()->GetClientSizeInScreen(), FVector2D(900.0, 700.0));
}

TEST_F(LevelEditorFrame, ABrokenLayoutGivesTheDefaultOneWithALineInTheLog)
{
	GConfig->SetString(TEXT("EditorLayouts"), TEXT("UnrealEd_Layout_v1.0"), TEXT("{ rubbish"), GEditorLayoutIni);
	GConfig->SetString(TEXT("EditorLayouts"), TEXT("LevelEditor_Layout_v1.0"), TEXT("{}"), GEditorLayoutIni);
	Open();
	EXPECT_TRUE(ContentBrowser().IsValid());
	EXPECT_EQ(Log().CountContaining("The saved layout 'UnrealEd_Layout_v1.0'"), 1);
	EXPECT_EQ(Log().CountContaining("The saved layout 'LevelEditor_Layout_v1.0'"), 1);
}

TEST_F(LevelEditorFrame, TheDefaultLayoutAsksBeforeItClosesEditors)
{
	Open();
	ContentBrowser()->RequestCloseTab();
	const TSharedRef<SDockTab> Editor = MakeEditorTab();
	FGlobalTabmanager::Get()->InsertNewDocumentTab("DockedToolkit", FTabManager::FLiveTabSearch("LevelEditor"), Editor);
	Dialogs().AnswerMessage(EAppReturnType::No);
	Frame->LoadDefaultLayout();
	EXPECT_TRUE(Host::StackOf(*Editor).IsValid());
	EXPECT_FALSE(ContentBrowser().IsValid());

	Dialogs().AnswerMessage(EAppReturnType::Yes);
	Frame->LoadDefaultLayout();
	EXPECT_FALSE(Host::StackOf(*Editor).IsValid());
	EXPECT_TRUE(ContentBrowser().IsValid());
	ASSERT_EQ(Dialogs().Messages().size(), 2u);
	EXPECT_TEXT_EQ(
		Dialogs().Messages()[0].Message.ToString(), TEXT("The default layout closes all open editors. Load it?"));

	// Nothing is lost without an editor, so nobody is asked.
	Frame->LoadDefaultLayout();
	EXPECT_EQ(Dialogs().Messages().size(), 2u);
	EXPECT_TRUE(ContentBrowser().IsValid());
}

TEST_F(LevelEditorFrame, KeysRunItsCommands)
{
	Open();
	int Undone = 0;
	Frame->GetCommands()->MapAction(FGenericCommands::Get().Undo, FExecuteAction::CreateLambda([&] { ++Undone; }));
	EXPECT_TRUE(Press(EKeys::Z, true, false));
	EXPECT_EQ(Undone, 1);
	EXPECT_TRUE(Press(EKeys::F4, false, true));
	EXPECT_FALSE(Frame->IsOpen());
}

TEST_F(LevelEditorFrame, F1OpensTheDocumentation)
{
	Open();
	FString Shown;
	Host::FShowDocument Former = Host::SetDocumentViewer(
		[&](const FString& Path)
		{
			Shown = Path;
			return true;
		});
	EXPECT_TRUE(Press(EKeys::F1, false, false));
	Host::SetDocumentViewer(Former);
	EXPECT_TEXT_EQ(FPaths::GetCleanFilename(Shown), TEXT("README.md"));
}

TEST_F(LevelEditorFrame, TheStatusLineShowsTextsUnderNames)
{
	Open();
	FText State = Text(TEXT("ZEF: waiting"));
	const TSharedRef<Host::SStatusLine> Line = Frame->GetStatusLine().ToSharedRef();
	Line->SetItem("Link", TAttribute<FText>::CreateLambda([&] { return State; }), Text(TEXT("local channel")));
	Line->SetItem("Memory", Text(TEXT("1 GiB")));
	EXPECT_TEXT_EQ(Line->GetItem("Link").ToString(), TEXT("ZEF: waiting"));
	State = Text(TEXT("ZEF: connected"));
	const auto Shown = [&]
	{
		FLines Lines;
		for (const TSharedRef<SWidget>& Block : Host::FindWidgetsOfType(Line, FName("STextBlock")))
		{
			if (Block->GetVisibility().IsVisible())
			{
				Lines.Add(StaticCastSharedRef<STextBlock>(Block)->GetText().ToString());
			}
		}
		return Lines;
	};
	EXPECT_EQ(Shown(), FLines({TEXT("ZEF: connected"), TEXT("1 GiB")}));
	State = FText::GetEmpty();
	EXPECT_EQ(Shown(), FLines({TEXT("1 GiB")}));
	Line->RemoveItem("Memory");
	Line->RemoveItem("Memory");
	EXPECT_TRUE(Line->GetItem("Memory").IsEmpty());
}

TEST_F(LevelEditorFrame, EndsWithTheEngine)
{
	Open();
	int Closed = 0;
	Frame->OnClosed().AddLambda([&] { ++Closed; });
	Engine().Exit();
	EXPECT_EQ(Closed, 1);
	EXPECT_FALSE(Frame->IsOpen());
}
