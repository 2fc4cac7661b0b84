// SPDX-License-Identifier: MIT
#include <QAbstractButton>
#include <QCheckBox>
#include <QDialog>
#include <QSplitter>
#include <QTabBar>
#include <QTest>

#include "Components/PrimitiveComponent.h"
#include "Editor/Widgets/TandemViewport/SZEFTandemEditorViewport.h"
#include "Editor/ZEFTandemEditor.h"
#include "EditorViewportClient.h"
#include "Framework/Docking/TabManager.h"
#include "Host/Docking.h"

#include "DesktopFixture.h"

namespace
{

class Desktop : public FDesktopFixture
{
protected:
	static int NumWindows()
	{
		int Count = 0;
		for (const QWidget* const Top : QApplication::topLevelWidgets())
		{
			Count += Top->isVisible() && Top->windowType() == Qt::Window;
		}
		return Count;
	}

	/** Aims the camera so that the middle of the view shows an object. */
	void LookAt(int ObjectType)
	{
		const UPrimitiveComponent* const Object = Editor()->GetObjectComponents(ObjectType)[0];
		const TSharedPtr<FEditorViewportClient> Client = Editor()->GetViewport()->GetViewportClient();
		Client->FocusViewportOnBox(Object->Bounds.GetBox(), true);
		Client->Invalidate();
		ASSERT_TRUE(UntilStill());
	}
};

TEST_F(Desktop, ShowsTheLinksAddressAndThatNobodyIsThere)
{
	OpenEditor();
	EXPECT_TRUE(Until(
		[this]
		{
			const QLabel* const State = Window()->findChild<QLabel*>("LinkState");
			return State && State->text().contains("no garment application");
		}));
	EXPECT_EQ(Window()->findChild<QLabel*>("LinkAddress")->text().toStdString(), Endpoint());
	StartPeer();
	EXPECT_TRUE(
		Until([this] { return Window()->findChild<QLabel*>("LinkState")->text().contains("connected to zef-peer"); }));
}

TEST_F(Desktop, AsksBeforeAnUpdateThenTellsOfItAndShowsTheObjects)
{
	StartPeer();
	OpenEditor();
	QString Asked;
	WithNextDialog(
		[&Asked](QDialog& Dialog)
		{
			Asked = Dialog.windowTitle() + "|" + Dialog.findChild<QLabel*>("Message")->text().section('\n', 0, 0) +
					"|" + Dialog.findChild<QCheckBox*>()->text();
			ButtonOf(Dialog, "Ok")->click();
		});
	Click("Update");
	EXPECT_EQ(Asked, "Warning|Make sure to turn off simulation in ZEF|Don't ask me again");
	EXPECT_TRUE(Until([this] { return Named("Update Requested") != nullptr; }));
	EXPECT_TRUE(Until([this] { return NumObjects(2) == 1 && NumObjects(4) == 1 && NumObjects(8) == 1; }));
	LookAt(4);
	SavePicture("desktop-after-update");
	// The avatar stands in the middle of a view that is light all over.
	const QImage Image = View()->grab().toImage();
	const QPoint Middle = Image.rect().center();
	int Dark = 0;
	for (int Y = Middle.y() - 60; Y < Middle.y() + 60; ++Y)
	{
		Dark += Image.pixelColor(Middle.x(), Y).lightness() < 150;
	}
	EXPECT_GT(Dark, 20);
	EXPECT_GT(Image.pixelColor(Image.width() - 12, Image.height() - 12).lightness(), 150);
}

TEST_F(Desktop, CancelledUpdateChangesNothing)
{
	StartPeer();
	OpenEditor();
	WithNextDialog([](QDialog& Dialog) { ButtonOf(Dialog, "Cancel")->click(); });
	Click("Update");
	EXPECT_EQ(Named("Update Requested"), nullptr);
	EXPECT_EQ(NumObjects(2), 0);
}

TEST_F(Desktop, ClickInTheViewSelectsAndAClickBesideClears)
{
	StartPeer();
	OpenEditor();
	Update();
	LookAt(4);
	QTest::mouseClick(View(), Qt::LeftButton, Qt::NoModifier, View()->rect().center());
	ASSERT_TRUE(Until([this] { return Editor()->GetSelectedObjects().Num() == 1; }));
	ASSERT_TRUE(UntilStill());
	SavePicture("desktop-selected");

	QTest::mouseClick(View(), Qt::LeftButton, Qt::NoModifier, QPoint(8, View()->height() - 8));
	EXPECT_TRUE(Until([this] { return Editor()->GetSelectedObjects().Num() == 0; }));
}

TEST_F(Desktop, DeleteKeyInTheViewRemovesTheSelectedGarment)
{
	StartPeer();
	OpenEditor();
	Update();
	FocusView();
	Editor()->SetSelectedObjects(Editor()->GetObjectComponents(2), true);
	QTest::keyClick(View(), Qt::Key_Delete);
	EXPECT_TRUE(Until([this] { return NumObjects(2) == 0; }));
	EXPECT_EQ(NumObjects(4), 1);
}

TEST_F(Desktop, DragInTheViewMovesTheCamera)
{
	StartPeer();
	OpenEditor();
	const TSharedPtr<FEditorViewportClient> Client = Editor()->GetViewport()->GetViewportClient();
	const FVector Before = Client->GetViewLocation();
	const QPoint Middle = View()->rect().center();
	QTest::mousePress(View(), Qt::LeftButton, Qt::AltModifier, Middle);
	for (int Step = 1; Step <= 10; ++Step)
	{
		QTest::mouseMove(View(), Middle + QPoint(8 * Step, 0));
	}
	QTest::mouseRelease(View(), Qt::LeftButton, Qt::AltModifier, Middle + QPoint(80, 0));
	EXPECT_TRUE(Until([&] { return (Client->GetViewLocation() - Before).Size() > 1.0; }));
}

TEST_F(Desktop, ClosingTheWindowWhileAQuestionStandsDismissesTheQuestion)
{
	StartPeer();
	OpenEditor();
	WithNextDialog([this](QDialog&) { Window()->close(); });
	Click("Update");
	EXPECT_TRUE(Until([this] { return !Running->IsOpen(); }));
}

TEST_F(Desktop, ClosingTheWindowInTheMiddleOfAnUpdateIsSafe)
{
	StartPeer();
	OpenEditor();
	WithNextDialog([](QDialog& Dialog) { ButtonOf(Dialog, "Ok")->click(); });
	Click("Update");
	Window()->close();
	EXPECT_TRUE(Until([this] { return !Running->IsOpen(); }));
}

TEST_F(Desktop, LosingThePeerIsToldOnceAndTheWindowGoesOn)
{
	StartPeer();
	OpenEditor();
	Update();
	int Told = 0;
	WithNextDialog(
		[&Told](QDialog& Dialog)
		{
			++Told;
			EXPECT_EQ(Dialog.findChild<QLabel*>("Message")->text(),
				"There is no Tandem connection.\nPlease restart ZEF or KR.");
			ButtonOf(Dialog, "OK")->click();
		});
	Peer.reset();
	EXPECT_TRUE(Until([&Told] { return Told == 1; }));
	EXPECT_EQ(NumObjects(2), 1);
	const std::uint64_t Before = Running->FrameCount();
	EXPECT_TRUE(Until([&] { return Running->FrameCount() > Before + 2; }));
	EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Desktop, TabIsFloatedClosedAndComesBackToItsPlace)
{
	OpenEditor();
	const TSharedPtr<FTabManager> Tabs = Editor()->GetAssociatedTabManager();
	const FTabId Details(FName(TEXT("ZEFTandemEditor_Properties")));
	const int Windows = NumWindows();
	ASSERT_TRUE(Host::FloatTab(Tabs->TryInvokeTab(Details).ToSharedRef(), FVector2D(60.0, 60.0)));
	ASSERT_TRUE(Until([&] { return NumWindows() == Windows + 1; }));

	ASSERT_TRUE(Tabs->FindExistingLiveTab(Details)->RequestCloseTab());
	EXPECT_TRUE(Until([&] { return NumWindows() == Windows; }));
	EXPECT_FALSE(Tabs->FindExistingLiveTab(Details).IsValid());

	Tabs->TryInvokeTab(Details);
	EXPECT_TRUE(Until([&] { return NumWindows() == Windows + 1; }));
}

TEST_F(Desktop, TabIsDraggedWithTheMouseIntoAWindowOfItsOwn)
{
	OpenEditor();
	QTabBar* Bar = nullptr;
	for (QTabBar* const Candidate : View()->window()->findChildren<QTabBar*>())
	{
		Bar = Candidate->isVisible() && Candidate->count() == 2 ? Candidate : Bar;
	}
	ASSERT_NE(Bar, nullptr);
	const int Windows = NumWindows();
	const QPoint From = Bar->tabRect(1).center();
	const QPoint Outside(Bar->mapFromGlobal(QPoint(-400, -400)));
	QTest::mousePress(Bar, Qt::LeftButton, Qt::NoModifier, From);
	QTest::mouseMove(Bar, From + QPoint(60, 0));
	QTest::mouseMove(Bar, Outside);
	QTest::mouseRelease(Bar, Qt::LeftButton, Qt::NoModifier, Outside);
	EXPECT_TRUE(Until([&] { return NumWindows() == Windows + 1 && Bar->count() == 1; }));
}

TEST_F(Desktop, ToolBarTabIsAsHighAsItsContentWhateverTheWindowsHeight)
{
	OpenEditor();
	QWidget* const Frame = View()->window();
	Frame->resize(1200, 700);
	const TSharedPtr<SDockTab> Tab =
		Editor()->GetAssociatedTabManager()->TryInvokeTab(FTabId(FName(TEXT("ZEFTandemEditor_SecondaryToolbar"))));
	ASSERT_TRUE(Tab.IsValid());
	const auto OuterSplitter = [this]
	{
		QSplitter* Outermost = nullptr;
		for (QWidget* Above = View(); Above; Above = Above->parentWidget())
		{
			auto* const Splitter = qobject_cast<QSplitter*>(Above);
			Outermost =
				Splitter && Splitter->orientation() == Qt::Vertical && Splitter->count() == 2 ? Splitter : Outermost;
		}
		return Outermost;
	};
	ASSERT_NE(OuterSplitter(), nullptr);
	const auto IsAsHighAsItsContent = [&]
	{
		const QWidget* const Part = OuterSplitter()->widget(0);
		return Part->isVisible() && Part->height() < 50 &&
			   Part->height() == std::max(Part->sizeHint().height(), Part->minimumHeight());
	};
	EXPECT_TRUE(Until(IsAsHighAsItsContent)) << OuterSplitter()->widget(0)->height();
	SavePicture("desktop-tool-bar-tab");
	const int Before = OuterSplitter()->widget(0)->height();
	Frame->resize(1200, 1000);
	EXPECT_TRUE(Until([&] { return OuterSplitter()->height() > 800; }));
	EXPECT_EQ(OuterSplitter()->widget(0)->height(), Before);
	EXPECT_FALSE(OuterSplitter()->handle(1)->isEnabled());
}

TEST_F(Desktop, ShortTabLabelsStayWholeWhereLongOnesGiveWay)
{
	OpenEditor();
	QTabBar* Bar = nullptr;
	for (QTabBar* const Candidate : View()->window()->findChildren<QTabBar*>())
	{
		Bar = Candidate->isVisible() && Candidate->count() == 2 ? Candidate : Bar;
	}
	ASSERT_NE(Bar, nullptr);
	ASSERT_EQ(Bar->tabText(1), "Details");
	EXPECT_EQ(Bar->tabToolTip(0), "Preview Scene Settings");
	const auto Needed = [Bar](int Index) { return Bar->fontMetrics().horizontalAdvance(Bar->tabText(Index)); };
	constexpr int Cross = 16;
	QWidget* const Frame = View()->window();
	Frame->resize(1400, 700);
	ASSERT_TRUE(Until([&] { return Bar->tabRect(0).width() >= Needed(0) + Cross; }));
	EXPECT_GE(Bar->tabRect(1).width(), Needed(1) + Cross);
	SavePicture("desktop-tabs");

	const int Roomy = Bar->tabRect(1).width();
	Frame->resize(1000, 700);
	ASSERT_TRUE(Until([&] { return Bar->tabRect(0).width() < Needed(0) + Cross; }));
	EXPECT_EQ(Bar->tabRect(1).width(), Roomy);
	EXPECT_LE(Bar->tabRect(1).right(), Bar->width());
	SavePicture("desktop-narrow-tabs");
}

TEST_F(Desktop, ClosingTheWindowWhileATabIsDraggedIsSafe)
{
	OpenEditor();
	QTabBar* Bar = nullptr;
	for (QTabBar* const Candidate : View()->window()->findChildren<QTabBar*>())
	{
		Bar = Candidate->isVisible() && Candidate->count() == 2 ? Candidate : Bar;
	}
	ASSERT_NE(Bar, nullptr);
	const QPoint From = Bar->tabRect(1).center();
	QTest::mousePress(Bar, Qt::LeftButton, Qt::NoModifier, From);
	QTest::mouseMove(Bar, From + QPoint(60, 0));
	Window()->close();
	EXPECT_TRUE(Until([this] { return !Running->IsOpen(); }));
}

TEST_F(Desktop, ClosedEditorIsGoneAndTheNextClickOpensAnother)
{
	OpenEditor();
	const FZEFTandemEditor* const First = Editor().Get();
	ASSERT_NE(First, nullptr);
	Editor()->CloseWindow();
	ASSERT_TRUE(Until([this] { return !Editor().IsValid(); }));
	OpenEditor();
	EXPECT_TRUE(Editor().IsValid());
}

} // namespace
