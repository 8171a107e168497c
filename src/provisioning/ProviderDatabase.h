#ifndef PROVIDERDATABASE_H
#define PROVIDERDATABASE_H

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace Provisioning
{

/*
 * Reads the database of mobile operators in the format of mobile-broadband-provider-info (format
 * 2.0) into plain values. The functions are stateless and may be called from any thread.
 */

/**
 * A part of the database that cannot be used, with a message for the editor of the database.
 */
struct ProviderComplaint {
    qint64 line = 0;   // starts at 1
    qint64 column = 0; // at the end of the start tag; starts at 0, as in QXmlStreamReader
    QString text;
};

/** A way to send a request to an operator, for example a balance request. */
struct ProviderCode {
    enum Way {
        Ussd,         // `code` is dialled
        UssdResponse, // `code` is dialled, or answers the menu of an earlier code
        Dtmf,         // `code` is the number to call
        Sms           // `smsText` is sent to the number `code`
    };

    Way way = Ussd;
    QString code;            // without leading and trailing blanks
    bool takesInput = false; // true if the element has a replacement attribute
    QString replacement;     // the part of `code` that is replaced with the user's input
    QString smsText;         // the text of the short message
    qint64 line = 0;
    qint64 column = 0;
};

struct ProviderName {
    QString text;
    QString language; // value of the attribute xml:lang; empty for the default language
};

/** An operator in a country. */
struct Provider {
    QString country; // ISO 3166-1 alpha-2, in lower case
    QString countryName;
    QList<ProviderName> names; // at least one
    QStringList networks;      // each is MCC and MNC, together 5 or 6 digits (ITU-T E.212)
    QList<ProviderCode> balance;
    QList<ProviderCode> topUp;
    QList<ProviderCode> ownNumber;
    qint64 line = 0; // line of the element's start tag

    /// Returns the name that has no language attribute, or else the first name.
    QString name() const;
    bool hasCodes() const { return !balance.isEmpty() || !topUp.isEmpty() || !ownNumber.isEmpty(); }
};

struct ProviderDatabase {
    QList<Provider> providers; // in the order of the file
    QList<ProviderComplaint> complaints;
    /// The reason why the file cannot be used at all, or an empty string. If there is an error,
    /// `providers` is empty.
    QString error;
};

/// Reads a document. Rejects a document that is not well-formed, has a different format, declares
/// entities, is nested too deeply, or has a tag or comment of more than 64 KB.
ProviderDatabase readProviderDatabase(const QByteArray &xml);
/// Reads a file of at most 64 MB.
ProviderDatabase readProviderDatabaseFile(const QString &path);

/// Returns the path at which the Debian package installs the database.
QString installedProviderDatabase();

} // namespace Provisioning

#endif
