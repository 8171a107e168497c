#ifndef TEXTSIZE_H
#define TEXTSIZE_H

namespace Dashboard
{

/// Makes all text larger, and sharp on every screen. Must be called before the QApplication is
/// constructed. `percent` is 100 to 200. A value of QT_FONT_DPI that the user has set is kept.
void applyTextSize(int percent);

} // namespace Dashboard

#endif
