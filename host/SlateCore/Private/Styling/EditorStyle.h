// SPDX-License-Identifier: MIT
#pragma once

// The parts of the application's style, each of which fills a style set.

#include "Math/Color.h"

class FSlateStyleSet;

/** The colours that everything else is made of: a dark ground, grey panels, one blue accent. */
namespace EditorColors
{
inline const FColor Background(0x15, 0x15, 0x15);
inline const FColor Title(0x11, 0x11, 0x11);
inline const FColor Panel(0x24, 0x24, 0x24);
inline const FColor Header(0x2f, 0x2f, 0x2f);
inline const FColor Recessed(0x1b, 0x1b, 0x1b);
inline const FColor Input(0x0f, 0x0f, 0x0f);
inline const FColor InputOutline(0x3a, 0x3a, 0x3a);
inline const FColor Dropdown(0x38, 0x38, 0x38);
inline const FColor DropdownOutline(0x4a, 0x4a, 0x4a);
inline const FColor Hover(0x52, 0x52, 0x52);
inline const FColor SelectInactive(0x40, 0x55, 0x70);
inline const FColor Primary(0x1f, 0x6f, 0xd9);
inline const FColor PrimaryHover(0x3d, 0x8b, 0xf0);
inline const FColor PrimaryPress(0x15, 0x57, 0xb0);
inline const FColor Foreground(0xc4, 0xc4, 0xc4);
inline const FColor ForegroundHover(0xff, 0xff, 0xff);
inline const FColor ForegroundSubdued(0x80, 0x80, 0x80);
inline const FColor ForegroundInverted(0xff, 0xff, 0xff);
inline const FColor Warning(0xf3, 0xb0, 0x1b);
inline const FColor Error(0xe5, 0x48, 0x4d);
inline const FColor Success(0x2f, 0xa5, 0x5a);
} // namespace EditorColors

namespace EditorStyle
{
/** "Colors.*", the brushes of panels and borders, and sizes of dialogs. */
void AddColorsAndBrushes(FSlateStyleSet& Style);
/** Text styles. */
void AddTexts(FSlateStyleSet& Style);
/** Styles of buttons, fields, rows and tool bars. Needs nothing of the others. */
void AddWidgets(FSlateStyleSet& Style);
/** Pictures of tabs, commands and messages. */
void AddIcons(FSlateStyleSet& Style);
} // namespace EditorStyle
