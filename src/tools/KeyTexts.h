#ifndef KEYTEXTS_H
#define KEYTEXTS_H

#include <QString>
#include <QStringList>

namespace Tools
{

/** Looks up the plug-in's text keys in the installed language files. */
namespace KeyTexts
{

/// Returns the installed languages that have no translation for the key. Returns an empty list if
/// the string is empty or not a key. A key consists of capital letters, digits and underscores.
QStringList languagesWithout(const QString &key);

} // namespace KeyTexts

} // namespace Tools

#endif
