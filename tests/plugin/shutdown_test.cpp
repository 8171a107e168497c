/*
 * Every order in which a host may take the loaded plug-in down, in every state that it can be in:
 * sequences of up to five calls, with repeats, while the device SDK calls back.
 */
#include "UssdTest.h"

#include <QLibrary>
#include <QLineEdit>
#include <QPushButton>
#include <QRect>

#include <functional>

#include "fake_tksv.h"
#include "HostState.h"
#include "slot_table.h"

using namespace SlotTable;

namespace
{

const char kCalls[] = "uod"; // UnSDKRegisterEvent, OnDestroy, deletion of the object
const int kLongest = 5;

enum State {
    NothingShown,
    CommandInFlight,
    QueueFull,
    EmbeddedOpen,
    ModalOpen,
    PrepaidOpen,
    PostpaidOpen,
    SmsOpen,
    EditorOpen,
    MessageOpen
};

} // namespace

class ShutdownTest : public UssdTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private:
    QObject *instance();
    void *plugin() { return instance()->qt_metacast("IUIPlugin"); }
    void *ussd();
    template <typename Widget>
    Widget *part(const char *role);
    void send(const QString &command);
    void reach(State state, const std::function<void()> &whileItIsSo);
    void insideLoopOf(const char *button, const std::function<void()> &whileItIsSo);
    void callBack();
    void run(const QString &calls);
    void finish();

    QLibrary m_library;
    QScopedPointer<QWidget> m_window;
    QRect m_rect;

private slots:
    void everyOrderInState_data();
    void everyOrderInState();
};

void ShutdownTest::setUp()
{
    qputenv("USSD_REPLY_TIMEOUT_MS", "60000");
    qunsetenv("USSD_PLUGIN_LIBRARY_PATH");
    fakeSdkReset();
    fakeSdkSetUserDataDirectory((folder() + QLatin1Char('/')).toStdU16String());
    m_library.setFileName(QString::fromLocal8Bit(USSD_PLUGIN_FILE));
    QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
    m_rect = QRect(0, 0, 600, 520);
    m_window.reset(new QWidget);
    m_window->show();
    HostState::setMainWindow(m_window.data());
}

void ShutdownTest::tearDown()
{
    HostState::setMainWindow(nullptr);
    m_window.reset();
    fakeSdkReset();
}

QObject *ShutdownTest::instance()
{
    typedef QObject *(*Instance)();
    return reinterpret_cast<Instance>(m_library.resolve("qt_plugin_instance"))();
}

void *ShutdownTest::ussd()
{
    QObject *service = nullptr;
    callQueryInterface(plugin(), 4097, &service);
    return service->qt_metacast("IUSSD");
}

template <typename Widget>
Widget *ShutdownTest::part(const char *role)
{
    return m_window->findChild<Widget *>(QLatin1String("USSDUIPlugin_AdvancedDialog_") +
                                         QLatin1String(role));
}

void ShutdownTest::send(const QString &command)
{
    part<QLineEdit>("USSDCmdEdit")->setText(command);
    QPushButton *button = part<QPushButton>("SendButton");
    button->setEnabled(true);
    button->click();
}

/// Presses a button that opens a window with an event loop of its own.
void ShutdownTest::insideLoopOf(const char *button, const std::function<void()> &whileItIsSo)
{
    bool wasOpen = false;
    QTimer::singleShot(0, this, [&] {
        wasOpen = QApplication::activeModalWidget() != nullptr;
        whileItIsSo();
    });
    part<QPushButton>(button)->click(); // comes back because its loop is ended
    QVERIFY(wasOpen);
}

void ShutdownTest::reach(State state, const std::function<void()> &whileItIsSo)
{
    const bool isModal = state >= ModalOpen && state <= SmsOpen;
    if (state != NothingShown && !isModal)
        callShowWindow(plugin(), m_window.data(), m_rect);
    if (state == CommandInFlight || state == MessageOpen)
        send(QStringLiteral("*1#"));
    for (int i = 0; state == QueueFull && i < 5; ++i)
        send(QStringLiteral("*%1#").arg(i));
    if (isModal) {
        static const int types[] = {3, 0, 1, 5};
        QCOMPARE(callDoPrePostPaidModal(ussd(), types[state - ModalOpen]), 1);
    }
    if (state == EditorOpen)
        insideLoopOf("EditButton", whileItIsSo);
    else if (state == MessageOpen)
        insideLoopOf("ClearButton", whileItIsSo);
    else
        whileItIsSo();
}

/// The device SDK has something to say on each of its threads.
void ShutdownTest::callBack()
{
    fakeSdkRespond(u"reply");
    fakeSdkRaiseDeviceEvent(6016);
    fakeSdkRaiseSmsStatus(7);
}

void ShutdownTest::run(const QString &calls)
{
    for (const QChar call : calls) {
        if (call == QLatin1Char('u'))
            callVoid(secondBase(plugin()), UnSDKRegisterEvent);
        else if (call == QLatin1Char('o'))
            callVoid(secondBase(plugin()), OnDestroy);
        else
            delete instance();
    }
}

/// Leaves nothing behind, and no call-back registered.
void ShutdownTest::finish()
{
    run(QStringLiteral("uod"));
    drainEvents();
    QVERIFY(m_window->findChildren<QWidget *>().isEmpty());
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(fakeSdkRegistered(FakeService::Ussd), size_t(0));
    QCOMPARE(fakeSdkRegistered(FakeService::Device), size_t(0));
    QCOMPARE(fakeSdkRegistered(FakeService::Sms), size_t(0));
}

void ShutdownTest::everyOrderInState_data()
{
    QTest::addColumn<int>("state");
    QTest::newRow("nothing shown") << int(NothingShown);
    QTest::newRow("command in flight") << int(CommandInFlight);
    QTest::newRow("queue full") << int(QueueFull);
    QTest::newRow("embedded window open") << int(EmbeddedOpen);
    QTest::newRow("modal window open") << int(ModalOpen);
    QTest::newRow("prepaid window open") << int(PrepaidOpen);
    QTest::newRow("postpaid window open") << int(PostpaidOpen);
    QTest::newRow("services window open") << int(SmsOpen);
    QTest::newRow("editor open") << int(EditorOpen);
    QTest::newRow("message open") << int(MessageOpen);
}

void ShutdownTest::everyOrderInState()
{
    QFETCH(int, state);
    allowWarning("../../src/USSDUIPlugin/");
    for (int length = 1, combinations = 3; length <= kLongest; ++length, combinations *= 3) {
        for (int c = 0; c < combinations; ++c) {
            QString calls;
            for (int i = 0, rest = c; i < length; ++i, rest /= 3)
                calls += QLatin1Char(kCalls[rest % 3]);
            reach(static_cast<State>(state), [this, &calls] {
                callBack();
                run(calls);
                if (!calls.contains(QLatin1Char('o')) && !calls.contains(QLatin1Char('d')))
                    run(QStringLiteral("o")); // or the window's loop would go on
            });
            finish();
            if (QTest::currentTestFailed()) {
                qCritical("in the order %s", qPrintable(calls));
                return;
            }
            clearLog();
        }
    }
}

USSD_TEST_MAIN(ShutdownTest)

#include "shutdown_test.moc"
