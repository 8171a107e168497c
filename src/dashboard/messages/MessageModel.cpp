#include "MessageModel.h"

#include <QLocale>

#include "base/ClockText.h"
#include "base/DashboardText.h"
#include "MessageStore.h"

namespace Dashboard
{

QString dayText(const QDate &day, const QDate &today)
{
    if (day == today)
        return dashboardText("MESSAGE_TODAY");
    if (day == today.addDays(-1))
        return dashboardText("MESSAGE_YESTERDAY");
    return QLocale().toString(day, QLocale::LongFormat);
}

MessageModel::MessageModel(MessageStore *store, QObject *parent)
    : QAbstractListModel(parent), m_store(store)
{
    connect(store, &MessageStore::added, this, &MessageModel::onAdded);
    connect(store, &MessageStore::changed, this, &MessageModel::onChanged);
    connect(store, &MessageStore::allRead, this, &MessageModel::onAllRead);
    connect(store, &MessageStore::reset, this, &MessageModel::reload);
}

void MessageModel::setQuery(const MessageQuery &query)
{
    if (query == m_query)
        return;
    m_query = query;
    reload();
}

void MessageModel::reload()
{
    beginResetModel();
    m_messages = m_store->older(m_query, Message(), ROWS_AT_ONCE);
    m_isComplete = m_messages.size() < ROWS_AT_ONCE;
    endResetModel();
}

Message MessageModel::message(const QModelIndex &index) const
{
    return m_messages.value(index.isValid() ? index.row() : -1);
}

QModelIndex MessageModel::indexOf(qint64 id) const
{
    for (int row = 0; row < m_messages.size(); ++row) {
        if (m_messages.at(row).id == id)
            return index(row);
    }
    return QModelIndex();
}

int MessageModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_messages.size());
}

bool MessageModel::canFetchMore(const QModelIndex &parent) const
{
    return !parent.isValid() && !m_isComplete;
}

void MessageModel::fetchMore(const QModelIndex &parent)
{
    if (parent.isValid() || m_messages.isEmpty())
        return;
    const QList<Message> more = m_store->older(m_query, m_messages.last(), ROWS_AT_ONCE);
    m_isComplete = more.size() < ROWS_AT_ONCE;
    if (more.isEmpty())
        return;
    const int first = rowCount();
    beginInsertRows(QModelIndex(), first, first + int(more.size()) - 1);
    m_messages << more;
    endInsertRows();
}

bool MessageModel::matches(const Message &message) const
{
    if (m_query.filter == MessageQuery::Filter::Unread && !message.isUnread)
        return false;
    if (m_query.filter == MessageQuery::Filter::Waiting && message.id != m_store->waiting())
        return false;
    const QString words = m_query.words.toCaseFolded();
    return message.sender.toCaseFolded().contains(words) ||
           message.text.toCaseFolded().contains(words);
}

/// Returns the row for a new message. It is not always the first row, because a message
/// that was waiting on the device may be older than messages that are already in the model.
int MessageModel::rowFor(const Message &message) const
{
    int row = 0;
    while (row < m_messages.size() && m_messages.at(row).receivedAt > message.receivedAt)
        ++row;
    return row;
}

/// Inserts the message, unless the rows at its position have not been read yet. Repaints the next
/// row, which may no longer be the first one of its day.
void MessageModel::onAdded(const Message &message)
{
    const int row = rowFor(message);
    if (!matches(message) || (row == m_messages.size() && !m_isComplete))
        return;
    beginInsertRows(QModelIndex(), row, row);
    m_messages.insert(row, message);
    endInsertRows();
    if (row + 1 < rowCount())
        emit dataChanged(index(row + 1), index(row + 1));
}

/// Updates the row of the message, or removes the row if the message no longer exists. In the list
/// of unread messages, a message that has been read stays visible until the user selects another
/// filter, so that the list does not move.
void MessageModel::onChanged(qint64 id)
{
    const QModelIndex changed = indexOf(id);
    if (!changed.isValid())
        return;
    const int row = changed.row();
    const Message now = m_store->message(id);
    if (now.isNull()) {
        beginRemoveRows(QModelIndex(), row, row);
        m_messages.removeAt(row);
        endRemoveRows();
    } else {
        m_messages[row] = now;
    }
    if (row < rowCount())
        emit dataChanged(index(row), index(row)); // the row may now be the first one of its day
}

void MessageModel::onAllRead()
{
    for (Message &message : m_messages)
        message.isUnread = false;
    if (!m_messages.isEmpty())
        emit dataChanged(index(0), index(rowCount() - 1));
}

QString MessageModel::dayOf(int row) const
{
    const QDate day = m_messages.at(row).receivedAt.date();
    if (row > 0 && m_messages.at(row - 1).receivedAt.date() == day)
        return QString();
    return dayText(day, m_today());
}

QString MessageModel::accessibleText(const Message &message) const
{
    const QString day = dayText(message.receivedAt.date(), m_today());
    const QString time = clockText(message.receivedAt);
    return QStringList{message.sender, day, time, message.text}.join(QLatin1String(", "));
}

QString MessageModel::accessibleState(const Message &message) const
{
    QStringList words;
    if (message.isUnread)
        words << dashboardText("MESSAGE_IS_UNREAD");
    if (message.id == m_store->waiting())
        words << dashboardText("MESSAGE_WAITS");
    return words.join(QLatin1String(", "));
}

QVariant MessageModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_messages.size())
        return QVariant();
    const Message &message = m_messages.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return message.text;
    case Qt::AccessibleTextRole:
        return accessibleText(message);
    case Qt::AccessibleDescriptionRole:
        return accessibleState(message);
    case MessageRole:
        return QVariant::fromValue(message);
    case DayRole:
        return dayOf(index.row());
    case WaitingRole:
        return message.id == m_store->waiting();
    default:
        return QVariant();
    }
}

} // namespace Dashboard
