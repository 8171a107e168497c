#include "UserDatabase.h"

#include <QAtomicInt>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>

namespace Dashboard
{

namespace
{

const QFile::Permissions OWNER_ONLY = QFile::ReadOwner | QFile::WriteOwner;

// The result codes of SQLite for a file that is damaged or is not a database.
const char CORRUPT[] = "11";
const char NOT_A_DATABASE[] = "26";
const int UNKNOWN_VERSION = -1;

// Makes SQLite overwrite deleted rows, so that they cannot be restored, and wait up to 2000 ms if
// another process has locked the file.
const char *const SETTINGS[] = {"PRAGMA secure_delete = ON", "PRAGMA busy_timeout = 2000",
                                "PRAGMA synchronous = FULL"};

QString newConnectionName()
{
    static QAtomicInt last;
    return QString::fromLatin1("user-database-%1").arg(last.fetchAndAddOrdered(1));
}

/// Creates the file before SQLite opens it, so that other users can never read it.
bool makePrivateFile(const QString &path)
{
    const QString folder = QFileInfo(path).path();
    if (!QDir().mkpath(folder))
        return false;
    QFile::setPermissions(folder, OWNER_ONLY | QFile::ExeOwner);
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Append) && file.setPermissions(OWNER_ONLY);
}

QString nameForDamaged(const QString &file)
{
    const QString base =
        file + QLatin1String(".damaged-") + QDate::currentDate().toString(Qt::ISODate);
    QString name = base;
    for (int i = 2; QFile::exists(name); ++i)
        name = base + QString::fromLatin1("-%1").arg(i);
    return name;
}

/// Returns the value to bind. A null string is replaced with an empty one, because SQLite would
/// store a null string as NULL.
QVariant bound(const QVariant &value)
{
    const bool isNullString = value.userType() == QMetaType::QString && value.toString().isNull();
    return isNullString ? QVariant(QLatin1String("")) : value;
}

} // namespace

UserDatabase::UserDatabase(const QString &file, const Migrations &migrations)
    : m_file(file), m_connection(newConnectionName()), m_migrations(migrations)
{
}

UserDatabase::~UserDatabase()
{
    close();
}

bool UserDatabase::isThere() const
{
    return m_isOpen || (!isInMemory() && QFile::exists(m_file));
}

bool UserDatabase::isOpen()
{
    if (!m_isOpen && !m_isOfLaterVersion)
        m_isOpen = open() || (setAside() && open());
    return m_isOpen;
}

bool UserDatabase::open()
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

/// Updates the tables to the current version. Returns false if this fails, or if the file was
/// written by a later version.
bool UserDatabase::prepare()
{
    QSqlQuery query(QSqlDatabase::database(m_connection));
    for (const char *setting : SETTINGS)
        query.exec(QLatin1String(setting));
    const int found = version(query);
    m_isOfLaterVersion = found > m_migrations.size();
    return found != UNKNOWN_VERSION && !m_isOfLaterVersion &&
           (found == m_migrations.size() || migrate());
}

/// Returns the version of the schema, which is 0 for a new file. Returns UNKNOWN_VERSION if the
/// version cannot be read.
int UserDatabase::version(QSqlQuery &query)
{
    const bool isRead = query.exec(QLatin1String("PRAGMA user_version")) && query.next();
    const int result = isRead ? query.value(0).toInt() : UNKNOWN_VERSION;
    if (!isRead)
        handleError(query);
    query.finish();
    return result;
}

/// Executes the missing migration steps. Reads the version again, because another process may have
/// migrated the file before this process acquired the lock.
bool UserDatabase::migrate()
{
    return inTransaction([this] {
        QSqlQuery query(QSqlDatabase::database(m_connection));
        const int first = version(query);
        if (first == UNKNOWN_VERSION)
            return false;
        for (int step = first; step < m_migrations.size(); ++step) {
            for (const char *statement : m_migrations.at(step)) {
                if (!query.exec(QLatin1String(statement)))
                    return handleError(query);
            }
        }
        return query.exec(
                   QString::fromLatin1("PRAGMA user_version = %1").arg(m_migrations.size())) ||
               handleError(query);
    });
}

/// Records whether the error means that the file is damaged. Always returns false, so that a caller
/// can return the result.
bool UserDatabase::handleError(const QSqlQuery &query)
{
    const QString code = query.lastError().nativeErrorCode();
    m_isDamaged = code == QLatin1String(CORRUPT) || code == QLatin1String(NOT_A_DATABASE);
    return false;
}

/// Renames a damaged file. Returns false if the file is not damaged or cannot be renamed.
bool UserDatabase::setAside()
{
    if (!m_isDamaged || isInMemory())
        return false;
    close();
    m_isDamaged = false;
    const QString name = nameForDamaged(m_file);
    if (!QFile::rename(m_file, name))
        return false;
    m_damagedFile = name;
    QFile::remove(m_file + QLatin1String("-journal"));
    return true;
}

void UserDatabase::close()
{
    m_isOpen = false;
    if (QSqlDatabase::contains(m_connection))
        QSqlDatabase::removeDatabase(m_connection);
}

QString UserDatabase::takeDamagedFile()
{
    QString name;
    name.swap(m_damagedFile);
    return name;
}

bool UserDatabase::repairing(const std::function<bool()> &step)
{
    if (!isOpen())
        return false;
    return step() || (setAside() && isOpen() && step());
}

// Acquires the write lock at the start of the transaction, because another process may write to the
// file at the same time.
bool UserDatabase::inTransaction(const std::function<bool()> &step)
{
    if (!run("BEGIN IMMEDIATE"))
        return false;
    if (step() && run("COMMIT"))
        return true;
    const bool isDamaged = m_isDamaged;
    run("ROLLBACK");
    m_isDamaged = isDamaged;
    return false;
}

bool UserDatabase::run(const char *statement, const QVariantList &values, QSqlQuery *query)
{
    QSqlQuery own(QSqlDatabase::database(m_connection));
    QSqlQuery *used = query ? query : &own;
    used->setForwardOnly(true);
    used->prepare(QLatin1String(statement));
    for (const QVariant &value : values)
        used->addBindValue(bound(value));
    if (used->exec())
        return true;
    return handleError(*used);
}

bool UserDatabase::readRows(const char *statement, const QVariantList &values,
                            const std::function<bool(const QSqlQuery &)> &use)
{
    QSqlQuery query(QSqlDatabase::database(m_connection));
    if (!run(statement, values, &query))
        return false;
    while (query.next()) {
        if (!use(query))
            return false;
    }
    return query.lastError().type() == QSqlError::NoError || handleError(query);
}

/// Removes all files whose names start with the name of the database. This includes renamed damaged
/// files, which may contain entries.
bool UserDatabase::removeAll()
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
