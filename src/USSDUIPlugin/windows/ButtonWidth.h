#ifndef BUTTONWIDTH_H
#define BUTTONWIDTH_H

#include <QtGlobal>

/// Returns the text width plus a margin, clamped to the limits.
inline int paddedWidth(int textWidth, int minimum, int maximum)
{
    return qBound(minimum, textWidth + 30, maximum);
}

#endif
