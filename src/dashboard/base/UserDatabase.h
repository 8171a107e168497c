#ifndef USERDATABASE_H
#define USERDATABASE_H

#include <QList>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariantList>

#include <functional>

namespace Dashboard
{

/**
 * An SQLite database in a file that only its owner can read, or in memory. The file is opened when
 * it is first needed. A damaged file is renamed and replaced with a new one. A file that was
 * written by a later version of the program is neither read nor changed.
 */
class UserDatabase
{
public:
    virtual ~UserDatabase();
    UserDatabase(const UserDatabase &) = delete;
    UserDatabase &operator=(const UserDatabase &) = delete;

    bool isInMemory() const { return m_file.isEmpty(); }
    /// Closes the database and removes its file, the journal and renamed damaged files. Returns
    /// false if a file cannot be removed.
    bool removeAll();
    /// Returns the new name of the damaged file that was renamed since the last call, or an empty
    /// string if there is none.
    QString takeDamagedFile();
    /// Returns true if the file was written by a later version of the program.
    bool isOfLaterVersion() const { return m_isOfLaterVersion; }

protected:
    /// For each version of the schema, the statements that create it from the previous version.
    /// New versions must be appended. Existing elements must not be changed.
    using Migrations = QList<QList<const char *>>;

    /// If `file` is empty, the database is kept in memory. `migrations` must outlive this object.
    UserDatabase(const QString &file, const Migrations &migrations);

    /// Returns false if the database is certainly empty. In this case, the caller does not have to
    /// open it, so that the database driver is not loaded.
    bool isThere() const;
    /// Opens the database if necessary. Returns false if it cannot be used.
    bool isOpen();
    /// Executes the step. If the file proves to be damaged, replaces it and repeats the step.
    /// Returns the result of the step, or false if the database cannot be used.
    bool repairing(const std::function<bool()> &step);
    /// Executes the step in a transaction. If the step returns false, the transaction is rolled
    /// back. Returns true if the transaction has been committed.
    bool inTransaction(const std::function<bool()> &step);
    /// Executes the statement. Returns false if it fails. The database must be open.
    bool run(const char *statement, const QVariantList &values = {}, QSqlQuery *query = nullptr);
    /// Calls the function for each row of the result. If the function returns false, no more rows
    /// are read, and readRows() returns false. It also returns false if the rows cannot be read.
    /// The database must be open.
    bool readRows(const char *statement, const QVariantList &values,
                  const std::function<bool(const QSqlQuery &)> &use);

private:
    bool open();
    bool prepare();
    bool migrate();
    int version(QSqlQuery &query);
    bool handleError(const QSqlQuery &query);
    bool setAside();
    void close();

    const QString m_file;
    const QString m_connection; // the name of the QSqlDatabase connection
    const Migrations &m_migrations;
    QString m_damagedFile;
    bool m_isDamaged = false;
    bool m_isOfLaterVersion = false;
    bool m_isOpen = false;
};

} // namespace Dashboard

#endif
