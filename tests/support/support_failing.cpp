#include "UssdTest.h"

#include <QTimer>

#include <thread>

/// Tests that must fail. CTest runs each of them separately and checks the reason.
class SupportFailing : public UssdTest
{
    Q_OBJECT

private slots:
    void unannouncedWarning() { qWarning("nobody said so"); }
    void unannouncedWarningOfAnotherThread();
    void announcedWarningThatDoesNotCome() { expectWarning("the great unknown"); }
    void misspeltSlot();
    void timerOfAnotherThread();
    void hangs();
};

void SupportFailing::unannouncedWarningOfAnotherThread()
{
    std::thread([] { qCritical("nobody said so"); }).join();
}

void SupportFailing::misspeltSlot()
{
    connect(this, SIGNAL(destroyed()), this, SLOT(noSuchThing()));
}

void SupportFailing::timerOfAnotherThread()
{
    QTimer timer;
    timer.start(1000000);
    std::thread([&] { timer.stop(); }).join();
}

void SupportFailing::hangs()
{
    for (;;)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
}

USSD_TEST_MAIN(SupportFailing)
#include "support_failing.moc"
