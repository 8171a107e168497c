#include "ReplyPatternFile.h"

namespace Formats
{

namespace ReplyPatternFile
{

QList<Line> read(const QByteArray &content)
{
    QList<Line> lines;
    int number = 0;
    const QList<QByteArray> rows = content.split('\n');
    for (int i = 0; i < rows.count(); ++i) {
        ++number;
        const QString text = QString::fromUtf8(rows.at(i)).trimmed();
        if (text.isEmpty() || text.startsWith(QLatin1Char('#')))
            continue;
        const int equals = text.indexOf(QLatin1Char('='));
        Line line;
        line.line = number;
        line.name = equals < 0 ? QString() : text.left(equals).trimmed();
        line.value = equals < 0 ? text : text.mid(equals + 1).trimmed();
        lines << line;
    }
    return lines;
}

bool isPattern(const QString &name)
{
    return isKnown(name) && name != CURRENCY && name != DATE_FORMAT;
}

bool isKnown(const QString &name)
{
    const QLatin1String names[] = {BALANCE, CURRENCY,  VALIDITY,  DATE_FORMAT,
                                   NUMBER,  DATA_LEFT, DATA_TOTAL};
    for (const QLatin1String &known : names) {
        if (name == known)
            return true;
    }
    return false;
}

} // namespace ReplyPatternFile

} // namespace Formats
