#ifndef PIPELINETEST_H
#define PIPELINETEST_H

#include "LogicListener.h"
#include "PluginTest.h"

#include <atomic>
#include <thread>

#include <QMutex>
#include <QSemaphore>
#include <QThread>

#include "fake_tksv.h"
#include "QtCompat.h"
#include "requests/ReplyTimer.h"
#include "requests/USSDLogic.h"
#include "ThreadWatch.h"

const int NO_PATIENCE = 60000; // in milliseconds; a time-out that never occurs in a test

inline std::atomic<qint64> now{0};

inline qint64 stoppedClock()
{
    return now;
}

inline QString units(int count)
{
    return QLatin1Char('*') + QString(count - 2, QLatin1Char('1')) + QLatin1Char('#');
}

/// Runs code on the thread that announces a response, in a slot that is connected to the signal.
class Interloper : public QObject
{
    Q_OBJECT
public:
    QSemaphore reached;
    QSemaphore goOn;
    std::atomic<bool> done{false};
    std::atomic<size_t> commands{0};

public slots:
    void stopHere(int, QString)
    {
        reached.release();
        goOn.acquire();
        done = true;
    }
    void shutDown(int, QString) { USSDLogic::Destroy(); }
    void sendAndCount(int component, QString text)
    {
        sendMore(component, text);
        commands = fakeSdkCommands().size();
    }
    void clearAndSendTwice(int, QString)
    {
        for (int i = 0; i < 2; ++i) {
            USSDLogic::ClearQueuedCmds();
            sendMore(0, QString());
        }
    }
    void sendMore(int, QString)
    {
        int status = 0;
        USSDLogic::GetUSSDLogicInstance()->SendUSSDCommand(
            USSDCmdOrResp(COMPONENT_BALANCE, QStringLiteral("*2#")), &status);
    }
};

/// Records the announcements in the order in which they are made, on the threads that make them. A
/// listener in the GUI thread may receive them in a different order: a time-out is announced
/// directly on this thread, while an earlier reply from another thread may still be in its event
/// queue. This happens only if the GUI thread does not process any events for as long as the
/// time-out.
class Announcements : public QObject
{
    Q_OBJECT
public:
    QList<int> components()
    {
        const QtCompat::MutexLocker locker(&m_mutex);
        return m_components;
    }

public slots:
    void record(int component, QString)
    {
        const QtCompat::MutexLocker locker(&m_mutex);
        m_components << component;
    }

private:
    QMutex m_mutex;
    QList<int> m_components;
};

inline LogicListener::Answer answer(int component, const QString &text)
{
    return LogicListener::Answer(component, text);
}

/** Tests how USSDLogic queues, sends and answers commands. */
class PipelineTest : public PluginTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

protected:
    int send(int component, const QString &command);
    LogicListener::Answer nextAnswer() { return m_listener->nextAnswer(); }
    QList<LogicListener::Answer> &answers() { return m_listener->answers; }
    void setTimes(int reply, int previous);
    /// Stops the clock, which then advances only in letTimePass().
    void stopClock();
    void letTimePass(int milliseconds);
    /// Waits until `part` has been logged `times` times, which shows how far another thread has
    /// got.
    bool waitUntilLogged(const char *part, int times);
    /// Sends a command. Returns true if it is sent without waiting for an earlier time-out.
    bool sendsWithoutWaiting();
    /// Sends a command. Returns true if it is sent only after an earlier time-out.
    bool sendWaitsItsTime();
    /// Returns the messages that a function of USSDLogic has logged, in order.
    QStringList linesOf(const char *function);
    static QString timeOutText() { return USSDLogic::tr(QStringLiteral("USSD_CODE_TIME_OUT")); }

    ReplyTimes m_shippedTimes;
    USSDLogic *m_logic = nullptr;
    QScopedPointer<LogicListener> m_listener;
    int m_status = 0;
};

#endif
