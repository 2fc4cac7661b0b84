// SPDX-License-Identifier: MIT
#include "DockViews.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QTabBar>
#include <QToolButton>

#include "SplitterView.h"
#include "TabDrag.h"
#include "Text.h"
#include "Theme.h"
#include "ViewWorld.h"

#include "Host/Docking.h"
#include "Host/WidgetTree.h"

namespace Host
{

namespace
{

constexpr int CrowdedTabPadding = 4;
constexpr int NarrowestTab = 96; // below this the bar scrolls

/** The width to which the widest ones have to shrink so that all fit into the room. */
int LargestShare(std::vector<int> Widths, int Room)
{
	std::sort(Widths.begin(), Widths.end());
	int Left = std::max(0, Room);
	for (std::size_t Index = 0; Index < Widths.size(); ++Index)
	{
		const int Share = Left / static_cast<int>(Widths.size() - Index);
		if (Widths[Index] > Share)
		{
			return Share;
		}
		Left -= Widths[Index];
	}
	return QWIDGETSIZE_MAX;
}

/** The row of tabs of a stack. */
class FTabBar : public QTabBar
{
public:
	explicit FTabBar(FViewWorld& InWorld)
		: World(InWorld)
	{
		setDrawBase(false);
		setExpanding(false);
		setTabsClosable(true);
		setUsesScrollButtons(true);
		setElideMode(Qt::ElideRight);
		setContextMenuPolicy(Qt::DefaultContextMenu);
		setIconSize(QSize(16, 16));
		setAccessibleName("Tabs");
		connect(this, &QTabBar::tabBarClicked, this, [this](int Index) { Activate(Index); });
		connect(this, &QTabBar::currentChanged, this,
			[this](int Index)
			{
				if (!bFollowing)
				{
					Activate(Index);
				}
			});
		connect(this, &QTabBar::tabCloseRequested, this, [this](int Index) { Close(Index); });
	}

	void Follow(SDockStack& Stack)
	{
		bFollowing = true;
		WeakStack = StaticCastSharedRef<SDockStack>(Stack.AsShared());
		const TArray<TSharedRef<SDockTab>> Now = Stack.GetTabs();
		while (count() > Now.Num())
		{
			removeTab(count() - 1);
		}
		while (count() < Now.Num())
		{
			addTab(QString());
		}
		Tabs.clear();
		Icons.resize(static_cast<std::size_t>(Now.Num()));
		for (int32 Index = 0; Index < Now.Num(); ++Index)
		{
			SDockTab& Tab = *Now[Index];
			Tabs.emplace_back(Now[Index]);
			const QString Label = ToQString(Tab.GetTabLabel());
			const QString Escaped = QString(Label).replace('&', "&&");
			if (tabText(Index) != Escaped)
			{
				setTabText(Index, Escaped);
				setAccessibleTabName(Index, Label);
			}
			const FSlateBrush* const Brush = Tab.GetTabIcon();
			if (Icons[static_cast<std::size_t>(Index)] != Brush)
			{
				Icons[static_cast<std::size_t>(Index)] = Brush;
				ShowIcon(Index);
				Fitted.clear();
			}
			const QString ToolTip = ToQString(Tab.GetToolTipText());
			const QString Whole = ToolTip.isEmpty() || ToolTip == Label ? Label : Label + "\n" + ToolTip;
			if (tabToolTip(Index) != Whole)
			{
				setTabToolTip(Index, Whole);
			}
			if (Tab.IsForeground() && currentIndex() != Index)
			{
				setCurrentIndex(Index);
			}
		}
		bFollowing = false;
	}

	/** Makes room for the labels where they do not fit otherwise. @param Room  width that the bar may take */
	void FitInto(int Room)
	{
		QString Now = QString::number(Room);
		for (int Index = 0; Index < count(); ++Index)
		{
			Now += '\n' + tabText(Index);
		}
		if (Now == Fitted)
		{
			return;
		}
		Fitted = Now;
		for (const ECrowd Each : {ECrowd::None, ECrowd::NarrowPadding, ECrowd::NoPictures})
		{
			SetCrowd(Each);
			int Wanted = 0;
			for (int Index = 0; Index < count(); ++Index)
			{
				Wanted += tabSizeHint(Index).width();
			}
			if (Wanted <= Room)
			{
				break;
			}
		}
	}

