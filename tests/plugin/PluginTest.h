#ifndef PLUGINTEST_H
#define PLUGINTEST_H

#include "UssdTest.h"

#include <QByteArray>
#include <QString>

/**
 * A test of the plug-in's code on the misbehaving device SDK: each test function begins with a
 * fresh SDK, a plug-in library folder and a user data folder of its own, and without a singleton;
 * it ends with the plug-in taken down in the host's order.
 */
class PluginTest : public UssdTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

    /// Replaces the configuration that the next singleton reads. Empty: there is no file.
    void writeConfig(const QByteArray &xml);
    /// Replaces the system profile file. Empty: there is no file.
    void writeSystemProfiles(const QByteArray &xml);
    QString pluginFolder(); ///< holds the two files; no separator at its end
    QString userFolder();   ///< the user data folder; a separator at its end

    /// A small complete configuration: every section, colours, an IMSI table.
    static QByteArray completeConfig();
    /// An "item" of a profile file.
    static QByteArray profileItem(const QByteArray &name, const QByteArray &value,
                                  const QByteArray &readonly = "false",
                                  const QByteArray &showButton = "true",
                                  const QByteArray &langID = "", const QByteArray &desLangID = "");
    static QByteArray profileFile(const QByteArray &items);
};

#endif
