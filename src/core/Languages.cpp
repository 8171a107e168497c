#include "Languages.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QLocale>
#include <QMutex>
#include <QMutexLocker>
#include <QTranslator>

#include <memory>

#include "InputFile.h"
#include "InstallPaths.h"
#include "OperatorTexts.h"
#include "PluginFolderChoice.h"
#include "QtCompat.h"

namespace HostCore
{

namespace
{

struct Language {
    const char *code;
    const char *nativeName;
    bool rightToLeft;
};

const Language LANGUAGES[] = {
    {"en", "English", false}, {"de", "Deutsch", false},   {"fr", "Français", false},
    {"es", "Español", false}, {"pt", "Português", false}, {"pt_BR", "Português (Brasil)", false},
    {"ru", "Русский", false}, {"ar", "العربية", true},    {"zh", "中文", false},
};

const char ENGLISH[] = "en";
const char PLUGIN[] = "USSDUIPlugin"; // the context whose texts an operator can replace

// The start of the seal, a section that cmake/seal_translation.sh appends to each language file.
// The seal consists of a tag, a length and that number of hexadecimal digits. The digits are the
// SHA-1 hash of all bytes before the seal.
const char SEAL[] = {'S', 0, 0, 0, 40};
const int SEAL_DIGITS = 40;

/**
 * The translations of a language. The struct owns the file contents, because QTranslator does not
 * copy them.
 */
struct LanguageTexts {
    QByteArray content;
    QTranslator translator;
};

typedef std::unique_ptr<LanguageTexts> Texts;

/** The loaded languages. The mutex guards the other members. */
struct Loaded {
    QMutex mutex;
    QString code;
    Texts current; // null while the language is English
    Texts english;
    QString operatorFolder; // the folder of operatorTexts; null if no folder has been read yet
    OperatorTexts operatorTexts;
};

/// Returns the translations for the language, or null if its file is missing or damaged.
Texts load(const QString &code)
{
    Texts texts(new LanguageTexts);
    texts->content = Languages::content(code);
    if (!texts->translator.load(reinterpret_cast<const uchar *>(texts->content.constData()),
                                texts->content.size()))
        texts.reset();
    return texts;
}

// Returns the loaded languages. The first call loads English, so that translations are available
// even if the program never selects a language. If the caller has already loaded English, the first
// call takes these texts instead of reading the file again.
Loaded &loaded(Texts *english = nullptr)
{
    static Loaded instance;
    static const bool once = [english] {
        instance.code = QLatin1String(ENGLISH);
        if (english)
            instance.english.swap(*english);
        else
            instance.english = load(instance.code);
        return true;
    }();
    Q_UNUSED(once)
    return instance;
}

const Language *find(const QString &code)
{
    for (const Language &language : LANGUAGES) {
        if (code == QLatin1String(language.code))
            return &language;
    }
    return nullptr;
}

QString lookUp(const Texts &texts, const QByteArray &context, const QByteArray &key)
{
    return texts ? texts->translator.translate(context.constData(), key.constData()) : QString();
}

/// Returns the operator's texts for this folder. Reads the file again if the folder differs from
/// the folder of the previous lookup. The caller must have locked the mutex.
const OperatorTexts &operatorTexts(Loaded &state, const QString &folder)
{
    if (state.operatorFolder != folder || state.operatorFolder.isNull()) {
        state.operatorTexts = OperatorTexts(InputFile::content(OperatorTexts::file(folder)));
        state.operatorFolder = folder;
    }
    return state.operatorTexts;
}

/// Returns the operator's text for the key, or the text from the language file if the operator does
/// not provide one.
QString textIn(const Texts &texts, const QString &language, const QByteArray &context,
               const QString &key, const OperatorTexts *ofOperator)
{
    const QString text = ofOperator ? ofOperator->text(language, key) : QString();
    return text.isEmpty() ? lookUp(texts, context, key.toUtf8()) : text;
}

/**
 * Installs Qt's own translations, for example for standard buttons and for the context menus of
 * input fields.
 */
void setQtTexts(const QString &code)
{
    static std::unique_ptr<QTranslator> installed;
    installed.reset(
        new QTranslator); // the destructor of the old translator removes it from the application
    const QString folder = QtCompat::qtTranslations();
    if (installed->load(folder + QLatin1String("/qtbase_") + code + QLatin1String(".qm")) ||
        installed->load(folder + QLatin1String("/qt_") + code + QLatin1String(".qm")))
        QCoreApplication::installTranslator(installed.get());
}

// Applies the language to the application. The layout direction is set last, because Qt 4 resets it
// when a translator is installed.
void setApplicationLanguage(const Language &language)
{
    const QString code = QLatin1String(language.code);
    QLocale::setDefault(QLocale(code));
    if (!qobject_cast<QApplication *>(QCoreApplication::instance()))
        return;
    setQtTexts(code);
    QApplication::setLayoutDirection(language.rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
}

} // namespace

QStringList Languages::codes()
{
    QStringList codes;
    for (const Language &language : LANGUAGES) {
        const QString code = QLatin1String(language.code);
        if (code == QLatin1String(ENGLISH) || QFile::exists(file(code)))
            codes << code;
    }
    return codes;
}

QString Languages::codeFor(const QString &locale)
{
    const QString language = locale.section(QLatin1Char('_'), 0, 0);
    const QString withCountry = locale.section(QLatin1Char('.'), 0, 0);
    return find(withCountry) ? withCountry : language;
}

QString Languages::nativeName(const QString &code)
{
    const Language *language = find(code);
    return language ? QString::fromUtf8(language->nativeName) : code;
}

bool Languages::isRightToLeft(const QString &code)
{
    const Language *language = find(code);
    return language && language->rightToLeft;
}

QString Languages::current()
{
    Loaded &state = loaded();
    QMutexLocker lock(&state.mutex);
    return state.code;
}

bool Languages::setCurrent(const QString &code)
{
    const Language *language = find(code);
    if (!language)
        return false;
    Texts texts = load(code);
    if (!texts)
        return false;
    const bool isEnglish = code == QLatin1String(ENGLISH);
    Loaded &state = loaded(isEnglish ? &texts : nullptr);
    Texts previous;
    {
        QMutexLocker lock(&state.mutex);
        state.code = code;
        state.current.swap(previous);
        if (texts)
            (isEnglish ? state.english : state.current).swap(texts);
        state.operatorFolder.clear();
    }
    setApplicationLanguage(*language);
    return true;
}

void Languages::applyToApplication()
{
    if (const Language *language = find(current()))
        setApplicationLanguage(*language);
}

QString Languages::file(const QString &code)
{
    return InstallPaths::translations() + QLatin1Char('/') + code + QLatin1String(".qm");
}

Languages::FileState Languages::fileState(const QString &code)
{
    if (!find(code))
        return NoSuchLanguage;
    if (!QFile::exists(file(code)))
        return Missing;
    return content(code).isEmpty() ? Damaged : Whole;
}

QByteArray Languages::content(const QString &code)
{
    const QByteArray content = InputFile::content(file(code));
    return isWhole(content) ? content : QByteArray();
}

bool Languages::isWhole(const QByteArray &content)
{
    const QByteArray seal(SEAL, sizeof SEAL);
    const int length = content.size() - seal.size() - SEAL_DIGITS;
    if (length <= 0)
        return false;
    const QByteArray sum = QCryptographicHash::hash(content.left(length), QCryptographicHash::Sha1);
    return content.mid(length) == seal + sum.toHex();
}

QString Languages::text(const QString &context, const QString &key)
{
    if (key.isEmpty())
        return QString();
    const QByteArray contextName = context.toUtf8();
    const bool isOfPlugin = context == QLatin1String(PLUGIN);
    const QString folder = isOfPlugin ? PluginFolderChoice::current() : QString();
    Loaded &state = loaded();
    QMutexLocker lock(&state.mutex);
    const OperatorTexts *ofOperator = isOfPlugin ? &operatorTexts(state, folder) : nullptr;
    QString text = textIn(state.current, state.code, contextName, key, ofOperator);
    if (text.isEmpty())
        text = textIn(state.english, QLatin1String(ENGLISH), contextName, key, ofOperator);
    return text.isEmpty() ? key : text;
}

void Languages::forgetOperatorTexts()
{
    Loaded &state = loaded();
    QMutexLocker lock(&state.mutex);
    state.operatorFolder.clear();
}

} // namespace HostCore
