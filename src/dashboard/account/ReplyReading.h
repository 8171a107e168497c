#ifndef REPLYREADING_H
#define REPLYREADING_H

#include <QDate>
#include <QString>

#include <optional>

#include "Money.h"

namespace Dashboard
{

/** A remaining data volume. */
struct DataVolume {
    qint64 left = 0;  // bytes
    qint64 total = 0; // bytes; 0 if unknown

    bool operator==(const DataVolume &other) const
    {
        return left == other.left && total == other.total;
    }
};

/// Returns the volume with its unit in the current language, such as "1.8 GB".
QString volumeText(qint64 bytes);

/** The values extracted from a reply. Missing and ambiguous values are absent. */
struct ReplyReading {
    std::optional<Money> amount;   // the balance
    std::optional<QDate> date;     // the last day of the account's validity
    std::optional<QString> number; // the subscriber's own number as "+" and digits
    std::optional<DataVolume> data;
};

/// Extracts the values from a reply in any supported language. Because a wrong value is worse than
/// none, a value is ignored unless the words around it are unambiguous.
ReplyReading readReply(const QString &text);

} // namespace Dashboard

#endif
