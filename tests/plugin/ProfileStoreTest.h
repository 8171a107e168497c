#ifndef PROFILESTORETEST_H
#define PROFILESTORETEST_H

#include "PluginTest.h"

#include <QList>

#include "profiles/USSDEditCmd.h"

using namespace Formats;

/// Returns a profile with this name and code.
USSDProfile profile(const QString &name, const QString &value);

/** The base class for tests of the profile files that USSDEditCmd reads and writes. */
class ProfileStoreTest : public PluginTest
{
    Q_OBJECT

protected:
    QString userFile() { return userFolder() + latin1("ussdprofile.xml"); }
    QString systemFile() { return pluginFolder() + latin1("/ussdsysprofile.xml"); }
    void writeUserProfiles(const QByteArray &items) { write(userFile(), profileFile(items)); }
    static void write(const QString &path, const QByteArray &content);
    static QList<USSDProfile> list(USSDEditCmd &store);
    static QList<USSDProfile> loaded(); ///< the profiles that a new USSDEditCmd reads
    /// Returns the codes of the profiles. Codes from the system file are marked.
    static QStringList codes(const QList<USSDProfile> &profiles);
    /// Parses the content of a profile file. Sets `error` to the XML error, if any.
    static QList<USSDProfile> readBack(QByteArray xml, QString *error = nullptr);
};

#endif
