// SPDX-License-Identifier: MIT
#include "Brushes.h"

#include "Text.h"
#include "Theme.h"

#include "Logging/LogMacros.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"

#include <QImageReader>
#include <QPainter>

DEFINE_LOG_CATEGORY_STATIC(LogDesktop, Log, All);

namespace Host
{

namespace
{

constexpr int PlaceholderSize = 40;

QImage Placeholder()
{
	QImage Image(PlaceholderSize, PlaceholderSize, QImage::Format_ARGB32_Premultiplied);
	Image.fill(Qt::transparent);
	QPainter Painter(&Image);
	Painter.setPen(QPen(Theme::SubduedText, 3));
	Painter.drawRect(5, 5, PlaceholderSize - 11, PlaceholderSize - 11);
	Painter.drawLine(5, 5, PlaceholderSize - 7, PlaceholderSize - 7);
	return Image;
}

bool HasPicture(const FSlateBrush* Brush)
{
	return Brush && Brush->GetDrawType() != ESlateBrushDrawType::NoDrawType && !Brush->GetResourceName().IsNone();
}

} // namespace

const QImage& FBrushes::ImageOf(const QString& File)
{
	const auto Found = Images.constFind(File);
	if (Found != Images.constEnd())
	{
		return *Found;
	}
	QImageReader Reader(File);
	QImage Image = Reader.read();
	if (Image.isNull())
	{
		UE_LOG(LogDesktop, Warning, TEXT("The icon '%s' cannot be read: %s"), *ToFString(File),
			*ToFString(Reader.errorString()));
		Image = Placeholder();
	}
	return *Images.insert(File, Image.convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

QPixmap FBrushes::Pixmap(const FSlateBrush* Brush, const QSize& Size, const QColor& Tint, double DeviceRatio)
{
	if (!HasPicture(Brush) || Size.isEmpty())
	{
		return QPixmap();
	}
	const QSize Pixels = Size * DeviceRatio;
	QImage Image =
		ImageOf(ToQString(Brush->GetResourceName())).scaled(Pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
	if (Tint.isValid() && Tint != QColor(Qt::white))
	{
		QPainter Painter(&Image);
		Painter.setCompositionMode(QPainter::CompositionMode_Multiply);
		QColor Solid = Tint;
		Solid.setAlpha(255);
		QImage Color(Image.size(), QImage::Format_ARGB32_Premultiplied);
		Color.fill(Solid);
		QPainter Cut(&Color);
		Cut.setCompositionMode(QPainter::CompositionMode_DestinationIn);
		Cut.drawImage(0, 0, Image);
		Cut.end();
		Painter.drawImage(0, 0, Color);
	}
	QPixmap Result = QPixmap::fromImage(Image);
	Result.setDevicePixelRatio(DeviceRatio);
	return Result;
}

QIcon FBrushes::Icon(const FSlateBrush* Brush)
{
	QIcon Icon;
	if (!HasPicture(Brush))
	{
		return Icon;
	}
	const QColor Tint = ToColor(Brush->TintColor, Qt::white);
	for (const int Size : {16, 20, 24, 32, 40, 64, 80})
	{
		Icon.addPixmap(Pixmap(Brush, QSize(Size, Size), Tint, 1.0));
	}
	return Icon;
}

QColor FBrushes::FillOf(const FSlateBrush* Brush) const
{
	if (!Brush || Brush->GetDrawType() == ESlateBrushDrawType::NoDrawType || !Brush->GetResourceName().IsNone())
	{
		return QColor();
	}
	return ToColor(Brush->TintColor, QColor());
}

QColor FBrushes::ToColor(const FSlateColor& Color, const QColor& Foreground)
{
	if (Color.IsColorSpecified())
	{
		return ToQColor(Color.GetSpecifiedColor());
	}
	return Color == FSlateColor::UseSubduedForeground() ? Theme::SubduedText : Foreground;
}

void FBrushes::Forget()
{
	Images.clear();
}

} // namespace Host
