#ifndef PLUGINLOG_H
#define PLUGINLOG_H

#include <QtGlobal>

/*
 * Writes the plug-in's log lines. A line has the form "time: source path: function", followed by a
 * tail that starts with a blank or a colon. Each .cpp file defines its source path once:
 *
 *     static const char LOG_SOURCE[] = USSD_LOG_SOURCE("USSDLogic.cpp");
 *
 * The .cpp files of a class all use the path of the first file, because users search the log for
 * this path. Code outside this file must use the macros below. In a build with USSD_LOG_LINES=OFF,
 * the macros write nothing: their arguments are compiled but not evaluated.
 */

#define USSD_LOG_SOURCE(file) "../../src/USSDUIPlugin/" file

namespace PluginLog
{

#define USSD_PRINTF(text, first) __attribute__((format(printf, text, first)))

/// Returns the local time as hh:mm:ss:zzz in the local 8-bit encoding. The string remains valid
/// until the calling thread calls the function again.
const char *timeOfDay();

/// Writes a line that consists of "time: source: function" and the formatted tail.
void line(QtMsgType type, const char *source, const char *function, const char *tail, ...)
    USSD_PRINTF(4, 5);

/// Writes the same line as line() twice: at debug level and at warning level.
void important(const char *source, const char *function, const char *tail, ...) USSD_PRINTF(3, 4);

/// Writes a line that consists of "source: function" and the formatted tail.
void untimed(QtMsgType type, const char *source, const char *function, const char *tail, ...)
    USSD_PRINTF(4, 5);

/// Logs Enter on construction. On destruction, logs Exit unless an exit line has already been
/// logged.
class Scope
{
public:
    Scope(const char *source, const char *function);
    ~Scope();

    /// Logs `tail` instead of the default Exit line.
    void exitWith(const char *tail, ...) USSD_PRINTF(2, 3);
    /// Logs `tail` instead of the default Exit line, at debug level and again at warning level.
    void exitWithWarning(const char *tail, ...) USSD_PRINTF(2, 3);
    /// Suppresses the Exit line. Used if the previous line already reports the exit.
    void leaveSilently() { m_exited = true; }

private:
    Q_DISABLE_COPY(Scope)

    const char *m_source;
    const char *m_function;
    bool m_exited;
};

#undef USSD_PRINTF

} // namespace PluginLog

#ifndef USSD_NO_LOG_LINES
#define USSD_IF_LOGGING(call) (call)
#define USSD_LOG_SCOPE_AS(function) PluginLog::Scope logScope(LOG_SOURCE, function)
#define USSD_LOG_EXIT(...) logScope.exitWith(__VA_ARGS__)
#define USSD_LOG_EXIT_IMPORTANT(...) logScope.exitWithWarning(__VA_ARGS__)
#define USSD_LOG_NO_EXIT() logScope.leaveSilently()
#else
#define USSD_IF_LOGGING(call) (false ? (call) : static_cast<void>(0))
#define USSD_LOG_SCOPE_AS(function) static_cast<void>(function), static_cast<void>(LOG_SOURCE)
#define USSD_LOG_EXIT(...) USSD_LOG(__VA_ARGS__)
#define USSD_LOG_EXIT_IMPORTANT(...) USSD_LOG_IMPORTANT(__VA_ARGS__)
#define USSD_LOG_NO_EXIT() static_cast<void>(LOG_SOURCE)
#endif

#define USSD_LOG_SCOPE() USSD_LOG_SCOPE_AS(__func__)

#define USSD_LOG_LINE(type, function, ...)                                                         \
    USSD_IF_LOGGING(PluginLog::line(type, LOG_SOURCE, function, __VA_ARGS__))
#define USSD_LOG_UNTIMED_LINE(type, function, ...)                                                 \
    USSD_IF_LOGGING(PluginLog::untimed(type, LOG_SOURCE, function, __VA_ARGS__))

#define USSD_LOG(...) USSD_LOG_LINE(QtDebugMsg, __func__, __VA_ARGS__)
#define USSD_LOG_IMPORTANT(...)                                                                    \
    USSD_IF_LOGGING(PluginLog::important(LOG_SOURCE, __func__, __VA_ARGS__))
#define USSD_LOG_UNTIMED(...) USSD_LOG_UNTIMED_LINE(QtDebugMsg, __func__, __VA_ARGS__)
#define USSD_LOG_UNTIMED_WARNING(...) USSD_LOG_UNTIMED_LINE(QtWarningMsg, __func__, __VA_ARGS__)

// These macros log the name of another function. Helper functions use them to log under the name of
// their caller.
#define USSD_LOG_AS(function, ...) USSD_LOG_LINE(QtDebugMsg, function, __VA_ARGS__)
#define USSD_LOG_WARNING_AS(function, ...) USSD_LOG_LINE(QtWarningMsg, function, __VA_ARGS__)
#define USSD_LOG_UNTIMED_AS(function, ...) USSD_LOG_UNTIMED_LINE(QtDebugMsg, function, __VA_ARGS__)

#endif
