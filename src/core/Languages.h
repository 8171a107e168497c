#ifndef LANGUAGES_H
#define LANGUAGES_H

#include <QString>
#include <QStringList>

namespace HostCore
{

/**
 * The languages of the host. Each language has a compiled Qt Linguist file whose source texts are
 * the text keys. An operator can replace the texts of the plug-in; see OperatorTexts. Languages are
 * identified by their ISO 639-1 codes ("en", "ar"), followed by a country if there are several
 * variants ("pt_BR").
 */
class Q_DECL_EXPORT Languages
{
public:
    /// The state of a language file.
    enum FileState {
        Whole,         ///< the file is valid
        Missing,       ///< the file does not exist
        Damaged,       ///< the file has been changed since the build
        NoSuchLanguage ///< the host does not support the language
    };

    /// Returns the codes of the languages whose files are installed, in the order of the language
    /// menu. The list always contains "en". May be called from any thread.
    static QStringList codes();
    /// Returns the language code for the name of a locale, such as "pt_BR.UTF-8" or "de_AT". The
    /// host need not support this language. May be called from any thread.
    static QString codeFor(const QString &locale);
    /// Returns the native name of the language, such as "Deutsch", or the code if the language is
    /// unknown. May be called from any thread.
    static QString nativeName(const QString &code);
    /// Returns true if the language is written from right to left. May be called from any thread.
    static bool isRightToLeft(const QString &code);
    /// Returns the code of the language that Change::tr() uses. The initial language is English.
    /// May be called from any thread.
    static QString current();

    /// Selects `code` as the language of Change::tr(), of Qt's own strings and of the default
    /// locale, and sets the layout direction. Returns false and has no effect if the language is
    /// unknown or its file is missing or damaged. Must be called from the GUI thread. Other threads
    /// may call Change::tr() at the same time.
    static bool setCurrent(const QString &code);
    /// Applies the current language to the QApplication. Must be called once if the QApplication
    /// was constructed after setCurrent(). Must be called from the GUI thread.
    static void applyToApplication();

    /// Returns the path of the language file. May be called from any thread.
    static QString file(const QString &code);
    /// Returns the state of the language file. May be called from any thread.
    static FileState fileState(const QString &code);
    /// Returns the contents of the language file in the format that QTranslator::load() expects.
    /// Returns an empty array if the file is missing or damaged. May be called from any thread.
    static QByteArray content(const QString &code);
    /// Returns true if `content`, the contents of a language file, has not been modified since the
    /// build. QTranslator can crash if it uses a damaged file. May be called from any thread.
    static bool isWhole(const QByteArray &content);

    /// Discards the operator's texts, so that the next lookup reads the file again. setCurrent()
    /// and PluginFolderChoice::use() have the same effect. May be called from any thread.
    static void forgetOperatorTexts();

    /// Returns the same string as Change::tr(). May be called from any thread.
    static QString text(const QString &context, const QString &key);
};

} // namespace HostCore

#endif
