/*
 * Measures the round trip of a command through the pipeline, which consists of the plug-in's
 * command queue and the device SDK, and the cost of a long queue. The program is built both with
 * log lines, which a handler discards, and without log lines.
 *
 * The round trip is measured twice: first, all threads are bound to one core; then, the GUI
 * thread and the device's thread are bound to different cores. Without these bindings, the threads
 * would share a core only in some rounds, and waking up a sleeping core takes longer than
 * everything else.
 */
#include <string>

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>

#include "Benchmark.h"
#include "instant_tksv.h"
#include "requests/USSDLogic.h"

namespace
{

#ifdef USSD_NO_LOG_LINES
const bool LOGGED = false;
const double LIMIT = 1.5;
const char LOG[] = "log lines compiled out";
#else
const bool LOGGED = true;
const double LIMIT = 4;
const char LOG[] = "log lines to a null handler";
#endif

/// Counts the replies on the GUI thread and exits the event loop after the last one.
class Counter : public QObject
{
    Q_OBJECT
public:
    void await(int count)
    {
        m_missing = count;
        m_loop.exec();
    }

public slots:
    void take(int, QString)
    {
        if (--m_missing == 0)
            m_loop.quit();
    }

private:
    QEventLoop m_loop;
    int m_missing = 0;
};

/// One of the two objects that exchange signals through queued connections, without the pipeline.
class Echo : public QObject
{
    Q_OBJECT
public slots:
    void take(int number, QString text) { emit answer(number, text); }
signals:
    void question(int number, QString text);
    void answer(int number, QString text);
};

/// Sends a signal to another thread, which replies with a signal.
class BareRoundTrip
{
public:
    BareRoundTrip()
    {
        m_there.moveToThread(&m_thread);
        QObject::connect(&m_here, SIGNAL(question(int, QString)), &m_there,
                         SLOT(take(int, QString)));
        QObject::connect(&m_there, SIGNAL(answer(int, QString)), &m_counter,
                         SLOT(take(int, QString)));
        m_thread.start();
    }

    ~BareRoundTrip()
    {
        m_thread.quit();
        m_thread.wait();
    }

    void run()
    {
        emit m_here.question(COMPONENT_GENERAL, QLatin1String("*100#"));
        m_counter.await(1);
    }

private:
    QThread m_thread;
    Echo m_here, m_there;
    Counter m_counter;
};

/// Constructs the USSDLogic singleton, and deletes it when the object is destroyed.
class Pipeline
{
public:
    Pipeline()
    {
        QObject::connect(logic(), SIGNAL(responseReceived(int, QString)), &m_counter,
                         SLOT(take(int, QString)));
    }

    ~Pipeline()
    {
        logic()->unSDKRegisterEvent();
        USSDLogic::Destroy();
    }

    void send()
    {
        int status = 0;
        logic()->SendUSSDCommand(USSDCmdOrResp(COMPONENT_GENERAL, QLatin1String("*100#")), &status);
    }

    void sendAndAwait()
    {
        send();
        m_counter.await(1);
    }

    void fill(int length)
    {
        instant_tksv_hold(true);
        for (int i = 0; i < length; ++i)
            send();
    }

    void drain(int length)
    {
        instant_tksv_hold(false);
        m_counter.await(length);
    }

    /// Lets the device reply to the command that was in flight when the queue was cleared. This
    /// reply disarms the time-out. Must be called after the queue has been cleared.
    void settle() { instant_tksv_settle(); }

private:
    static USSDLogic *logic() { return USSDLogic::GetUSSDLogicInstance(); }

    Counter m_counter;
};

const int ROUND_TRIPS = 2000;
const int LONG_QUEUE = 10000;
const int SHORT_QUEUE = 10;

template <typename Trip>
double eachOf(int times, const Trip &trip)
{
    return Benchmark::microseconds([times, &trip] {
               for (int i = 0; i < times; ++i)
                   trip();
           }) /
           times;
}

/// Measures a step (filling, draining or clearing the queue) with queues of this length and returns
/// the time per command in microseconds. For short queues, the step is repeated until the total
/// number of commands equals that of the long queue.
double stepOfQueue(int length, const std::function<void()> &before,
                   const std::function<void()> &step, const std::function<void()> &after)
{
    double sum = 0;
    for (int i = 0; i < LONG_QUEUE / length; ++i) {
        before();
        sum += Benchmark::microseconds(step);
        after();
    }
    return sum / LONG_QUEUE;
}

/// A function that performs a step with queues of the given length and returns the time per
/// command.
typedef std::function<double(int)> QueueStep;

void compareQueues(const char *step, const QueueStep &measure)
{
    const std::string name = step;
    Benchmark::compare(
        Benchmark::Title("queue of 10,000: " + name + ", each command", "queue of 10", 1.2),
        [&measure] { return measure(LONG_QUEUE); }, [&measure] { return measure(SHORT_QUEUE); });
}

void compareRoundTrips(const char *cores, BareRoundTrip &bare, Pipeline &pipeline)
{
    Benchmark::compare(
        Benchmark::Title(std::string("command through the pipeline, ") + LOG + ", " + cores,
                         "queued signal there and back", LIMIT),
        [&pipeline] { return eachOf(ROUND_TRIPS, [&pipeline] { pipeline.sendAndAwait(); }); },
        [&bare] { return eachOf(ROUND_TRIPS, [&bare] { bare.run(); }); });
}

void compareAllQueues(Pipeline &pipeline)
{
    compareQueues("fill", [&pipeline](int length) {
        return stepOfQueue(
            length, [] {}, [&] { pipeline.fill(length); }, [&] { pipeline.drain(length); });
    });
    compareQueues("drain", [&pipeline](int length) {
        return stepOfQueue(
            length, [&] { pipeline.fill(length); }, [&] { pipeline.drain(length); }, [] {});
    });
    compareQueues("clear", [&pipeline](int length) {
        return stepOfQueue(
            length, [&] { pipeline.fill(length); }, [] { USSDLogic::ClearQueuedCmds(); },
            [&] { pipeline.settle(); });
    });
}

void measureOnOneCore()
{
    Benchmark::stayOnCore(0);
    BareRoundTrip bare;
    Pipeline pipeline;
    compareRoundTrips("one core", bare, pipeline);
}

void measureOnTwoCores()
{
    if (!Benchmark::stayOnCore(1))
        return;
    BareRoundTrip bare;
    Pipeline pipeline;
    Benchmark::stayOnCore(0);
    compareRoundTrips("two cores", bare, pipeline);
}

void measureQueues()
{
    Benchmark::stayOnCore(0);
    Pipeline pipeline;
    compareAllQueues(pipeline);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    Benchmark::dropMessages();
    measureOnOneCore();
    measureOnTwoCores();
    if (LOGGED)
        measureQueues();
    return 0;
}

#include "pipeline_benchmark.moc"
