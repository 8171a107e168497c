#ifndef PROVISIONWRITER_H
#define PROVISIONWRITER_H

#include <QString>
#include <QStringList>

#include "ProvisionFiles.h"
#include "ProvisionRecord.h"

namespace Provisioning
{

/*
 * Writes the folder of an operator, which GetPluginLibraryPath() has to return for the operator's
 * SIM cards.
 *
 *   FOLDER/plugins/USSDUIPlugin     a link to the set of files in use; replaced atomically
 *   FOLDER/provisioned/1            the two files, a link to the plug-in, the record
 *
 * A new set of files is written to a new folder and activated by replacing the link. The plug-in
 * therefore finds either the old set or the new one even if the program is killed, and no file is
 * ever overwritten. The old set is removed unless somebody has changed it.
 *
 * A program uses it like this, before it loads the plug-in, which reads its configuration once:
 *
 *   folder = operatorFolder(operatorsFolder(), network);
 *   provision = readProvision(folder);
 *   if provision.isUsable(): qputenv("USSD_PLUGIN_LIBRARY_PATH", QFile::encodeName(folder));
 *       provision.record describes the operator chosen earlier, for example for a menu;
 *   otherwise: choose an operator as in ProviderChoice.h, call writeProvision(), and repeat.
 *
 * A user's decision for none of the operators has to be stored in the program's own settings.
 */

/** The state of an operator's folder. */
struct Provision {
    ProvisionRecord record;   // invalid when nothing was provisioned or the record is damaged
    QString filesFolder;      // the folder in use; empty when there is none
    QStringList changedFiles; // names of files that were changed or added by hand
    bool isForeign = false;   // the folder contains files that were not provisioned

    /// Returns whether the folder contains the plug-in's two files.
    bool isUsable() const;
};

/// Reads the state of a folder without changing it. May be called on any thread.
Provision readProvision(const QString &folder);

struct ProvisionOrder {
    QString folder;        // created when it does not exist
    QString pluginLibrary; // the installed plug-in, to be linked; empty for no link
    /// Allows files that were changed by hand to be deactivated. They are kept in their folder.
    bool setChangedAside = false;
};

struct ProvisionOutcome {
    enum State {
        Written,
        Current, // the files exist already; changes made by hand stay in use
        Refused, // files changed by hand, or not provisioned, would be replaced
        Failed
    };

    State state = Failed;
    QStringList changedFiles; // paths
    QString keptFolder;       // contains the deactivated files that were changed by hand
    QString problem;          // error message in English; empty on success
};

/// Writes the files of `plan` and activates them, or refuses the order. If several processes write
/// to the same folder, each waits for its turn.
ProvisionOutcome writeProvision(const ProvisionOrder &order, const ProvisionPlan &plan,
                                const ProvisionFiles &files);

/// Returns the folder of the user's operator folders, below $XDG_DATA_HOME or its default.
QString operatorsFolder();
/// Returns the operator folder for a network code. `network` may be any name without a separator.
QString operatorFolder(const QString &operators, const QString &network);

} // namespace Provisioning

#endif
