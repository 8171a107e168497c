#ifndef MESSAGE_H
#define MESSAGE_H

#include <QDateTime>
#include <QString>

namespace Dashboard
{

/** A message that the network has sent of its own accord. */
struct Message {
    qint64 id = 0; // 0 if there is no such message
    QDateTime receivedAt;
    QString sender;
    QString text; // safe to display as plain text; empty if the content is no longer available
    bool isUnread = false;

    bool isNull() const { return id == 0; }
};

/** Selects messages. */
struct MessageQuery {
    enum class Filter { All, Unread, Waiting };

    Filter filter = Filter::All;
    QString words; // in the sender or the text; the case is ignored; empty for all messages

    bool operator==(const MessageQuery &other) const
    {
        return filter == other.filter && words == other.words;
    }
};

} // namespace Dashboard

#endif
