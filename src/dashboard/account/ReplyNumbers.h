#ifndef REPLYNUMBERS_H
#define REPLYNUMBERS_H

#include <QList>
#include <QString>

#include "Currencies.h"

namespace Dashboard
{

/** A number in a reply, including its decimal point and separators. */
struct ReplyNumber {
    int start = 0;
    int end = 0;
    QString text; // the digits, the decimal point and the separators

    /// Sets `units` to the value in the same units as Money::units, and `decimals` to the number of
    /// decimal places. Returns false if the number is ambiguous.
    bool read(Grouping grouping, qint64 *units, int *decimals) const;
};

/// Returns the numbers in a reply, in the order of their occurrence. The reply must be in plain
/// form (see ReplyWords.h).
QList<ReplyNumber> replyNumbers(const QString &plain);

} // namespace Dashboard

#endif
