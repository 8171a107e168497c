#include "ToolArguments.h"

#include <QRegExp>

#include <clocale>

namespace Tools
{

namespace
{

/** Parses command-line arguments from left to right. */
class Parser
{
public:
    Parser(const QStringList &words, const QStringList &switches, const QStringList &valueOptions)
        : m_words(words), m_switches(switches), m_valueOptions(valueOptions)
    {
    }
    ToolArguments parse();

private:
    void take(const QString &word);
    void takeSwitch(const QString &name, bool hasValue);
    void takeValue(const QString &name, const QString &word, int equals);
    void store(const QString &name, const QString &value);

    QStringList m_words;
    const QStringList &m_switches;
    const QStringList &m_valueOptions;
    ToolArguments m_result;
};

ToolArguments Parser::parse()
{
    while (!m_words.isEmpty() && m_result.error.isEmpty()) {
        const QString word = m_words.takeFirst();
        if (word == QLatin1String("--")) {
            m_result.words << m_words;
            m_words.clear();
        } else if (word.startsWith(QLatin1Char('-')) && word.length() > 1) {
            take(word);
        } else {
            m_result.words << word;
        }
    }
    return m_result;
}

void Parser::take(const QString &word)
{
    const int equals = word.indexOf(QLatin1Char('='));
    const QString name = equals < 0 ? word : word.left(equals);
    if (m_switches.contains(name))
        takeSwitch(name, equals >= 0);
    else if (m_valueOptions.contains(name))
        takeValue(name, word, equals);
    else
        m_result.error = QString::fromLatin1("there is no option %1").arg(name);
}

void Parser::takeSwitch(const QString &name, bool hasValue)
{
    if (hasValue)
        m_result.error = QString::fromLatin1("%1 takes no value").arg(name);
    else
        store(name, QString());
}

void Parser::takeValue(const QString &name, const QString &word, int equals)
{
    const bool isNext = equals < 0 && !m_words.isEmpty();
    const QString value = isNext ? m_words.takeFirst() : word.mid(equals + 1);
    if ((equals < 0 && !isNext) || value.isEmpty())
        m_result.error = QString::fromLatin1("%1 needs a value").arg(name);
    else
        store(name, value);
}

void Parser::store(const QString &name, const QString &value)
{
    if (m_result.options.contains(name))
        m_result.error = QString::fromLatin1("%1 is given twice").arg(name);
    m_result.options.insert(name, value);
}

} // namespace

ToolArguments parseToolArguments(const QStringList &words, const QStringList &switches,
                                 const QStringList &valueOptions)
{
    return Parser(words, switches, valueOptions).parse();
}

QString shellWord(const QString &text)
{
    if (QRegExp(QLatin1String("[\\w.+/-]+")).exactMatch(text))
        return text;
    QString quoted = text;
    quoted.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return QLatin1Char('\'') + quoted + QLatin1Char('\'');
}

QStringList startTool(int argc, char **argv)
{
    setlocale(LC_ALL, "");
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words << QString::fromLocal8Bit(argv[i]);
    return words;
}

} // namespace Tools
