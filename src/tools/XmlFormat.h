#ifndef XMLFORMAT_H
#define XMLFORMAT_H

#include <QByteArray>
#include <QString>

namespace Tools
{

/// Returns the document with a uniform layout: one element per line, indented by its depth. The
/// values, the comments, and single blank lines are kept. Formatting the result again does not
/// change it. If the document cannot be formatted without changing its meaning, returns an empty
/// array and sets `problem`.
QByteArray formattedXml(const QByteArray &xml, QString &problem);

} // namespace Tools

#endif
