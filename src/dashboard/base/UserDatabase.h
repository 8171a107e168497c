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
 * An SQLite file that only its user can read, or a database in memory. The file is opened by the
 * first call that needs it. A damaged file is renamed, and a new one takes its place. A file of a
 * later version is neither read nor changed.
 */
class UserDatabase
{
public:
    virtual ~UserDatabase();
    UserDatabase(const UserDatabase &) = delete;
    UserDatabase &operator=(const UserDatabase &) = delete;

    bool isInMemory() const { return m_file.isEmpty(); }
    /// Removes the content, and the file with its journal and its damaged versions.
    bool removeAll();
    /// Returns the new name of a damaged file since the last call, or an empty string.
    QString takeDamagedFile();
    /// Returns true if the file was written by a later version.
    bool isOfLaterVersion() const { return m_isOfLaterVersion; }

protected:
    /// The statements that lead from one version of the schema to the next. A later version appends
    /// to this list and never changes an earlier step.
    using Migrations = QList<QList<const char *>>;

    /// An empty name stands for a database in memory. `migrations` must outlive the object.
    UserDatabase(const QString &file, const Migrations &migrations);

    /// Returns false if there is certainly no content, so that a program without content does not
    /// load the database driver.
    bool isThere() const;
    /// Opens the database if necessary. Returns false if it cannot be used.
    bool isOpen();
    /// Carries out the step. If the file turns out to be damaged, repeats the step in a new file.
    bool repairing(const std::function<bool()> &step);
    /// Carries out the step in a transaction, which the step rolls back by returning false.
    bool inTransaction(const std::function<bool()> &step);
    /// Carries out a statement. The database must be open.
    bool run(const char *statement, const QVariantList &values = {}, QSqlQuery *query = nullptr);
    /// Calls the function for each row. The function returns false to stop, and the call then
    /// returns false as well. The database must be open.
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
    const QString m_connection; // the name of the connection
    const Migrations &m_migrations;
    QString m_damagedFile;
    bool m_isDamaged = false;
    bool m_isOfLaterVersion = false;
    bool m_isOpen = false;
};

} // namespace Dashboard

#endif