	int32 IndexAt(const QPoint& Position) const
	{
		for (int Index = 0; Index < count(); ++Index)
		{
			if (Position.x() < tabRect(Index).center().x())
			{
				return Index;
			}
		}
		return count();
	}

protected:
	/** Long labels give way first: a label that is no longer than an equal share of the bar stays whole. */
	QSize minimumTabSizeHint(int Index) const override
	{
		std::vector<int> Widths;
		for (int Each = 0; Each < count(); ++Each)
		{
			Widths.push_back(tabSizeHint(Each).width());
		}
		const QSize Whole = tabSizeHint(Index);
		return QSize(
			std::min(Whole.width(), std::max(NarrowestTab, LargestShare(std::move(Widths), width()))), Whole.height());
	}

	void mousePressEvent(QMouseEvent* Event) override
	{
		Pressed = Event->button() == Qt::LeftButton ? tabAt(Event->position().toPoint()) : -1;
		PressedAt = Event->globalPosition().toPoint();
		if (Event->button() == Qt::MiddleButton)
		{
			Close(tabAt(Event->position().toPoint()));
			return;
		}
		QTabBar::mousePressEvent(Event);
	}

	void mouseMoveEvent(QMouseEvent* Event) override
	{
		const QPoint Pointer = Event->globalPosition().toPoint();
		if (!Drag && Pressed >= 0 && Event->buttons().testFlag(Qt::LeftButton) &&
			(Pointer - PressedAt).manhattanLength() >= QApplication::startDragDistance() * 2)
		{
			if (const TSharedPtr<SDockTab> Tab = TabOf(Pressed))
			{
				Drag = std::make_unique<FTabDragView>(World, Tab.ToSharedRef(), ToQString(Tab->GetTabLabel()));
				grabKeyboard(); // for Escape
			}
		}
		if (Drag)
		{
			Drag->MoveTo(Pointer);
			return;
		}
		QTabBar::mouseMoveEvent(Event);
	}

	void mouseReleaseEvent(QMouseEvent* Event) override
	{
		Pressed = -1;
		if (const std::unique_ptr<FTabDragView> Ending = EndDrag())
		{
			Ending->Drop(Event->globalPosition().toPoint());
			return;
		}
		QTabBar::mouseReleaseEvent(Event);
	}

	void keyPressEvent(QKeyEvent* Event) override
	{
		if (Event->key() == Qt::Key_Escape && EndDrag())
		{
			return;
		}
		if (Event->key() == Qt::Key_Delete)
		{
			Close(currentIndex());
			return;
		}
		QTabBar::keyPressEvent(Event);
	}

	void hideEvent(QHideEvent* Event) override
	{
		EndDrag();
		QTabBar::hideEvent(Event);
	}

	void contextMenuEvent(QContextMenuEvent* Event) override
	{
		const int Index = Event->reason() == QContextMenuEvent::Mouse ? tabAt(Event->pos()) : currentIndex();
		const TWeakPtr<SDockTab> Weak = TabOf(Index);
		const TWeakPtr<SDockStack> Stack = WeakStack;
		if (!Weak.IsValid())
		{
			return;
		}
		auto* const Menu = new QMenu(this);
		Menu->setAttribute(Qt::WA_DeleteOnClose);
		const auto Add = [Menu, Weak](const char* Label, auto Act)
		{
			return Menu->addAction(Label, Menu,
				[Weak, Act]
				{
					if (const TSharedPtr<SDockTab> Tab = Weak.Pin())
					{
						Act(Tab.ToSharedRef());
					}
				});
		};
		Add("Close tab", [](const TSharedRef<SDockTab>& Tab) { Tab->RequestCloseTab(); })
			->setEnabled(Weak.Pin()->CanCloseTab());
		const QPoint At = mapToGlobal(tabRect(Index).bottomLeft());
		Add("Undock into a window",
			[At](const TSharedRef<SDockTab>& Tab) { FloatTab(Tab, FVector2D(At.x() + 30, At.y() + 30)); });
		Menu->addSeparator();
		QAction* const Hide = Add("Hide tabs",
			[Stack](const TSharedRef<SDockTab>&)
			{
				if (const TSharedPtr<SDockStack> Current = Stack.Pin())
				{
					HideTabWell(*Current);
				}
			});
		Hide->setEnabled(count() == 1);
		Menu->popup(Event->reason() == QContextMenuEvent::Mouse ? Event->globalPos() : At);
	}

private:
	/** What has been given up for the sake of the labels. */
	enum class ECrowd
	{
		None,
		NarrowPadding,
		NoPictures,
	};

