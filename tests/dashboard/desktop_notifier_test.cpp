#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>
#include <QSignalSpy>

#include "account/SimKey.h"
#include "device/DashboardSettings.h"
#include "device/DeviceWatcher.h"
#include "Languages.h"
#include "messages/DesktopNotifier.h"
#include "messages/MessageCenter.h"
#include "messages/MessageStore.h"
#include "tksv_device.h"
#include "UssdTest.h"

using namespace Dashboard;

namespace
{

const QDateTime NOON(QDate(2026, 11, 21), QTime(12, 0));
const int LIMIT = 10000; // ms

/** A notification that the service has received. */
struct Received {
    uint replaces;
    QString title;
    QString body;
    QStringList actions;
};

} // namespace

/** A notification service that records the requests that it receives. */
class FakeNotifications : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    QList<Received> received;
    QList<uint> closed;

public slots:
    uint Notify(const QString &, uint replaces, const QString &, const QString &title,
                const QString &body, const QStringList &actions, const QVariantMap &, int)
    {
        received << Received{replaces, title, body, actions};
        emit notified();
        return replaces ? replaces : ++m_last;
    }
    void CloseNotification(uint number)
    {
        closed << number;
        emit closedOne();
    }

signals:
    void ActionInvoked(uint number, const QString &action);
    void NotificationClosed(uint number, uint reason);
    void notified();
    void closedOne();

private:
    uint m_last = 6;
};

/** Tests notifications on a private message bus, and without a bus or a service. */
class DesktopNotifierTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUpClass() override;
    void tearDownClass() override;
    void setUp() override;
    void tearDown() override;

private slots:
    void theNotificationNamesTheOperatorOnly();
    void theTextIsShownOnlyIfAllowed();
    void markupIsEscaped();
    void aNewerNotificationReplacesTheOlder();
    void aClickOpensTheMessage();
    void inFrontNobodyIsNotified();
    void whoDoesNotWantItIsNotNotified();
    void readingWithdrawsTheNotification();
    void aLowBalanceIsANotificationOfItsOwn();
    void withoutAServiceTheWindowAsksForAttention();
    void withoutABusTheWindowAsksForAttention();
    void messagesOfTheDemonstrationAreNotStored();
    void theSimIsNamedByItsHash();

private:
    void registerService();
    void say(const char *text, bool waits = false)
    {
        m_center->add(QString::fromUtf8(text), NOON, waits);
    }
    bool isNotified(int count);

    QProcess m_daemon;
    QString m_address;
    QScopedPointer<FakeNotifications> m_service;
    QScopedPointer<DashboardSettings> m_settings;
    QScopedPointer<DeviceWatcher> m_device;
    QScopedPointer<MessageStore> m_store;
    QScopedPointer<DesktopNotifier> m_notifier;
    QScopedPointer<MessageCenter> m_center;
    bool m_isInFront = false;
};

void DesktopNotifierTest::setUpClass()
{
    m_daemon.start(latin1("dbus-daemon"),
                   {latin1("--session"), latin1("--nofork"), latin1("--print-address"),
                    latin1("--address=unix:dir=/tmp")});
    QVERIFY(m_daemon.waitForStarted(LIMIT) && m_daemon.waitForReadyRead(LIMIT));
    m_address = QString::fromLatin1(m_daemon.readLine()).trimmed();
}

void DesktopNotifierTest::tearDownClass()
{
    m_daemon.terminate();
    m_daemon.waitForFinished(LIMIT);
}

void DesktopNotifierTest::setUp()
{
    QVERIFY(HostCore::Languages::setCurrent(latin1("en")));
    QFile::remove(DashboardSettings().file());
    m_settings.reset(new DashboardSettings);
    m_device.reset(new DeviceWatcher);
    m_store.reset(new MessageStore(folder() + latin1("/messages.sqlite")));
    m_isInFront = false;
    registerService();
    const QDBusConnection bus = QDBusConnection::connectToBus(m_address, latin1("client"));
    QVERIFY(bus.isConnected());
    m_notifier.reset(new DesktopNotifier(bus));
    m_center.reset(
        new MessageCenter(m_store.data(), m_device.data(), m_settings.data(), m_notifier.data()));
    m_center->setInFront([this] { return m_isInFront; });
    m_center->setSimKey([](const QString &imsi) { return latin1("key-") + imsi; });
}

void DesktopNotifierTest::tearDown()
{
    m_center.reset();
    m_notifier.reset();
    QDBusConnection::disconnectFromBus(latin1("client"));
    QDBusConnection::disconnectFromBus(latin1("service"));
    m_service.reset();
    m_store.reset();
    m_device.reset();
    m_settings.reset();
}

