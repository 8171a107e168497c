#ifndef TERMINALTEXT_H
#define TERMINALTEXT_H

#include <QByteArray>
#include <QString>

namespace HostCore
{

/// Returns the text in a form that is safe for a terminal. Line ends and tabs stay; every other
/// control character (C0, DEL, C1) and every character that embeds, overrides or isolates a
/// direction becomes U+FFFD, so that a reply can neither control the terminal nor disguise its
/// text.
Q_DECL_EXPORT QString terminalText(const QString &text);

/// Writes terminalText(text) and a line feed to standard output, in UTF-8. May be called on any
/// thread.
Q_DECL_EXPORT void printLine(const QString &text);
/// Writes terminalText(text) and a line feed to standard error, in UTF-8. May be called on any
/// thread.
Q_DECL_EXPORT void printErrorLine(const QString &text);

/// Writes Qt's messages to standard error through terminalText(): all messages when `everything`
/// is true, otherwise only critical and fatal ones.
Q_DECL_EXPORT void installTerminalLog(bool everything);

/// Receives a message of Qt on the thread that wrote it.
typedef void (*LineSink)(const QString &line);
/// Passes every message of Qt to `sink` as well. Null removes the sink.
Q_DECL_EXPORT void setLogSink(LineSink sink);

} // namespace HostCore

#endif
