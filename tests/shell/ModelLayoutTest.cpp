// SPDX-License-Identifier: MIT
#include "ModelLayout.h"

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
} // namespace
