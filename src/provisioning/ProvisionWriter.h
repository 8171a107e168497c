#ifndef PROVISIONWRITER_H
#define PROVISIONWRITER_H

#include <QString>
#include <QStringList>

#include "ProvisionFiles.h"
#include "ProvisionRecord.h"

/*
 * An operator's folder: what GetPluginLibraryPath() is to give for that operator's SIM card.
 *
 *   FOLDER/plugins/USSDUIPlugin     a link to the folder in use; replaced in one step
 *   FOLDER/provisioned/1            the two files, a link to the plug-in, the record
 *
 * A new set of files is made in a folder of its own and comes into use by replacing the link. So
 * the plug-in finds the old set or the new one, whenever the program is killed, and no file is ever
 * written over. The folder that was in use is removed when nobody has changed anything in it.
 *
 * How a dashboard uses it, before the plug-in is loaded (it reads its configuration once):
 *
 *   folder = operatorFolder(operatorsFolder(), network);
 *   provision = readProvision(folder);
 *   provision.isUsable(): qputenv("USSD_PLUGIN_LIBRARY_PATH", QFile::encodeName(folder)), and done:
 *       the choice was remembered. provision.record says what it was, for a menu to change it.
 *   otherwise: choose as in ProviderChoice.h, then writeProvision(), then as above.
 *
 * When the user wants none of the operators, remember that in the dashboard's own settings.
 */

/** What is in an operator's folder. */
struct Provision {
    ProvisionRecord record;   // invalid when nothing was provisioned, or the record is damaged
    QString filesFolder;      // the folder in use; empty when there is none
    QStringList changedFiles; // names of files in it that somebody has changed or added
    bool isForeign = false;   // the place holds something that was not provisioned

    /// Whether the plug-in finds its two files there.
    bool isUsable() const;
};

/// Looks only. Any thread.
Provision readProvision(const QString &folder);

struct ProvisionOrder {
    QString folder;        // made when it is missing
    QString pluginLibrary; // installed plug-in, linked beside the files; empty: none
    /// Whether files that somebody has changed may go out of use. They are kept where they are.
    bool setChangedAside = false;
};

struct ProvisionOutcome {
    enum State {
        Written,
        Current, // the files are there already; changes in them stay in use
        Refused, // changed files, or something that was not provisioned, stand in the way
        Failed
    };

    State state = Failed;
    QStringList changedFiles; // with their folder
    QString keptFolder;       // where changed files are that went out of use
    QString problem;          // for the user, in English; empty when all went well
};

/// Writes the files of `plan`, unless its order is refused. One process at a time: another one
/// waits.
ProvisionOutcome writeProvision(const ProvisionOrder &order, const ProvisionPlan &plan,
                                const ProvisionFiles &files);

/// Where the user's operator folders are, by the XDG base directories.
QString operatorsFolder();
/// One for each network code; `network` may be any name without a separator.
QString operatorFolder(const QString &operators, const QString &network);

#endif
