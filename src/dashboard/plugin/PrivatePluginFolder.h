#ifndef PRIVATEPLUGINFOLDER_H
#define PRIVATEPLUGINFOLDER_H

#include <QString>
#include <QStringList>

namespace Dashboard
{

/**
 * A temporary plug-in library folder with copies of the installed files that can be changed. While
 * it exists, $USSD_PLUGIN_LIBRARY_PATH is set to the folder and $TKSV_USER_DATA to a folder in it.
 * The plug-in therefore changes neither the installed files nor the user's files. Only one such
 * folder may exist at a time. It must be constructed and deleted while no other thread uses the
 * environment.
 */
class PrivatePluginFolder
{
public:
    PrivatePluginFolder();
    /// Removes the folder and restores the environment.
    ~PrivatePluginFolder();
    PrivatePluginFolder(const PrivatePluginFolder &) = delete;
    PrivatePluginFolder &operator=(const PrivatePluginFolder &) = delete;

    /// Returns false if the folder could not be created at path().
    bool isValid() const { return m_isValid; }
    QString path() const { return m_path; }
    QString userProfileFile() const;
    QString fileName(const QString &name) const;

    /// Restores the installed file of this name.
    bool restore(const QString &name);
    /// In the file of this name, replaces the first `before` after the first `anchor` with `after`.
    /// Returns false if the file does not contain them.
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

} // namespace Dashboard

#endif
