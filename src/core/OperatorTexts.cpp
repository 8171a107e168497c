#include "OperatorTexts.h"

#include <QStringList>

namespace HostCore
{

namespace
{

const char BYTE_ORDER_MARK[] = "\xef\xbb\xbf";
const QChar REPLACEMENT(0xFFFD); // QString::fromUtf8() inserts this character for invalid bytes

QString keyOf(const QString &language, const QString &key)
{
    return language + QLatin1Char('=') + key;
}

QString withoutEscapes(const QString &text)
{
    QString result;
    for (int i = 0; i < text.length(); ++i) {
        const bool isEscape = text.at(i) == QLatin1Char('\\') && i + 1 < text.length();
        const QChar next = isEscape ? text.at(i + 1) : QChar();
        if (next == QLatin1Char('n') || next == QLatin1Char('\\')) {
            result += next == QLatin1Char('n') ? QLatin1Char('\n') : QLatin1Char('\\');
            ++i;
        } else {
            result += text.at(i);
        }
    }
    return result;
}

} // namespace

QString OperatorTexts::file(const QString &pluginLibrary)
{
    return pluginLibrary + QLatin1String("/plugins/USSDUIPlugin/ussdtexts.ini");
}

bool OperatorTexts::isKey(const QString &text)
{
    for (int i = 0; i < text.length(); ++i) {
        const QChar letter = text.at(i);
        const bool isCapital = letter >= QLatin1Char('A') && letter <= QLatin1Char('Z');
        const bool isDigit = letter >= QLatin1Char('0') && letter <= QLatin1Char('9');
        if (!isCapital && !isDigit && letter != QLatin1Char('_'))
            return false;
    }
    return text.contains(QLatin1Char('_'));
}

OperatorTexts::OperatorTexts(const QByteArray &content)
{
    const QByteArray mark(BYTE_ORDER_MARK);
    const QByteArray body = content.startsWith(mark) ? content.mid(mark.size()) : content;
    const QList<QByteArray> lines = body.split('\n');
    QString language;
    for (int i = 0; i < lines.count(); ++i)
        readLine(i + 1,
                 QString::fromUtf8(lines.at(i).constData(), int(lines.at(i).size())).trimmed(),
                 language);
}

void OperatorTexts::readLine(int line, const QString &text, QString &language)
{
    if (text.contains(REPLACEMENT))
        mistake(line, QLatin1String("the line is not encoded in UTF-8"));
    if (text.isEmpty() || text.startsWith(QLatin1Char('#')))
        return;
    if (text.startsWith(QLatin1Char('[')) && text.endsWith(QLatin1Char(']')))
        language = text.mid(1, text.length() - 2);
    else
        readEntry(line, text, language);
}

void OperatorTexts::readEntry(int line, const QString &text, const QString &language)
{
    const int equals = text.indexOf(QLatin1Char('='));
    Entry entry;
    entry.line = line;
    entry.language = language;
    entry.key = text.left(qMax(0, equals)).trimmed();
    entry.text = withoutEscapes(text.mid(equals + 1).trimmed());
    if (!isKey(entry.key))
        return mistake(line, QLatin1String("the line is neither a section nor KEY=text"));
    if (language.isEmpty())
        return mistake(line, QLatin1String("the text is not in the section of a language"));
    if (entry.text.isEmpty())
        return mistake(line, entry.key + QLatin1String(" has no text here and is not replaced"));
    if (m_texts.contains(keyOf(language, entry.key)))
        mistake(line,
                entry.key + QLatin1String(" was already given for this language; this text is "
                                          "used"));
    m_texts.insert(keyOf(language, entry.key), entry.text);
    m_entries << entry;
}

void OperatorTexts::mistake(int line, const QString &text)
{
    Mistake mistake;
    mistake.line = line;
    mistake.text = text;
    m_mistakes << mistake;
}

QString OperatorTexts::text(const QString &language, const QString &key) const
{
    return m_texts.value(keyOf(language, key));
}

} // namespace HostCore
