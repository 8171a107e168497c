#ifndef MESSAGEMODEL_H
#define MESSAGEMODEL_H

#include <QAbstractListModel>

#include <functional>

#include "Message.h"

namespace Dashboard
{

class MessageStore;

/// Returns the day of the message in words: "Today", "Yesterday" or a date.
QString dayText(const QDate &day, const QDate &today);

/**
 * The messages of the current SIM that match a query, the newest first. Messages are read from the
 * store when the view needs them, so that a long history costs nothing.
 */
class MessageModel : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role {
        MessageRole = Qt::UserRole, // a Message
        DayRole,                    // the day in words in the first row of each day, else empty
        WaitingRole                 // true if the message waits for an answer
    };
    static const int ROWS_AT_ONCE = 100;

    /// The store must outlive the model.
    explicit MessageModel(MessageStore *store, QObject *parent = nullptr);

    void setQuery(const MessageQuery &query);
    const MessageQuery &query() const { return m_query; }
    /// Replaces the calendar that decides which day is today.
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
    bool m_isComplete = false; // all messages have been read from the store
};

} // namespace Dashboard

Q_DECLARE_METATYPE(Dashboard::Message)

#endif
