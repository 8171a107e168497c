#ifndef REPLYPATTERNFILE_H
#define REPLYPATTERNFILE_H

#include <QByteArray>
#include <QLatin1String>
#include <QList>
#include <QString>

namespace Formats
{

/*
 * The format of the file with an operator's patterns for replies. Each line that is neither empty
 * nor begins with "#" has a name, "=", and a regular expression with the named group "value".
 */
namespace ReplyPatternFile
{

/// The name of the file in the folder of the plug-in's files.
const QLatin1String NAME("replies.patterns");

/// The first line of a file of this kind.
const QLatin1String TITLE("# USSD reply patterns");

const QLatin1String BALANCE("balance");
const QLatin1String CURRENCY("currency"); // not a pattern, but the currency of the balance
const QLatin1String VALIDITY("validity");
const QLatin1String DATE_FORMAT("validity-format"); // of QDate::fromString()
const QLatin1String NUMBER("number");
const QLatin1String DATA_LEFT("data-left");
const QLatin1String DATA_TOTAL("data-total");

/** A line of the file. */
struct Line {
    int line = 0; // starts at 1
    QString name; // empty if the line has no "="
    QString value;
};

QList<Line> read(const QByteArray &content);

/// Returns true if the value of this name is a regular expression.
bool isPattern(const QString &name);
/// Returns true if the name is one of the names above.
bool isKnown(const QString &name);

} // namespace ReplyPatternFile

} // namespace Formats

#endif
