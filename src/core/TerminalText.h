#ifndef TERMINALTEXT_H
#define TERMINALTEXT_H

#include <QByteArray>
#include <QString>

namespace HostCore
{

/// Returns the text in a form that is safe for a terminal. Line ends and tabs are kept. Every other
/// control character (C0, DEL, C1), and every character that embeds, overrides or isolates a
/// direction, is replaced with U+FFFD. A reply can therefore neither control the terminal nor
/// disguise its text.
Q_DECL_EXPORT QString terminalText(const QString &text);

/// Writes terminalText(text) and a line feed to standard output, in UTF-8. May be called on any
/// thread.
Q_DECL_EXPORT void printLine(const QString &text);
/// Writes terminalText(text) and a line feed to standard error, in UTF-8. May be called on any
/// thread.
Q_DECL_EXPORT void printErrorLine(const QString &text);

/// Writes Qt's messages to standard error through terminalText(). If `everything` is true, writes
/// all messages, otherwise only critical and fatal ones.
Q_DECL_EXPORT void installTerminalLog(bool everything);

/// A function that receives a message of Qt, on the thread that wrote the message.
typedef void (*LineSink)(const QString &line);
/// Passes every message of Qt also to `sink`. Null removes the sink.
Q_DECL_EXPORT void setLogSink(LineSink sink);

} // namespace HostCore

#endif
