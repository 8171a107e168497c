#ifndef KEYTEXTS_H
#define KEYTEXTS_H

#include <QString>
#include <QStringList>

/** The plug-in's texts in the language files that are installed. */
namespace KeyTexts
{

/// The installed languages that have no text for it. None when it is empty, or does not look like a
/// key: capital letters, digits and underscores.
QStringList languagesWithout(const QString &key);

} // namespace KeyTexts

#endif
