#ifndef SPELLING_H
#define SPELLING_H

#include "XmlElements.h"

#include <QStringList>

namespace Tools
{

/** The names that the plug-in reads in one type of file. */
struct KnownNames {
    QStringList elements;
    QStringList attributes;
};

/// Returns the name in `known` that is most similar to `name`. Returns an empty string if no name
/// is similar enough.
QString likelyName(const QString &name, const QStringList &known);

/// Returns the known name that was probably meant if the name of the element is misspelt. Returns
/// an empty string if the name is known, or is not similar to any known name.
QString meantElement(const XmlElement &element, const KnownNames &known);
/// Returns the known name that was probably meant if the attribute name `name` of the element is
/// misspelt. Never returns the name of an attribute that the element already has.
QString meantAttribute(const XmlElement &element, const QString &name, const KnownNames &known);

/// Returns the document with all misspelt names replaced by the names that were probably meant.
/// Without this correction, a single misspelt name would cause a finding for each element that the
/// plug-in consequently does not find. Line numbers do not change. Returns the document unchanged
/// if it is not encoded in UTF-8.
QByteArray spellingCorrected(const QByteArray &xml, const KnownNames &known);

} // namespace Tools

#endif
