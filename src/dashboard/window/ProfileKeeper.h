#ifndef PROFILEKEEPER_H
#define PROFILEKEEPER_H

#include <QObject>

#include "plugin/ProfileBackup.h"

/** Keeps the copy of the user's own codes up to date, and offers it when they have gone. GUI
 * thread.
 */
class ProfileKeeper : public QObject
{
    Q_OBJECT
public:
    explicit ProfileKeeper(const ProfileBackup &backup, QObject *parent = nullptr);

public slots:
    /// Asks the user, if it has to, and then emits ready(). To be called before the plug-in reads
    /// the codes.
    void start();
    /// The codes may have been saved.
    void refresh();

signals:
    void ready();
    /// Something of the user's cannot be kept; `text` says what, in the current language.
    void problem(QString text);

private:
    void offerRestore(const char *question);
    void restore();

    const ProfileBackup m_backup;
};

#endif
