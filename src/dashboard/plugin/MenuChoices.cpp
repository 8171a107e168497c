#include "MenuChoices.h"

#include <QRegularExpression>
#include <QStringList>

namespace Dashboard
{

namespace
{

/// Converts decimal digits of every script to ASCII, because the network expects ASCII digits.
QString asciiKey(const QString &key)
{
    QString ascii;
    for (const QChar &c : key)
        ascii += c.isDigit() ? QChar(QLatin1Char(char('0' + c.digitValue()))) : c;
    return ascii;
}

/// Removes direction characters, which some networks send before the key.
QString withoutDirectionMarks(QString line)
{
    static const QRegularExpression marks(
        QString::fromUtf8("[\\x{200e}\\x{200f}\\x{061c}\\x{202a}-\\x{202e}\\x{2066}-\\x{2069}]"));
    return line.remove(marks);
}

/// Parses a line as a choice. Returns false if it is not a choice. A number that continues after a
/// dot or colon is an amount, a date or a time, and not a key.
bool readChoice(const QString &line, MenuChoice &choice)
{
    static const QRegularExpression form(
        QString::fromUtf8("^\\s*(\\d{1,3}|[*#])(?:\\s*[.):\\x{ff1a}\\x{3001}](?:\\s+|(?!\\d))|"
                          "\\s+[-\\x{2013}\\x{2014}]\\s+|\\s+)(\\S.*)$"),
        QRegularExpression::UseUnicodePropertiesOption);
    const QRegularExpressionMatch match = form.match(withoutDirectionMarks(line));
    if (!match.hasMatch())
        return false;
    choice.key = asciiKey(match.captured(1));
    choice.text = match.captured(2).trimmed();
    return true;
}

/// Returns true for keys that return to the previous menu or end the menu.
bool isLastKey(const QString &key)
{
    return key == QLatin1String("0") || key == QLatin1String("00") || key == QLatin1String("*") ||
           key == QLatin1String("#");
}

bool followsIn(const QList<MenuChoice> &choices, const MenuChoice &next)
{
    for (const MenuChoice &choice : choices) {
        if (choice.key == next.key)
            return false;
    }
    if (isLastKey(next.key) || choices.isEmpty())
        return true;
    const QString last = choices.last().key;
    return !isLastKey(last) && last.toInt() < next.key.toInt();
}

} // namespace

bool MenuChoice::operator==(const MenuChoice &other) const
{
    return key == other.key && text == other.text;
}

QList<MenuChoice> menuChoices(const QString &menu)
{
    QList<MenuChoice> choices;
    for (const QString &line : menu.split(QLatin1Char('\n'))) {
        MenuChoice choice;
        if (!readChoice(line, choice))
            continue;
        if (!followsIn(choices, choice))
            return QList<MenuChoice>();
        choices << choice;
    }
    return choices.size() < 2 ? QList<MenuChoice>() : choices;
}

} // namespace Dashboard
