#ifndef OPERATORTEXTS_H
#define OPERATORTEXTS_H

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

namespace HostCore
{

/**
 * The texts with which an operator extends or overrides the language files. They are read from a
 * file in the folder of the plug-in, so that they can be changed without rebuilding the program:
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

    /// A problem in a line of the file. `text` describes the problem in English.
    struct Mistake {
        int line;
        QString text;
    };

    /// Returns the path of the file. `pluginLibrary` is the folder that
    /// PluginFolderChoice::current() returns.
    static QString file(const QString &pluginLibrary);
    /// Returns true if the string is a valid key, which consists of capital letters, digits and at
    /// least one underscore.
    static bool isKey(const QString &text);

    OperatorTexts() {}
    /// Parses `content`, which must be encoded in UTF-8.
    explicit OperatorTexts(const QByteArray &content);

    const QList<Entry> &entries() const { return m_entries; }
    const QList<Mistake> &mistakes() const { return m_mistakes; }
    /// Returns the operator's text for the key in this language, or an empty string if the file
    /// contains none.
    QString text(const QString &language, const QString &key) const;

private:
    void readLine(int line, const QString &text, QString &language);
    void readEntry(int line, const QString &text, const QString &language);
    void mistake(int line, const QString &text);

    QList<Entry> m_entries;
    QList<Mistake> m_mistakes;
    QHash<QString, QString> m_texts; // keyed by the result of keyOf()
};

} // namespace HostCore

#endif
