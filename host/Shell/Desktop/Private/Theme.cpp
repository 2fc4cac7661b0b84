// SPDX-License-Identifier: MIT
#include "Theme.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

namespace Host
{

namespace
{

constexpr double FontPoints = 9.5;

/** Draws by itself what the style has as coloured pictures. */
class FDesktopStyle : public QProxyStyle
{
public:
	FDesktopStyle()
		: QProxyStyle(QStyleFactory::create("Fusion"))
	{
	}

	void drawPrimitive(
		PrimitiveElement Element, const QStyleOption* Option, QPainter* Painter, const QWidget* Widget) const override
	{
		if (Element == PE_IndicatorCheckBox || Element == PE_IndicatorItemViewItemCheck)
		{
			DrawCheck(*Option, *Painter);
			return;
		}
		if (Element != PE_IndicatorTabClose)
		{
			QProxyStyle::drawPrimitive(Element, Option, Painter, Widget);
			return;
		}
		const bool bHovered = Option->state.testFlag(State_MouseOver);
		const QPointF Center = QRectF(Option->rect).center();
		Painter->save();
		Painter->setRenderHint(QPainter::Antialiasing);
		if (bHovered)
		{
			Painter->setPen(Qt::NoPen);
			Painter->setBrush(Theme::Hovered);
			Painter->drawRoundedRect(QRectF(Option->rect), 3, 3);
		}
		Painter->setPen(QPen(bHovered ? Theme::StrongText : Theme::SubduedText, 1.4));
		Painter->drawLine(Center + QPointF(-3.5, -3.5), Center + QPointF(3.5, 3.5));
		Painter->drawLine(Center + QPointF(-3.5, 3.5), Center + QPointF(3.5, -3.5));
		Painter->restore();
	}

private:
	static void DrawCheck(const QStyleOption& Option, QPainter& Painter)
	{
		const bool bEnabled = Option.state.testFlag(State_Enabled);
		const bool bOn = Option.state.testFlag(State_On);
		const QRectF Box = QRectF(Option.rect).adjusted(1.5, 1.5, -1.5, -1.5);
		Painter.save();
		Painter.setRenderHint(QPainter::Antialiasing);
		const bool bMarked = Option.state.testFlag(State_HasFocus) || Option.state.testFlag(State_MouseOver);
		Painter.setPen(QPen(bMarked ? Theme::AccentHovered : bEnabled ? Theme::SubduedText : Theme::Outline, 1));
		Painter.setBrush(bOn && bEnabled ? Theme::Accent : Theme::Input);
		Painter.drawRoundedRect(Box, 3, 3);
		Painter.setPen(QPen(bEnabled ? Theme::StrongText : Theme::DisabledText, 1.8, Qt::SolidLine, Qt::RoundCap));
		if (bOn)
		{
			const QPointF Points[] = {Box.topLeft() + QPointF(Box.width() * 0.22, Box.height() * 0.52),
				Box.topLeft() + QPointF(Box.width() * 0.43, Box.height() * 0.74),
				Box.topLeft() + QPointF(Box.width() * 0.79, Box.height() * 0.27)};
			Painter.drawPolyline(Points, 3);
		}
		else if (Option.state.testFlag(State_NoChange))
		{
			Painter.drawLine(QPointF(Box.left() + 3, Box.center().y()), QPointF(Box.right() - 3, Box.center().y()));
		}
		Painter.restore();
	}
};

QPalette DarkPalette()
{
	QPalette Palette;
	const auto Set = [&Palette](QPalette::ColorRole Role, const QColor& Color) { Palette.setColor(Role, Color); };
	Set(QPalette::Window, Theme::Panel);
	Set(QPalette::WindowText, Theme::Text);
	Set(QPalette::Base, Theme::Recessed);
	Set(QPalette::AlternateBase, QColor(0x1f, 0x1f, 0x1f));
	Set(QPalette::Text, Theme::Text);
	Set(QPalette::PlaceholderText, Theme::SubduedText);
	Set(QPalette::Button, Theme::Raised);
	Set(QPalette::ButtonText, Theme::Text);
	Set(QPalette::BrightText, Theme::StrongText);
	Set(QPalette::ToolTipBase, Theme::Raised);
	Set(QPalette::ToolTipText, Theme::Text);
	Set(QPalette::Highlight, Theme::Accent);
	Set(QPalette::HighlightedText, Theme::StrongText);
	Set(QPalette::Link, QColor(0x6c, 0xb2, 0xff));
	Set(QPalette::LinkVisited, QColor(0xb2, 0x9c, 0xff));
	Set(QPalette::Light, Theme::Hovered);
	Set(QPalette::Midlight, Theme::Raised);
	Set(QPalette::Mid, Theme::Header);
	Set(QPalette::Dark, Theme::Void);
	Set(QPalette::Shadow, Qt::black);
	for (const QPalette::ColorRole Role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
	{
		Palette.setColor(QPalette::Disabled, Role, Theme::DisabledText);
	}
	Palette.setColor(QPalette::Inactive, QPalette::Highlight, Theme::AccentInactive);
	return Palette;
}

// Lengths are device-independent pixels, which Qt scales with the screen.
constexpr const char* Sheet = R"(
QToolTip { background: #383838; color: #d0d0d0; border: 1px solid #5a5a5a; padding: 4px 6px; }

QMenuBar { background: #121212; padding: 1px 4px; }
QMenuBar::item { background: transparent; padding: 5px 9px; border-radius: 3px; }
QMenuBar::item:selected, QMenuBar::item:pressed { background: #383838; color: #ffffff; }

QMenu { background: #2b2b2b; border: 1px solid #4a4a4a; padding: 4px 0; }
QMenu::item { padding: 5px 28px 5px 30px; }
QMenu::item:selected { background: #0070e0; color: #ffffff; }
QMenu::item:disabled { color: #6c6c6c; background: transparent; }
QMenu::separator { height: 1px; background: #4a4a4a; margin: 4px 8px; }
QMenu::icon { padding-left: 8px; }
QMenu::indicator { width: 14px; height: 14px; left: 8px; }

QPushButton { background: #383838; border: 1px solid #383838; border-radius: 4px; padding: 5px 14px;
	min-width: 48px; }
QPushButton:hover { background: #4c4c4c; border-color: #4c4c4c; color: #ffffff; }
QPushButton:pressed { background: #2f2f2f; }
QPushButton:focus { border-color: #0e86ff; }
QPushButton:default { background: #0070e0; border-color: #0070e0; color: #ffffff; }
QPushButton:default:hover { background: #0e86ff; }
QPushButton:default:focus { border-color: #ffffff; }
QPushButton:disabled { background: #2a2a2a; border-color: #2a2a2a; color: #6c6c6c; }

QToolButton { background: transparent; border: 1px solid transparent; border-radius: 4px; padding: 4px 6px; }
QToolButton:hover { background: #4c4c4c; color: #ffffff; }
QToolButton:pressed, QToolButton:open { background: #2f2f2f; }
QToolButton:checked { background: #0070e0; color: #ffffff; }
QToolButton:focus { border-color: #0e86ff; }
QToolButton:disabled { color: #6c6c6c; }
QToolButton::menu-indicator { image: none; }

QLineEdit, QPlainTextEdit, QSpinBox, QDoubleSpinBox, QComboBox { background: #0f0f0f; border: 1px solid #383838;
	border-radius: 4px; padding: 3px 6px; selection-background-color: #0070e0; selection-color: #ffffff; }
QLineEdit:hover, QPlainTextEdit:hover { border-color: #575757; }
QLineEdit:focus, QPlainTextEdit:focus, QSpinBox:focus, QDoubleSpinBox:focus, QComboBox:focus { border-color: #0070e0; }
QLineEdit:disabled { color: #6c6c6c; background: #1a1a1a; }

QTreeView, QListView, QTableView { background: #1a1a1a; border: none; outline: none; }
QTreeView::item, QListView::item { padding: 2px 0; min-height: 20px; }
QTreeView::item:hover, QListView::item:hover { background: #242424; }
QTreeView::item:selected, QListView::item:selected { background: #0070e0; color: #ffffff; }
QTreeView::item:selected:!active, QListView::item:selected:!active { background: #40576f; }
QHeaderView { background: #2f2f2f; }
QHeaderView::section { background: #2f2f2f; color: #d0d0d0; border: none; border-right: 1px solid #1a1a1a;
	padding: 4px 8px; }

QScrollBar:vertical { background: #1a1a1a; width: 11px; margin: 0; }
QScrollBar:horizontal { background: #1a1a1a; height: 11px; margin: 0; }
QScrollBar::handle { background: #575757; border-radius: 4px; margin: 2px; }
QScrollBar::handle:vertical { min-height: 24px; }
QScrollBar::handle:horizontal { min-width: 24px; }
QScrollBar::handle:hover { background: #808080; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }

QProgressBar { background: #0f0f0f; border: 1px solid #383838; border-radius: 4px; text-align: center;
	min-height: 12px; max-height: 14px; }
QProgressBar::chunk { background: #0070e0; border-radius: 3px; }

QTabBar { background: #121212; qproperty-drawBase: 0; }
QTabBar::tab { background: #1a1a1a; color: #a8a8a8; border: none; border-right: 1px solid #121212;
	padding: 5px 10px; min-width: 60px; }
QTabBar::tab:hover { background: #2a2a2a; color: #ffffff; }
QTabBar::tab:selected { background: #2f2f2f; color: #ffffff; border-top: 2px solid #0070e0; padding-top: 3px; }
QTabBar:focus::tab:selected { border-top-color: #ffffff; }

QSplitter::handle { background: #121212; }
QSplitter::handle:hover { background: #0070e0; }

QCheckBox { spacing: 7px; padding: 2px; }
QCheckBox:focus { color: #ffffff; }

QStatusBar { background: #121212; color: #d0d0d0; }
QStatusBar::item { border: none; }
QDialog { background: #242424; }
QScrollArea { border: none; background: #242424; }
)";

} // namespace

void ApplyTheme(QApplication& Application)
{
	// One style everywhere: a desktop's own would bring light colours into half of the widgets.
	QApplication::setStyle(new FDesktopStyle);
	QApplication::setPalette(DarkPalette());
	QFont Font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
	QStringList Families;
	const QStringList Known = QFontDatabase::families();
	for (const char* Family : {"Roboto", "Inter", "Noto Sans", "DejaVu Sans"})
	{
		if (Known.contains(QLatin1String(Family)))
		{
			Families << QLatin1String(Family);
		}
	}
	if (!Families.isEmpty())
	{
		Font.setFamilies(Families);
	}
	Font.setPointSizeF(FontPoints);
	QApplication::setFont(Font);
	Application.setStyleSheet(QLatin1String(Sheet));
}

} // namespace Host
