#ifndef LANGUAGES_H
#define LANGUAGES_H

#include <QString>
#include <QStringList>

/**
 * The languages that the host speaks, each a compiled Qt Linguist file whose source texts are keys.
 * Codes are those of ISO 639-1 ("en", "ar").
 */
class Q_DECL_EXPORT Languages
{
public:
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
    /// default locale, and of the layout direction. False when its file is missing or unusable;
    /// everything then stays as it was. GUI thread, other threads may be in Change::tr() meanwhile.
    static bool setCurrent(const QString &code);

    /// The file that holds the language's texts. Any thread.
    static QString file(const QString &code);

    /// What Change::tr() gives. Any thread.
    static QString text(const QString &context, const QString &key);
};

#endif
