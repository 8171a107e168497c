#include "TestLog.h"

#include <QCoreApplication>
#include <QThread>

#include <cstdio>

namespace
{
// Part of the source path in the plug-in's own log lines. The plug-in logs some of these as
// warnings.
const char PLUGIN_SOURCE_PATH[] = "../../src/USSDUIPlugin/";

// The offscreen platform plug-in prints this message for each window. It can be ignored.
const char OFFSCREEN_NOTICE[] = "This plugin does not support ";

bool isWarning(QtMsgType type)
{
    return type == QtWarningMsg || type == QtCriticalMsg;
}

bool isAlwaysAllowed(const QString &text)
{
    return text.contains(QLatin1String(PLUGIN_SOURCE_PATH)) ||
           text.startsWith(QLatin1String(OFFSCREEN_NOTICE));
}

bool isMainThread()
{
    const QCoreApplication *application = QCoreApplication::instance();
    return application && QThread::currentThread() == application->thread();
}
} // namespace

TestLog &TestLog::instance()
{
    static TestLog log;
    return log;
}

void TestLog::takeOver()
{
    const QtMessageHandler previous = qInstallMessageHandler(handle);
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (previous != handle)
        m_previous = previous;
}

void TestLog::begin()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_lines.clear();
    m_announcements.clear();
    m_unexpected.clear();
}

void TestLog::clearLines()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_lines.clear();
}

void TestLog::expect(const QString &part, bool required)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_announcements.push_back({part, required, false});
}

QStringList TestLog::lines() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    QStringList texts;
    for (const Line &line : m_lines)
        texts << line.text;
    return texts;
}

QStringList TestLog::unexpectedWarnings() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_unexpected;
}

QStringList TestLog::missingWarnings() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    QStringList missing;
    for (const Announcement &announcement : m_announcements) {
        if (announcement.required && !announcement.seen)
            missing << announcement.part;
    }
    return missing;
}

// Only the main thread calls QtTest's message handler, because the handler is not thread-safe.
void TestLog::handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    TestLog &log = instance();
    const bool expected = log.keep(type, text);
    if (type != QtFatalMsg && (expected || !isMainThread())) {
        if (!expected)
            std::fprintf(stderr, "unexpected warning: %s\n", qPrintable(text));
        return;
    }
    if (log.m_previous)
        log.m_previous(type, context, text);
}

/// Stores the message. Returns false if it is an unexpected warning, which must also be printed.
bool TestLog::keep(QtMsgType type, const QString &text)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_lines.push_back({type, text});
    const bool expected = isExpected(type, text);
    if (!expected && isWarning(type))
        m_unexpected << text;
    return expected || !isWarning(type);
}

bool TestLog::isExpected(QtMsgType type, const QString &text)
{
    bool announced = isAlwaysAllowed(text);
    for (Announcement &announcement : m_announcements) {
        if (isWarning(type) && text.contains(announcement.part))
            announced = announcement.seen = true;
    }
    return announced;
}
