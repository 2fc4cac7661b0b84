// SPDX-License-Identifier: MIT
#include "PanelViews.h"

#include "Theme.h"
#include "ViewWorld.h"

#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SUniformGridPanel.h"
#include "Widgets/SBoxPanel.h"

#include <QPainter>

namespace Host
{

namespace
{

/** Paints a brush behind its children. */
class FBrushedWidget : public QWidget
{
public:
	explicit FBrushedWidget(FBrushes& InBrushes)
		: Brushes(InBrushes)
	{
	}

	void SetBrush(const FSlateBrush* NewBrush)
	{
		if (NewBrush != Brush)
		{
			Brush = NewBrush;
			update();
		}
	}

protected:
	void paintEvent(QPaintEvent*) override
	{
		const QColor Fill = Brushes.FillOf(Brush);
		if (Fill.isValid())
		{
			QPainter(this).fillRect(rect(), Fill);
		}
	}

private:
	FBrushes& Brushes;
	const FSlateBrush* Brush = nullptr;
};

class FBorderView : public FPanelView
{
public:
	FBorderView(FViewWorld& InWorld, const TSharedRef<SWidget>& InModel)
		: FPanelView(InWorld, InModel, EPanelKind::Stack, new FBrushedWidget(InWorld.Brushes))
	{
	}

protected:
	void FollowModel(SWidget& Model) override
	{
		static_cast<FBrushedWidget*>(Native())->SetBrush(static_cast<const SBorder&>(Model).GetBorderImage());
		FPanelView::FollowModel(Model);
	}
};

/** A box with a size of its own: the native widget's limits along the axes that are set. */
class FSizedView : public FPanelView
{
public:
	FSizedView(FViewWorld& InWorld, const TSharedRef<SWidget>& InModel)
		: FPanelView(InWorld, InModel, EPanelKind::Stack)
	{
	}

protected:
	void FollowModel(SWidget& Model) override
	{
		const SBox& Box = static_cast<const SBox&>(Model);
		const int Width = Box.GetWidthOverride().IsSet() ? qRound(Box.GetWidthOverride().GetValue()) : -1;
		const int Height = Box.GetHeightOverride().IsSet() ? qRound(Box.GetHeightOverride().GetValue()) : -1;
		if (Width != LastWidth || Height != LastHeight)
		{
			LastWidth = Width;
			LastHeight = Height;
			Native()->setMinimumSize(std::max(Width, 0), std::max(Height, 0));
			Native()->setMaximumSize(Width < 0 ? QWIDGETSIZE_MAX : Width, Height < 0 ? QWIDGETSIZE_MAX : Height);
		}
		FPanelView::FollowModel(Model);
	}

private:
	int LastWidth = -1;
	int LastHeight = -1;
};

class FUniformGridView : public FPanelView
{
public:
	FUniformGridView(FViewWorld& InWorld, const TSharedRef<SWidget>& InModel)
		: FPanelView(InWorld, InModel, EPanelKind::Grid)
	{
	}

protected:
	void FollowModel(SWidget& Model) override
	{
		const SUniformGridPanel& Grid = static_cast<const SUniformGridPanel&>(Model);
		const FMargin Padding = Grid.GetSlotPadding();
		SlotPadding =
			QMargins(qRound(Padding.Left), qRound(Padding.Top), qRound(Padding.Right), qRound(Padding.Bottom));
		// The least sizes are those of the children, without what lies around them.
		Layout->SetSmallestCell(QSize(qRound(Grid.GetMinDesiredSlotWidth()) + SlotPadding.left() + SlotPadding.right(),
			qRound(Grid.GetMinDesiredSlotHeight()) + SlotPadding.top() + SlotPadding.bottom()));
		FPanelView::FollowModel(Model);
	}

	FPlace PlaceOf(const SWidget& Model, int32 Index) const override
	{
		const SUniformGridPanel::FSlot& Slot = static_cast<const SUniformGridPanel&>(Model).GetSlot(Index);
		FPlace Place = FPanelView::PlaceOf(Model, Index);
		Place.Padding += SlotPadding;
		Place.Column = std::max(0, Slot.GetColumn());
		Place.Row = std::max(0, Slot.GetRow());
		return Place;
	}

private:
	QMargins SlotPadding;
};

} // namespace

std::unique_ptr<FWidgetView> MakePanelView(FViewWorld& World, const TSharedRef<SWidget>& Model)
{
	if (const SBoxPanel* const Box = dynamic_cast<const SBoxPanel*>(&Model.Get()))
	{
		return std::make_unique<FPanelView>(
			World, Model, Box->GetOrientation() == Orient_Horizontal ? EPanelKind::Row : EPanelKind::Column);
	}
	if (dynamic_cast<const SBorder*>(&Model.Get()))
	{
		return std::make_unique<FBorderView>(World, Model);
	}
	if (dynamic_cast<const SBox*>(&Model.Get()))
	{
		return std::make_unique<FSizedView>(World, Model);
	}
	if (dynamic_cast<const SUniformGridPanel*>(&Model.Get()))
	{
		return std::make_unique<FUniformGridView>(World, Model);
	}
	return nullptr;
}

} // namespace Host
