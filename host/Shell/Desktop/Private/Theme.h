// SPDX-License-Identifier: MIT
/** How the desktop looks: dark, with colours of even contrast, in sizes that follow the screen's scale. */
#pragma once

#include <QColor>

class QApplication;

namespace Host
{

/** Colours that more than one part of the desktop paints with. */
namespace Theme
{
inline const QColor Void(0x12, 0x12, 0x12);		   // behind everything, and tab wells
inline const QColor Recessed(0x1a, 0x1a, 0x1a);	   // lists and trees
inline const QColor Panel(0x24, 0x24, 0x24);	   // panels and bars
inline const QColor Header(0x2f, 0x2f, 0x2f);	   // headings, tabs in front
inline const QColor Input(0x0f, 0x0f, 0x0f);	   // text boxes
inline const QColor Raised(0x38, 0x38, 0x38);	   // buttons, menus
inline const QColor Hovered(0x4c, 0x4c, 0x4c);	   // buttons under the pointer
inline const QColor Outline(0x4a, 0x4a, 0x4a);	   // borders of inputs and menus
inline const QColor Text(0xd0, 0xd0, 0xd0);		   // 11:1 on a panel
inline const QColor StrongText(0xff, 0xff, 0xff);  // under the pointer, selected
inline const QColor SubduedText(0x96, 0x96, 0x96); // 5:1 on a panel
inline const QColor DisabledText(0x6c, 0x6c, 0x6c);
inline const QColor Accent(0x00, 0x70, 0xe0);		  // selection, focus, progress
inline const QColor AccentHovered(0x0e, 0x86, 0xff);  // the same under the pointer
inline const QColor AccentInactive(0x40, 0x57, 0x6f); // selection in a window that is not in front
inline const QColor Good(0x1f, 0xe4, 0x4b);
inline const QColor Caution(0xff, 0xb8, 0x00);
inline const QColor Bad(0xff, 0x59, 0x4d);
} // namespace Theme

/** Gives the application font, palette and style. */
void ApplyTheme(QApplication& Application);

} // namespace Host
