#ifndef TEXTSIZE_H
#define TEXTSIZE_H

namespace Dashboard
{

/// Scales the complete user interface. Must be called before the QApplication is constructed.
/// `percent` is 100 to 200. It is multiplied by the scale factor of the screen and by that of the
/// user (QT_SCALE_FACTOR). Sets an environment variable, which StartEnvironment::restore() resets.
void applyTextSize(int percent);

} // namespace Dashboard

#endif
