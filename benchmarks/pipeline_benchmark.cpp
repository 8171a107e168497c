/*
 * A command's way through the pipeline, and the emptying of a long queue. Log lines go to a handler
 * that drops them.
 */
#include <string>

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>

#include "Benchmark.h"
#include "USSDLogic.h"

namespace
{

/// Counts what arrives on the GUI thread and leaves the event loop when all is there.
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

/// The other end of a bare queued signal.
class Echo : public QObject
{
    Q_OBJECT
public slots:
    void take(int number, QString text) { emit answer(number, text); }
signals:
    void question(int number, QString text);
    void answer(int number, QString text);
};

const int kRoundTrips = 2000;

void send(int component)
{
    int status = 0;
    USSDLogic::GetUSSDLogicInstance()->SendUSSDCommand(
        USSDCmdOrResp(static_cast<_COMPONENT>(component), QLatin1String("*100#")), &status);
}

double pipelineRoundTrip(Counter &counter)
{
    return Benchmark::microseconds([&counter] {
               for (int i = 0; i < kRoundTrips; ++i) {
                   send(COMPONENT_GENERAL);
                   counter.await(1);
               }
           }) /
           kRoundTrips;
}

double bareRoundTrip(Echo &here, Counter &counter)
{
    return Benchmark::microseconds([&here, &counter] {
               for (int i = 0; i < kRoundTrips; ++i) {
                   emit here.question(5, QLatin1String("*100#"));
                   counter.await(1);
               }
           }) /
           kRoundTrips;
}

/// The cost of one command when `length` of them wait.
double drain(int length, Counter &counter)
{
    return Benchmark::microseconds([length, &counter] {
               for (int i = 0; i < length; ++i)
                   send(COMPONENT_GENERAL);
               counter.await(length);
           }) /
           length;
}

double drainRepeatedly(int length, Counter &counter)
{
    const int repeats = 10000 / length;
    double sum = 0;
    for (int i = 0; i < repeats; ++i)
        sum += drain(length, counter);
    return sum / repeats;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    Benchmark::dropMessages();

    QThread thread;
    Echo here, there;
    Counter bareCounter;
    there.moveToThread(&thread);
    QObject::connect(&here, SIGNAL(question(int, QString)), &there, SLOT(take(int, QString)));
    QObject::connect(&there, SIGNAL(answer(int, QString)), &bareCounter, SLOT(take(int, QString)));
    thread.start();

    Counter counter;
    USSDLogic *logic = USSDLogic::GetUSSDLogicInstance();
    QObject::connect(logic, SIGNAL(responseReceived(int, QString)), &counter,
                     SLOT(take(int, QString)));

    Benchmark::compare(
        "command through the pipeline, answered at once", "queued signal there and back",
        [&] { return pipelineRoundTrip(counter); },
        [&] { return bareRoundTrip(here, bareCounter); });
    for (int length : {1000, 10000}) {
        const std::string name = "a command out of a queue of " + std::to_string(length);
        Benchmark::compare(
            name.c_str(), "out of a queue of 10", [&] { return drainRepeatedly(length, counter); },
            [&] { return drainRepeatedly(10, counter); });
    }

    thread.quit();
    thread.wait();
    logic->unSDKRegisterEvent();
    USSDLogic::Destroy();
    return 0;
}

#include "pipeline_benchmark.moc"
