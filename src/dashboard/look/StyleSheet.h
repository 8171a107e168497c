#ifndef STYLESHEET_H
#define STYLESHEET_H

#include <QPalette>
#include <QString>

#include "Tokens.h"

namespace Dashboard
{

/// Returns the style sheet of the application with colours, sides and sizes filled in. `scale` is
/// the size of the application font in relation to 14 pixels.
QString styleSheet(Shade shade, Qt::LayoutDirection direction, double scale);

/// Returns a palette made of the same tokens as the style sheet, for everything that the style
/// sheet does not reach, such as links.
QPalette lookPalette(Shade shade);
QPalette toolTipPalette(Shade shade);

} // namespace Dashboard

#endif
