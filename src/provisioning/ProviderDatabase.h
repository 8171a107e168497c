#ifndef PROVIDERDATABASE_H
#define PROVIDERDATABASE_H

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace Provisioning
{

/*
 * Reads a database of mobile operators in the format of mobile-broadband-provider-info (format
 * 2.0). The functions are stateless and may be called from any thread.
 */

/**
 * An error in the database, with a message for its maintainer.
 */
struct ProviderComplaint {
    qint64 line = 0;   // starts at 1
    qint64 column = 0; // column of the end of the start tag; starts at 0, as in QXmlStreamReader
    QString text;
};

/** A code or message that requests something from an operator, for example the balance. */
struct ProviderCode {
    enum Way {
        Ussd,         // dial `code`
        UssdResponse, // dial `code`, or send it as the answer to the menu of an earlier code
        Dtmf,         // call the number `code`
        Sms           // send `smsText` to the number `code`
    };

    Way way = Ussd;
    QString code;            // trimmed
    bool takesInput = false; // true if the element has a "replacement" attribute
    QString replacement;     // the part of `code` to replace with the user's input
    QString smsText;         // the text of the short message
    qint64 line = 0;
    qint64 column = 0;
};

struct ProviderName {
    QString text;
    QString language; // the value of xml:lang; empty for the default language
};

/** An operator in a country. */
struct Provider {
    QString country; // ISO 3166-1 alpha-2, in lower case
    QString countryName;
    QList<ProviderName> names; // at least one
    QStringList networks;      // MCC and MNC, together 5 or 6 digits (ITU-T E.212)
    QList<ProviderCode> balance;
    QList<ProviderCode> topUp;
    QList<ProviderCode> ownNumber;
    qint64 line = 0; // line of the element's start tag

    /// Returns the name without a language attribute, or the first name if there is no such name.
    QString name() const;
    bool hasCodes() const { return !balance.isEmpty() || !topUp.isEmpty() || !ownNumber.isEmpty(); }
};

struct ProviderDatabase {
    QList<Provider> providers; // in the order of the file
    QList<ProviderComplaint> complaints;
    /// The reason why the file cannot be used, or an empty string. `providers` is empty if there is
    /// an error.
    QString error;
};

/// Parses a database. Rejects documents that are not well-formed, have a different format, declare
/// entities, are nested too deeply, or contain a tag or comment of more than 64 KiB.
ProviderDatabase readProviderDatabase(const QByteArray &xml);
/// Reads a database file of at most 64 MiB.
ProviderDatabase readProviderDatabaseFile(const QString &path);

/// Returns the path of the database installed by its Debian package.
QString installedProviderDatabase();

} // namespace Provisioning

#endif
