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
/// Texts of the operator count as translations. `folder` contains the operator's text file.
QStringList languagesWithout(const QString &key, const QString &folder);
/// Returns the English translation, or an empty string if the plug-in does not have this key.
QString english(const QString &key);

} // namespace KeyTexts

} // namespace Tools

#endif
