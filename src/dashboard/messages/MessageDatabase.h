#ifndef MESSAGEDATABASE_H
#define MESSAGEDATABASE_H

#include <QList>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariantList>

#include "Message.h"

namespace Dashboard
{

/**
 * Stores the network-initiated messages of all SIMs in an SQLite file that only the user can read,
 * or in memory. The file is opened when it is first needed. A damaged file is renamed and replaced
 * with a new one. Each change is a transaction, so a crash cannot leave an incomplete change.
 */
class MessageDatabase
{
public:
    /// If `file` is empty, the database is kept in memory.
    explicit MessageDatabase(const QString &file);
    ~MessageDatabase();
    MessageDatabase(const MessageDatabase &) = delete;
    MessageDatabase &operator=(const MessageDatabase &) = delete;

    /// Returns the file of the user who runs the program.
    static QString userFile();

    bool isInMemory() const { return m_file.isEmpty(); }
    /// Adds the message and returns its identifier, or 0 if the message cannot be stored.
    qint64 add(const QString &sim, const Message &message);
    /// Returns at most `limit` messages that are older than `after`, starting with the newest one.
    /// If `after` is a null message, returns the newest messages. `waiting` is the message that
    /// requires an answer.
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
    /// Removes all messages of all SIMs, and the file.
    bool removeAll();

    /// Returns the new name of the file if it was damaged and has been renamed since the last call.
    /// Otherwise, returns an empty string.
    QString takeDamagedFile();
    /// Returns true if the file was written by a later version of the program. Such a file is
    /// neither read nor changed.
    bool isOfLaterVersion() const { return m_isOfLaterVersion; }

private:
    bool isThere() const;
    bool isOpen();
    bool open();
    bool prepare();
    bool run(const char *statement, const QVariantList &values, QSqlQuery *query);
    QList<Message> select(const QByteArray &statement, const QVariantList &values);
    bool change(const char *statement, const QVariantList &values);
    bool handleError(const QSqlQuery &query);
    bool setAside();
    void close();

    const QString m_file;
    const QString m_connection; // the name of the Qt database connection
    QString m_damagedFile;
    bool m_isOfLaterVersion = false;
    bool m_isOpen = false;
};

} // namespace Dashboard

#endif
