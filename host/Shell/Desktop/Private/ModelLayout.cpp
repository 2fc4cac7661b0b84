// SPDX-License-Identifier: MIT
#include "ModelLayout.h"

#include <QWidget>

#include <algorithm>

namespace Host
{

namespace
{

/** The part of `From .. From + Length` that an item gets that wants `Wanted`. */
std::pair<int, int> Span(EPlaceAlign Align, int From, int Length, int Wanted)
{
	const int Size = Align == EPlaceAlign::Fill ? Length : std::min(Length, Wanted);
	const int Rest = Length - Size;
	switch (Align)
	{
		case EPlaceAlign::Center:
			return {From + Rest / 2, Size};
		case EPlaceAlign::End:
			return {From + Rest, Size};
		default:
			return {From, Size};
	}
}

QRect PlaceIn(const QRect& Cell, const FPlace& Place, const QLayoutItem& Item)
{
	const QRect Inside = Cell.marginsRemoved(Place.Padding);
	const QSize Wanted = Item.sizeHint();
	const auto [X, Width] = Span(Place.Horizontal, Inside.x(), std::max(0, Inside.width()), Wanted.width());
	const auto [Y, Height] = Span(Place.Vertical, Inside.y(), std::max(0, Inside.height()), Wanted.height());
	return QRect(X, Y, Width, Height);
}

} // namespace

FModelLayout::FModelLayout(EPanelKind InKind)
	: Kind(InKind)
{
	setContentsMargins(0, 0, 0, 0);
}

FModelLayout::~FModelLayout()
{
	Clear();
}

void FModelLayout::Add(QWidget* Widget, const FPlace& Place)
{
	addChildWidget(Widget);
	Entries.push_back({new QWidgetItem(Widget), Place});
	if (Kind == EPanelKind::Stack)
	{
		Widget->raise();
	}
	invalidate();
}

void FModelLayout::Clear()
{
	for (const FEntry& Entry : Entries)
	{
		delete Entry.Item;
	}
	Entries.clear();
	Hint = QSize();
	Minimum = QSize();
	if (parent())
	{
		invalidate();
	}
}

void FModelLayout::SetPlace(int Index, const FPlace& Place)
{
	FEntry& Entry = Entries[static_cast<std::size_t>(Index)];
	if (!(Entry.Place == Place))
	{
		Entry.Place = Place;
		invalidate();
	}
}

void FModelLayout::SetSmallestCell(const QSize& Size)
{
	if (SmallestCell != Size)
	{
		SmallestCell = Size;
		invalidate();
	}
}

void FModelLayout::addItem(QLayoutItem* Item)
{
	Entries.push_back({Item, FPlace()});
	invalidate();
}

QLayoutItem* FModelLayout::itemAt(int Index) const
{
	return Index >= 0 && Index < count() ? Entries[static_cast<std::size_t>(Index)].Item : nullptr;
}

QLayoutItem* FModelLayout::takeAt(int Index)
{
	QLayoutItem* const Item = itemAt(Index);
	if (Item)
	{
		Entries.erase(Entries.begin() + Index);
		invalidate();
	}
	return Item;
}

QSize FModelLayout::Total(QSize (QLayoutItem::*SizeOf)() const) const
{
	QSize Sum(0, 0);
	QSize Largest(0, 0);
	for (const FEntry& Entry : Entries)
	{
		if (Entry.Item->isEmpty())
		{
			continue;
		}
		const QMargins& Padding = Entry.Place.Padding;
		const QSize Size = (Entry.Item->*SizeOf)().expandedTo(QSize(0, 0)) +
						   QSize(Padding.left() + Padding.right(), Padding.top() + Padding.bottom());
		Sum += Size;
		Largest = Largest.expandedTo(Size);
	}
	switch (Kind)
	{
		case EPanelKind::Row:
			return QSize(Sum.width(), Largest.height());
		case EPanelKind::Column:
			return QSize(Largest.width(), Sum.height());
		case EPanelKind::Grid:
		{
			const QSize Cells = NumCells();
			const QSize Cell = Largest.expandedTo(SmallestCell);
			return QSize(Cell.width() * Cells.width(), Cell.height() * Cells.height());
		}
		default:
			return Largest;
	}
}

QSize FModelLayout::NumCells() const
{
	QSize Cells(0, 0);
	for (const FEntry& Entry : Entries)
	{
		if (!Entry.Item->isEmpty())
		{
			Cells = Cells.expandedTo(QSize(Entry.Place.Column + 1, Entry.Place.Row + 1));
		}
	}
	return Cells;
}

QSize FModelLayout::sizeHint() const
{
	if (!Hint.isValid())
	{
		Hint = Total(&QLayoutItem::sizeHint);
	}
	return Hint;
}

QSize FModelLayout::minimumSize() const
{
	if (!Minimum.isValid())
	{
		Minimum = Total(&QLayoutItem::minimumSize);
	}
	return Minimum;
}

void FModelLayout::invalidate()
{
	Hint = QSize();
	Minimum = QSize();
	QLayout::invalidate();
}

void FModelLayout::FillCells(const QRect& Rect)
{
	const QSize Cells = NumCells();
	// Edges are rounded, not sizes, so that the cells fill the panel to the pixel.
	const auto Edge = [](int From, int Length, int Index, int Count)
	{ return From + qRound(static_cast<double>(Length) * Index / Count); };
	for (const FEntry& Entry : Entries)
	{
		if (!Entry.Item->isEmpty())
		{
			const FPlace& Place = Entry.Place;
			const int X = Edge(Rect.x(), Rect.width(), Place.Column, Cells.width());
			const int Y = Edge(Rect.y(), Rect.height(), Place.Row, Cells.height());
			const int Right = Edge(Rect.x(), Rect.width(), Place.Column + 1, Cells.width());
			const int Bottom = Edge(Rect.y(), Rect.height(), Place.Row + 1, Cells.height());
			Entry.Item->setGeometry(PlaceIn(QRect(X, Y, Right - X, Bottom - Y), Place, *Entry.Item));
		}
	}
}

void FModelLayout::setGeometry(const QRect& Rect)
{
	QLayout::setGeometry(Rect);
	if (Kind == EPanelKind::Grid)
	{
		FillCells(Rect);
		return;
	}
	if (Kind == EPanelKind::Stack)
	{
		for (const FEntry& Entry : Entries)
		{
			if (!Entry.Item->isEmpty())
			{
				Entry.Item->setGeometry(PlaceIn(Rect, Entry.Place, *Entry.Item));
			}
		}
		return;
	}
	const bool bRow = Kind == EPanelKind::Row;
	const auto Along = [bRow](const QSize& Size) { return bRow ? Size.width() : Size.height(); };
	double Left = Along(Rect.size());
	double Shares = 0;
	for (const FEntry& Entry : Entries)
	{
		if (Entry.Item->isEmpty())
		{
			continue;
		}
		const QMargins& Padding = Entry.Place.Padding;
		Left -= bRow ? Padding.left() + Padding.right() : Padding.top() + Padding.bottom();
		if (Entry.Place.Stretch > 0)
		{
			Shares += Entry.Place.Stretch;
		}
		else
		{
			Left -= Along(Entry.Item->sizeHint());
		}
	}
	// Cell edges are rounded, not cell sizes, so that the shares fill the panel to the pixel.
	double At = bRow ? Rect.x() : Rect.y();
	for (const FEntry& Entry : Entries)
	{
		if (Entry.Item->isEmpty())
		{
			continue;
		}
		const QMargins& Padding = Entry.Place.Padding;
		const double Inside = Entry.Place.Stretch > 0 ? std::max(0.0, Left) * Entry.Place.Stretch / Shares
													  : Along(Entry.Item->sizeHint());
		const double Size = Inside + (bRow ? Padding.left() + Padding.right() : Padding.top() + Padding.bottom());
		const int Begin = qRound(At);
		const int End = qRound(At + Size);
		const QRect Cell = bRow ? QRect(Begin, Rect.y(), End - Begin, Rect.height())
								: QRect(Rect.x(), Begin, Rect.width(), End - Begin);
		Entry.Item->setGeometry(PlaceIn(Cell, Entry.Place, *Entry.Item));
		At += Size;
	}
}

} // namespace Host
