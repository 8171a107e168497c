#ifndef HEAVYTEXT_H
#define HEAVYTEXT_H

#include <QString>
#include <QStringList>

/*
 * Texts that Qt takes long to break into lines: the time grows with the square of the number of
 * places where one script follows another, and with the length of everything else.
 */
namespace HeavyText
{

/// Whether one paragraph of this text would keep a window busy for more than a moment. No text that
/// a network can send is.
bool isHeavy(const QString &text);

/// The text in pieces, none of which is heavy, cut at blanks where there are some.
QStringList pieces(const QString &text);

} // namespace HeavyText

#endif
