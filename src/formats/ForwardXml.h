#ifndef FORWARDXML_H
#define FORWARDXML_H

#include <QLatin1String>
#include <QString>
#include <QXmlStreamReader>

/*
 * Forward scans over an XML document. The plug-in's files are read front to back by element name
 * alone: nesting is not checked, so the order of elements in them is binding.
 *
 * A document is read up to its first fault. What the fault cuts, a text or the attributes of a
 * start tag, is empty, and so is all that is asked for from then on.
 */
namespace ForwardXml
{

/// The next token. An entity that the document does not declare is a fault.
QXmlStreamReader::TokenType next(QXmlStreamReader &reader);

/// Moves to the next start element with this name, or to the end of the document.
/// Whether it was found.
bool skipTo(QXmlStreamReader &reader, const QString &name);

/// The same, but stops with false behind an end element `fence`, unless that is what is sought.
bool skipToBefore(QXmlStreamReader &reader, const QString &name, const QString &fence);

/// The whole text of the element that the reader stands on, also of elements inside it; empty when
/// it stands on none, or when the text has a fault in it.
QString text(QXmlStreamReader &reader);

/// The same as a decimal number; 0 when it is none.
int number(QXmlStreamReader &reader);

QString attribute(const QXmlStreamReader &reader, QLatin1String name);
/// 0 when the attribute is missing or no decimal number.
int numberAttribute(const QXmlStreamReader &reader, QLatin1String name);
/// True only for the exact text "true".
bool boolAttribute(const QXmlStreamReader &reader, QLatin1String name);

/// True only for the exact text "true".
bool isTrue(const QString &text);

} // namespace ForwardXml

#endif
