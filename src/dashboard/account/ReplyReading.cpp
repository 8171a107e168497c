#include "ReplyReading.h"

#include <QLocale>
#include <QRegularExpression>

#include "ReplyAmounts.h"
#include "ReplyDates.h"
#include "ReplyVolumes.h"

namespace Dashboard
{

namespace
{

const int FEWEST_DIGITS = 7; // the minimum for a phone number with its country code
const int MOST_DIGITS = 15;  // the maximum according to ITU-T E.164

QString digitsOf(const QString &text)
{
    QString digits;
    for (const QChar character : text) {
        if (character.isDigit())
            digits += character;
    }
    return digits;
}

bool isBare(const QString &plain, const QRegularExpressionMatch &match)
{
    const QString rest = plain.left(match.capturedStart()) + plain.mid(match.capturedEnd());
    for (const QChar character : rest) {
        if (character.isLetterOrNumber())
            return false;
    }
    return true;
}

bool isOwn(const ReplyText &text, const QRegularExpressionMatch &match)
{
    if (isBare(text.plain(), match))
        return true;
    const ReplyPart sentence = text.sentenceAt(match.capturedStart());
    return text.holds(sentence, Word::Number) && !text.holds(sentence, Word::Hotline);
}

std::optional<QString> readNumber(const ReplyText &text)
{
    static const QRegularExpression form(
        QLatin1String("(?<![\\w+])\\+ ?[0-9](?:[ \\x{00a0}().-]{0,2}[0-9])*(?![\\w*#])"));
    std::optional<QString> number;
    for (auto match = form.globalMatch(text.plain()); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        const QString digits = digitsOf(found.captured());
        if (!isOwn(text, found))
            continue;
        const QString read = QLatin1Char('+') + digits;
        const bool isLong = digits.length() >= FEWEST_DIGITS && digits.length() <= MOST_DIGITS;
        if (!isLong || (number && *number != read))
            return std::nullopt;
        number = read;
    }
    return number;
}

} // namespace

QString volumeText(qint64 bytes)
{
    const qint64 kilo = 1024;
    const char *const units[] = {"B", "KB", "MB", "GB", "TB"};
    int unit = 0;
    double size = double(bytes);
    while (size >= kilo && unit < 4) {
        size /= kilo;
        ++unit;
    }
    Money number;
    number.decimals = size < 10 && qAbs(size - qRound64(size)) >= 0.05 ? 1 : 0;
    number.units = qRound64(size * Money::UNITS);
    number.currency = QLatin1String(units[unit]);
    return moneyText(number);
}

ReplyReading readReply(const QString &text)
{
    const ReplyText reply(text);
    ReplyReading reading;
    reading.amount = readBalance(reply);
    reading.date = readValidity(reply);
    reading.number = readNumber(reply);
    reading.data = readVolume(reply);
    return reading;
}

} // namespace Dashboard
