#ifndef PLUGINTEST_H
#define PLUGINTEST_H

#include "UssdTest.h"

#include <QByteArray>
#include <QString>

/**
 * The base class for tests that run the plug-in's code with the fake SDK. Before each test
 * function, the SDK is reset, the singleton does not exist, and the plug-in library directory and
 * the user data directory are new. After each test function, the plug-in is shut down with the same
 * calls as in a host.
 */
class PluginTest : public UssdTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

    /// Replaces the configuration for the next singleton. An empty string deletes the file.
    void writeConfig(const QByteArray &xml);
    /// Replaces the system profile file. An empty string deletes the file.
    void writeSystemProfiles(const QByteArray &xml);
    QString pluginFolder(); ///< the directory with these two files, without a trailing separator
    QString userFolder();   ///< the user data directory, with a trailing separator

    /// Returns a complete but small configuration that contains all sections, colours and IMSI
    /// prefixes.
    static QByteArray completeConfig();
    /// Returns an "item" element for a profile file.
    static QByteArray profileItem(const QByteArray &name, const QByteArray &value,
                                  const QByteArray &readonly = "false",
                                  const QByteArray &showButton = "true",
                                  const QByteArray &langID = "", const QByteArray &desLangID = "");
    static QByteArray profileFile(const QByteArray &items);
};

#endif
