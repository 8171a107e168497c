#ifndef REPLYPATTERNFILE_H
#define REPLYPATTERNFILE_H

#include <QByteArray>
#include <QLatin1String>
#include <QList>
#include <QString>

namespace Formats
{

/*
 * The format of a file that contains an operator's patterns for network replies. Empty lines and
 * lines that begin with "#" are ignored. Every other line contains a name, "=", and a regular
 * expression with the named group "value".
 */
namespace ReplyPatternFile
{

/// The name of the pattern file in the folder of the plug-in's files.
const QLatin1String NAME("replies.patterns");

/// The first line of a pattern file.
const QLatin1String TITLE("# USSD reply patterns");

const QLatin1String BALANCE("balance");
const QLatin1String CURRENCY("currency"); // not a pattern, but the currency of the balance
const QLatin1String VALIDITY("validity");
const QLatin1String DATE_FORMAT("validity-format"); // a format for QDate::fromString()
const QLatin1String NUMBER("number");
const QLatin1String DATA_LEFT("data-left");
const QLatin1String DATA_TOTAL("data-total");

/** A line of a pattern file. */
struct Line {
    int line = 0; // starts at 1
    QString name; // empty if the line has no "="
    QString value;
};

QList<Line> read(const QByteArray &content);

/// Returns true if lines with this name contain a regular expression.
bool isPattern(const QString &name);
/// Returns true if the name is one of the names defined above.
bool isKnown(const QString &name);

} // namespace ReplyPatternFile

} // namespace Formats

#endif
