#ifndef ACCOUNTCODES_H
#define ACCOUNTCODES_H

#include <QList>
#include <QString>

#include "sim/PaidType.h"

namespace Dashboard
{

/** The purpose of a code, as far as it is known. */
enum class CodeKind {
    Balance,
    Number,
    Data,
    Validity,
    TopUp,
    Menu,
    Packs,
    Roaming,
    VoiceMail,
    Tariff,
    CallMe,
    Other
};

/// Returns the name of the icon for codes of this kind.
const char *codeIcon(CodeKind kind);

/** A code and its name, from the operator's profiles or from the user's own profiles. */
struct NamedCode {
    QString name; // translated if the profile has a text key
    QString code; // may contain a placeholder for a number
    CodeKind kind = CodeKind::Other;
    bool isOwn = false; // from the user's own profiles

    bool takesNumber() const;
};

/** The codes that query account data, and a list of all codes with their names. */
struct AccountCodes {
    // Each of these codes is empty if the operator does not have such a code.
    QString balance;
    QString number;
    QString validity;
    QString data;
    bool hasTopUp = false;
    QList<NamedCode> all; // without duplicates; the operator's codes precede the user's codes

    /// Returns true if this code queries account data.
    bool asksForAccount(const QString &code) const;
    bool operator==(const AccountCodes &other) const;
};

/** The files that contain the codes. */
struct CodeFiles {
    QString configuration;
    QString systemProfiles;
    QString userProfiles; // may be empty

    /// Returns the files that the plug-in uses for the user who runs the program.
    static CodeFiles inUse();
};

/// Reads the codes. The account codes are those of the account window for this type of contract, or
/// those of the profiles if the type is unknown. A code that requires a number is not used as an
/// account code.
AccountCodes readAccountCodes(const CodeFiles &files, PaidType type);

} // namespace Dashboard

#endif
