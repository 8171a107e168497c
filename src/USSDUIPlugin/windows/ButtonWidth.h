#ifndef BUTTONWIDTH_H
#define BUTTONWIDTH_H

#include <QtGlobal>

/// Returns the width of a button for a text of this width: the width plus a margin, bounded by the
/// limits.
inline int paddedWidth(int textWidth, int minimum, int maximum)
{
    return qBound(minimum, textWidth + 30, maximum);
}

#endif
