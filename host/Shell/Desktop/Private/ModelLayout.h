// SPDX-License-Identifier: MIT
/** Lays native widgets out by the rules of the model's panels. */
#pragma once

#include <QLayout>
#include <QMargins>

#include <vector>

namespace Host
{

enum class EPanelKind
{
	Row,
	Column,
	Stack, // all on top of each other, the last in front
	Grid,  // in cells that are all of one size
};

enum class EPlaceAlign
{
	Fill,
	Begin,
	Center,
	End,
};

/** What a panel gives one child. */
struct FPlace
{
	QMargins Padding;
	EPlaceAlign Horizontal = EPlaceAlign::Fill;
	EPlaceAlign Vertical = EPlaceAlign::Fill;
	/** Share of what is left along a row or a column; 0: as much as the child wants. */
	double Stretch = 0;
	/** Of a grid, from 0; a cell may hold several. */
	int Column = 0;
	int Row = 0;

	bool operator==(const FPlace&) const = default;
};

class FModelLayout : public QLayout
{
public:
	explicit FModelLayout(EPanelKind InKind);
	~FModelLayout() override;

	/** Puts a widget, which becomes a child of the layout's, at the end. */
	void Add(QWidget* Widget, const FPlace& Place);
	/** Takes all out; the widgets stay children of the layout's. */
	void Clear();
	/** @param Index  in the order of Add */
	void SetPlace(int Index, const FPlace& Place);
	/** Of a grid: no cell wants less. */
	void SetSmallestCell(const QSize& Size);

	void addItem(QLayoutItem* Item) override;
	int count() const override { return static_cast<int>(Entries.size()); }
	QLayoutItem* itemAt(int Index) const override;
	QLayoutItem* takeAt(int Index) override;
	QSize sizeHint() const override;
	QSize minimumSize() const override;
	Qt::Orientations expandingDirections() const override { return {}; }
	void setGeometry(const QRect& Rect) override;
	void invalidate() override;

private:
	struct FEntry
	{
		QLayoutItem* Item;
		FPlace Place;
	};

	QSize Total(QSize (QLayoutItem::*SizeOf)() const) const;
	/** Columns and rows up to the last one with something to see. */
	QSize NumCells() const;
	void FillCells(const QRect& Rect);

	EPanelKind Kind;
	QSize SmallestCell{0, 0};
	std::vector<FEntry> Entries;
	// Of the time since the last change: layouts ask each other over and over, twice as often on each level.
	mutable QSize Hint;
	mutable QSize Minimum;
};

} // namespace Host
