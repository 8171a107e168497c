#ifndef MESSAGE_H
#define MESSAGE_H

#include <QDateTime>
#include <QString>

namespace Dashboard
{

/** A network-initiated message. */
struct Message {
    qint64 id = 0; // 0 if the message does not exist
    QDateTime receivedAt;
    QString sender;
    QString text; // can safely be displayed as plain text; empty if the text is no longer available
    bool isUnread = false;

    bool isNull() const { return id == 0; }
};

/** The filter of a list of messages. */
struct MessageQuery {
    enum class Filter { All, Unread, Waiting };

    Filter filter = Filter::All;
    QString
        words; // searched for in the sender and the text, ignoring the case; empty for all messages

    bool operator==(const MessageQuery &other) const
    {
        return filter == other.filter && words == other.words;
    }
};

} // namespace Dashboard

#endif
