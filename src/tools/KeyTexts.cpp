#include "KeyTexts.h"

#include <QMap>
#include <QSharedPointer>
#include <QTranslator>

#include "Languages.h"

namespace Tools
{

namespace
{

/**
 * The translations of a language. The translator does not copy `content`, so this struct owns both.
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

bool looksLikeKey(const QString &text)
{
    for (int i = 0; i < text.length(); ++i) {
        const QChar letter = text.at(i);
        const bool isCapital = letter >= QLatin1Char('A') && letter <= QLatin1Char('Z');
        if (!isCapital && !letter.isDigit() && letter != QLatin1Char('_'))
            return false;
    }
    return text.contains(QLatin1Char('_'));
}

} // namespace

QStringList KeyTexts::languagesWithout(const QString &key)
{
    static const Translators translators = loadAll();
    QStringList missing;
    if (!looksLikeKey(key))
        return missing;
    const QByteArray source = key.toUtf8();
    for (Translators::const_iterator it = translators.begin(); it != translators.end(); ++it) {
        if (it.value()->translator.translate("USSDUIPlugin", source.constData()).isEmpty())
            missing << it.key();
    }
    return missing;
}

} // namespace Tools
