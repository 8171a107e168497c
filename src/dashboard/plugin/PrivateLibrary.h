#ifndef PRIVATELIBRARY_H
#define PRIVATELIBRARY_H

#include <QString>
#include <QStringList>

/**
 * A plug-in library folder of one's own, in a temporary place, with copies of the installed files
 * that can be changed. While it exists, $USSD_PLUGIN_LIBRARY_PATH names it and $TKSV_USER_DATA a
 * folder in it, so that nothing that the plug-in saves reaches the installed files or the user's.
 * One at a time; made and deleted while no other thread uses the environment.
 */
class PrivateLibrary
{
public:
    PrivateLibrary();
    /// Removes the folder and puts the environment back.
    ~PrivateLibrary();
    PrivateLibrary(const PrivateLibrary &) = delete;
    PrivateLibrary &operator=(const PrivateLibrary &) = delete;

    /// False when it could not be made; `path()` then says where.
    bool isValid() const { return m_isValid; }
    QString path() const { return m_path; }
    QString userProfileFile() const;
    QString fileName(const QString &name) const;

    /// Puts the installed file of this name back.
    bool restore(const QString &name);
    /// In the file of this name, replaces the first `before` behind the first `anchor`. False when
    /// one of them is not there.
    bool change(const QString &name, const QByteArray &anchor, const QByteArray &before,
                const QByteArray &after);
    bool write(const QString &name, const QByteArray &content);

private:
    bool make();

    QString m_installed;
    QString m_path;
    QByteArray m_oldLibraryPath;
    QByteArray m_oldUserData;
    bool m_isValid = false;
};

#endif
