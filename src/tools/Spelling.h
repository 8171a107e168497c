#ifndef SPELLING_H
#define SPELLING_H

#include "XmlElements.h"

#include <QStringList>

namespace Tools
{

/** The names that the plug-in reads in one kind of file. */
struct KnownNames {
    QStringList elements;
    QStringList attributes;
};

/// Returns the name in `known` that is most similar to `name`, or an empty string if none is
/// similar enough.
QString likelyName(const QString &name, const QStringList &known);

/// Returns the known name for which an element's name is probably a misspelling. Returns an empty
/// string if the name is known, or similar to none.
QString meantElement(const XmlElement &element, const KnownNames &known);
/// Returns the same for one of the element's attributes. A name that the element already has as
/// another attribute is never meant.
QString meantAttribute(const XmlElement &element, const QString &name, const KnownNames &known);

/// Returns the document with the names that are probably meant. Otherwise, one misspelt name would
/// have a finding for everything that the plug-in does not find because of it. Lines stay the same.
/// Returns the document unchanged if it is not UTF-8.
QByteArray spellingCorrected(const QByteArray &xml, const KnownNames &known);

} // namespace Tools

#endif
