#ifndef PROVISIONWRITER_H
#define PROVISIONWRITER_H

#include <QString>
#include <QStringList>

#include "ProvisionFiles.h"
#include "ProvisionRecord.h"

namespace Provisioning
{

/*
 * Writes the folder of an operator. GetPluginLibraryPath() must return this folder for the
 * operator's SIM cards.
 *
 *   FOLDER/plugins/USSDUIPlugin     a link to the set of files in use; replaced atomically
 *   FOLDER/provisioned/1            the two files, a link to the plug-in, the record
 *
 * A new set of files is written to a new folder and activated by replacing the link. Therefore, the
 * plug-in finds either the old set or the new set, even if the program is killed. Files are never
 * overwritten. The old set is removed unless it has been changed manually.
 *
 * The plug-in reads its configuration only once. Therefore, a program must do the following before
 * it loads the plug-in:
 *
 *   folder = operatorFolder(operatorsFolder(), network);
 *   provision = readProvision(folder);
 *   if provision.isUsable(): qputenv("USSD_PLUGIN_LIBRARY_PATH", QFile::encodeName(folder));
 *       provision.record describes the operator chosen earlier, for example for a menu;
 *   otherwise: choose an operator as in ProviderChoice.h, call writeProvision(), and repeat.
 *
 * If the user decides against all operators, the program must store this decision in its own
 * settings.
 */

/** The state of an operator's folder. */
struct Provision {
    ProvisionRecord record;   // invalid if nothing was provisioned or the record is damaged
    QString filesFolder;      // the current folder; empty if there is none
    QStringList changedFiles; // names of the files that were changed or added manually
    bool isForeign = false;   // true if the folder contains files that were not provisioned

    /// Returns true if the folder contains the plug-in's two files.
    bool isUsable() const;
};

/// Reads the state of a folder without changing it. May be called from any thread.
Provision readProvision(const QString &folder);

struct ProvisionOrder {
    QString folder;        // created if it does not exist
    QString pluginLibrary; // the path of the installed plug-in to link to; empty for no link
    /// Allows the writer to deactivate manually edited files. The files are kept in their folder.
    bool setChangedAside = false;
};

struct ProvisionOutcome {
    enum State {
        Written,
        Current, // the files already exist; manual changes remain in effect
        Refused, // manually edited or unprovisioned files would be replaced
        Failed
    };

    State state = Failed;
    QStringList changedFiles; // paths of these files
    QString keptFolder;       // contains the deactivated files that were changed manually
    QString problem;          // error message in English; empty on success
};

/// Writes the files of `plan` and activates them, or refuses to do so (see ProvisionOutcome). If
/// several processes write to the same folder, they wait for each other.
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
