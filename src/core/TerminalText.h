#ifndef TERMINALTEXT_H
#define TERMINALTEXT_H

#include <QByteArray>
#include <QString>

namespace HostCore
{

/// The text as it may be written to a terminal: line ends and tabs stay; every other control
/// character (C0, DEL, C1) and every character that embeds, overrides or isolates a direction
/// becomes U+FFFD, so that a reply can neither steer the terminal nor hide what it says.
Q_DECL_EXPORT QString terminalText(const QString &text);

/// Writes terminalText(text) and a line end to standard output, in UTF-8. Any thread.
Q_DECL_EXPORT void printLine(const QString &text);
/// Writes terminalText(text) and a line end to standard error, in UTF-8. Any thread.
Q_DECL_EXPORT void printErrorLine(const QString &text);

/// Directs Qt's messages to standard error through terminalText(): all messages when `everything`
/// is true, otherwise only critical and fatal ones.
Q_DECL_EXPORT void installTerminalLog(bool everything);

/// Receives a message of Qt on the thread that wrote it.
typedef void (*LineSink)(const QString &line);
/// Makes `sink` receive all of Qt's messages as well. Null ends that.
Q_DECL_EXPORT void setLogSink(LineSink sink);

} // namespace HostCore

#endif
