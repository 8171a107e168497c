#ifndef PLUGINTEST_H
#define PLUGINTEST_H

#include "UssdTest.h"

#include <QByteArray>
#include <QString>

/**
 * The base class of tests that run the plug-in's code with the fake device SDK. Each test function
 * starts with a reset SDK and without the singleton, and uses its own plug-in library directory and
 * user data directory. After each test function, the plug-in is shut down with the calls that a
 * host makes.
 */
class PluginTest : public UssdTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

    /// Replaces the configuration that the next singleton reads. An empty string deletes the file.
    void writeConfig(const QByteArray &xml);
    /// Replaces the system profile file. An empty string deletes the file.
    void writeSystemProfiles(const QByteArray &xml);
    QString pluginFolder(); ///< the directory of both files, without a trailing separator
    QString userFolder();   ///< the user data directory, with a trailing separator

    /// Returns a small but complete configuration: every section, colours and an IMSI table.
    static QByteArray completeConfig();
    /// Returns an "item" element of a profile file.
    static QByteArray profileItem(const QByteArray &name, const QByteArray &value,
                                  const QByteArray &readonly = "false",
                                  const QByteArray &showButton = "true",
                                  const QByteArray &langID = "", const QByteArray &desLangID = "");
    static QByteArray profileFile(const QByteArray &items);
};

#endif
