// SPDX-License-Identifier: MIT
#include "DockViews.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QSplitter>
#include <QTabBar>
#include <QToolButton>

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
				setTabIcon(Index, World.Brushes.Icon(Brush));
			}
			const QString ToolTip = ToQString(Tab.GetToolTipText());
			setTabToolTip(Index, ToolTip.isEmpty() ? Label : ToolTip);
			if (Tab.IsForeground() && currentIndex() != Index)
			{
				setCurrentIndex(Index);
			}
		}
		bFollowing = false;
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
		if (bHidden)
		{
			Corner->raise();
		}
		Bar->Follow(Stack);
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

/** A splitter that keeps the model's shares while its size changes. */
class FSplitter : public QSplitter
{
public:
	using QSplitter::QSplitter;

	std::vector<double> Shares; // of the widgets that are seen; 0 for others

	void ApplyShares()
	{
		double Sum = 0;
		for (const double Share : Shares)
		{
			Sum += Share;
		}
		const int Room = orientation() == Qt::Horizontal ? width() : height();
		if (Sum <= 0 || Room <= 0 || static_cast<int>(Shares.size()) != count())
		{
			return;
		}
		QList<int> Sizes;
		for (const double Share : Shares)
		{
			Sizes << std::max(Share > 0 ? 1 : 0, qRound(Room * Share / Sum));
		}
		setSizes(Sizes);
	}

protected:
	void resizeEvent(QResizeEvent* Event) override
	{
		QSplitter::resizeEvent(Event);
		ApplyShares();
	}
};

class FSplitterView : public FWidgetView
{
public:
	FSplitterView(FViewWorld& InWorld, const TSharedRef<SWidget>& InModel, Qt::Orientation Orientation)
		: FWidgetView(InWorld, InModel, new FSplitter(Orientation))
	{
		Splitter().setChildrenCollapsible(false);
		Splitter().setHandleWidth(4);
		const TWeakPtr<SWidget> Weak = InModel;
		QObject::connect(&Splitter(), &QSplitter::splitterMoved, &Splitter(),
			[this, Weak](int, int)
			{
				if (const TSharedPtr<SWidget> Model = Weak.Pin())
				{
					TellShares(static_cast<SDockSplitter&>(*Model));
				}
			});
	}

protected:
	void FollowModel(SWidget& Model) override
	{
		SDockSplitter& Dock = static_cast<SDockSplitter&>(Model);
		const std::uint32_t Now = StructureVersion(Model);
		const bool bNew = !bTaken || Now != Structure;
		if (bNew)
		{
			bTaken = true;
			Structure = Now;
			TakeNodes(Dock);
		}
		for (const std::unique_ptr<FWidgetView>& Node : Nodes)
		{
			Node->Follow();
		}
		std::vector<double> Shares;
		for (int32 Index = 0; Index < Dock.NumNodes(); ++Index)
		{
			const TSharedRef<SDockNode> Node = Dock.GetNode(Index);
			Shares.push_back(Node->HasOpenTabs() ? static_cast<double>(Node->GetSizeCoefficient()) : 0.0);
		}
		if (bNew || Shares != Splitter().Shares)
		{
			Splitter().Shares = Shares;
			Splitter().ApplyShares();
		}
	}

private:
	FSplitter& Splitter() const { return *static_cast<FSplitter*>(Native()); }

	void TakeNodes(SDockSplitter& Dock)
	{
		std::vector<std::unique_ptr<FWidgetView>> Former = std::move(Nodes);
		Nodes.clear();
		for (int32 Index = 0; Index < Dock.NumNodes(); ++Index)
		{
			const TSharedRef<SDockNode> Node = Dock.GetNode(Index);
			const auto Known = std::find_if(Former.begin(), Former.end(),
				[&Node](const std::unique_ptr<FWidgetView>& View) { return View && View->Model() == Node; });
			Nodes.push_back(Known != Former.end() ? std::move(*Known) : World.Make(Node));
			Splitter().insertWidget(Index, Nodes.back()->Native());
		}
		Former.clear(); // takes its native widgets out, which the splitter counts
	}

	void TellShares(SDockSplitter& Dock)
	{
		const QList<int> Sizes = Splitter().sizes();
		if (Sizes.size() != Dock.NumNodes())
		{
			return;
		}
		double Pixels = 0;
		double Sum = 0;
		for (int32 Index = 0; Index < Dock.NumNodes(); ++Index)
		{
			if (Dock.GetNode(Index)->HasOpenTabs())
			{
				Pixels += Sizes[Index];
				Sum += static_cast<double>(Dock.GetNode(Index)->GetSizeCoefficient());
			}
		}
		TArray<float> Shares;
		for (int32 Index = 0; Index < Dock.NumNodes(); ++Index)
		{
			const TSharedRef<SDockNode> Node = Dock.GetNode(Index);
			// What takes no room keeps its share for later.
			const double Share = Node->HasOpenTabs() && Pixels > 0 ? Sum * std::max(1, Sizes[Index]) / Pixels
																   : static_cast<double>(Node->GetSizeCoefficient());
			Shares.Add(static_cast<float>(Share));
		}
		if (ResizeSplitter(Dock, Shares))
		{
			Splitter().Shares.clear();
			for (int32 Index = 0; Index < Dock.NumNodes(); ++Index)
			{
				const TSharedRef<SDockNode> Node = Dock.GetNode(Index);
				Splitter().Shares.push_back(
					Node->HasOpenTabs() ? static_cast<double>(Node->GetSizeCoefficient()) : 0.0);
			}
		}
	}

	std::vector<std::unique_ptr<FWidgetView>> Nodes;
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
	if (const auto* const Splitter = dynamic_cast<const SDockSplitter*>(&Model.Get()))
	{
		return std::make_unique<FSplitterView>(
			World, Model, Splitter->GetOrientation() == Orient_Horizontal ? Qt::Horizontal : Qt::Vertical);
	}
	return nullptr;
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
