#include "MessageStore.h"

#include <utility>

#include "account/AccountEntry.h"
#include "base/DashboardText.h"
#include "MessageDatabase.h"
#include "TerminalText.h"

namespace Dashboard
{

MessageStore::MessageStore(const QString &file, QObject *parent)
    : QObject(parent), m_file(file), m_database(new MessageDatabase(file))
{
}

MessageStore::~MessageStore() = default;

void MessageStore::setStoring(bool isStoring)
{
    const QString file = isStoring ? m_file : QString();
    if (m_database->isInMemory() == file.isEmpty())
        return;
    begin(file);
}

/// Replaces the database. The messages of the previous database are no longer visible.
void MessageStore::begin(const QString &file)
{
    m_database.reset(new MessageDatabase(file));
    m_texts.clear();
    m_waiting = 0;
    count();
    emit reset();
}

void MessageStore::setSim(const QString &key)
{
    if (key == m_sim)
        return;
    m_sim = key;
    if (!key.isEmpty())
        m_database->adopt(key);
    if (m_database->message(m_waiting).isNull())
        m_waiting = 0;
    count();
    emit reset();
    report();
}

QString MessageStore::file() const
{
    return m_database->isInMemory() ? QString() : m_file;
}

Message MessageStore::add(const QString &sender, const QString &text, const QDateTime &receivedAt,
                          bool waitsForAnswer)
{
    Message message;
    message.receivedAt = receivedAt;
    message.sender = HostCore::terminalText(sender.left(LONGEST_TEXT)).simplified();
    message.text = HostCore::terminalText(text.left(LONGEST_TEXT));
    message.isUnread = true;
    m_database->removeBefore(m_clock().addMonths(-MONTHS_KEPT));
    message.id = store(message);
    if (message.isNull()) {
        keepInMemory();
        message.id = store(message);
    }
    endWaiting(); // a new message ends the session of the previous one
    m_waiting = waitsForAnswer ? message.id : 0;
    report();
    count();
    emit added(message);
    return message;
}

/// Stores the message with its long numbers shortened, and keeps the complete text in memory.
/// Returns the identifier of the message, or 0 if it cannot be stored.
qint64 MessageStore::store(const Message &message)
{
    Message stored = message;
    stored.text = withoutNumbers(message.text);
    const qint64 id = m_database->add(m_sim, stored);
    if (id != 0 && stored.text != message.text)
        m_texts.insert(id, message.text);
    return id;
}

/// Returns the message with its complete text, if it is still in memory.
Message MessageStore::complete(Message message) const
{
    message.text = m_texts.value(message.id, message.text);
    return message;
}

/// From now on, keeps messages in memory, because the file cannot be written.
void MessageStore::keepInMemory()
{
    if (m_database->isInMemory())
        return;
    begin(QString());
    emit problem(dashboardText("MESSAGE_NOT_KEPT").arg(m_file));
}

/// Emits problem() if a damaged file has been renamed.
void MessageStore::report()
{
    const QString damaged = m_database->takeDamagedFile();
    if (!damaged.isEmpty())
        emit problem(dashboardText("MESSAGE_FILE_DAMAGED").arg(damaged));
}

QList<Message> MessageStore::older(const MessageQuery &query, const Message &after, int limit)
{
    QList<Message> messages = m_database->older(m_sim, query, m_waiting, after, limit);
    for (Message &message : messages)
        message = complete(message);
    report();
    return messages;
}

Message MessageStore::message(qint64 id) const
{
    return id == 0 ? Message() : complete(m_database->message(id));
}

Message MessageStore::newest()
{
    return older(MessageQuery(), Message(), 1).value(0);
}

void MessageStore::count()
{
    const int unread = m_database->unreadCount(m_sim);
    if (unread == m_unreadCount)
        return;
    m_unreadCount = unread;
    emit unreadCountChanged(unread);
}

void MessageStore::markRead(qint64 id)
{
    if (!message(id).isUnread || !m_database->markRead(id))
        return;
    count();
    emit changed(id);
}

void MessageStore::markAllRead()
{
    if (m_unreadCount == 0 || !m_database->markAllRead(m_sim))
        return;
    count();
    emit allRead();
}

void MessageStore::remove(qint64 id)
{
    if (!m_database->remove(id))
        return;
    m_texts.remove(id);
    if (id == m_waiting)
        m_waiting = 0;
    count();
    emit changed(id);
}

void MessageStore::endWaiting()
{
    const qint64 id = std::exchange(m_waiting, 0);
    if (id != 0)
        emit changed(id);
}

void MessageStore::removeAll()
{
    const bool isStoring = !m_database->isInMemory();
    m_database.reset(new MessageDatabase(QString())); // closes the file before it is removed
    const bool isRemoved = MessageDatabase(m_file).removeAll();
    begin(isStoring ? m_file : QString());
    if (!isRemoved)
        emit problem(dashboardText("MESSAGE_NOT_REMOVED").arg(m_file));
}

} // namespace Dashboard
