#ifndef TERMINALTEXT_H
#define TERMINALTEXT_H

#include <QByteArray>
#include <QString>

namespace HostCore
{

/// Returns a copy of the text that is safe to print to a terminal. All kinds of line endings become
/// line feeds, and tabs are kept. All other control characters (C0, DEL, C1) and the directional
/// formatting characters (U+202A to U+202E, U+2066 to U+2069) are replaced with U+FFFD. This
/// prevents a network reply from controlling the terminal or disguising its own contents.
Q_DECL_EXPORT QString terminalText(const QString &text);

/// Writes terminalText(text) and a line feed to standard output, in UTF-8. May be called from any
/// thread.
Q_DECL_EXPORT void printLine(const QString &text);
/// Writes terminalText(text) and a line feed to standard error, in UTF-8. May be called from any
/// thread.
Q_DECL_EXPORT void printErrorLine(const QString &text);

/// Installs a message handler that writes Qt log messages to standard error through terminalText().
/// If `everything` is false, the handler writes only critical and fatal messages.
Q_DECL_EXPORT void installTerminalLog(bool everything);

/// A function that receives Qt log messages. It is called from the thread that logged the message.
typedef void (*LineSink)(const QString &line);
/// Sets the sink, a function that receives every Qt log message. Null removes the sink.
Q_DECL_EXPORT void setLogSink(LineSink sink);

} // namespace HostCore

#endif
