#ifndef PLUGINLOG_H
#define PLUGINLOG_H

#include <QtGlobal>

/*
 * The plug-in's log lines. A line is "time: source path: function" and a tail, which is given with
 * its leading blank or colon. Each .cpp file names itself once:
 *
 *     static const char kLogSource[] = USSD_LOG_SOURCE("USSDLogic.cpp");
 */

#define USSD_LOG_SOURCE(file) "../../src/USSDUIPlugin/" file

namespace PluginLog
{

#define USSD_PRINTF(text, first) __attribute__((format(printf, text, first)))

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

private:
    Q_DISABLE_COPY(Scope)

    const char *m_source;
    const char *m_function;
    bool m_exited;
};

#undef USSD_PRINTF

} // namespace PluginLog

#define USSD_LOG(...) PluginLog::line(QtDebugMsg, kLogSource, __func__, __VA_ARGS__)
#define USSD_LOG_IMPORTANT(...) PluginLog::important(kLogSource, __func__, __VA_ARGS__)
#define USSD_LOG_UNTIMED(...) PluginLog::untimed(QtDebugMsg, kLogSource, __func__, __VA_ARGS__)
#define USSD_LOG_SCOPE() PluginLog::Scope logScope(kLogSource, __func__)

#endif
