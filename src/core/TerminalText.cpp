#include "TerminalText.h"

#include <atomic>
#include <cstdio>

#include "QtCompat.h"

namespace HostCore
{

namespace
{

std::atomic<bool> logsEverything(false);
std::atomic<LineSink> logSink(nullptr);

bool isIn(ushort unit, ushort first, ushort last)
{
    return first <= unit && unit <= last;
}

bool steersTerminal(ushort unit)
{
    return unit < 0x20 || isIn(unit, 0x7f, 0x9f);
}

bool overridesDirection(ushort unit)
{
    return isIn(unit, 0x202a, 0x202e) || isIn(unit, 0x2066, 0x2069);
}

/// Returns the text with all kinds of line endings replaced with line feeds.
QString withLineFeeds(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    text.replace(QChar(QChar::LineSeparator), QLatin1Char('\n'));
    text.replace(QChar(QChar::ParagraphSeparator), QLatin1Char('\n'));
    return text;
}

void print(FILE *stream, const QString &text)
{
    const QByteArray line = terminalText(text).toUtf8() + '\n';
    fwrite(line.constData(), 1, size_t(line.size()), stream);
    fflush(stream);
}

// Passes a Qt log message to the sink and, depending on its severity, to standard error. The
// severities are compared for equality because the values of QtMsgType are not ordered by severity.
void log(QtMsgType type, const char *text)
{
    if (const LineSink sink = logSink)
        sink(QString::fromLocal8Bit(text));
    if (logsEverything || type == QtCriticalMsg || type == QtFatalMsg)
        printErrorLine(QString::fromLocal8Bit(text));
}

} // namespace

QString terminalText(const QString &text)
{
    QString safe = withLineFeeds(text);
    for (int i = 0; i < safe.size(); ++i) {
        const ushort unit = safe.at(i).unicode();
        if (unit == '\n' || unit == '\t')
            continue;
        if (steersTerminal(unit) || overridesDirection(unit))
            safe[i] = QChar(QChar::ReplacementCharacter);
    }
    return safe;
}

void printLine(const QString &text)
{
    print(stdout, text);
}

void printErrorLine(const QString &text)
{
    print(stderr, text);
}

void installTerminalLog(bool everything)
{
    logsEverything = everything;
    QtCompat::installMessageHandler(log);
}

void setLogSink(LineSink sink)
{
    logSink = sink;
}

} // namespace HostCore
