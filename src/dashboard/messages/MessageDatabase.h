#ifndef MESSAGEDATABASE_H
#define MESSAGEDATABASE_H

#include "base/UserDatabase.h"
#include "Message.h"

namespace Dashboard
{

/** The messages of all SIMs. Each change is a separate transaction. */
class MessageDatabase : public UserDatabase
{
public:
    /// If `file` is empty, the database is kept in memory.
    explicit MessageDatabase(const QString &file);

    /// Returns the path of the database file of the user who runs the program.
    static QString userFile();

    /// Adds the message and returns its identifier. Returns 0 if it cannot be stored.
    qint64 add(const QString &sim, const Message &message);
    /// Returns at most `limit` messages that are older than `after`, starting with the newest one.
    /// If `after` is a null message, returns the newest messages. `waiting` is the identifier of
    /// the message that requires an answer.
    QList<Message> older(const QString &sim, const MessageQuery &query, qint64 waiting,
                         const Message &after, int limit);
    Message message(qint64 id);
    int unreadCount(const QString &sim);
    bool markRead(qint64 id);
    bool markAllRead(const QString &sim);
    bool remove(qint64 id);
    /// Assigns the messages that arrived before the SIM was known to the given SIM.
    bool adopt(const QString &sim);
    bool removeBefore(const QDateTime &limit);

private:
    QList<Message> select(const QByteArray &statement, const QVariantList &values);
    qint64 number(const char *statement, const QVariantList &values);
    bool change(const char *statement, const QVariantList &values);
};

} // namespace Dashboard

#endif
