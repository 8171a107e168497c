#include "UssdCode.h"

namespace Formats
{

namespace
{

bool isSign(QChar character)
{
    return character == QLatin1Char('*') || character == QLatin1Char('#');
}

} // namespace

bool isDialable(const QString &text)
{
    for (int i = 0; i < text.length(); ++i) {
        const bool isDigit = text.at(i) >= QLatin1Char('0') && text.at(i) <= QLatin1Char('9');
        if (!isDigit && !isSign(text.at(i)))
            return false;
    }
    return true;
}

bool isUssdCode(const QString &text)
{
    return text.length() >= 2 && isSign(text.at(0)) && text.endsWith(QLatin1Char('#')) &&
           isDialable(text);
}

bool isCodeLike(const QString &text)
{
    if (!text.isEmpty() && isSign(text.at(0)))
        return true;
    for (int i = 0; i < text.length(); ++i) {
        if (text.at(i).isLetter())
            return false;
    }
    return true;
}

int commandLength(const QString &command, int input)
{
    const int places = command.count(INPUT_PLACEHOLDER);
    return command.length() + places * (input - QString(INPUT_PLACEHOLDER).length());
}

int longestInput(const QString &command)
{
    const int places = command.count(INPUT_PLACEHOLDER);
    return places == 0 ? 0 : qMax(0, (LONGEST_COMMAND - commandLength(command, 0)) / places);
}

} // namespace Formats
