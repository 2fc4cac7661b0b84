// SPDX-License-Identifier: MIT
#include "ModelLayout.h"

#include "Pictures.h"
#include "ViewWorld.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SUniformGridPanel.h"

#include <gtest/gtest.h>

namespace
{
using namespace Host;

class FSized : public QWidget
{
public:
	FSized(int Width, int Height)
		: Wanted(Width, Height)
	{
	}
	QSize sizeHint() const override { return Wanted; }
	QSize minimumSizeHint() const override { return QSize(0, 0); }

private:
	QSize Wanted;
};

struct FPanel
{
	explicit FPanel(EPanelKind Kind)
		: Layout(new FModelLayout(Kind))
	{
		Window.setLayout(Layout);
	}

	QWidget* Add(int Width, int Height, const FPlace& Place)
	{
		auto* const Child = new FSized(Width, Height);
		Layout->Add(Child, Place);
		return Child;
	}

	void Show(int Width, int Height)
	{
		Window.resize(Width, Height);
		Window.show();
		Layout->activate();
	}

	QWidget Window;
	FModelLayout* Layout;
};

FPlace Stretched(double Share)
{
	FPlace Place;
	Place.Stretch = Share;
	return Place;
}

TEST(ModelLayout, GivesTheRestOfARowToTheSharesInProportion)
{
	FPanel Panel(EPanelKind::Row);
	QWidget* const Fixed = Panel.Add(100, 20, FPlace());
	QWidget* const Small = Panel.Add(500, 20, Stretched(1));
	QWidget* const Large = Panel.Add(5, 20, Stretched(3));
	Panel.Show(500, 50);
	EXPECT_EQ(Fixed->geometry(), QRect(0, 0, 100, 50));
	EXPECT_EQ(Small->geometry(), QRect(100, 0, 100, 50));
	EXPECT_EQ(Large->geometry(), QRect(200, 0, 300, 50));
}

TEST(ModelLayout, FillsAColumnToThePixelWhateverTheShares)
{
	FPanel Panel(EPanelKind::Column);
	QWidget* const First = Panel.Add(1, 1, Stretched(1));
	QWidget* const Second = Panel.Add(1, 1, Stretched(1));
	QWidget* const Third = Panel.Add(1, 1, Stretched(1));
	Panel.Show(10, 100);
	EXPECT_EQ(First->geometry().bottom() + 1, Second->geometry().top());
	EXPECT_EQ(Second->geometry().bottom() + 1, Third->geometry().top());
	EXPECT_EQ(Third->geometry().bottom(), 99);
}

TEST(ModelLayout, KeepsPaddingAndAlignmentInsideTheCell)
{
	FPanel Panel(EPanelKind::Stack);
	FPlace Corner;
	Corner.Horizontal = EPlaceAlign::End;
	Corner.Vertical = EPlaceAlign::Begin;
	Corner.Padding = QMargins(10, 40, 5, 10);
	QWidget* const Child = Panel.Add(30, 20, Corner);
	Panel.Show(200, 100);
	EXPECT_EQ(Child->geometry(), QRect(165, 40, 30, 20));
	EXPECT_EQ(Panel.Window.sizeHint(), QSize(45, 70));
}

TEST(ModelLayout, LeavesNoRoomForWhatIsHidden)
{
	FPanel Panel(EPanelKind::Row);
	QWidget* const First = Panel.Add(40, 10, FPlace());
	QWidget* const Second = Panel.Add(60, 10, Stretched(1));
	First->hide();
	Panel.Show(100, 10);
	EXPECT_EQ(Second->geometry(), QRect(0, 0, 100, 10));
}

TEST(ModelLayout, TakesANewPlaceAtOnce)
{
	FPanel Panel(EPanelKind::Stack);
	QWidget* const Child = Panel.Add(10, 10, FPlace());
	Panel.Show(100, 100);
	FPlace Middle;
	Middle.Horizontal = EPlaceAlign::Center;
	Middle.Vertical = EPlaceAlign::Center;
	Panel.Layout->SetPlace(0, Middle);
	Panel.Layout->activate();
	EXPECT_EQ(Child->geometry(), QRect(45, 45, 10, 10));
}

FPlace Cell(int Column, int Row)
{
	FPlace Place;
	Place.Column = Column;
	Place.Row = Row;
	return Place;
}

TEST(ModelLayout, GivesAllCellsOfAGridTheSizeOfTheLargest)
{
	FPanel Panel(EPanelKind::Grid);
	QWidget* const First = Panel.Add(30, 40, Cell(0, 0));
	QWidget* const Last = Panel.Add(50, 10, Cell(2, 1));
	EXPECT_EQ(Panel.Window.sizeHint(), QSize(150, 80));
	Panel.Show(301, 100);
	EXPECT_EQ(First->geometry(), QRect(0, 0, 100, 50));
	EXPECT_EQ(Last->geometry(), QRect(201, 50, 100, 50));
}

TEST(ModelLayout, KeepsTheLeastSizeOfACellAndCountsOnlyColumnsWithSomethingToSee)
{
	FPanel Panel(EPanelKind::Grid);
	Panel.Add(30, 10, Cell(0, 0));
	QWidget* const Far = Panel.Add(30, 10, Cell(3, 0));
	Panel.Layout->SetSmallestCell(QSize(80, 24));
	EXPECT_EQ(Panel.Window.sizeHint(), QSize(320, 24));
	Far->hide();
	Panel.Layout->activate();
	EXPECT_EQ(Panel.Window.sizeHint(), QSize(80, 24));
}

TEST(ModelLayout, LaysAPanelOfTheModelOutAsAGrid)
{
	const TSharedRef<SUniformGridPanel> Grid =
		SNew(SUniformGridPanel)
			.SlotPadding(FMargin(2.0f, 3.0f))
			.MinDesiredSlotWidth(96.0f)
			.MinDesiredSlotHeight(34.0f) +
		SUniformGridPanel::Slot(0, 0)[SNew(SBox)] +
		SUniformGridPanel::Slot(1, 1).HAlign(HAlign_Right)[SNew(SBox).WidthOverride(20.0f)];
	FViewWorld World([] {});
	QWidget Window;
	{
		const std::unique_ptr<FWidgetView> View = World.Make(Grid);
		View->Native()->setParent(&Window);
		View->Follow();
		EXPECT_EQ(View->Native()->sizeHint(), QSize(200, 80));
		View->Native()->resize(200, 80);
		Window.show();
		View->Native()->layout()->activate();
		EXPECT_EQ(World.ViewOf(*Grid->GetChildren()->GetChildAt(0))->Native()->geometry(), QRect(2, 3, 96, 34));
		EXPECT_EQ(World.ViewOf(*Grid->GetChildren()->GetChildAt(1))->Native()->geometry(), QRect(178, 43, 20, 34));
	}
	World.ClearGraveyard();
}
} // namespace
