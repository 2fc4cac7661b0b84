// SPDX-License-Identifier: MIT
#include "TabDrag.h"

#include <QApplication>
#include <QLabel>

#include "DockViews.h"
#include "Theme.h"
#include "ViewWorld.h"

namespace Host
{

namespace
{

/** Part of a stack's width and height within which a tab goes beside it and not into it. */
constexpr double EdgeShare = 0.25;
/** Pixels from an area's border within which a tab goes beside everything in it. */
constexpr int AreaEdge = 14;
const QPoint GhostOffset(14, 10);

EDockPlace EdgeOf(const QRect& Rect, const QPoint& At, double Width, double Height)
{
	const double Left = (At.x() - Rect.left()) / Width;
	const double Right = (Rect.right() - At.x()) / Width;
	const double Above = (At.y() - Rect.top()) / Height;
	const double Below = (Rect.bottom() - At.y()) / Height;
	const double Nearest = std::min(std::min(Left, Right), std::min(Above, Below));
	if (Nearest > 1.0)
	{
		return EDockPlace::Into;
	}
	return Nearest == Left	  ? EDockPlace::Left
		   : Nearest == Right ? EDockPlace::Right
		   : Nearest == Above ? EDockPlace::Above
							  : EDockPlace::Below;
}

QRect HalfOf(const QRect& Rect, EDockPlace Place)
{
	QRect Half = Rect;
	switch (Place)
	{
		case EDockPlace::Into:
			break;
		case EDockPlace::Left:
			Half.setWidth(Rect.width() / 2);
			break;
		case EDockPlace::Right:
			Half.setLeft(Rect.center().x());
			break;
		case EDockPlace::Above:
			Half.setHeight(Rect.height() / 2);
			break;
		case EDockPlace::Below:
			Half.setTop(Rect.center().y());
			break;
	}
	return Half;
}

QRect OnDesktop(const QWidget& Widget)
{
	return QRect(Widget.mapToGlobal(QPoint(0, 0)), Widget.size());
}

} // namespace

FTabDragView::FTabDragView(FViewWorld& InWorld, const TSharedRef<SDockTab>& Tab, const QString& Label)
	: World(InWorld)
	, Drag(Tab)
{
	auto* const Text = new QLabel(Label, nullptr, Qt::ToolTip | Qt::FramelessWindowHint);
	Text->setAttribute(Qt::WA_TransparentForMouseEvents);
	Text->setStyleSheet("background: #2f2f2f; color: #ffffff; border: 1px solid #0070e0; padding: 5px 12px;");
	Ghost = Text;
}

FTabDragView::~FTabDragView()
{
	delete Ghost.data();
	delete Marker.data();
}

FDropPlace FTabDragView::Find(const QPoint& Pointer) const
{
	FDropPlace Found;
	const FDockTarget Target = DockTargetAt(World, QApplication::widgetAt(Pointer));
	if (!Target.Stack.IsValid())
	{
		return Found;
	}
	Found.Window = Target.StackNative->window();
	const QRect StackRect = OnDesktop(*Target.StackNative);
	if (Target.TabBar && OnDesktop(*Target.TabBar).contains(Pointer))
	{
		Found.Node = Target.Stack;
		Found.Index = Target.IndexAt(Target.TabBar->mapFromGlobal(Pointer));
		Found.Area = StackRect;
		return Drag.CanDrop(Found.Node, Found.Place) ? Found : FDropPlace();
	}
	if (Target.AreaNative)
	{
		const QRect AreaRect = OnDesktop(*Target.AreaNative);
		Found.Node = Target.Area;
		Found.Place = EdgeOf(AreaRect, Pointer, AreaEdge, AreaEdge);
		Found.Area = HalfOf(AreaRect, Found.Place);
		if (Found.Place != EDockPlace::Into && Drag.CanDrop(Found.Node, Found.Place))
		{
			return Found;
		}
	}
	Found.Node = Target.Stack;
	Found.Place = EdgeOf(StackRect, Pointer, StackRect.width() * EdgeShare, StackRect.height() * EdgeShare);
	Found.Area = HalfOf(StackRect, Found.Place);
	return Drag.CanDrop(Found.Node, Found.Place) ? Found : FDropPlace();
}

void FTabDragView::MoveTo(const QPoint& Pointer)
{
	if (Ghost)
	{
		Ghost->move(Pointer + GhostOffset);
		Ghost->show();
	}
	const FDropPlace Place = Find(Pointer);
	if (!Place.IsSet() || !Place.Window)
	{
		delete Marker.data();
		return;
	}
	if (!Marker || Marker->parentWidget() != Place.Window)
	{
		delete Marker.data();
		Marker = new QWidget(Place.Window);
		Marker->setObjectName("DropMarker");
		Marker->setAttribute(Qt::WA_TransparentForMouseEvents);
		Marker->setAttribute(Qt::WA_StyledBackground);
		Marker->setStyleSheet("background: rgba(0, 112, 224, 90); border: 2px solid #0e86ff;");
	}
	Marker->setGeometry(QRect(Place.Window->mapFromGlobal(Place.Area.topLeft()), Place.Area.size()));
	Marker->raise();
	Marker->show();
}

void FTabDragView::Drop(const QPoint& Pointer)
{
	const FDropPlace Place = Find(Pointer);
	if (Place.IsSet())
	{
		Drag.Drop(Place.Node, Place.Place, Place.Index);
	}
	else if (!DockTargetAt(World, QApplication::widgetAt(Pointer)).Stack.IsValid())
	{
		Drag.DropOutside(FVector2D(Pointer.x(), Pointer.y()));
	}
	World.Wake();
}

} // namespace Host
