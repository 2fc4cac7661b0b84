// SPDX-License-Identifier: MIT
/** Brushes of the model as pictures for native widgets. */
#pragma once

#include <QColor>
#include <QHash>
#include <QIcon>
#include <QPixmap>

struct FSlateBrush;
struct FSlateColor;

namespace Host
{

/** Reads each image file once. A file that cannot be read is logged once and draws a grey frame. */
class FBrushes
{
public:
	/** The brush's picture at any size, tinted; a null icon when it draws nothing. */
	QIcon Icon(const FSlateBrush* Brush);
	/** @param Size  in device-independent pixels */
	QPixmap Pixmap(const FSlateBrush* Brush, const QSize& Size, const QColor& Tint, double DeviceRatio);
	/** What a brush without a picture fills its widget with; not valid when it does not. */
	QColor FillOf(const FSlateBrush* Brush) const;
	/** The colour that a widget's text or picture gets. @param Foreground  where the style decides */
	static QColor ToColor(const FSlateColor& Color, const QColor& Foreground);

	/** Reads image files anew from now on. */
	void Forget();

private:
	const QImage& ImageOf(const QString& File);

	QHash<QString, QImage> Images;
};

} // namespace Host
