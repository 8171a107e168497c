#ifndef PROFILEXML_H
#define PROFILEXML_H

#include <QList>

#include "USSDProfile.h"

class QIODevice;
class QXmlStreamReader;

/*
 * The profile files' format: root "tksvdoc", an "item" for each profile, six text elements in it in
 * a fixed order.
 */
namespace ProfileXml
{

/// Reads the next profile, whose isSystem stays false. False at the end of the document. A field
/// that is missing lets the fields behind it be taken from the next item. A fault of the document
/// leaves the field that it cuts, and those behind it, empty or false.
bool readNext(QXmlStreamReader &reader, USSDProfile &profile);

/// Writes a whole document with these profiles. Characters that XML cannot hold are left out.
void write(QIODevice &device, const QList<USSDProfile> &profiles);

} // namespace ProfileXml

#endif
