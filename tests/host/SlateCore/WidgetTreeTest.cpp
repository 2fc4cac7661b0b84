// SPDX-License-Identifier: MIT
// What a drawing program reads of the tree.
#include "Host/WidgetTree.h"

#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SOverlay.h"
#include "Widgets/SWindow.h"

#include <gtest/gtest.h>

TEST(WidgetTree, AVersionRisesWithEachChangeOfTheChildren)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox);
	const TSharedRef<SBox> Child = SNew(SBox);
	uint32 Last = Host::StructureVersion(*Box);
	const auto Rises = [&]
	{
		const uint32 Former = Last;
		Last = Host::StructureVersion(*Box);
		return Last > Former;
	};
	EXPECT_FALSE(Rises());
	Box->AddSlot()[Child];
	EXPECT_TRUE(Rises());
	Child->SetContent(SNew(SBox));
	EXPECT_FALSE(Rises()) << "the child's own children are its own matter";
	Box->RemoveSlot(Child);
	EXPECT_TRUE(Rises());
	Box->AddSlot()[Child];
	EXPECT_TRUE(Rises());
	Box->ClearChildren();
	EXPECT_TRUE(Rises());
	Child->SetVisibility(EVisibility::Hidden);
	EXPECT_FALSE(Rises());
}

TEST(WidgetTree, OneCountRisesWithAnyChange)
{
	const TSharedRef<SBox> Inner = SNew(SBox);
	const TSharedRef<SBox> Outer = SNew(SBox)[Inner];
	const uint64 Before = Host::WidgetStructureCount();
	EXPECT_EQ(Host::WidgetStructureCount(), Before);
	const uint32 InnerBefore = Host::StructureVersion(*Inner);
	Inner->SetContent(SNullWidget::NullWidget);
	EXPECT_GT(Host::WidgetStructureCount(), Before);
	EXPECT_GT(Host::StructureVersion(*Inner), InnerBefore);
}

TEST(WidgetTree, TellsHowAParentLaysAChildOut)
{
	const TSharedRef<SHorizontalBox> Row =
		SNew(SHorizontalBox) +
		SHorizontalBox::Slot().AutoWidth().Padding(FMargin(1.0f, 2.0f, 3.0f, 4.0f)).HAlign(HAlign_Center)[SNew(SBox)] +
		SHorizontalBox::Slot().FillWidth(2.5f).VAlign(VAlign_Bottom)[SNew(SBox)];
	Host::FSlotLayout Layout = Host::SlotLayout(*Row, 0);
	EXPECT_EQ(Layout.Padding, FMargin(1.0f, 2.0f, 3.0f, 4.0f));
	EXPECT_EQ(Layout.HAlign, HAlign_Center);
	EXPECT_EQ(Layout.VAlign, VAlign_Fill);
	EXPECT_EQ(Layout.Size.SizeRule, FSizeParam::SizeRule_Auto);
	Layout = Host::SlotLayout(*Row, 1);
	EXPECT_EQ(Layout.VAlign, VAlign_Bottom);
	EXPECT_EQ(Layout.Size.SizeRule, FSizeParam::SizeRule_Stretch);
	EXPECT_EQ(Layout.Size.Value, 2.5f);

	const TSharedRef<SOverlay> Overlay = SNew(SOverlay);
	Overlay->AddSlot(7)[SNew(SBox)];
	EXPECT_EQ(Host::SlotLayout(*Overlay, 0).ZOrder, 7);
	const TSharedRef<SBox> Box = SNew(SBox).Padding(FMargin(5.0f))[SNew(SBox)];
	EXPECT_EQ(Host::SlotLayout(*Box, 0).Padding, FMargin(5.0f));
}

TEST(WidgetTree, StatesOfParentsCountForTheirChildren)
{
	const TSharedRef<SBox> Inner = SNew(SBox);
	const TSharedRef<SBox> Outer = SNew(SBox)[Inner];
	EXPECT_TRUE(Host::IsEnabledInTree(*Inner));
	EXPECT_TRUE(Host::IsVisibleInTree(*Inner));
	Outer->SetEnabled(false);
	Outer->SetVisibility(EVisibility::Collapsed);
	EXPECT_TRUE(Inner->IsEnabled());
	EXPECT_FALSE(Host::IsEnabledInTree(*Inner));
	EXPECT_FALSE(Host::IsVisibleInTree(*Inner));
	EXPECT_TRUE(Host::IsBelow(*Inner, *Outer));
	EXPECT_TRUE(Host::IsBelow(*Inner, *Inner));
	EXPECT_FALSE(Host::IsBelow(*Outer, *Inner));
}

TEST(WidgetTree, FindsTheWindowThatAWidgetStandsIn)
{
	const TSharedRef<SBox> Inner = SNew(SBox);
	EXPECT_FALSE(Host::FindWindow(Inner).IsValid());
	const TSharedRef<SWindow> Window = SNew(SWindow)[SNew(SBox)[Inner]];
	EXPECT_EQ(Host::FindWindow(Inner), Window);
	EXPECT_EQ(Host::FindWindow(Window), Window);
	Window->SetContent(SNullWidget::NullWidget);
	EXPECT_FALSE(Host::FindWindow(Inner).IsValid());
}
