#include "PluginLog.h"

#include <cstdarg>
#include <cstdio>

#include <QByteArray>
#include <QTime>

namespace
{

QByteArray formatted(const char *format, va_list arguments)
{
    va_list counting;
    va_copy(counting, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, counting);
    va_end(counting);
    if (length <= 0)
        return QByteArray();
    QByteArray text(length + 1, '\0'); // room for the closing zero
    std::vsnprintf(text.data(), static_cast<size_t>(length) + 1, format, arguments);
    text.chop(1);
    return text;
}

void write(QtMsgType type, const QByteArray &text)
{
    if (type == QtDebugMsg)
        qDebug("%s", text.constData());
    else
        qWarning("%s", text.constData());
}

QByteArray head(const char *source, const char *function)
{
    return QTime::currentTime().toString(QLatin1String("hh:mm:ss:zzz")).toLocal8Bit() + ": " +
           source + ": " + function;
}

} // namespace

namespace PluginLog
{

void line(QtMsgType type, const char *source, const char *function, const char *tail, ...)
{
    va_list arguments;
    va_start(arguments, tail);
    write(type, head(source, function) + formatted(tail, arguments));
    va_end(arguments);
}

void important(const char *source, const char *function, const char *tail, ...)
{
    va_list arguments;
    va_start(arguments, tail);
    const QByteArray text = head(source, function) + formatted(tail, arguments);
    va_end(arguments);
    write(QtDebugMsg, text);
    write(QtWarningMsg, text);
}

void untimed(QtMsgType type, const char *source, const char *function, const char *tail, ...)
{
    va_list arguments;
    va_start(arguments, tail);
    write(type, QByteArray(source) + ": " + function + formatted(tail, arguments));
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
    write(QtDebugMsg, head(m_source, m_function) + formatted(tail, arguments));
    va_end(arguments);
}

void Scope::exitWithWarning(const char *tail, ...)
{
    m_exited = true;
    va_list arguments;
    va_start(arguments, tail);
    const QByteArray text = head(m_source, m_function) + formatted(tail, arguments);
    va_end(arguments);
    write(QtDebugMsg, text);
    write(QtWarningMsg, text);
}

} // namespace PluginLog
