#ifndef PROFILESTORETEST_H
#define PROFILESTORETEST_H

#include "PluginTest.h"

#include <QList>

#include "profiles/USSDEditCmd.h"

using namespace Formats;

/// Returns a profile with this name and this code.
USSDProfile profile(const QString &name, const QString &value);

/** The base class of tests of the profile files, which USSDEditCmd reads and writes. */
class ProfileStoreTest : public PluginTest
{
    Q_OBJECT

protected:
    QString userFile() { return userFolder() + latin1("ussdprofile.xml"); }
    QString systemFile() { return pluginFolder() + latin1("/ussdsysprofile.xml"); }
    void writeUserProfiles(const QByteArray &items) { write(userFile(), profileFile(items)); }
    static void write(const QString &path, const QByteArray &content);
    static QList<USSDProfile> list(USSDEditCmd &store);
    static QList<USSDProfile> loaded(); ///< the profiles that a new object reads
    /// Returns the codes of all profiles, and marks those of the system file.
    static QStringList codes(const QList<USSDProfile> &profiles);
    /// Reads the profiles from the content of a file, and sets `error` to the XML error.
    static QList<USSDProfile> readBack(QByteArray xml, QString *error = nullptr);
};

#endif
