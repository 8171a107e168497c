/*
 * Tests all the ways in which a host may shut down the loaded plug-in: every order of calls, in
 * every state of the plug-in. A sequence consists of up to five calls, some of which may be
 * repeated, and SDK call-backs between them. The library is unloaded in the same event loop
 * iteration as the last call, so that the program would crash if any call-back or event remained.
 */
#include "UssdTest.h"

#include <dlfcn.h>

#include <QCloseEvent>
#include <QDialog>
#include <QLibrary>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRect>
#include <QWindow>

#include <functional>

#include "fake_tksv.h"
#include "HostState.h"
#include "slot_table.h"

using namespace SlotTable;

namespace
{

const char CALLS[] = "uod"; // the letters stand for UnSDKRegisterEvent, OnDestroy and delete
const int LONGEST = 5;
const int EACH_ONCE = 3; // the number of calls in states that take long to reach

enum State {
    NothingShown,
    CommandInFlight,
    QueueFull,
    EmbeddedOpen,
    ModalOpen,
    PrepaidOpen,
    PostpaidOpen,
    SmsOpen,
    ModalClosed, // closed by the user in the same event loop iteration as the shut-down
    PrepaidClosed,
    PostpaidClosed,
    SmsClosed,
    ReplyBoxOpen,
    EditorOpen,
    MessageOpen
};

/// Returns true if the library is still loaded in this process.
bool isMapped()
{
    void *handle = dlopen(USSD_PLUGIN_FILE, RTLD_LAZY | RTLD_NOLOAD);
    if (handle)
        dlclose(handle);
    return handle != nullptr;
}

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
    void openModal(int type);
    void topUpIntoBox();
    void hearDialogIn(QWidget *frame, int type);
    void callBack();
    void run(const QString &calls);
    void load();
    void unload();
    void finish(const QString &calls);

    QLibrary m_library;
    QScopedPointer<QWidget> m_window;
    QRect m_rect;
    std::function<void()> m_closing; // called when the frame closes

protected slots:
    void onClosing(); ///< calls m_closing

private slots:
    void everyOrderInState_data();
    void everyOrderInState();
    void insideTheCloseEventOfAFrame_data();
    void insideTheCloseEventOfAFrame();
};

void ShutdownTest::setUp()
{
    qputenv("USSD_REPLY_TIMEOUT_MS", "60000");
    qunsetenv("USSD_PLUGIN_LIBRARY_PATH");
    fakeSdkReset();
    fakeSdkSetUserDataDirectory((folder() + QLatin1Char('/')).toStdU16String());
    load();
    m_rect = QRect(0, 0, 600, 520);
    m_window.reset(new QWidget);
    m_window->show();
    HostCore::HostState::setMainWindow(m_window.data());
}

void ShutdownTest::tearDown()
{
    HostCore::HostState::setMainWindow(nullptr);
    m_window.reset();
    fakeSdkReset();
    unload();
}

void ShutdownTest::load()
{
    m_library.setFileName(QString::fromLocal8Bit(USSD_PLUGIN_FILE));
    QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
}

