#ifndef PROVISIONWRITER_H
#define PROVISIONWRITER_H

#include <QString>
#include <QStringList>

#include "ProvisionFiles.h"
#include "ProvisionRecord.h"

namespace Provisioning
{

/*
 * Writes the folder of an operator. GetPluginLibraryPath() must return this folder for SIMs of the
 * operator.
 *
 *   FOLDER/plugins/USSDUIPlugin     a link to the set of files in use; replaced atomically
 *   FOLDER/provisioned/1            the two files, a link to the plug-in, the record
 *
 * To replace the files, the writer creates a new set in a new folder and then replaces the link.
 * The plug-in therefore always finds a complete set, even if the program is killed. Files are never
 * overwritten. The old set is removed unless it has been modified manually.
 *
 * The plug-in reads its configuration only once. A program must therefore perform the following
 * steps before it loads the plug-in:
 *
 *   folder = operatorFolder(operatorsFolder(), network);
 *   provision = readProvision(folder);
 *   if provision.isUsable(): qputenv("USSD_PLUGIN_LIBRARY_PATH", QFile::encodeName(folder));
 *       provision.record describes the operator chosen earlier, for example for a menu;
 *   otherwise: choose an operator as in ProviderChoice.h, call writeProvision(), and repeat.
 *
 * If the user rejects all operators, the program must store this decision in its own settings.
 */

/** The contents of an operator's folder. */
struct Provision {
    ProvisionRecord record;   // invalid if there is no record or if it is damaged
    QString filesFolder;      // the folder of the active set; empty if there is none
    QStringList changedFiles; // names of files that have been modified or added manually
    bool isForeign = false;   // true if the folder contains files that have not been provisioned

    /// Returns true if the folder contains both files of the plug-in.
    bool isUsable() const;
};

/// Returns the contents of the folder, which is not changed. May be called from any thread.
Provision readProvision(const QString &folder);

struct ProvisionOrder {
    QString folder;        // created if necessary
    QString pluginLibrary; // path of the plug-in to which a link is created; empty for no link
    /// Allows the writer to replace files that have been modified manually. The modified files are
    /// kept in their folder.
    bool setChangedAside = false;
};

struct ProvisionOutcome {
    enum State {
        Written,
        Current, // the folder already contains these files; manual changes are kept
        Refused, // would have replaced files that were modified manually or not provisioned
        Failed
    };

    State state = Failed;
    QStringList changedFiles; // paths of the modified files
    QString keptFolder;       // folder of the modified files that are no longer active
    QString problem;          // error message in English, or an empty string
};

/// Writes `files`, which were generated for `plan`, and activates them. If the result is not
/// Written, the active files are unchanged. If several processes write to the same folder, they
/// wait for each other.
ProvisionOutcome writeProvision(const ProvisionOrder &order, const ProvisionPlan &plan,
                                const ProvisionFiles &files);

/// Returns the user's data folder, which is "ussd-dashboard" in $XDG_DATA_HOME or, if the variable
/// is not set, in ~/.local/share. A relative path in the variable is invalid and therefore ignored,
/// unlike in QStandardPaths of Qt 5.
QString userDataHome();
/// Returns the folder that contains the user's operator folders.
QString operatorsFolder();
/// Returns the operator folder for a network code. `network` may also be another name, but must not
/// contain a path separator.
QString operatorFolder(const QString &operators, const QString &network);

} // namespace Provisioning

#endif
