#ifndef STYLESHEET_H
#define STYLESHEET_H

#include <QPalette>
#include <QString>

#include "Tokens.h"

namespace Dashboard
{

/// Returns the style sheet of the application for this shade and layout direction. `scale` is the
/// size of the application font divided by 14 pixels.
QString styleSheet(Shade shade, Qt::LayoutDirection direction, double scale);

/// Returns a palette with the colours of the style sheet. It is used for everything to which the
/// style sheet does not apply, such as links.
QPalette lookPalette(Shade shade);
QPalette toolTipPalette(Shade shade);

} // namespace Dashboard

#endif
