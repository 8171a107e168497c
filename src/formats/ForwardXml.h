#ifndef FORWARDXML_H
#define FORWARDXML_H

#include <QByteArray>
#include <QIODevice>
#include <QLatin1String>
#include <QString>
#include <QXmlStreamReader>

namespace Formats
{

/*
 * Functions for forward scans of an XML document. The plug-in's files are read from start to end by
 * element name alone. Nesting is not checked, so the order of the elements is significant.
 *
 * A document is read up to its first error. If the error is in text or in the attributes of a start
 * tag, this text or these attributes are treated as empty. Everything after the error is also
 * treated as empty.
 */
namespace ForwardXml
{

/// Makes `reader` parse the document in `device` from the current position. The device must be
/// random-access and must outlive the parsing. A document that declares entities is refused: the
/// reader then reports an error and no token. Qt 4 expands entities without a limit, so a document
/// of 600 bytes could use up all memory.
void start(QXmlStreamReader &reader, QIODevice &device);
/// Makes `reader` parse `document` in the same way.
void start(QXmlStreamReader &reader, const QByteArray &document);

/// Reads and returns the next token. An entity that the document does not declare is an error.
QXmlStreamReader::TokenType next(QXmlStreamReader &reader);

/// Moves to the next start element with this name, or to the end of the document. Returns true if
/// the element was found.
bool skipTo(QXmlStreamReader &reader, const QString &name);

/// Moves in the same way as skipTo(), but returns false after an end element with the name `fence`.
/// If `fence` equals `name`, it is ignored.
bool skipToBefore(QXmlStreamReader &reader, const QString &name, const QString &fence);

/// Returns the complete text of the current element, including nested elements. Returns an empty
/// string if the reader is not at a start element or if the text contains an error.
QString text(QXmlStreamReader &reader);

/// Returns the text of the current element as a decimal number, or 0 if it is not a number.
int number(QXmlStreamReader &reader);

QString attribute(const QXmlStreamReader &reader, QLatin1String name);
/// Returns the attribute as a decimal number, or 0 if the attribute is missing or not a number.
int numberAttribute(const QXmlStreamReader &reader, QLatin1String name);
/// Returns true only if the value of the attribute is exactly "true".
bool boolAttribute(const QXmlStreamReader &reader, QLatin1String name);

/// Returns true only if the string is exactly "true".
bool isTrue(const QString &text);

} // namespace ForwardXml

} // namespace Formats

#endif
