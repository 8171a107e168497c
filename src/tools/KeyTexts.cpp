#include "KeyTexts.h"

#include <QMap>
#include <QSharedPointer>
#include <QTranslator>

#include "InputFile.h"
#include "Languages.h"
#include "OperatorTexts.h"

namespace Tools
{

namespace
{

/**
 * The translations of a language. The struct owns the file contents, because QTranslator does not
 * copy them.
 */
struct Texts {
    QByteArray content;
    QTranslator translator;
};

typedef QMap<QString, QSharedPointer<Texts>> Translators;

Translators loadAll()
{
    Translators all;
    const QStringList codes = HostCore::Languages::codes();
    for (int i = 0; i < codes.count(); ++i) {
        const QSharedPointer<Texts> texts(new Texts);
        texts->content = HostCore::Languages::content(codes.at(i));
        if (texts->translator.load(reinterpret_cast<const uchar *>(texts->content.constData()),
                                   texts->content.size()))
            all.insert(codes.at(i), texts);
    }
    return all;
}

const Translators &translators()
{
    static const Translators all = loadAll();
    return all;
}

QString translation(const Translators::const_iterator &language, const QString &key)
{
    return language.value()->translator.translate("USSDUIPlugin", key.toUtf8().constData());
}

} // namespace

QStringList KeyTexts::languagesWithout(const QString &key, const QString &folder)
{
    using HostCore::OperatorTexts;
    QStringList missing;
    if (!OperatorTexts::isKey(key))
        return missing;
    const OperatorTexts ofOperator(InputFile::content(folder + QLatin1String("/ussdtexts.ini")));
    const Translators &all = translators();
    for (Translators::const_iterator it = all.begin(); it != all.end(); ++it) {
        if (translation(it, key).isEmpty() && ofOperator.text(it.key(), key).isEmpty())
            missing << it.key();
    }
    return missing;
}

QString KeyTexts::english(const QString &key)
{
    const Translators::const_iterator language = translators().find(QLatin1String("en"));
    return language == translators().end() ? QString() : translation(language, key);
}

} // namespace Tools
