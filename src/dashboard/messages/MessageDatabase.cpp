#include "MessageDatabase.h"

#include <QAtomicInt>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>

#include "ProvisionWriter.h"

namespace Dashboard
{

namespace
{

const char FILE_NAME[] = "messages.sqlite";
const int SCHEMA_VERSION = 1;
const QFile::Permissions OWNER_ONLY = QFile::ReadOwner | QFile::WriteOwner;

// The result codes of SQLite for a damaged file and for a file that is not a database.
const char CORRUPT[] = "11";
const char NOT_A_DATABASE[] = "26";

// Overwrite deleted messages, and wait if another process is using the file.
const char *const SETTINGS[] = {"PRAGMA secure_delete = ON", "PRAGMA busy_timeout = 2000",
                                "PRAGMA synchronous = FULL"};

const char *const SCHEMA[] = {
    "CREATE TABLE IF NOT EXISTS message (id INTEGER PRIMARY KEY AUTOINCREMENT, sim TEXT NOT NULL, "
    "received INTEGER NOT NULL, sender TEXT NOT NULL, text TEXT NOT NULL, "
    "folded TEXT NOT NULL, unread INTEGER NOT NULL)",
    "CREATE INDEX IF NOT EXISTS message_by_time ON message (sim, received, id)",
    "CREATE INDEX IF NOT EXISTS message_unread ON message (sim, received, id) WHERE unread = 1",
    "CREATE INDEX IF NOT EXISTS message_by_age ON message (received)"};

const char COLUMNS[] = "SELECT id, received, sender, text, unread FROM message ";

QString newConnectionName()
{
    static QAtomicInt last;
    return QString::fromLatin1("messages-%1").arg(last.fetchAndAddOrdered(1));
}

/// Returns the text in the form that searches compare. SQLite ignores only the case of ASCII
/// letters.
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

/// Creates the file with private permissions. SQLite would create it with the default permissions,
/// so that other users could read it for a moment.
bool makePrivateFile(const QString &path)
{
    if (!QDir().mkpath(QFileInfo(path).path()))
        return false;
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Append) && file.setPermissions(OWNER_ONLY);
}

QString nameForDamaged(const QString &file)
{
    for (int i = 1;; ++i) {
        QString name = file + QString::fromLatin1(".damaged-%1").arg(i);
        if (!QFile::exists(name))
            return name;
    }
}

} // namespace

MessageDatabase::MessageDatabase(const QString &file)
    : m_file(file), m_connection(newConnectionName())
{
}

MessageDatabase::~MessageDatabase()
{
    close();
}

QString MessageDatabase::userFile()
{
    return Provisioning::userDataHome() + QLatin1Char('/') + QLatin1String(FILE_NAME);
}

// ---- the file -----------------------------------------------------------------------------------

/// Returns false if there cannot be any messages. In this case, the program does not have to load
/// the database driver.
bool MessageDatabase::isThere() const
{
    return m_isOpen || (!isInMemory() && QFile::exists(m_file));
}

bool MessageDatabase::isOpen()
{
    if (!m_isOpen && !m_isOfLaterVersion)
        m_isOpen = open() || (setAside() && open());
    return m_isOpen;
}

bool MessageDatabase::open()
{
    if (!isInMemory() && !makePrivateFile(m_file))
        return false;
    QSqlDatabase database = QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), m_connection);
    database.setDatabaseName(isInMemory() ? QLatin1String(":memory:") : m_file);
    if (database.open() && prepare())
        return true;
    database = QSqlDatabase();
    close();
    return false;
}

/// Creates the tables. Returns false if the file is damaged or was written by a later version of
/// the program.
bool MessageDatabase::prepare()
{
    QSqlDatabase database = QSqlDatabase::database(m_connection);
    QSqlQuery query(database);
    for (const char *setting : SETTINGS)
        query.exec(QLatin1String(setting));
    if (!query.exec(QLatin1String("PRAGMA user_version")) || !query.next())
        return handleError(query);
    m_isOfLaterVersion = query.value(0).toInt() > SCHEMA_VERSION;
    query.finish();
    if (m_isOfLaterVersion || !database.transaction())
        return false;
    for (const char *statement : SCHEMA) {
        if (!query.exec(QLatin1String(statement)))
            return handleError(query);
    }
    query.exec(QString::fromLatin1("PRAGMA user_version = %1").arg(SCHEMA_VERSION));
    return database.commit();
}

