#ifndef TERMINALTEXT_H
#define TERMINALTEXT_H

#include <QByteArray>
#include <QString>

/// The text as it may be written to a terminal: line ends and tabs stay; every other control
/// character (C0, DEL, C1) and every character that embeds, overrides or isolates a direction
/// becomes U+FFFD, so that a reply can neither steer the terminal nor hide what it says.
QString terminalText(const QString &text);

/// Writes terminalText() of it and a line end, in UTF-8. Any thread.
void printLine(const QString &text);
/// The same to standard error.
void printErrorLine(const QString &text);

/// From now on Qt's messages go to standard error through terminalText(): all of them when
/// `everything`, otherwise only those that say that the program cannot go on.
void installTerminalLog(bool everything);

/// Takes all of Qt's messages as well, on the thread that each comes from; null: nothing does.
typedef void (*LineSink)(const QString &line);
void setLogSink(LineSink sink);

#endif
