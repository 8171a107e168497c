#ifndef PROFILEXML_H
#define PROFILEXML_H

#include <QList>

#include "USSDProfile.h"

class QIODevice;
class QXmlStreamReader;

namespace Formats
{

/*
 * The format of the profile files. The root element "tksvdoc" contains one "item" for each profile.
 * Each item contains six text elements in a fixed order.
 */
namespace ProfileXml
{

/// Reads the next profile, except for `isSystem`, which remains false. Returns false at the end of
/// the document. If a field is missing, the remaining fields are read from the next item. If the
/// document contains an error, the field with the error and all later fields are empty or false.
bool readNext(QXmlStreamReader &reader, USSDProfile &profile);

/// Writes a complete document that contains the profiles. Characters that XML forbids are omitted.
void write(QIODevice &device, const QList<USSDProfile> &profiles);

} // namespace ProfileXml

} // namespace Formats

#endif