/// Records whether the error was caused by a damaged file. Always returns false.
bool MessageDatabase::handleError(const QSqlQuery &query)
{
    const QString code = query.lastError().nativeErrorCode();
    if (code == QLatin1String(CORRUPT) || code == QLatin1String(NOT_A_DATABASE))
        m_damagedFile = m_file;
    return false;
}

/// Renames the file if it is damaged. Returns true if the file was renamed.
bool MessageDatabase::setAside()
{
    if (m_damagedFile != m_file || isInMemory())
        return false;
    close();
    const QString name = nameForDamaged(m_file);
    if (!QFile::rename(m_file, name))
        return false;
    m_damagedFile = name;
    QFile::remove(m_file + QLatin1String("-journal"));
    return true;
}

void MessageDatabase::close()
{
    m_isOpen = false;
    if (QSqlDatabase::contains(m_connection))
        QSqlDatabase::removeDatabase(m_connection);
}

QString MessageDatabase::takeDamagedFile()
{
    QString name;
    if (m_damagedFile != m_file)
        name.swap(m_damagedFile);
    return name;
}

// ---- statements ---------------------------------------------------------------------------------

namespace
{

/// Returns the value, or an empty text instead of NULL. In Qt 6, a QVariant with a null string is
/// not null itself.
QVariant withoutNull(const QVariant &value)
{
    return value.toString().isNull() ? QVariant(QLatin1String("")) : value;
}

} // namespace

bool MessageDatabase::run(const char *statement, const QVariantList &values, QSqlQuery *query)
{
    query->setForwardOnly(true);
    query->prepare(QLatin1String(statement));
    for (const QVariant &value : values)
        query->addBindValue(withoutNull(value));
    return query->exec() || handleError(*query);
}

/// Executes the statement. If the file turns out to be damaged, repeats the statement with a new
/// file.
bool MessageDatabase::change(const char *statement, const QVariantList &values)
{
    if (!isOpen())
        return false;
    {
        QSqlQuery query(QSqlDatabase::database(m_connection));
        if (run(statement, values, &query))
            return true;
    }
    return setAside() && change(statement, values);
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
    QSqlQuery query(QSqlDatabase::database(m_connection));
    return run("SELECT max(id) FROM message", {}, &query) && query.next()
               ? query.value(0).toLongLong()
               : 0;
}

/// Returns the messages that the statement selects. If the file is damaged, renames it.
QList<Message> MessageDatabase::select(const QByteArray &statement, const QVariantList &values)
{
    QList<Message> messages;
    if (!isThere() || !isOpen())
        return messages;
    bool isRun = false;
    {
        QSqlQuery query(QSqlDatabase::database(m_connection));
        isRun = run(statement.constData(), values, &query);
        while (isRun && query.next())
            messages << messageOf(query);
        isRun = isRun && (query.lastError().type() == QSqlError::NoError || handleError(query));
    }
    if (!isRun)
        setAside();
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
    if (!isThere() || !isOpen())
        return 0;
    QSqlQuery query(QSqlDatabase::database(m_connection));
    const char statement[] = "SELECT count(*) FROM message WHERE sim = ? AND unread = 1";
    return run(statement, {sim}, &query) && query.next() ? query.value(0).toInt() : 0;
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

/// Also removes damaged files that were set aside, because they may contain messages.
bool MessageDatabase::removeAll()
{
    close();
    m_isOfLaterVersion = false;
    if (isInMemory())
        return true;
    const QFileInfo file(m_file);
    bool isDone = true;
    for (const QString &name : file.dir().entryList({file.fileName() + QLatin1Char('*')}))
        isDone = file.dir().remove(name) && isDone;
    return isDone;
}

} // namespace Dashboard