void DesktopNotifierTest::registerService()
{
    QDBusConnection bus = QDBusConnection::connectToBus(m_address, latin1("service"));
    m_service.reset(new FakeNotifications);
    QVERIFY(
        bus.registerObject(latin1("/org/freedesktop/Notifications"), m_service.data(),
                           QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
    QVERIFY(bus.registerService(latin1("org.freedesktop.Notifications")));
}

/// Waits until the service has received this number of notifications and the client has received
/// the replies.
bool DesktopNotifierTest::isNotified(int count)
{
    const bool isThere =
        QTest::qWaitFor([&] { return m_service->received.size() == count; }, LIMIT);
    // The reply to a call over this connection arrives after all earlier replies.
    QDBusConnection bus(latin1("client"));
    QDBusMessage ping =
        QDBusMessage::createMethodCall(latin1("org.freedesktop.Notifications"), latin1("/"),
                                       latin1("org.freedesktop.DBus.Peer"), latin1("Ping"));
    bus.call(ping, QDBus::BlockWithGui, LIMIT);
    drainEvents();
    return isThere && m_service->received.size() == count;
}

void DesktopNotifierTest::theNotificationNamesTheOperatorOnly()
{
    say("Your code is 4711.");
    QVERIFY(isNotified(1));
    QCOMPARE(m_service->received.first().title, latin1("Message from Test & Mobile"));
    QCOMPARE(m_service->received.first().body, latin1("You have a new message."));
    say("1 Yes", true);
    QVERIFY(isNotified(2));
    QCOMPARE(m_service->received.last().body, latin1("It waits for your answer."));
}

void DesktopNotifierTest::theTextIsShownOnlyIfAllowed()
{
    QVERIFY(!m_settings->showsTextInNotifications());
    m_settings->setShowsTextInNotifications(true);
    say("Your code is 4711.");
    QVERIFY(isNotified(1));
    QCOMPARE(m_service->received.first().body, latin1("Your code is 4711."));
}

void DesktopNotifierTest::markupIsEscaped()
{
    m_settings->setShowsTextInNotifications(true);
    say("<img src='http://a/'> & <b>x</b>");
    QVERIFY(isNotified(1));
    const QString body = m_service->received.first().body;
    QVERIFY2(!body.contains(latin1("<")) && body.contains(latin1("&amp;")), qPrintable(body));
}

void DesktopNotifierTest::aNewerNotificationReplacesTheOlder()
{
    say("first");
    QVERIFY(isNotified(1));
    say("second");
    QVERIFY(isNotified(2));
    QCOMPARE(m_service->received.first().replaces, 0u);
    QCOMPARE(m_service->received.last().replaces, 7u);
    QVERIFY(m_service->closed.isEmpty());
}

void DesktopNotifierTest::aClickOpensTheMessage()
{
    QList<qint64> activated;
    connect(m_notifier.data(), &DesktopNotifier::activated, m_center.data(),
            [&activated](DesktopNote::Kind, qint64 id) { activated << id; });
    say("first");
    QVERIFY(isNotified(1));
    // Notification 99 belongs to another program.
    emit m_service->ActionInvoked(99, latin1("default"));
    emit m_service->ActionInvoked(7, latin1("default"));
    QVERIFY(QTest::qWaitFor([&] { return !activated.isEmpty(); }, LIMIT));
    QCOMPARE(activated, QList<qint64>{m_store->newest().id});
}

void DesktopNotifierTest::inFrontNobodyIsNotified()
{
    m_isInFront = true;
    say("seen");
    m_isInFront = false;
    say("not seen");
    QVERIFY(isNotified(1));
    QCOMPARE(m_store->unreadCount(), 2);
}

void DesktopNotifierTest::whoDoesNotWantItIsNotNotified()
{
    m_settings->setNotifiesMessages(false);
    say("silent");
    m_settings->setNotifiesMessages(true);
    say("loud");
    QVERIFY(isNotified(1));
}

void DesktopNotifierTest::readingWithdrawsTheNotification()
{
    say("first");
    QVERIFY(isNotified(1));
    QSignalSpy closed(m_service.data(), &FakeNotifications::closedOne);
    m_center->onInFront();
    QVERIFY(closed.wait(LIMIT));
    QCOMPARE(m_service->closed, QList<uint>{7});
}

void DesktopNotifierTest::aLowBalanceIsANotificationOfItsOwn()
{
    say("first");
    QVERIFY(isNotified(1));
    m_center->notifyLowBalance(latin1("1.50 EUR"));
    QVERIFY(isNotified(2));
    // The balance notification does not replace the notification about the message.
    QCOMPARE(m_service->received.last().replaces, 0u);
    QCOMPARE(m_service->received.last().body, latin1("Your balance is 1.50 EUR."));
}

void DesktopNotifierTest::withoutAServiceTheWindowAsksForAttention()
{
    QVERIFY(QDBusConnection(latin1("service"))
                .unregisterService(latin1("org.freedesktop.Notifications")));
    QSignalSpy attention(m_notifier.data(), &DesktopNotifier::attention);
    say("first");
    QVERIFY(attention.wait(LIMIT));
}

void DesktopNotifierTest::withoutABusTheWindowAsksForAttention()
{
    DesktopNotifier notifier(QDBusConnection(latin1("no such connection")));
    QSignalSpy attention(&notifier, &DesktopNotifier::attention);
    notifier.notify(DesktopNote());
    QCOMPARE(attention.size(), 1);
}

void DesktopNotifierTest::messagesOfTheDemonstrationAreNotStored()
{
    QVERIFY(m_device->status().isSimulated);
    say("invented");
    QCOMPARE(m_store->newest().text, latin1("invented"));
    QVERIFY(m_store->file().isEmpty());
    QVERIFY(!QFile::exists(folder() + latin1("/messages.sqlite")));
}

void DesktopNotifierTest::theSimIsNamedByItsHash()
{
    DeviceReading modem;
    modem.status.isSimulated = false;
    modem.status.state = TKSV_DEVICE_REGISTERED;
    modem.status.imsi = latin1("001010123456789");
    m_device->readFrom([&] { return modem; });
    m_center->setSimKey([this](const QString &imsi) { return simKey(imsi, folder()); });
    say("kept");
    QCOMPARE(m_store->newest().text, latin1("kept"));
    m_store.reset(new MessageStore(folder() + latin1("/messages.sqlite")));
    m_store->setSim(simKey(modem.status.imsi, folder()));
    QCOMPARE(m_store->newest().text, latin1("kept"));
    QVERIFY(!contentOf(folder() + latin1("/messages.sqlite")).contains("001010123456789"));
}

USSD_TEST_MAIN(DesktopNotifierTest)
#include "desktop_notifier_test.moc"
