#ifndef PROFILEKEEPER_H
#define PROFILEKEEPER_H

#include <QObject>

#include "plugin/ProfileBackup.h"

namespace Dashboard
{

/**
 * Keeps the backup copy of the user's own codes up to date, and offers to restore it when the codes
 * are missing or damaged. GUI thread.
 */
class ProfileKeeper : public QObject
{
    Q_OBJECT
public:
    explicit ProfileKeeper(const ProfileBackup &backup, QObject *parent = nullptr);

public slots:
    /// Asks the user when the codes are missing or damaged, updates the copy and emits ready().
    /// Must be called before the plug-in reads the codes.
    void start();
    /// Updates the copy; to be called when the codes may have been saved.
    void refresh();

signals:
    void ready();
    /// Emitted when a file of the user's cannot be saved. `text` is the message in the current
    /// language.
    void problem(QString text);

private:
    void offerRestore(const char *question);
    void restore();

    const ProfileBackup m_backup;
};

} // namespace Dashboard

#endif
