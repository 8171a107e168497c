#ifndef OPERATORTEXTS_H
#define OPERATORTEXTS_H

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

namespace HostCore
{

/**
 * The texts that an operator adds to the language files, or that replace texts in them. They are
 * read from a text file in the folder of the plug-in, so that a new text requires no new build:
 *
 *   # a comment
 *   [de]
 *   IDS_PROFILE_BALANCE=Mein Guthaben
 *
 * Each section belongs to one language. "\n" is a line break and "\\" a backslash.
 */
class Q_DECL_EXPORT OperatorTexts
{
public:
    struct Entry {
        int line;
        QString language;
        QString key;
        QString text;
    };

    /// A line that is not read as its author may expect. `text` is in English.
    struct Mistake {
        int line;
        QString text;
    };

    /// Returns the path of the file. `pluginLibrary` is the folder that
    /// PluginFolderChoice::current() returns.
    static QString file(const QString &pluginLibrary);
    /// Returns true if the string has the form of a key: capital letters, digits and underscores.
    static bool isKey(const QString &text);

    OperatorTexts() {}
    /// Reads the contents of a file, which are in UTF-8.
    explicit OperatorTexts(const QByteArray &content);

    const QList<Entry> &entries() const { return m_entries; }
    const QList<Mistake> &mistakes() const { return m_mistakes; }
    /// Returns the text, or an empty string if the file has none for this language and key.
    QString text(const QString &language, const QString &key) const;

private:
    void readLine(int line, const QString &text, QString &language);
    void readEntry(int line, const QString &text, const QString &language);
    void mistake(int line, const QString &text);

    QList<Entry> m_entries;
    QList<Mistake> m_mistakes;
    QHash<QString, QString> m_texts; // the keys are those of keyOf()
};

} // namespace HostCore

#endif
