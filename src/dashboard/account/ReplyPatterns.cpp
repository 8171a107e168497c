#include "ReplyPatterns.h"

#include "InputFile.h"
#include "PluginFiles.h"
#include "PluginFolderChoice.h"
#include "ReplyPatternFile.h"
#include "ReplyVolumes.h"
#include "ReplyWords.h"

using namespace Formats;

namespace Dashboard
{

namespace
{

const char GROUP[] = "value";

} // namespace

ReplyPatterns ReplyPatterns::fromFile(const QString &path)
{
    ReplyPatterns patterns;
    for (const ReplyPatternFile::Line &line : ReplyPatternFile::read(InputFile::content(path))) {
        if (line.name == ReplyPatternFile::CURRENCY)
            patterns.m_currency = line.value;
        if (line.name == ReplyPatternFile::DATE_FORMAT)
            patterns.m_dateFormat = line.value;
        const QRegularExpression pattern(line.value,
                                         QRegularExpression::CaseInsensitiveOption |
                                             QRegularExpression::UseUnicodePropertiesOption);
        if (ReplyPatternFile::isPattern(line.name) && pattern.isValid() &&
            pattern.namedCaptureGroups().contains(QLatin1String(GROUP)))
            patterns.m_patterns.insert(line.name, pattern);
    }
    return patterns;
}

ReplyPatterns ReplyPatterns::inUse()
{
    return fromFile(
        PluginFiles::path(HostCore::PluginFolderChoice::current(), ReplyPatternFile::NAME));
}

QString ReplyPatterns::value(const QString &name, const QString &text) const
{
    return m_patterns.value(name).match(text).captured(QLatin1String(GROUP)).trimmed();
}

std::optional<Money> ReplyPatterns::amount(const QString &text) const
{
    Money money;
    money.currency = m_currency;
    if (!readPlainAmount(value(ReplyPatternFile::BALANCE, text), &money))
        return std::nullopt;
    return money;
}

std::optional<QDate> ReplyPatterns::date(const QString &text) const
{
    const QString format = m_dateFormat.isEmpty() ? QLatin1String("yyyy-MM-dd") : m_dateFormat;
    const QDate date =
        QDate::fromString(withLatinDigits(value(ReplyPatternFile::VALIDITY, text)), format);
    // QDate interprets a two-digit year as a year of the 20th century, so 100 years are added.
    const QDate read = date.isValid() && date.year() < 2000 ? date.addYears(100) : date;
    return read.isValid() ? std::optional<QDate>(read) : std::nullopt;
}

std::optional<QString> ReplyPatterns::number(const QString &text) const
{
    QString number;
    for (const QChar character : withLatinDigits(value(ReplyPatternFile::NUMBER, text))) {
        if (character.isDigit() || (number.isEmpty() && character == QLatin1Char('+')))
            number += character;
    }
    return number.isEmpty() ? std::nullopt : std::optional<QString>(number);
}

std::optional<DataVolume> ReplyPatterns::data(const QString &text) const
{
    DataVolume volume;
    volume.left = bytesOf(value(ReplyPatternFile::DATA_LEFT, text));
    if (volume.left < 0)
        return std::nullopt;
    volume.total = qMax(qint64(0), bytesOf(value(ReplyPatternFile::DATA_TOTAL, text)));
    return volume;
}

ReplyReading ReplyPatterns::read(const QString &text) const
{
    ReplyReading reading = readReply(text);
    if (has(ReplyPatternFile::BALANCE))
        reading.amount = amount(text);
    if (has(ReplyPatternFile::VALIDITY))
        reading.date = date(text);
    if (has(ReplyPatternFile::NUMBER))
        reading.number = number(text);
    if (has(ReplyPatternFile::DATA_LEFT))
        reading.data = data(text);
    return reading;
}

} // namespace Dashboard