void ShutdownTest::unload()
{
    QVERIFY(isMapped());
    QVERIFY2(m_library.unload(), qPrintable(m_library.errorString()));
    QVERIFY(!isMapped());
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

/// Presses a button that opens a window with its own event loop. Calls the function inside this
/// loop.
void ShutdownTest::insideLoopOf(const char *button, const std::function<void()> &whileItIsSo)
{
    bool wasOpen = false;
    QTimer::singleShot(0, this, [&] {
        wasOpen = QApplication::activeModalWidget() != nullptr;
        whileItIsSo();
    });
    part<QPushButton>(button)->click(); // returns after the event loop has ended
    QVERIFY(wasOpen);
}

void ShutdownTest::openModal(int type)
{
    QCOMPARE(callDoPrePostPaidModal(ussd(), type), 1);
}

/// Sends a top-up and opens the message box with the reply, as in the shipped configuration.
void ShutdownTest::topUpIntoBox()
{
    const QString prefix = QLatin1String("USSDUIPlugin_Charge");
    m_window->findChild<QLineEdit *>(prefix + QLatin1String("Edit"))->setText(QLatin1String("1"));
    QPushButton *button =
        m_window->findChild<QPushButton *>(prefix + QLatin1String("ActivateButton"));
    button->setEnabled(true);
    button->click();
    for (int commands = 3; commands > 0; --commands) { // replies to balance, own number and top-up
        fakeSdkRespond(u"reply");
        QVERIFY(fakeSdkWaitIdle());
        drainEvents();
    }
    drainEvents();
    QVERIFY(qobject_cast<QMessageBox *>(QApplication::activeModalWidget()));
}

void ShutdownTest::reach(State state, const std::function<void()> &whileItIsSo)
{
    static const int types[] = {3, 0, 1, 5};
    const bool isModal = state >= ModalOpen && state <= SmsOpen;
    const bool isClosed = state >= ModalClosed && state <= SmsClosed;
    if (state != NothingShown && !isModal && !isClosed && state != ReplyBoxOpen)
        callShowWindow(plugin(), m_window.data(), m_rect);
    if (state == CommandInFlight || state == MessageOpen)
        send(QStringLiteral("*1#"));
    for (int i = 0; state == QueueFull && i < 5; ++i)
        send(QStringLiteral("*%1#").arg(i));
    if (isModal)
        openModal(types[state - ModalOpen]);
    if (isClosed) {
        openModal(types[state - ModalClosed]);
        m_window->findChild<QDialog *>()->close();
    }
    if (state == ReplyBoxOpen) {
        openModal(0);
        topUpIntoBox();
    }
    if (state == EditorOpen)
        insideLoopOf("EditButton", whileItIsSo);
    else if (state == MessageOpen)
        insideLoopOf("ClearButton", whileItIsSo);
    else
        whileItIsSo();
}

/// Makes each thread of the device SDK call back.
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

/// Makes the three shut-down calls unless `calls` ends with them, and unloads the library. Checks
/// that no window or call-back remains.
void ShutdownTest::finish(const QString &calls)
{
    if (!calls.endsWith(QLatin1String("uod")))
        run(QStringLiteral("uod"));
    QCOMPARE(fakeSdkRegistered(FakeService::Ussd), size_t(0));
    QCOMPARE(fakeSdkRegistered(FakeService::Device), size_t(0));
    QCOMPARE(fakeSdkRegistered(FakeService::Sms), size_t(0));
    unload();
    drainEvents();
    QVERIFY(m_window->findChildren<QWidget *>().isEmpty());
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(fakeSdkWaitIdle()); // prevents late events in the next state
    load();
}

void ShutdownTest::onClosing()
{
    const std::function<void()> act = m_closing;
    m_closing = nullptr;
    if (act)
        act();
}

void ShutdownTest::everyOrderInState_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("longest");
    QTest::newRow("nothing shown") << int(NothingShown) << LONGEST;
    QTest::newRow("command in flight") << int(CommandInFlight) << LONGEST;
    QTest::newRow("queue full") << int(QueueFull) << LONGEST;
    QTest::newRow("embedded window open") << int(EmbeddedOpen) << LONGEST;
    QTest::newRow("modal window open") << int(ModalOpen) << LONGEST;
    QTest::newRow("prepaid window open") << int(PrepaidOpen) << LONGEST;
    QTest::newRow("postpaid window open") << int(PostpaidOpen) << LONGEST;
    QTest::newRow("services window open") << int(SmsOpen) << LONGEST;
    QTest::newRow("modal window just closed") << int(ModalClosed) << LONGEST;
    QTest::newRow("prepaid window just closed") << int(PrepaidClosed) << EACH_ONCE;
    QTest::newRow("postpaid window just closed") << int(PostpaidClosed) << EACH_ONCE;
    QTest::newRow("services window just closed") << int(SmsClosed) << EACH_ONCE;
    QTest::newRow("reply to a top-up open") << int(ReplyBoxOpen) << EACH_ONCE;
    QTest::newRow("editor open") << int(EditorOpen) << LONGEST;
    QTest::newRow("message open") << int(MessageOpen) << LONGEST;
}

void ShutdownTest::everyOrderInState()
{
    QFETCH(int, state);
    QFETCH(int, longest);
    allowWarning("../../src/USSDUIPlugin/");
    for (int length = 1, combinations = 3; length <= longest; ++length, combinations *= 3) {
        for (int c = 0; c < combinations; ++c) {
            QString calls;
            for (int i = 0, rest = c; i < length; ++i, rest /= 3)
                calls += QLatin1Char(CALLS[rest % 3]);
            reach(static_cast<State>(state), [this, &calls] {
                callBack();
                run(calls);
                if (!calls.contains(QLatin1Char('o')) && !calls.contains(QLatin1Char('d')))
                    run(QStringLiteral("o")); // ends the event loop of the window
            });
            finish(calls);
            if (QTest::currentTestFailed()) {
                qCritical("in the order %s", qPrintable(calls));
                return;
            }
            clearLog();
        }
    }
}

void ShutdownTest::insideTheCloseEventOfAFrame_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("byWindowSystem");
    QTest::addColumn<bool>("hearsTheDialog");
    for (int type : {3, 0, 1, 5}) {
        QTest::addRow("%d, close()", type) << type << false << false;
        QTest::addRow("%d, window system", type) << type << true << false;
        QTest::addRow("%d, told by the dialog", type) << type << false << true;
    }
}

/// Connects to the dialog before the service does. The service connects again each time a window is
/// shown, so showing the window again changes the order of the connections.
void ShutdownTest::hearDialogIn(QWidget *frame, int type)
{
    for (QWidget *widget : frame->findChildren<QWidget *>()) {
        if (widget->metaObject()->indexOfSignal("clickedcloseButton()") >= 0)
            connect(widget, SIGNAL(clickedcloseButton()), this, SLOT(onClosing()));
    }
    openModal(type);
}

/// Tests that a host may shut the plug-in down during the close event of a frame. The library is
/// unloaded only after the event.
void ShutdownTest::insideTheCloseEventOfAFrame()
{
    QFETCH(int, type);
    QFETCH(bool, byWindowSystem);
    QFETCH(bool, hearsTheDialog);
    allowWarning("../../src/USSDUIPlugin/");
    openModal(type);
    QPointer<QDialog> frame(m_window->findChild<QDialog *>());
    m_closing = [this] { run(QStringLiteral("uod")); };
    if (hearsTheDialog)
        hearDialogIn(frame, type);
    else
        connect(frame, SIGNAL(dlgCloseEvent()), this, SLOT(onClosing()));
    if (byWindowSystem) {
        QCloseEvent event;
        QCoreApplication::sendEvent(frame->windowHandle(), &event);
    } else {
        frame->close();
    }
    QVERIFY(!m_closing); // cleared by onClosing()
    QVERIFY(!frame);
    finish(QStringLiteral("uod"));
}

USSD_TEST_MAIN(ShutdownTest)

#include "shutdown_test.moc"
