#ifndef PROFILEXML_H
#define PROFILEXML_H

#include <QList>

#include "USSDProfile.h"

class QIODevice;
class QXmlStreamReader;

namespace Formats
{

/*
 * The format of the profile files: the root element "tksvdoc" contains an "item" for each profile,
 * and an item contains six text elements in a fixed order.
 */
namespace ProfileXml
{

/// Reads the next profile and leaves its isSystem false. Returns false at the end of the document.
/// If a field is missing, the fields after it are taken from the next item. A fault of the document
/// leaves the field in which it occurs, and the fields after it, empty or false.
bool readNext(QXmlStreamReader &reader, USSDProfile &profile);

/// Writes a complete document with these profiles. Characters that XML forbids are left out.
void write(QIODevice &device, const QList<USSDProfile> &profiles);

} // namespace ProfileXml

} // namespace Formats

#endif
