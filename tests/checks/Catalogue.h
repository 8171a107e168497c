#ifndef CATALOGUE_H
#define CATALOGUE_H

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

/// One text of a language file.
struct CatalogueEntry {
    QString context;
    QString key;
    QString text;
    bool finished;

    QString name() const { return context + QLatin1Char('/') + key; }
};

/// A language file as it stands, and what is wrong with it. Every check gives one line for each
/// fault, and nothing when all is well.
class Catalogue
{
public:
    /// Reads Qt Linguist's format. What cannot be read is the only complaint of complaints().
    static Catalogue fromXml(const QByteArray &xml);

    const QList<CatalogueEntry> &entries() const { return m_entries; }
    QMap<QString, QString> texts() const; ///< by name
    QString text(const QString &context, const QString &key) const;
    QStringList complaints() const { return m_complaints; }

    QStringList keysTwice() const;
    QStringList unfinished() const;
    QStringList missing(const QStringList &names) const;

    /// Placeholders (%s, %1, %n ...) other than in `english`.
    QStringList otherPlaceholders(const Catalogue &english) const;

    /// Texts with a code in them that no left-to-right marks enclose.
    QStringList unmarkedCodes() const;

    /// Keys of the plug-in whose mnemonics are the same letter.
    QStringList clashingMnemonics(const QStringList &keysOfAWindow) const;

private:
    QList<CatalogueEntry> m_entries;
    QStringList m_complaints;
};

namespace SourceKeys
{
/// Names of the keys that C++ code asks for.
QStringList ofCode(const QString &code);

/// Names of the keys that a data file of the plug-in refers to.
QStringList ofData(const QString &xml);
} // namespace SourceKeys

#endif
