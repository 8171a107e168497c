#include "MessageDatabase.h"

#include "ProvisionWriter.h"

namespace Dashboard
{

namespace
{

const char FILE_NAME[] = "messages.sqlite";

const QList<QList<const char *>> &migrations()
{
    static const QList<QList<const char *>> steps = {
        {"CREATE TABLE message (id INTEGER PRIMARY KEY AUTOINCREMENT, sim TEXT NOT NULL, "
         "received INTEGER NOT NULL, sender TEXT NOT NULL, text TEXT NOT NULL, "
         "folded TEXT NOT NULL, unread INTEGER NOT NULL)",
         "CREATE INDEX message_by_time ON message (sim, received, id)",
         "CREATE INDEX message_unread ON message (sim, received, id) WHERE unread = 1",
         "CREATE INDEX message_by_age ON message (received)"}};
    return steps;
}

const char COLUMNS[] = "SELECT id, received, sender, text, unread FROM message ";

/// Returns the text in the form that is used for searching. SQLite would ignore the case of ASCII
/// letters only.
QString folded(const QString &text)
{
    return text.toCaseFolded();
}

Message messageOf(const QSqlQuery &row)
{
    Message message;
    message.id = row.value(0).toLongLong();
    message.receivedAt = QDateTime::fromMSecsSinceEpoch(row.value(1).toLongLong());
    message.sender = row.value(2).toString();
    message.text = row.value(3).toString();
    message.isUnread = row.value(4).toBool();
    return message;
}

} // namespace

MessageDatabase::MessageDatabase(const QString &file) : UserDatabase(file, migrations()) {}

QString MessageDatabase::userFile()
{
    return Provisioning::userDataHome() + QLatin1Char('/') + QLatin1String(FILE_NAME);
}

bool MessageDatabase::change(const char *statement, const QVariantList &values)
{
    return repairing([&] { return run(statement, values); });
}

qint64 MessageDatabase::add(const QString &sim, const Message &message)
{
    const QVariantList values = {sim,
                                 message.receivedAt.toMSecsSinceEpoch(),
                                 message.sender,
                                 message.text,
                                 folded(message.sender + QLatin1Char('\n') + message.text),
                                 message.isUnread};
    if (!change("INSERT INTO message (sim, received, sender, text, folded, unread) "
                "VALUES (?, ?, ?, ?, ?, ?)",
                values))
        return 0;
    return number("SELECT max(id) FROM message", {});
}

/// Returns the number that the statement selects.
qint64 MessageDatabase::number(const char *statement, const QVariantList &values)
{
    qint64 result = 0;
    repairing([&] {
        return readRows(statement, values, [&result](const QSqlQuery &row) {
            result = row.value(0).toLongLong();
            return true;
        });
    });
    return result;
}

/// Returns the messages that the statement selects.
QList<Message> MessageDatabase::select(const QByteArray &statement, const QVariantList &values)
{
    QList<Message> messages;
    if (!isThere())
        return messages;
    repairing([&] {
        messages.clear();
        return readRows(statement.constData(), values, [&messages](const QSqlQuery &row) {
            messages << messageOf(row);
            return true;
        });
    });
    return messages;
}

QList<Message> MessageDatabase::older(const QString &sim, const MessageQuery &wanted,
                                      qint64 waiting, const Message &after, int limit)
{
    QByteArray statement = QByteArray(COLUMNS) + "WHERE sim = ?";
    QVariantList values = {sim};
    if (wanted.filter == MessageQuery::Filter::Unread)
        statement += " AND unread = 1";
    if (wanted.filter == MessageQuery::Filter::Waiting) {
        statement += " AND id = ?";
        values << waiting;
    }
    if (!wanted.words.isEmpty()) {
        statement += " AND instr(folded, ?) > 0";
        values << folded(wanted.words);
    }
    if (!after.isNull()) {
        statement += " AND (received, id) < (?, ?)";
        values << after.receivedAt.toMSecsSinceEpoch() << after.id;
    }
    return select(statement + " ORDER BY received DESC, id DESC LIMIT ?", values << limit);
}

Message MessageDatabase::message(qint64 id)
{
    return select(QByteArray(COLUMNS) + "WHERE id = ?", {id}).value(0);
}

int MessageDatabase::unreadCount(const QString &sim)
{
    return isThere()
               ? int(number("SELECT count(*) FROM message WHERE sim = ? AND unread = 1", {sim}))
               : 0;
}

bool MessageDatabase::markRead(qint64 id)
{
    return isThere() && change("UPDATE message SET unread = 0 WHERE id = ?", {id});
}

bool MessageDatabase::markAllRead(const QString &sim)
{
    return isThere() && change("UPDATE message SET unread = 0 WHERE sim = ? AND unread = 1", {sim});
}

bool MessageDatabase::remove(qint64 id)
{
    return isThere() && change("DELETE FROM message WHERE id = ?", {id});
}

bool MessageDatabase::adopt(const QString &sim)
{
    return isThere() && change("UPDATE message SET sim = ? WHERE sim = ''", {sim});
}

bool MessageDatabase::removeBefore(const QDateTime &limit)
{
    return isThere() &&
           change("DELETE FROM message WHERE received < ?", {limit.toMSecsSinceEpoch()});
}

} // namespace Dashboard
