// SPDX-License-Identifier: MIT
#include <QTabBar>
#include <QTest>

#include "Editor/ZEFTandemEditor.h"
#include "Framework/Docking/TabManager.h"
#include "Widgets/Docking/SDockTab.h"

#include "DesktopFixture.h"

namespace
{

class DesktopLayout : public FDesktopFixture
{
protected:
	/** The visible row of tabs that has one of that label; null when there is none. */
	QTabBar* BarWith(const QString& Label) const
	{
		for (QTabBar* const Bar : View()->window()->findChildren<QTabBar*>())
		{
			if (Bar->isVisible() && IndexIn(*Bar, Label) >= 0)
			{
				return Bar;
			}
		}
		return nullptr;
	}

	static int IndexIn(const QTabBar& Bar, const QString& Label)
	{
		for (int Index = 0; Index < Bar.count(); ++Index)
		{
			if (Bar.tabText(Index) == Label)
			{
				return Index;
			}
		}
		return -1;
	}

	bool IsOpen(const TCHAR* Id) const
	{
		return Editor()->GetAssociatedTabManager()->FindExistingLiveTab(FTabId(FName(Id))).IsValid();
	}

	/** With the left button, from the middle of the tab. @param To  on the desktop */
	void DragTab(const QString& Label, const QPoint& To)
	{
		QTabBar* const Bar = BarWith(Label);
		ASSERT_NE(Bar, nullptr) << Label.toStdString();
		const QPoint From = Bar->tabRect(IndexIn(*Bar, Label)).center();
		QTest::mousePress(Bar, Qt::LeftButton, Qt::NoModifier, From);
		QTest::mouseMove(Bar, From + QPoint(60, 0));
		QTest::mouseMove(Bar, Bar->mapFromGlobal(To));
		QTest::mouseRelease(Bar, Qt::LeftButton, Qt::NoModifier, Bar->mapFromGlobal(To));
	}
};

TEST_F(DesktopLayout, TabIsDockedIntoAnotherStackWithTheMouse)
{
	OpenEditor();
	EXPECT_EQ(BarWith("Tandem Tree"), nullptr); // alone in its stack, without a row
	const QWidget* const Frame = View()->window();
	const QPoint Tree(View()->mapToGlobal(QPoint(0, 0)).x() / 2 + Frame->mapToGlobal(QPoint(0, 0)).x() / 2,
		View()->mapToGlobal(View()->rect().center()).y());
	DragTab("Details", Tree);
	ASSERT_TRUE(Until([this] { return BarWith("Tandem Tree") != nullptr; }));
	EXPECT_EQ(BarWith("Tandem Tree"), BarWith("Details"));
	EXPECT_EQ(BarWith("Preview Scene Settings")->count(), 1);
	SavePicture("desktop-docked");
}

TEST_F(DesktopLayout, TabGetsAPartOfItsOwnAtTheEdgeOfAStack)
{
	OpenEditor();
	const QPoint Foot(View()->mapToGlobal(QPoint(View()->width() / 2, View()->height() - 40)));
	const int Height = View()->height();
	DragTab("Details", Foot);
	ASSERT_TRUE(Until([&] { return View() && View()->height() < Height * 3 / 4; }));
	EXPECT_EQ(BarWith("Details")->count(), 1);
	EXPECT_GT(
		BarWith("Details")->mapToGlobal(QPoint(0, 0)).y(), View()->mapToGlobal(QPoint(0, View()->height())).y() - 5);
}

TEST_F(DesktopLayout, ComesBackAfterARestart)
{
	OpenEditor();
	ASSERT_TRUE(IsOpen(TEXT("ZEFTandemEditor_Properties")));
	ASSERT_FALSE(IsOpen(TEXT("ZEFTandemEditor_SecondaryToolbar")));
	const TSharedPtr<FTabManager> Tabs = Editor()->GetAssociatedTabManager();
	ASSERT_TRUE(Tabs->FindExistingLiveTab(FTabId(FName(TEXT("ZEFTandemEditor_PreviewScene"))))->RequestCloseTab());
	Tabs->TryInvokeTab(FTabId(FName(TEXT("ZEFTandemEditor_SecondaryToolbar"))));
	ASSERT_TRUE(Until([this] { return BarWith("Details")->count() == 1; }));

	CloseDesktop();
	OpenDesktop();
	OpenEditor();
	EXPECT_TRUE(IsOpen(TEXT("ZEFTandemEditor_SecondaryToolbar")));
	EXPECT_FALSE(IsOpen(TEXT("ZEFTandemEditor_PreviewScene")));
	ASSERT_TRUE(Until([this] { return BarWith("Details") != nullptr; }));
	EXPECT_EQ(BarWith("Details")->count(), 1);
}

} // namespace