	void SetCrowd(ECrowd NewCrowd)
	{
		if (NewCrowd == Crowd)
		{
			return;
		}
		Crowd = NewCrowd;
		// A sheet of the widget's own has the style measure the tabs anew.
		setStyleSheet(
			Crowd == ECrowd::None
				? QString()
				: QString("QTabBar::tab { padding-left: %1px; padding-right: %1px; }").arg(CrowdedTabPadding));
		for (int Index = 0; Index < count(); ++Index)
		{
			ShowIcon(Index);
		}
		updateGeometry();
	}

	void ShowIcon(int Index)
	{
		const FSlateBrush* const Brush = Icons[static_cast<std::size_t>(Index)];
		setTabIcon(Index, Crowd == ECrowd::NoPictures ? QIcon() : World.Brushes.Icon(Brush));
	}

	TSharedPtr<SDockTab> TabOf(int Index) const
	{
		return Index >= 0 && Index < static_cast<int>(Tabs.size()) ? Tabs[static_cast<std::size_t>(Index)].Pin()
																   : nullptr;
	}

	void Activate(int Index)
	{
		if (const TSharedPtr<SDockTab> Tab = TabOf(Index))
		{
			Tab->ActivateInParent(ETabActivationCause::UserClickedOnTab);
		}
	}

	void Close(int Index)
	{
		if (const TSharedPtr<SDockTab> Tab = TabOf(Index))
		{
			Tab->RequestCloseTab();
		}
	}

	std::unique_ptr<FTabDragView> EndDrag()
	{
		if (Drag)
		{
			releaseKeyboard();
		}
		return std::move(Drag);
	}

	FViewWorld& World;
	TWeakPtr<SDockStack> WeakStack;
	std::vector<TWeakPtr<SDockTab>> Tabs;
	std::vector<const FSlateBrush*> Icons;
	std::unique_ptr<FTabDragView> Drag;
	QPoint PressedAt;
	int Pressed = -1;
	bool bFollowing = false;
	ECrowd Crowd = ECrowd::None;
	QString Fitted; // room and labels that the crowd was found for
};

class FStackView : public FWidgetView
{
public:
	FStackView(FViewWorld& InWorld, const TSharedRef<SWidget>& InModel)
		: FWidgetView(InWorld, InModel, new QWidget)
		, Bar(new FTabBar(InWorld))
		, Area(new QWidget)
		, AreaLayout(new FModelLayout(EPanelKind::Stack))
		, Corner(new QToolButton(Native()))
	{
		auto* const Column = new FModelLayout(EPanelKind::Column);
		Native()->setLayout(Column);
		FPlace BarPlace;
		BarPlace.Horizontal = EPlaceAlign::Begin;
		Column->Add(Bar, BarPlace);
		FPlace Rest;
		Rest.Stretch = 1;
		Area->setAutoFillBackground(true);
		Area->setLayout(AreaLayout);
		Column->Add(Area, Rest);
		Corner->setFixedSize(14, 14);
		Corner->setText(QString(QChar(0x25e4)));
		Corner->setStyleSheet("QToolButton { color: #0e86ff; padding: 0; border: none; background: transparent; }"
							  "QToolButton:hover { color: #ffffff; }");
		Corner->setToolTip("Show the tab");
		Corner->setAccessibleName("Show the tab");
		Corner->setFocusPolicy(Qt::TabFocus);
		const TWeakPtr<SWidget> Weak = InModel;
		QObject::connect(Corner, &QToolButton::clicked, Corner,
			[Weak]
			{
				if (const TSharedPtr<SWidget> Stack = Weak.Pin())
				{
					ShowTabWell(static_cast<SDockStack&>(*Stack));
				}
			});
	}

