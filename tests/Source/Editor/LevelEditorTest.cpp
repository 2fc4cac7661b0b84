// SPDX-License-Identifier: MIT
#include "Framework/Docking/TabManager.h"
#include "Host/LevelEditorFrame.h"
#include "ModuleFixture.h"
#include "Styling/SlateBrush.h"
#include "Misc/Paths.h"
#include "Widgets/Docking/SDockTab.h"

namespace
{
class LevelEditor : public FModuleFixture
{
protected:
	void SetUp() override
	{
		FModuleFixture::SetUp();
		Frame = Engine().OpenLevelEditor();
	}
	void TearDown() override
	{
		Frame.Reset();
		FModuleFixture::TearDown();
	}

	static const FText& Label()
	{
		static const FText Text = FText::FromString(TEXT("ZEF/KR Tandem Editor"));
		return Text;
	}
	TSharedPtr<Host::SMultiBoxItem> WindowEntry()
	{
		const TSharedPtr<Host::SMultiBoxItem> Window =
			Host::FindMultiBoxItemByName(Frame->GetMenuBar().ToSharedRef(), "Window");
		return Host::FindMultiBoxItem(Window->OpenMenu(), Label());
	}

	TSharedPtr<Host::FLevelEditorFrame> Frame;
};
} // namespace

TEST_F(LevelEditor, CarriesTheEntryInTheWindowMenuAndInTheToolBar)
{
	const TSharedPtr<Host::SMultiBoxItem> Button = Host::FindMultiBoxItem(Frame->GetToolBar().ToSharedRef(), Label());
	ASSERT_TRUE(Button.IsValid());
	EXPECT_TEXT_EQ(Button->GetToolTip().ToString(), TEXT("Open ZEF/KR Tandem Editor"));
	ASSERT_NE(Button->GetIcon(), nullptr);
	EXPECT_TEXT_EQ(FPaths::GetCleanFilename(Button->GetIcon()->GetResourceName().ToString()), TEXT("Icon40.png"));
	ASSERT_TRUE(WindowEntry().IsValid());

	EXPECT_TRUE(WindowEntry()->Press());
	const TSharedPtr<FZEFTandemEditor> First = OpenEditor();
	ASSERT_TRUE(First.IsValid());
	EXPECT_TRUE(Button->Press());
	EXPECT_EQ(OpenEditor(), First);
}

TEST_F(LevelEditor, TheFirstPageOpensTheEditor)
{
	const TSharedPtr<SDockTab> Browser = Frame->GetTabManager()->FindExistingLiveTab(FTabId("ContentBrowserTab1"));
	const TSharedPtr<Host::SMultiBoxItem> Button = Host::FindMultiBoxItem(Browser->GetContent(), Label());
	ASSERT_TRUE(Button.IsValid());
	EXPECT_EQ(Button->GetStyleName(), FName("CalloutToolbar"));
	EXPECT_TRUE(Button->Press());
	EXPECT_TRUE(OpenEditor().IsValid());
}

TEST_F(LevelEditor, ClosingTheMainWindowClosesTheEditorWithIt)
{
	EXPECT_TRUE(WindowEntry()->Press());
	EXPECT_TRUE(Module().IsEditorOpen());
	Frame->Close();
	EXPECT_FALSE(Module().IsEditorOpen());
}
