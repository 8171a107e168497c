#ifndef REPLYREADING_H
#define REPLYREADING_H

#include <QDate>
#include <QString>

#include <optional>

#include "Money.h"

namespace Dashboard
{

/** A volume of data. */
struct DataVolume {
    qint64 left = 0;  // bytes
    qint64 total = 0; // bytes; 0 if the reply does not tell it

    bool operator==(const DataVolume &other) const
    {
        return left == other.left && total == other.total;
    }
};

/// Returns the volume with its unit in the current language, such as "1.8 GB".
QString volumeText(qint64 bytes);

/** The values that a reply tells. A value that could be read in more than one way is absent. */
struct ReplyReading {
    std::optional<Money> amount;   // the balance
    std::optional<QDate> date;     // the last day of the account's validity
    std::optional<QString> number; // the subscriber's own number, with "+" and digits only
    std::optional<DataVolume> data;
};

/// Reads the values out of a reply in any language. A value is read only if the words around it
/// leave no doubt: a wrong amount would be worse than none.
ReplyReading readReply(const QString &text);

} // namespace Dashboard

#endif
