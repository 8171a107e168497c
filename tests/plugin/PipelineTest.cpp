#include "PipelineTest.h"

void PipelineTest::setUp()
{
    // Static, so that these are the values before the first test changed them.
    static const ReplyTimes shipped = USSDLogic::replyTimes();
    m_shippedTimes = shipped;
    PluginTest::setUp();
    setTimes(NO_PATIENCE, NO_PATIENCE);
    m_logic = USSDLogic::GetUSSDLogicInstance();
    m_listener.reset(new LogicListener(m_logic));
    m_status = 0;
}

void PipelineTest::tearDown()
{
    m_listener.reset();
    PluginTest::tearDown();
    ReplyTimer::setClock(nullptr);
}

void PipelineTest::setTimes(int reply, int previous)
{
    const ReplyTimes times = {reply, previous};
    USSDLogic::setReplyTimes(times);
}

void PipelineTest::stopClock()
{
    now = 0;
    ReplyTimer::setClock(stoppedClock);
}

void PipelineTest::letTimePass(int milliseconds)
{
    now += milliseconds;
    m_logic->findChild<ReplyTimer *>()->catchUp();
}

bool PipelineTest::waitUntilLogged(const char *part, int times)
{
    return QTest::qWaitFor([&] { return timesLogged(part) >= times; }, 10000);
}

QStringList PipelineTest::linesOf(const char *function)
{
    const QString start =
        QStringLiteral("../../src/USSDUIPlugin/USSDLogic.cpp: ") + QLatin1String(function);
    QStringList tails;
    for (const QString &line : logLines()) {
        const int place = line.indexOf(start);
        const QString tail = line.mid(place + start.length());
        if (place >= 0 && (tail.startsWith(QLatin1Char(' ')) || tail.startsWith(QLatin1Char(':'))))
            tails << tail;
    }
    return tails;
}

bool PipelineTest::sendsWithoutWaiting()
{
    // In milliseconds. The call takes this long only if the command has to wait.
    const int wait = 20000;
    setTimes(NO_PATIENCE, wait);
    QElapsedTimer elapsed;
    elapsed.start();
    const int result = send(5, QStringLiteral("*9#"));
    return result == 0 && elapsed.elapsed() < wait / 2;
}

/// Measures how long the call takes. If the command does not have to wait, this is less than a
/// millisecond.
bool PipelineTest::sendWaitsItsTime()
{
    const int wait = 200;
    setTimes(NO_PATIENCE, wait);
    QElapsedTimer elapsed;
    elapsed.start();
    return send(5, QStringLiteral("*9#")) == 0 && elapsed.elapsed() >= wait - 1;
}

int PipelineTest::send(int component, const QString &command)
{
    return m_logic->SendUSSDCommand(USSDCmdOrResp(static_cast<_COMPONENT>(component), command),
                                    &m_status);
}
