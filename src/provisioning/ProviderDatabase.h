#ifndef PROVIDERDATABASE_H
#define PROVIDERDATABASE_H

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

/*
 * The database of mobile operators in the format of mobile-broadband-provider-info (format 2.0) as
 * plain values, and the functions that read it. Any thread; nothing here has a state.
 */

/** Something in the database that cannot be used, said so that its editor can mend it. */
struct ProviderComplaint {
    qint64 line = 0;   // from 1
    qint64 column = 0; // from 0, as the XML reader counts: behind the element's start tag
    QString text;
};

/** How an operator takes a question, for example that for the balance. */
struct ProviderCode {
    enum Way {
        Ussd,         // code: what is dialled
        UssdResponse, // code: what is dialled, or the answer to the menu of an earlier code
        Dtmf,         // code: the number to call
        Sms           // code: the number to write to
    };

    Way way = Ussd;
    QString code;            // without blanks around it
    bool takesInput = false; // whether there is a replacement attribute
    QString replacement;     // the part of `code` that stands for what the user enters
    QString smsText;         // what to write
    qint64 line = 0;
    qint64 column = 0;
};

struct ProviderName {
    QString text;
    QString language; // xml:lang; empty for the usual one
};

/** One operator of one country. */
struct Provider {
    QString country; // ISO 3166-1 alpha-2, in lower case
    QString countryName;
    QList<ProviderName> names; // at least one
    QStringList networks;      // MCC and MNC in one word of 5 or 6 digits (ITU-T E.212)
    QList<ProviderCode> balance;
    QList<ProviderCode> topUp;
    QList<ProviderCode> ownNumber;
    qint64 line = 0; // where its element begins

    /// The name without a language, else the first one.
    QString name() const;
    bool hasCodes() const { return !balance.isEmpty() || !topUp.isEmpty() || !ownNumber.isEmpty(); }
};

struct ProviderDatabase {
    QList<Provider> providers; // in the file's order
    QList<ProviderComplaint> complaints;
    /// Why the file cannot be used at all; empty when it can. There are no providers then.
    QString error;
};

/// Reads a whole document. It is refused when it is not well-formed, is of another format, declares
/// entities, or nests deeper than any database does.
ProviderDatabase readProviderDatabase(const QByteArray &xml);
/// The same from a file of at most 64 MB.
ProviderDatabase readProviderDatabaseFile(const QString &path);

/// Where Debian's package puts the database.
QString installedProviderDatabase();

#endif
