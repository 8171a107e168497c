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

/** A code with a name, from the operator's files or from the user's file. */
struct NamedCode {
    QString name; // in the user's language if the file has a text key
    QString code; // may contain a place for a number
    CodeKind kind = CodeKind::Other;
    bool isOwn = false; // from the user's file

    bool takesNumber() const;
};

/** The codes that ask for the account, and all codes with names. */
struct AccountCodes {
    // Empty if the operator does not have such a code.
    QString balance;
    QString number;
    QString validity;
    QString data;
    bool hasTopUp = false;
    QList<NamedCode> all; // each code once: the operator's codes, then the user's

    /// Returns true if the reply to this code is about the account.
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

/// Reads the codes. The account codes are those of this type of contract. If the type is unknown,
/// they are taken from the profiles. A code that needs a number is not an account code.
AccountCodes readAccountCodes(const CodeFiles &files, PaidType type);

} // namespace Dashboard

#endif
