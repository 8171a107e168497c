#ifndef ICONS_H
#define ICONS_H

#include <QIcon>

#include "Tokens.h"

class QWidget;

namespace Dashboard
{

/// Returns an icon that is drawn in the current colour of the token, so that it adapts to the
/// theme. The icon is sharp at every device pixel ratio. `name` is the name of a file in the folder
/// "icons" and must be a string literal.
QIcon icon(const char *name, Token token = Token::Text);

/// Returns an icon for a checkable button. `whenOn` is the colour token when the button is checked.
QIcon icon(const char *name, Token token, Token whenOn);

/// Returns the icon of the program, in the sizes that window managers show.
QIcon applicationIcon();

/// Returns the icon as a pixmap, for classes that do not support QIcon. The pixmap does not adapt
/// when the theme changes. `size` is in device-independent pixels. `widget` determines the device
/// pixel ratio.
QPixmap iconPixmap(const char *name, Token token, int size, const QWidget *widget);

} // namespace Dashboard

#endif
