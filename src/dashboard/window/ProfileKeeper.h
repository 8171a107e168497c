#ifndef PROFILEKEEPER_H
#define PROFILEKEEPER_H

#include <QObject>

#include "plugin/ProfileBackup.h"

namespace Dashboard
{

/**
 * Keeps the backup copy of the user's own codes up to date, and offers to restore it if the codes
 * are missing or damaged. All functions must be called from the GUI thread.
 */
class ProfileKeeper : public QObject
{
    Q_OBJECT
public:
    explicit ProfileKeeper(const ProfileBackup &backup, QObject *parent = nullptr);

public slots:
    /// If the codes are missing or damaged, asks the user whether to restore the backup copy. Then
    /// updates the copy and emits ready(). Must be called before the plug-in reads the codes.
    void start();
    /// Updates the backup copy. Must be called each time the codes may have been saved.
    void refresh();

signals:
    void ready();
    /// Emitted when one of the user's files cannot be saved. `text` is an error message in the
    /// current language.
    void problem(QString text);

private:
    void offerRestore(const char *question);
    void restore();

    const ProfileBackup m_backup;
};

} // namespace Dashboard

#endif
