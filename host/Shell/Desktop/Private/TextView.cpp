// SPDX-License-Identifier: MIT
#include "TextView.h"

#include "Text.h"
#include "Theme.h"
#include "ViewWorld.h"

#include "Widgets/Text/STextBlock.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>

#include <cmath>

namespace Host
{

namespace
{

/** A text of one or more lines with shadow, found words, and dots where it does not fit. */
class FTextLabel : public QLabel
{
public:
	FTextLabel()
	{
		setTextFormat(Qt::PlainText);
		QSizePolicy Policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
		setSizePolicy(Policy);
	}

	QColor Color = Theme::Text;
	QColor ShadowColor = Qt::transparent;
	QPointF ShadowOffset;
	QString Highlight;

	QSize minimumSizeHint() const override
	{
		// A text gives way to what stands beside it, down to a few letters.
		const QSize Full = sizeHint();
		return QSize(std::min(Full.width(), fontMetrics().averageCharWidth() * 4), Full.height());
	}

	QSize sizeHint() const override
	{
		const QSize Text = fontMetrics().size(0, text());
		return Text + QSize(static_cast<int>(std::ceil(std::abs(ShadowOffset.x()))),
						  static_cast<int>(std::ceil(std::abs(ShadowOffset.y()))));
	}

protected:
	void paintEvent(QPaintEvent*) override
	{
		QPainter Painter(this);
		QString Shown = text();
		if (!Shown.contains('\n'))
		{
			Shown = fontMetrics().elidedText(Shown, Qt::ElideRight, width());
		}
		const int Flags = static_cast<int>(alignment()) | Qt::AlignVCenter;
		if (!Highlight.isEmpty())
		{
			const qsizetype At = Shown.indexOf(Highlight, 0, Qt::CaseInsensitive);
			if (At >= 0)
			{
				const int X = fontMetrics().horizontalAdvance(Shown.left(At));
				const int Width = fontMetrics().horizontalAdvance(Shown.mid(At, Highlight.size()));
				QColor Marker = Theme::Accent;
				Marker.setAlpha(150);
				Painter.fillRect(X, 0, Width, height(), Marker);
			}
		}
		if (ShadowColor.alpha() > 0 && !ShadowOffset.isNull())
		{
			Painter.setPen(ShadowColor);
			Painter.drawText(QRectF(rect()).translated(ShadowOffset), Flags, Shown);
		}
		Painter.setPen(isEnabled() ? Color : Theme::DisabledText);
		Painter.drawText(QRectF(rect()), Flags, Shown);
	}
};

Qt::Alignment ToAlignment(ETextJustify::Type Justification)
{
	switch (Justification)
	{
		case ETextJustify::Center:
			return Qt::AlignHCenter;
		case ETextJustify::Right:
			return Qt::AlignRight;
		default:
			return Qt::AlignLeft;
	}
}

class FTextView : public FWidgetView
{
public:
	FTextView(FViewWorld& InWorld, const TSharedRef<SWidget>& InModel)
		: FWidgetView(InWorld, InModel, new FTextLabel)
	{
	}

protected:
	void FollowModel(SWidget& Model) override
	{
		const STextBlock& Block = static_cast<const STextBlock&>(Model);
		FTextLabel& Label = *static_cast<FTextLabel*>(Native());
		const FTextBlockStyle& Style = Block.GetTextStyle();
		const QString Text = ToQString(Block.GetText());
		if (Label.text() != Text)
		{
			Label.setText(Text);
			Label.setAccessibleName(Text);
		}
		// The default size is that of all of the desktop.
		const double Points = QApplication::font().pointSizeF() * static_cast<double>(Style.FontSize) / 10.0;
		if (std::abs(Label.font().pointSizeF() - Points) > 0.01)
		{
			QFont Font = Label.font();
			Font.setPointSizeF(Points);
			Label.setFont(Font);
		}
		const Qt::Alignment Alignment = ToAlignment(Block.GetJustification());
		if (Label.alignment() != Alignment)
		{
			Label.setAlignment(Alignment);
		}
		const QColor Color = FBrushes::ToColor(Block.GetColorAndOpacity(), Theme::Text);
		const QColor ShadowColor = ToQColor(Style.ShadowColorAndOpacity);
		const QPointF ShadowOffset(Style.ShadowOffset.X, Style.ShadowOffset.Y);
		const QString Highlight = ToQString(Block.GetHighlightText());
		if (Color != Label.Color || ShadowColor != Label.ShadowColor || ShadowOffset != Label.ShadowOffset ||
			Highlight != Label.Highlight)
		{
			Label.Color = Color;
			Label.ShadowColor = ShadowColor;
			Label.ShadowOffset = ShadowOffset;
			Label.Highlight = Highlight;
			Label.updateGeometry();
			Label.update();
		}
	}
};

} // namespace

std::unique_ptr<FWidgetView> MakeTextView(FViewWorld& World, const TSharedRef<SWidget>& Model)
{
	return dynamic_cast<const STextBlock*>(&Model.Get()) ? std::make_unique<FTextView>(World, Model) : nullptr;
}

} // namespace Host
