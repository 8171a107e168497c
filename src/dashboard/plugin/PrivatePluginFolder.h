#ifndef PRIVATEPLUGINFOLDER_H
#define PRIVATEPLUGINFOLDER_H

#include <QString>
#include <QStringList>

namespace Dashboard
{

/**
 * A temporary plug-in library folder with modifiable copies of the installed files. While this
 * object exists, $USSD_PLUGIN_LIBRARY_PATH is set to the folder and $TKSV_USER_DATA to a subfolder.
 * Therefore, the plug-in changes neither the installed files nor the user's files. Only one such
 * folder may exist at a time. The object must be constructed and deleted while no other thread uses
 * the environment.
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

    /// Restores the installed contents of the file with this name.
    bool restore(const QString &name);
    /// In the file with this name, replaces the first occurrence of `before` after the first
    /// occurrence of `anchor` with `after`. Returns false if there are no such occurrences.
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
