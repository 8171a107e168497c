#ifndef MESSAGESTORE_H
#define MESSAGESTORE_H

#include <QHash>
#include <QObject>

#include <functional>
#include <memory>

#include "Message.h"

namespace Dashboard
{

class MessageDatabase;

/**
 * Keeps the network-initiated messages of each SIM for 12 months. If messages must not be stored,
 * or if they cannot be stored, they are kept in memory until the program ends. In the file, long
 * numbers are shortened; see withoutNumbers(). The complete texts are only kept in memory. All
 * functions must be called from the GUI thread.
 */
class MessageStore : public QObject
{
    Q_OBJECT
public:
    static const int MONTHS_KEPT = 12;
    static const int LONGEST_TEXT = 10000; // characters; more than any network can send

    /// Stores messages in the given file, which is opened when a message is first read or added.
    explicit MessageStore(const QString &file, QObject *parent = nullptr);
    ~MessageStore() override;

    /// Sets whether messages are stored in the file or only kept in memory.
    void setStoring(bool isStoring);
    /// Sets the key of the current SIM; see SimKey.h. Only messages of this SIM are visible. An
    /// empty key means that the SIM is unknown.
    void setSim(const QString &key);
    /// Replaces the clock that determines which messages are too old.
    void setClock(const std::function<QDateTime()> &clock) { m_clock = clock; }

    /// Adds an unread message and returns it. Control characters and direction characters in the
    /// text are replaced.
    Message add(const QString &sender, const QString &text, const QDateTime &receivedAt,
                bool waitsForAnswer);
    /// Returns at most `limit` messages that are older than `after`, starting with the newest one.
    /// If `after` is a null message, returns the newest messages.
    QList<Message> older(const MessageQuery &query, const Message &after, int limit);
    Message message(qint64 id) const;
    Message newest();
    int unreadCount() const { return m_unreadCount; }
    /// Returns the identifier of the message that requires an answer, or 0 if there is none.
    qint64 waiting() const { return m_waiting; }
    /// Returns the file that contains the messages, or an empty string if they are in memory.
    QString file() const;

public slots:
    void markRead(qint64 id);
    void markAllRead();
    void remove(qint64 id);
    /// Records that no message requires an answer. Must be called when the network no longer
    /// expects one.
    void endWaiting();
    /// Removes all messages of all SIMs from the file and from memory.
    void removeAll();

signals:
    void added(const Message &message);
    /// Emitted when the message with the identifier `id` has been marked as read, has been removed,
    /// or no longer requires an answer.
    void changed(qint64 id);
    /// Emitted when all messages have been marked as read.
    void allRead();
    /// Emitted when the visible messages have been replaced, for example with those of another SIM.
    void reset();
    void unreadCountChanged(int count);
    /// Emitted with a message for the user if messages cannot be stored.
    void problem(const QString &text);

private:
    void begin(const QString &file);
    void keepInMemory();
    void count();
    void report();
    qint64 store(const Message &message);
    Message complete(Message message) const;

    const QString m_file;
    std::function<QDateTime()> m_clock = QDateTime::currentDateTime;
    std::unique_ptr<MessageDatabase> m_database;
    QHash<qint64, QString> m_texts; // the complete texts of the messages since the program started
    QString m_sim;
    qint64 m_waiting = 0;
    int m_unreadCount = 0;
};

} // namespace Dashboard

#endif
