// SPDX-License-Identifier: MIT
#include "ImageView.h"

#include "Theme.h"
#include "ViewWorld.h"

#include "Styling/SlateBrush.h"
#include "Widgets/Images/SImage.h"

#include <QPainter>

namespace Host
{

namespace
{

/** A brush at its own size, or as large as the layout makes it. */
class FPictureWidget : public QWidget
{
public:
	explicit FPictureWidget(FBrushes& InBrushes)
		: Brushes(InBrushes)
	{
	}

	FBrushes& Brushes;
	const FSlateBrush* Brush = nullptr;
	QColor Tint = Qt::white;
	QSize Wanted;

	QSize sizeHint() const override { return Wanted; }
	QSize minimumSizeHint() const override { return Wanted; }

protected:
	void paintEvent(QPaintEvent*) override
	{
		QPainter Painter(this);
		const QColor Fill = Brushes.FillOf(Brush);
		if (Fill.isValid())
		{
			Painter.fillRect(rect(), Fill);
			return;
		}
		const QPixmap Pixmap = Brushes.Pixmap(Brush, size(), Tint, devicePixelRatioF());
		if (!Pixmap.isNull())
		{
			Painter.setOpacity(isEnabled() ? Tint.alphaF() : 0.4 * Tint.alphaF());
			const QSizeF Size = QSizeF(Pixmap.size()) / Pixmap.devicePixelRatio();
			Painter.drawPixmap(QPointF((width() - Size.width()) / 2, (height() - Size.height()) / 2), Pixmap);
		}
	}
};

class FImageView : public FWidgetView
{
public:
	FImageView(FViewWorld& InWorld, const TSharedRef<SWidget>& InModel)
		: FWidgetView(InWorld, InModel, new FPictureWidget(InWorld.Brushes))
	{
	}

protected:
	void FollowModel(SWidget& Model) override
	{
		const SImage& Image = static_cast<const SImage&>(Model);
		FPictureWidget& Picture = *static_cast<FPictureWidget*>(Native());
		const FSlateBrush* const Brush = Image.GetImage();
		const QColor Tint = FBrushes::ToColor(Image.GetColorAndOpacity(), Theme::Text);
		if (Brush == Picture.Brush && Tint == Picture.Tint)
		{
			return;
		}
		Picture.Brush = Brush;
		Picture.Tint = Tint;
		Picture.Wanted = Brush ? QSize(qRound(Brush->GetImageSize().X), qRound(Brush->GetImageSize().Y)) : QSize();
		Picture.updateGeometry();
		Picture.update();
	}
};

} // namespace

std::unique_ptr<FWidgetView> MakeImageView(FViewWorld& World, const TSharedRef<SWidget>& Model)
{
	return dynamic_cast<const SImage*>(&Model.Get()) ? std::make_unique<FImageView>(World, Model) : nullptr;
}

} // namespace Host
