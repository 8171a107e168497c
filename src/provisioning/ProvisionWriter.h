#ifndef PROVISIONWRITER_H
#define PROVISIONWRITER_H

#include <QString>
#include <QStringList>

#include "ProvisionFiles.h"
#include "ProvisionRecord.h"

namespace Provisioning
{

/*
 * Writes the folder of an operator. GetPluginLibraryPath() has to return this folder for the
 * operator's SIM cards.
 *
 *   FOLDER/plugins/USSDUIPlugin     a link to the set of files in use; replaced atomically
 *   FOLDER/provisioned/1            the two files, a link to the plug-in, the record
 *
 * A new set of files is written to a new folder and activated by replacing the link. Even if the
 * program is killed, the plug-in therefore finds either the old set or the new set. No file is ever
 * overwritten. The old set is removed unless somebody has changed it.
 *
 * The plug-in reads its configuration only once, so a program has to do the following before it
 * loads the plug-in:
 *
 *   folder = operatorFolder(operatorsFolder(), network);
 *   provision = readProvision(folder);
 *   if provision.isUsable(): qputenv("USSD_PLUGIN_LIBRARY_PATH", QFile::encodeName(folder));
 *       provision.record describes the operator chosen earlier, for example for a menu;
 *   otherwise: choose an operator as in ProviderChoice.h, call writeProvision(), and repeat.
 *
 * If the user decides on none of the operators, the program has to store this decision in its own
 * settings.
 */

/** The state of an operator's folder. */
struct Provision {
    ProvisionRecord record;   // invalid if nothing was provisioned or the record is damaged
    QString filesFolder;      // the folder in use; empty if there is none
    QStringList changedFiles; // names of the files that were changed or added by hand
    bool isForeign = false;   // the folder contains files that were not provisioned

    /// Returns whether the folder contains the plug-in's two files.
    bool isUsable() const;
};

/// Reads the state of a folder without changing it. May be called on any thread.
Provision readProvision(const QString &folder);

struct ProvisionOrder {
    QString folder;        // created if it does not exist
    QString pluginLibrary; // the installed plug-in, to which a link is created; empty for no link
    /// Allows the writer to deactivate files that were changed by hand. They are kept in their
    /// folder.
    bool setChangedAside = false;
};

struct ProvisionOutcome {
    enum State {
        Written,
        Current, // the files already exist; changes made by hand stay in use
        Refused, // files that were changed by hand, or not provisioned, would be replaced
        Failed
    };

    State state = Failed;
    QStringList changedFiles; // paths of these files
    QString keptFolder;       // contains the deactivated files that were changed by hand
    QString problem;          // error message in English; empty on success
};

/// Writes the files of `plan` and activates them, or refuses the order. If several processes write
/// to the same folder, they wait for each other.
ProvisionOutcome writeProvision(const ProvisionOrder &order, const ProvisionPlan &plan,
                                const ProvisionFiles &files);

/// Returns the folder for the user's data, "ussd-dashboard" below $XDG_DATA_HOME or its default. A
/// relative path in the variable is invalid and ignored. QStandardPaths of Qt 5 would use it.
QString userDataHome();
/// Returns the folder that contains the user's operator folders.
QString operatorsFolder();
/// Returns the operator folder for a network code. `network` may be any name without a separator.
QString operatorFolder(const QString &operators, const QString &network);

} // namespace Provisioning

#endif
