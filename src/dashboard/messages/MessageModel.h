#ifndef MESSAGEMODEL_H
#define MESSAGEMODEL_H

#include <QAbstractListModel>

#include <functional>

#include "Message.h"

namespace Dashboard
{

class MessageStore;

/// Returns "Today", "Yesterday" or the date.
QString dayText(const QDate &day, const QDate &today);

/**
 * A model with the messages of the current SIM that match a query, starting with the newest one.
 * Messages are read from the store when the view needs them, so that even a long history opens
 * quickly.
 */
class MessageModel : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role {
        MessageRole = Qt::UserRole, // a Message
        DayRole,    // the day as text; empty unless the row is the first one of its day
        WaitingRole // true if the message requires an answer
    };
    static const int ROWS_AT_ONCE = 100;

    /// The store must outlive the model.
    explicit MessageModel(MessageStore *store, QObject *parent = nullptr);

    void setQuery(const MessageQuery &query);
    const MessageQuery &query() const { return m_query; }
    /// Replaces the function that returns the current date.
    void setToday(const std::function<QDate()> &today) { m_today = today; }
    Message message(const QModelIndex &index) const;
    QModelIndex indexOf(qint64 id) const;
    /// Reads the messages again.
    void reload();

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;

private:
    void onAdded(const Message &message);
    bool matches(const Message &message) const;
    int rowFor(const Message &message) const;
    void onChanged(qint64 id);
    void onAllRead();
    QString dayOf(int row) const;
    QString accessibleText(const Message &message) const;
    QString accessibleState(const Message &message) const;

    MessageStore *const m_store;
    std::function<QDate()> m_today = QDate::currentDate;
    MessageQuery m_query;
    QList<Message> m_messages;
    bool m_isComplete = false; // true if all messages have been read from the store
};

} // namespace Dashboard

Q_DECLARE_METATYPE(Dashboard::Message)

#endif
