#ifndef REPLYNUMBERS_H
#define REPLYNUMBERS_H

#include <QList>
#include <QString>

#include "Currencies.h"

namespace Dashboard
{

/** A number in a reply, with the marks inside it. */
struct ReplyNumber {
    int start = 0;
    int end = 0;
    QString text; // digits and marks

    /// Sets the value in units of Money::UNITS and the number of decimals. Returns false if the
    /// marks can be read in more than one way.
    bool read(Grouping grouping, qint64 *units, int *decimals) const;
};

/// Returns the numbers of a reply in plain form (see ReplyWords.h), in their order.
QList<ReplyNumber> replyNumbers(const QString &plain);

} // namespace Dashboard

#endif
