#ifndef TERMINALTEXT_H
#define TERMINALTEXT_H

#include <QByteArray>
#include <QString>

namespace HostCore
{

/// Returns the text in a form that is safe for a terminal. Line endings and tabs are kept. Every
/// other control character (C0, DEL, C1), and every character that embeds, overrides or isolates a
/// text direction, is replaced with U+FFFD. Therefore, a network reply can neither control the
/// terminal nor disguise its contents.
Q_DECL_EXPORT QString terminalText(const QString &text);

/// Writes terminalText(text) and a line feed to standard output, in UTF-8. May be called from any
/// thread.
Q_DECL_EXPORT void printLine(const QString &text);
/// Writes terminalText(text) and a line feed to standard error, in UTF-8. May be called from any
/// thread.
Q_DECL_EXPORT void printErrorLine(const QString &text);

/// Installs a message handler that writes Qt log messages to standard error through terminalText().
/// If `everything` is true, writes all messages, otherwise only critical and fatal messages.
Q_DECL_EXPORT void installTerminalLog(bool everything);

/// The type of a function that receives a Qt log message, called from the thread that logged the
/// message.
typedef void (*LineSink)(const QString &line);
/// Passes every Qt log message to `sink`, in addition to standard error. Null removes the sink.
Q_DECL_EXPORT void setLogSink(LineSink sink);

} // namespace HostCore

#endif
