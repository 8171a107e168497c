#include <QSignalSpy>

#include "device/DashboardSettings.h"
#include "device/DeviceWatcher.h"
#include "device/ModeChoice.h"
#include "fake_tksv.h"
#include "UssdTest.h"

using namespace Dashboard;

namespace
{

const TKSV_Modes ONLY_4G = {TKSV_MODE_4G, 0};
const TKSV_Modes WITH_OLDER = {TKSV_MODE_2G | TKSV_MODE_3G | TKSV_MODE_4G, TKSV_MODE_4G};

} // namespace

/**
 * Tests how 2G and 3G are enabled for a modem that is restricted to 4G, and how the modem's former
 * setting is restored.
 */
class ModeChoiceTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override;

private slots:
    void nothingIsChangedWithoutRequest();
    void olderNetworksAreAllowedAndTakenBack();
    void theFormerSettingOutlivesTheProgram();
    void eachModemHasItsFormerSetting();
    void aDemonstrationStoresNothing();
    void aFailureIsReported();

private:
    void tell(const TKSV_Modes &current, bool hasFailed = false,
              const char *modem = "123456789012347", bool isSimulated = false);
    static QStringList changes();
    ModeChoice &choice() { return *m_choice; }
    void restartProgram();

    QScopedPointer<DashboardSettings> m_settings;
    QScopedPointer<DeviceWatcher> m_device;
    QScopedPointer<ModeChoice> m_choice;
};

void ModeChoiceTest::setUp()
{
    fakeSdkReset();
    QFile::remove(DashboardSettings().file());
    restartProgram();
    tell(ONLY_4G);
}

void ModeChoiceTest::tearDown()
{
    m_choice.reset();
    m_device.reset();
    m_settings.reset();
    fakeSdkReset();
}

void ModeChoiceTest::restartProgram()
{
    m_choice.reset();
    m_device.reset();
    m_settings.reset();
    m_settings.reset(new DashboardSettings);
    m_device.reset(new DeviceWatcher);
    m_choice.reset(new ModeChoice(m_device.data(), m_settings.data()));
}

void ModeChoiceTest::tell(const TKSV_Modes &current, bool hasFailed, const char *modem,
                          bool isSimulated)
{
    TKSV_DeviceInfo info = {};
    info.backend = isSimulated ? TKSV_BACKEND_SIMULATOR : TKSV_BACKEND_MODEMMANAGER;
    info.state = TKSV_DEVICE_REGISTERED;
    qstrncpy(info.equipmentId, modem, sizeof info.equipmentId);
    TKSV_ModesInfo modes = {};
    modes.current = current;
    if (current.allowed == ONLY_4G.allowed)
        modes.withOlder = WITH_OLDER;
    modes.hasFailed = hasFailed ? 1 : 0;
    fakeSdkSetModes(modes);
    fakeSdkSetDeviceInfo(info);
    m_device->refresh();
}

QStringList ModeChoiceTest::changes()
{
    QStringList changes;
    for (const FakeCall &call : fakeSdkCalls("TKSV_Device_SetModes"))
        changes << QString::fromStdString(call.path);
    return changes;
}

void ModeChoiceTest::nothingIsChangedWithoutRequest()
{
    QVERIFY(choice().canAllowOlder());
    QVERIFY(!choice().canRestore());
    choice().restore(); // there is nothing to restore
    tell(WITH_OLDER);
    QVERIFY(!choice().canAllowOlder());
    QVERIFY(!choice().canRestore()); // another program has changed the setting
    choice().allowOlder();
    QVERIFY(changes().isEmpty());
}

void ModeChoiceTest::olderNetworksAreAllowedAndTakenBack()
{
    choice().allowOlder();
    QCOMPARE(changes(), QStringList(QLatin1String("7,4")));
    QVERIFY(!choice().canRestore()); // the modem still has the former setting
    tell(WITH_OLDER);
    QVERIFY(choice().canRestore());
    choice().restore();
    QCOMPARE(changes().last(), QLatin1String("4,0"));
    tell(ONLY_4G);
    QVERIFY(!choice().canRestore());
    tell(WITH_OLDER);
    QVERIFY(!choice().canRestore()); // the former setting has been forgotten
}

void ModeChoiceTest::theFormerSettingOutlivesTheProgram()
{
    choice().allowOlder();
    tell(WITH_OLDER);
    restartProgram();
    QVERIFY(choice().canRestore());
    QCOMPARE(changes().size(), 1); // the setting is not restored automatically
    choice().restore();
    QCOMPARE(changes().last(), QLatin1String("4,0"));
}

void ModeChoiceTest::eachModemHasItsFormerSetting()
{
    choice().allowOlder();
    tell(WITH_OLDER, false, "999999999999999");
    QVERIFY(!choice().canRestore());
    tell(WITH_OLDER);
    QVERIFY(choice().canRestore());
}

void ModeChoiceTest::aDemonstrationStoresNothing()
{
    tell(ONLY_4G, false, "", true);
    choice().allowOlder();
    tell(WITH_OLDER, false, "", true);
    QVERIFY(choice().canRestore());
    QVERIFY(m_settings->modesBefore(QString()).isEmpty());
    tell(WITH_OLDER);
    QVERIFY(!choice().canRestore()); // the current device is a modem again
}

void ModeChoiceTest::aFailureIsReported()
{
    QSignalSpy failed(&choice(), &ModeChoice::failed);
    choice().allowOlder();
    tell(ONLY_4G, true);
    QCOMPARE(failed.size(), 1);
    QVERIFY(choice().canAllowOlder() && !choice().canRestore());
    tell(ONLY_4G, false);
    choice().allowOlder();
    tell(ONLY_4G, true);
    QCOMPARE(failed.size(), 2);
    fakeSdkSetResult("TKSV_Device_SetModes", 1);
    choice().allowOlder();
    QCOMPARE(failed.size(), 3);
}

USSD_TEST_MAIN(ModeChoiceTest)
#include "mode_choice_test.moc"
