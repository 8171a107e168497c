#ifndef PLUGINLOG_H
#define PLUGINLOG_H

#include <QtGlobal>

/*
 * The plug-in's log lines. A line is "time: source path: function" and a tail, which is given with
 * its leading blank or colon. Each .cpp file names itself once:
 *
 *     static const char LOG_SOURCE[] = USSD_LOG_SOURCE("USSDLogic.cpp");
 *
 * A family of files that share a class names the family's first file, which is what a reader of the
 * log looks for. The rest of the code writes lines by the macros below alone. Built with
 * USSD_LOG_LINES=OFF they come to nothing: their arguments are still checked by the compiler, but
 * not evaluated.
 */

#define USSD_LOG_SOURCE(file) "../../src/USSDUIPlugin/" file

namespace PluginLog
{

#define USSD_PRINTF(text, first) __attribute__((format(printf, text, first)))

/// The local time as hh:mm:ss:zzz in local 8-bit form; valid until this thread's next line.
const char *timeOfDay();

/// "%s: %s: %s" with the local time as hh:mm:ss:zzz, then the tail.
void line(QtMsgType type, const char *source, const char *function, const char *tail, ...)
    USSD_PRINTF(4, 5);

/// The same at debug and again at warning level.
void important(const char *source, const char *function, const char *tail, ...) USSD_PRINTF(3, 4);

/// "%s: %s", without the time, then the tail.
void untimed(QtMsgType type, const char *source, const char *function, const char *tail, ...)
    USSD_PRINTF(4, 5);

/// Logs Enter when made, and Exit when it goes out of scope unless a line said so before.
class Scope
{
public:
    Scope(const char *source, const char *function);
    ~Scope();

    /// Logs this tail in place of the plain Exit.
    void exitWith(const char *tail, ...) USSD_PRINTF(2, 3);
    /// The same at debug and again at warning level.
    void exitWithWarning(const char *tail, ...) USSD_PRINTF(2, 3);
    /// Logs no Exit: the last line said all there is to say.
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
#define USSD_LOG_SCOPE() PluginLog::Scope logScope(LOG_SOURCE, __func__)
#define USSD_LOG_EXIT(...) logScope.exitWith(__VA_ARGS__)
#define USSD_LOG_EXIT_IMPORTANT(...) logScope.exitWithWarning(__VA_ARGS__)
#define USSD_LOG_NO_EXIT() logScope.leaveSilently()
#else
#define USSD_IF_LOGGING(call) (false ? (call) : static_cast<void>(0))
#define USSD_LOG_SCOPE() static_cast<void>(LOG_SOURCE)
#define USSD_LOG_EXIT(...) USSD_LOG(__VA_ARGS__)
#define USSD_LOG_EXIT_IMPORTANT(...) USSD_LOG_IMPORTANT(__VA_ARGS__)
#define USSD_LOG_NO_EXIT() static_cast<void>(LOG_SOURCE)
#endif

#define USSD_LOG_LINE(type, function, ...)                                                         \
    USSD_IF_LOGGING(PluginLog::line(type, LOG_SOURCE, function, __VA_ARGS__))
#define USSD_LOG_UNTIMED_LINE(type, function, ...)                                                 \
    USSD_IF_LOGGING(PluginLog::untimed(type, LOG_SOURCE, function, __VA_ARGS__))

#define USSD_LOG(...) USSD_LOG_LINE(QtDebugMsg, __func__, __VA_ARGS__)
#define USSD_LOG_IMPORTANT(...)                                                                    \
    USSD_IF_LOGGING(PluginLog::important(LOG_SOURCE, __func__, __VA_ARGS__))
#define USSD_LOG_UNTIMED(...) USSD_LOG_UNTIMED_LINE(QtDebugMsg, __func__, __VA_ARGS__)
#define USSD_LOG_UNTIMED_WARNING(...) USSD_LOG_UNTIMED_LINE(QtWarningMsg, __func__, __VA_ARGS__)

// Lines under the name of another function, of which the caller is a part.
#define USSD_LOG_AS(function, ...) USSD_LOG_LINE(QtDebugMsg, function, __VA_ARGS__)
#define USSD_LOG_WARNING_AS(function, ...) USSD_LOG_LINE(QtWarningMsg, function, __VA_ARGS__)
#define USSD_LOG_UNTIMED_AS(function, ...) USSD_LOG_UNTIMED_LINE(QtDebugMsg, function, __VA_ARGS__)

#endif
