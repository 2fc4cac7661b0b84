// SPDX-License-Identifier: MIT
#include "Editor/Widgets/TandemViewport/STandemActions.h"
#include "Editor/Widgets/TandemViewport/SZEFTandemEditorViewport.h"
#include "Editor/Widgets/TandemViewport/SZEFTandemEditorViewportToolbar.h"
#include "Editor/Widgets/TandemViewport/ZEFTandemEditorViewportClient.h"
#include "Editor/ZEFTandemEditorCommands.h"
#include "Framework/Commands/UICommandList.h"
#include "Host/MultiBoxes.h"
#include "Host/Viewports.h"
#include "Host/WidgetTree.h"
#include "Source/Editor/OpenEditorFixture.h"

namespace
{

class ViewportToolbar : public FOpenEditorFixture
{
protected:
	void SetUp() override
	{
		FOpenEditorFixture::SetUp();
		Widget = Editor->GetViewport();
		View = StaticCastSharedPtr<FZEFTandemEditorViewportClient>(Widget->GetViewportClient());
	}
	void TearDown() override
	{
		View.Reset();
		Widget.Reset();
		CurrentTandemActions.Reset();
		FOpenEditorFixture::TearDown();
	}

	/** The bar of the viewport, or the menu that one of its buttons opens. */
	TSharedRef<SWidget> Bar() { return Host::OverlayOf(*Widget); }
	TSharedRef<SWidget> Menu(const TCHAR* Label)
	{
		return Host::FindMultiBoxItem(Bar(), FText::FromString(Label))->OpenMenu();
	}
	static std::vector<std::string> Lines(const TSharedRef<SWidget>& Root)
	{
		std::vector<std::string> Result;
		for (const FString& Line : Host::DescribeMultiBox(Root))
		{
			Result.push_back(TCHAR_TO_UTF8(*Line));
		}
		return Result;
	}
	bool Press(const TCHAR* MenuLabel, const TCHAR* Label)
	{
		return Host::FindMultiBoxItem(Menu(MenuLabel), FText::FromString(Label))->Press();
	}

	TSharedPtr<SZEFTandemEditorViewport> Widget;
	TSharedPtr<FZEFTandemEditorViewportClient> View;
};

using FLines = std::vector<std::string>;

} // namespace

TEST_F(ViewportToolbar, HasTheEnginesMenusAndOneOfItsOwn)
{
	EXPECT_EQ(Lines(Bar()), (FLines{"Options v", "Perspective v", "Lit v", "Show v"}));
	EXPECT_EQ(Host::FindWidgetsOfType(Bar(), TEXT("SZEFTandemEditorViewportToolbar")).Num(), 1);
}

TEST_F(ViewportToolbar, TheShowMenuHasTheGridAndTheVectorToggles)
{
	EXPECT_EQ(Lines(Menu(TEXT("Show"))), (FLines{"[x] Grid", "---", "[ ] Normals", "[ ] Tangents", "[ ] Binormals"}));
}

TEST_F(ViewportToolbar, ACheckMarkComesWithOneChoiceAndGoesWithTheNext)
{
	EXPECT_TRUE(Press(TEXT("Show"), TEXT("Normals")));
	EXPECT_EQ(Lines(Menu(TEXT("Show")))[2], "[x] Normals");
	EXPECT_TRUE(View->IsDrawingNormals());
	EXPECT_TRUE(Press(TEXT("Show"), TEXT("Normals")));
	EXPECT_EQ(Lines(Menu(TEXT("Show")))[2], "[ ] Normals");
	EXPECT_TRUE(Press(TEXT("Show"), TEXT("Tangents")));
	EXPECT_TRUE(Press(TEXT("Show"), TEXT("Binormals")));
	EXPECT_TRUE(View->IsDrawingTangents());
	EXPECT_TRUE(View->IsDrawingBinormals());
}

TEST_F(ViewportToolbar, TheGridsCheckMarkFollowsTheFlagWhoeverChangesIt)
{
	EXPECT_TRUE(Press(TEXT("Show"), TEXT("Grid")));
	EXPECT_FALSE(View->IsSetShowGridChecked());
	EXPECT_EQ(Lines(Menu(TEXT("Show")))[0], "[ ] Grid");
	View->EngineShowFlags.SetGrid(true);
	EXPECT_EQ(Lines(Menu(TEXT("Show")))[0], "[x] Grid");
}

TEST_F(ViewportToolbar, TheLabelsSayWhatIsChosen)
{
	EXPECT_TRUE(Press(TEXT("Perspective"), TEXT("Top")));
	EXPECT_EQ(Lines(Bar()), (FLines{"Options v", "Top v", "Wireframe v", "Show v"}));
	EXPECT_TRUE(Press(TEXT("Wireframe"), TEXT("Unlit")));
	EXPECT_EQ(Lines(Bar())[2], "Unlit v");
	EXPECT_EQ(Lines(Menu(TEXT("Top")))[3], "[x] Top");
	EXPECT_TRUE(Press(TEXT("Top"), TEXT("Perspective")));
	EXPECT_EQ(Lines(Bar()), (FLines{"Options v", "Perspective v", "Lit v", "Show v"}));
}

TEST_F(ViewportToolbar, TheOptionsSwitchRealtime)
{
	EXPECT_EQ(Lines(Menu(TEXT("Options"))), (FLines{"# Viewport Options", "[x] Realtime"}));
	EXPECT_TRUE(Press(TEXT("Options"), TEXT("Realtime")));
	EXPECT_FALSE(View->IsRealtime());
}

TEST_F(ViewportToolbar, TandemActionsHandKeysToTheListOfTheProcess)
{
	ASSERT_TRUE(TandemActionsCommandList.IsValid());
	const TSharedRef<STandemActions> Actions = SNew(STandemActions);
	EXPECT_EQ(CurrentTandemActions, Actions);
	const auto Key = [&](const FKey& InKey) {
		return Actions->OnKeyDown(FGeometry(), FKeyEvent(InKey, FModifierKeysState(), 0, false, 0, 0)).IsEventHandled();
	};
	EXPECT_FALSE(Key(EKeys::X));
	EXPECT_FALSE(CurrentTandemActions.IsValid());

	int Calls = 0;
	const TSharedPtr<FUICommandInfo> Grid = FZEFTandemEditorCommands::Get().SetShowGrid;
	Grid->SetActiveChord(FInputChord(EKeys::X), EMultipleKeyBindingIndex::Primary);
	TandemActionsCommandList->MapAction(Grid, FExecuteAction::CreateLambda([&] { ++Calls; }));
	EXPECT_TRUE(Key(EKeys::X));
	EXPECT_EQ(Calls, 1);
	EXPECT_EQ(CurrentTandemActions, Actions);
	TandemActionsCommandList->UnmapAction(Grid);
	Grid->RemoveActiveChord(EMultipleKeyBindingIndex::Primary);
}