	FTabBar* Bar;

protected:
	void FollowModel(SWidget& Model) override
	{
		SDockStack& Stack = static_cast<SDockStack&>(Model);
		const bool bHidden = Stack.IsTabWellHidden();
		if (Bar->isHidden() != bHidden)
		{
			Bar->setHidden(bHidden);
		}
		Corner->setVisible(bHidden);
		Native()->setMinimumHeight(bHidden ? Corner->height() : 0); // which stays in reach over an empty tab
		if (bHidden)
		{
			Corner->raise();
		}
		Bar->Follow(Stack);
		Bar->FitInto(Native()->width());
		const std::uint32_t Now = StructureVersion(Model);
		if (!bTaken || Now != Structure)
		{
			bTaken = true;
			Structure = Now;
			TakeTabs(Stack);
		}
		for (const std::unique_ptr<FWidgetView>& Tab : Tabs)
		{
			Tab->Follow();
		}
	}

private:
	void TakeTabs(SDockStack& Stack)
	{
		std::vector<std::unique_ptr<FWidgetView>> Former = std::move(Tabs);
		Tabs.clear();
		AreaLayout->Clear();
		for (const TSharedRef<SDockTab>& Tab : Stack.GetTabs())
		{
			const auto Known = std::find_if(Former.begin(), Former.end(),
				[&Tab](const std::unique_ptr<FWidgetView>& View) { return View && View->Model() == Tab; });
			Tabs.push_back(Known != Former.end() ? std::move(*Known) : World.Make(Tab));
			AreaLayout->Add(Tabs.back()->Native(), FPlace());
		}
	}

	QWidget* Area;
	FModelLayout* AreaLayout;
	QToolButton* Corner;
	std::vector<std::unique_ptr<FWidgetView>> Tabs;
	bool bTaken = false;
	std::uint32_t Structure = 0;
};

} // namespace

std::unique_ptr<FWidgetView> MakeDockView(FViewWorld& World, const TSharedRef<SWidget>& Model)
{
	if (dynamic_cast<const SDockStack*>(&Model.Get()))
	{
		return std::make_unique<FStackView>(World, Model);
	}
	return dynamic_cast<const SDockSplitter*>(&Model.Get()) ? MakeSplitterView(World, Model) : nullptr;
}

FDockTarget DockTargetAt(const FViewWorld& World, QWidget* Native)
{
	FDockTarget Target;
	for (QWidget* At = Native; At && !Target.Area.IsValid(); At = At->parentWidget())
	{
		FWidgetView* const View = World.ViewAt(At);
		if (!View)
		{
			break;
		}
		At = View->Native();
		const TSharedPtr<SWidget> Model = View->Model();
		if (auto* const StackView = dynamic_cast<FStackView*>(View); StackView && !Target.Stack.IsValid())
		{
			Target.Stack = StaticCastSharedPtr<SDockStack>(Model);
			Target.StackNative = At;
			FTabBar* const Bar = StackView->Bar;
			Target.TabBar = Bar->isVisible() ? Bar : nullptr;
			Target.IndexAt = [Bar](const QPoint& Position) { return Bar->IndexAt(Position); };
		}
		else if (dynamic_cast<SDockArea*>(Model.Get()))
		{
			Target.Area = StaticCastSharedPtr<SDockArea>(Model);
			Target.AreaNative = At;
		}
	}
	return Target;
}

} // namespace Host
