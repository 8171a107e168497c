#ifndef SPELLING_H
#define SPELLING_H

#include "XmlElements.h"

#include <QStringList>

namespace Tools
{

/** The element and attribute names that the plug-in uses in one kind of file. */
struct KnownNames {
    QStringList elements;
    QStringList attributes;
};

/// Returns the name in `known` that is most similar to `name`, or an empty string if none is
/// similar enough.
QString likelyName(const QString &name, const QStringList &known);

/// Returns the known name that was probably intended if the element's name is misspelt. Returns an
/// empty string if the name is known or if no known name is similar.
QString meantElement(const XmlElement &element, const KnownNames &known);
/// Returns the known name that was probably intended if the attribute name `name` is misspelt. The
/// result is never the name of another attribute of the element.
QString meantAttribute(const XmlElement &element, const QString &name, const KnownNames &known);

/// Returns the document with misspelt names replaced by the names that were probably intended. A
/// single misspelt name would otherwise cause findings for all elements that the plug-in cannot
/// find as a result. Line numbers remain the same. A document that is not encoded in UTF-8 is
/// returned unchanged.
QByteArray spellingCorrected(const QByteArray &xml, const KnownNames &known);

} // namespace Tools

#endif
