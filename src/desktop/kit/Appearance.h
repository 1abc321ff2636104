// The colours that the palette of a desktop has no role for, derived from it so that they suit light and
// dark.
#pragma once

#include <QColor>
#include <QPalette>

namespace Appearance {

bool IsDark(const QPalette& palette);

/// Black on white, for pictures that leave the screen.
QPalette Paper();

/// `share` (0 to 1) of `tint` over `base`.
QColor Mixed(const QColor& base, const QColor& tint, double share);

/// Grounds of a text box: an answer, and a text that cannot be used.
QColor ResultGround(const QPalette& palette);
QColor OffendingGround(const QPalette& palette);

/// Signs of the status line: solved, something is missing, something is wrong.
QColor Good(const QPalette& palette);
QColor Neutral(const QPalette& palette);
QColor Bad(const QPalette& palette);

/// Ground of every other row of a table: not every desktop has one that suits its own text.
QColor OtherRow(const QPalette& palette);
/// True where a box has the colour of the window around it, as on most desktops of high contrast: toolkits
/// draw its frame too dark to be seen there.
bool NeedsOutline(const QPalette& palette);

/// Lines between the parts of a window.
QColor Line(const QPalette& palette);

/// Lines and notes that stay behind the others, on the ground of a text box.
QColor Faint(const QPalette& palette);

/// The drawing of a channel.
QColor Water(const QPalette& palette);
QColor WaterSurface(const QPalette& palette);
QColor Earth(const QPalette& palette);
/// Parts of a section with different Manning's n, numbered from 0.
QColor Subsection(const QPalette& palette, int number);

}  // namespace Appearance
