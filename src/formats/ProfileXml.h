#ifndef PROFILEXML_H
#define PROFILEXML_H

#include <QList>

#include "USSDProfile.h"

class QIODevice;
class QXmlStreamReader;

namespace Formats
{

/*
 * The format of the profile files. The root element "tksvdoc" contains one "item" for each profile,
 * and each item contains six text elements in a fixed order.
 */
namespace ProfileXml
{

/// Reads the next profile, without its isSystem, which stays false. Returns false at the end of the
/// document. If a field is missing, the fields after it are taken from the next item. If the
/// document has a fault, the field that contains it and all later fields are empty or false.
bool readNext(QXmlStreamReader &reader, USSDProfile &profile);

/// Writes a complete document with these profiles. Characters that XML forbids are left out.
void write(QIODevice &device, const QList<USSDProfile> &profiles);

} // namespace ProfileXml

} // namespace Formats

#endif
