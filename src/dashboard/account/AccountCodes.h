#ifndef ACCOUNTCODES_H
#define ACCOUNTCODES_H

#include <QList>
#include <QStringList>

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

/**
 * A named code from the operator's or the user's file, or a stored chain. A chain is a code and the
 * answers to the menus that the code opens.
 */
struct NamedCode {
    QString name; // in the user's language if the file has a text key
    QString code; // may contain a placeholder for a number
    QString keys; // the code and answers of a chain, such as "*123# › 2 › 1"; empty for a code
    CodeKind kind = CodeKind::Other;
    bool isOwn = false; // true if the code is from the user's own profiles

    bool takesNumber() const;
    bool isChain() const { return !keys.isEmpty(); }
};

/** The codes that query account data, and a list of all codes with their names. */
struct AccountCodes {
    // Each of these codes is empty if the operator does not have such a code.
    QString balance;
    QString number;
    QString validity;
    QString data;
    QString paidType; // the code of the prepaid/postpaid query
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

/// Returns all named codes and all codes of the account windows. They may contain a placeholder for
/// a number.
QStringList readTemplates(const CodeFiles &files);

/// Reads the codes from the files. The configuration of the account window for this type of
/// contract takes precedence over the profiles. Codes that require a number are not used to query
/// account data.
AccountCodes readAccountCodes(const CodeFiles &files, PaidType type);

} // namespace Dashboard

#endif
