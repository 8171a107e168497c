#ifndef CATALOGUE_H
#define CATALOGUE_H

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

/// A translated string in a language file.
struct CatalogueEntry {
    QString context;
    QString key;
    QString text;
    bool finished;

    QString name() const { return context + QLatin1Char('/') + key; }
};

/// The content of a language file. The functions that find faults return one line per fault.
class Catalogue
{
public:
    /// Reads a Qt Linguist file. After a syntax error, complaints() returns only that error.
    static Catalogue fromXml(const QByteArray &xml);

    const QList<CatalogueEntry> &entries() const { return m_entries; }
    QMap<QString, QString> texts() const; ///< the translations by text key
    QString text(const QString &context, const QString &key) const;
    QStringList complaints() const { return m_complaints; }

    QStringList keysTwice() const;
    QStringList unfinished() const;
    QStringList missing(const QStringList &names) const;

    /// Finds translations whose placeholders (%s, %1, %n ...) differ from those in `english`.
    QStringList otherPlaceholders(const Catalogue &english) const;

    /// Finds translations with a code that is not enclosed in left-to-right marks.
    QStringList unmarkedCodes() const;

    /// Finds keys in `keysOfAWindow` whose translations have the same mnemonic.
    QStringList clashingMnemonics(const QStringList &keysOfAWindow) const;

private:
    QList<CatalogueEntry> m_entries;
    QStringList m_complaints;
};

namespace SourceKeys
{
/// Returns the text keys that the C++ code uses.
QStringList ofCode(const QString &code);

/// Returns the text keys that the plug-in's data file uses.
QStringList ofData(const QString &xml);
} // namespace SourceKeys

#endif
