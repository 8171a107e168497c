#include "UssdTest.h"

#include <QSignalSpy>
#include <QWidget>

#include "FirstPaint.h"

using namespace Dashboard;

namespace
{

/// Counts the paint events that it receives.
class Window : public QWidget
{
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *) override { ++paints; }
};

} // namespace

class FirstPaintTest : public UssdTest
{
    Q_OBJECT

private slots:
    void saysSoOnceWhenTheWindowIsPainted();
    void saysSoForAWindowThatNobodySees();
};

void FirstPaintTest::saysSoOnceWhenTheWindowIsPainted()
{
    Window window;
    FirstPaint shown(&window);
    QSignalSpy painted(&shown, SIGNAL(painted()));
    int paintsBefore = 0;
    connect(&shown, &FirstPaint::painted, [&] { paintsBefore = window.paints; });
    window.show();
    QCOMPARE(painted.count(), 0);
    QVERIFY(painted.wait(10000));
    QVERIFY(paintsBefore > 0);
    window.repaint();
    QCoreApplication::processEvents();
    QCOMPARE(painted.count(), 1);
}

void FirstPaintTest::saysSoForAWindowThatNobodySees()
{
    Window window;
    FirstPaint shown(&window, 1);
    QSignalSpy painted(&shown, SIGNAL(painted()));
    QVERIFY(painted.wait(10000));
    QCOMPARE(window.paints, 0);
}

USSD_TEST_MAIN(FirstPaintTest)

#include "first_paint_test.moc"
