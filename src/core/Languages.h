#ifndef LANGUAGES_H
#define LANGUAGES_H

#include <QString>
#include <QStringList>

namespace HostCore
{

/**
 * The languages of the host. Each language has a compiled Qt Linguist file whose source texts are
 * keys. Languages are named by their ISO 639-1 codes ("en", "ar").
 */
class Q_DECL_EXPORT Languages
{
public:
    enum FileState { Whole, Missing, Damaged, NoSuchLanguage };

    /// Returns the languages whose files are installed, and English in any case, in the order in
    /// which they are offered. May be called on any thread.
    static QStringList codes();
    /// Returns the name of the language in the language itself, or the code if the language is not
    /// known. May be called on any thread.
    static QString nativeName(const QString &code);
    /// Returns whether the language is written from right to left. May be called on any thread.
    static bool isRightToLeft(const QString &code);
    /// Returns the language of Change::tr(), which is initially English. May be called on any
    /// thread.
    static QString current();

    /// Selects `code` as the language of Change::tr(), of Qt's own texts and of the default locale,
    /// and sets the layout direction. Returns false and changes nothing if the language is unknown
    /// or its file is missing or damaged. Must be called on the GUI thread. Other threads may call
    /// Change::tr() meanwhile.
    static bool setCurrent(const QString &code);

    /// Returns the path of the language's file. May be called on any thread.
    static QString file(const QString &code);
    /// Returns the state of the language's file. May be called on any thread.
    static FileState fileState(const QString &code);
    /// Returns the content of the language's file for a QTranslator. Returns an empty array if the
    /// file is missing or damaged. May be called on any thread.
    static QByteArray content(const QString &code);
    /// Returns whether `content`, read from a language file, has not changed since the build. The
    /// check is necessary because QTranslator crashes when it looks up a text in a damaged file.
    /// May be called on any thread.
    static bool isWhole(const QByteArray &content);

    /// Returns the text that Change::tr() returns. May be called on any thread.
    static QString text(const QString &context, const QString &key);
};

} // namespace HostCore

#endif
