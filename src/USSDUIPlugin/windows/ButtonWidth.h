#ifndef BUTTONWIDTH_H
#define BUTTONWIDTH_H

#include <QtGlobal>

/// Returns the width of a text plus some room around it, within the limits.
inline int paddedWidth(int textWidth, int minimum, int maximum)
{
    return qBound(minimum, textWidth + 30, maximum);
}

#endif
