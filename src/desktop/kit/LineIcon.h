// Icons drawn as lines: one set for light and dark, its "currentColor" taken from the palette when it is
// painted.
#pragma once

#include <QIcon>

/// The icon of the resource ":/icons/<name>.svg" in the palette's text colour, or in `colour` when that is
/// valid.
QIcon LineIcon(const char* name, const QColor& colour = {});
