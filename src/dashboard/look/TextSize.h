#ifndef TEXTSIZE_H
#define TEXTSIZE_H

namespace Dashboard
{

/// Makes everything larger, and sharp on every screen. Must be called before the QApplication is
/// constructed. `percent` is 100 to 200. It is multiplied with the scale of the screen and with
/// that of the user (QT_SCALE_FACTOR). Sets a variable of StartEnvironment.
void applyTextSize(int percent);

} // namespace Dashboard

#endif
