#ifndef BUTTONWIDTH_H
#define BUTTONWIDTH_H

#include <QtGlobal>

/// Returns the width of a button whose text is `textWidth` pixels wide: this width plus a margin,
/// limited to the range from `minimum` to `maximum`.
inline int paddedWidth(int textWidth, int minimum, int maximum)
{
    return qBound(minimum, textWidth + 30, maximum);
}

#endif
