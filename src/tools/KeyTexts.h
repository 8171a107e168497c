#ifndef KEYTEXTS_H
#define KEYTEXTS_H

#include <QString>
#include <QStringList>

namespace Tools
{

/** Functions that look up text keys in the installed language files. */
namespace KeyTexts
{

/// Returns the installed languages that have no translation for the key. The operator's text file
/// in `folder` is also taken into account. Returns an empty list if the string does not have the
/// form of a key; see OperatorTexts::isKey().
QStringList languagesWithout(const QString &key, const QString &folder);
/// Returns the English string, or an empty string if the plug-in does not have this key.
QString english(const QString &key);

} // namespace KeyTexts

} // namespace Tools

#endif
