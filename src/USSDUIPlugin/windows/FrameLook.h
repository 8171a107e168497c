#ifndef FRAMELOOK_H
#define FRAMELOOK_H

#include <QWidget>

#include "IUSSD.h"
#include "SmsLayout.h"

/*
 * Functions that set the title and the size of a frame. They are called when the frame opens and
 * after a language change.
 */

inline const char *paidTitleKey(PAID_TYPE type)
{
    return type == PAID_TYPE_PREPAID ? "IDS_WINDOW_TETLE_PREPAID" : "IDS_WINDOW_TETLE_POSTPAID";
}

/// Sets the fixed size of the frame to the size of the window plus 20 pixels of height. The size is
/// limited, because a size from the configuration file could be negative or require more memory
/// than is available.
template <typename Dialog>
void fixFrameSize(QWidget *frame, Dialog *dialog)
{
    const QSize most(Formats::SmsLayoutFile::MAX_WINDOW_SIDE,
                     Formats::SmsLayoutFile::MAX_WINDOW_SIDE);
    const QSize size = dialog->GetSize().expandedTo(QSize(0, 0)).boundedTo(most);
    frame->setFixedSize(size.width(), size.height() + 20);
}

#endif
