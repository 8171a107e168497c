#ifndef LANGUAGES_H
#define LANGUAGES_H

#include <QString>
#include <QStringList>

namespace HostCore
{

/**
 * The languages that the host speaks, each a compiled Qt Linguist file whose source texts are keys.
 * Codes are those of ISO 639-1 ("en", "ar").
 */
class Q_DECL_EXPORT Languages
{
public:
    enum FileState { Whole, Missing, Damaged, NoSuchLanguage };

    /// The languages whose file is installed, in the order in which to offer them; English always.
    /// Any thread.
    static QStringList codes();
    /// The language's name in that language; the code itself when it is not known. Any thread.
    static QString nativeName(const QString &code);
    /// Whether the language is written from right to left. Any thread.
    static bool isRightToLeft(const QString &code);
    /// The language of Change::tr(); English at first. Any thread.
    static QString current();

    /// Makes `code` the language of the program at once: of Change::tr(), of Qt's own texts, of the
    /// default locale, and of the layout direction. False when its file is missing or damaged;
    /// everything then stays as it was. GUI thread, other threads may be in Change::tr() meanwhile.
    static bool setCurrent(const QString &code);

    /// The file that holds the language's texts. Any thread.
    static QString file(const QString &code);
    /// What is wrong with that file, if anything. Any thread.
    static FileState fileState(const QString &code);
    /// What the file holds, for a QTranslator; empty unless it is whole. Any thread.
    static QByteArray content(const QString &code);
    /// Whether `content`, that of a language file, is as the build wrote it. QTranslator crashes on
    /// a damaged one when it is asked for a text. Any thread.
    static bool isWhole(const QByteArray &content);

    /// What Change::tr() gives. Any thread.
    static QString text(const QString &context, const QString &key);
};

} // namespace HostCore

#endif
