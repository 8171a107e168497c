#include "PluginLog.h"

#include <chrono>
#include <cstdarg>
#include <cstdio>

#include <QByteArray>
#include <QTime>

namespace
{

const int USUAL_LENGTH = 256; // bytes; longer lines require a second memory allocation
const int STAMP_LENGTH = 64;  // bytes for hh:mm:ss:zzz, whose digits may belong to any script

/// The time string of the last log line and the millisecond to which it applies.
struct Stamp {
    qint64 millisecond;
    char text[STAMP_LENGTH];
};

// Stamp must not have a destructor. A thread-local object with a destructor would keep the library
// loaded until the last thread has ended.
thread_local Stamp lastStamp = {-1, ""};

qint64 millisecondsNow()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

void appendFormatted(QByteArray &line, const char *format, va_list arguments)
{
    va_list again;
    va_copy(again, arguments);
    const int start = line.size();
    line.resize(qMax(USUAL_LENGTH, start));
    const int room = line.size() - start;
    const int length = qMax(
        0, std::vsnprintf(line.data() + start, static_cast<size_t>(room) + 1, format, arguments));
    line.resize(start + length);
    if (length > room)
        std::vsnprintf(line.data() + start, static_cast<size_t>(length) + 1, format, again);
    va_end(again);
}

void write(QtMsgType type, const QByteArray &text)
{
    if (type == QtDebugMsg)
        qDebug("%s", text.constData());
    else
        qWarning("%s", text.constData());
}

/// Returns "source: function" and the formatted tail, preceded by the time string `stamp` unless it
/// is null.
QByteArray composed(const char *stamp, const char *source, const char *function, const char *tail,
                    va_list arguments)
{
    QByteArray text;
    text.reserve(USUAL_LENGTH);
    if (stamp)
        text.append(stamp).append(": ");
    text.append(source).append(": ").append(function);
    appendFormatted(text, tail, arguments);
    return text;
}

} // namespace

namespace PluginLog
{

// Returns the current local time. Log lines within the same millisecond share the string, because a
// command logs about twenty lines in a row and every query of the local time accesses the time-zone
// file.
const char *timeOfDay()
{
    const qint64 now = millisecondsNow();
    if (lastStamp.millisecond != now) {
        const QString text = QTime::currentTime().toString(QLatin1String("hh:mm:ss:zzz"));
        qstrncpy(lastStamp.text, text.toLocal8Bit().constData(), STAMP_LENGTH);
        lastStamp.millisecond = now;
    }
    return lastStamp.text;
}

void line(QtMsgType type, const char *source, const char *function, const char *tail, ...)
{
    va_list arguments;
    va_start(arguments, tail);
    write(type, composed(timeOfDay(), source, function, tail, arguments));
    va_end(arguments);
}

void important(const char *source, const char *function, const char *tail, ...)
{
    va_list arguments;
    va_start(arguments, tail);
    const QByteArray text = composed(timeOfDay(), source, function, tail, arguments);
    va_end(arguments);
    write(QtDebugMsg, text);
    write(QtWarningMsg, text);
}

void untimed(QtMsgType type, const char *source, const char *function, const char *tail, ...)
{
    va_list arguments;
    va_start(arguments, tail);
    write(type, composed(nullptr, source, function, tail, arguments));
    va_end(arguments);
}

Scope::Scope(const char *source, const char *function)
    : m_source(source), m_function(function), m_exited(false)
{
    line(QtDebugMsg, m_source, m_function, " Enter");
}

Scope::~Scope()
{
    if (!m_exited)
        line(QtDebugMsg, m_source, m_function, " Exit");
}

void Scope::exitWith(const char *tail, ...)
{
    m_exited = true;
    va_list arguments;
    va_start(arguments, tail);
    write(QtDebugMsg, composed(timeOfDay(), m_source, m_function, tail, arguments));
    va_end(arguments);
}

void Scope::exitWithWarning(const char *tail, ...)
{
    m_exited = true;
    va_list arguments;
    va_start(arguments, tail);
    const QByteArray text = composed(timeOfDay(), m_source, m_function, tail, arguments);
    va_end(arguments);
    write(QtDebugMsg, text);
    write(QtWarningMsg, text);
}

} // namespace PluginLog
