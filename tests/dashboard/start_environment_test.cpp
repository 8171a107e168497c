#include "look/StartEnvironment.h"
#include "look/TextSize.h"
#include "UssdTest.h"

using namespace Dashboard;

namespace
{

const char X11[] = "QT_XCB_GL_INTEGRATION";
const char WAYLAND[] = "QT_WAYLAND_CLIENT_BUFFER_INTEGRATION";
const char SCALE[] = "QT_SCALE_FACTOR";

} // namespace

/** Tests the environment variables that the program sets for itself when it starts. */
class StartEnvironmentTest : public UssdTest
{
    Q_OBJECT

protected:
    void setUp() override
    {
        allowWarning("must be set before QCoreApplication"); // the test application already exists
        for (const char *variable : {X11, WAYLAND, SCALE})
            qunsetenv(variable);
    }
    void tearDown() override { StartEnvironment::instance().restore(); }

private slots:
    void leavesOpenGlOutOnBothPlatforms()
    {
        StartEnvironment::instance().leaveOpenGlOut();
        QCOMPARE(qgetenv(X11), QByteArray("none"));
        QCOMPARE(qgetenv(WAYLAND), QByteArray("none"));
    }

    void keepsTheChoiceOfTheUser()
    {
        qputenv(X11, "xcb_egl");
        StartEnvironment::instance().leaveOpenGlOut();
        QCOMPARE(qgetenv(X11), QByteArray("xcb_egl"));
        StartEnvironment::instance().restore();
        QCOMPARE(qgetenv(X11), QByteArray("xcb_egl"));
    }

    void childrenInheritNothing()
    {
        qputenv(SCALE, "1.5");
        StartEnvironment::instance().leaveOpenGlOut();
        applyTextSize(200);
        StartEnvironment::instance().restore();
        QVERIFY(!qEnvironmentVariableIsSet(X11));
        QVERIFY(!qEnvironmentVariableIsSet(WAYLAND));
        QCOMPARE(qgetenv(SCALE), QByteArray("1.5"));
    }

    void textSizeIsAScale_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<int>("percent");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("unchanged") << QByteArray() << 100 << QByteArray();
        QTest::newRow("of the user") << QByteArray("2") << 100 << QByteArray("2");
        QTest::newRow("larger") << QByteArray() << 125 << QByteArray("1.25");
        QTest::newRow("twice") << QByteArray() << 200 << QByteArray("2");
        QTest::newRow("both") << QByteArray("2") << 150 << QByteArray("3");
        QTest::newRow("not a number") << QByteArray("large") << 150 << QByteArray("1.5");
    }

    void textSizeIsAScale()
    {
        QFETCH(QByteArray, before);
        QFETCH(int, percent);
        QFETCH(QByteArray, after);
        if (!before.isNull())
            qputenv(SCALE, before);
        applyTextSize(percent);
        QCOMPARE(qgetenv(SCALE), after);
    }
};

USSD_TEST_MAIN(StartEnvironmentTest)
#include "start_environment_test.moc"
