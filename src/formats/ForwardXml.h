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
 * Functions that scan an XML document forward. The plug-in searches its files for element names
 * from start to end, regardless of how the elements are nested. The order of the elements is
 * therefore significant.
 *
 * A document is read up to its first error. If the error is in text or in the attributes of a start
 * tag, this text or these attributes are treated as empty. The rest of the document is ignored.
 */
namespace ForwardXml
{

/// Makes `reader` parse the document in `device` from the current position. The device must be
/// random-access and must outlive the reader. Documents that declare entities are rejected with an
/// error, because Qt 4 expands entities without a limit. A document of 600 bytes could therefore
/// exhaust the memory. Documents in an encoding that could hide a declaration are rejected, too.
void start(QXmlStreamReader &reader, QIODevice &device);
/// This is an overloaded function. It makes `reader` parse `document` with the same restrictions.
void start(QXmlStreamReader &reader, const QByteArray &document);

/// Reads and returns the next token. Raises an error at a reference to an undeclared entity.
QXmlStreamReader::TokenType next(QXmlStreamReader &reader);

/// Moves to the next start element with this name, or to the end of the document. Returns true if
/// the element was found.
bool skipTo(QXmlStreamReader &reader, const QString &name);

/// Like skipTo(), but stops at the end element named `fence` and returns false. Has the same effect
/// as skipTo() if `fence` equals `name`.
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
