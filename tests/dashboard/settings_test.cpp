#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "device/DashboardSettings.h"
#include "UssdTest.h"

using namespace Dashboard;

namespace
{

const QFile::Permissions OWNER =
    QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;

} // namespace

class SettingsTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override { QFile::remove(DashboardSettings().file()); }

private slots:
    void nothingIsRememberedAtFirst();
    void whatWasSetIsThereTheNextTime();
    void everyChoiceOfADeviceIsRemembered_data();
    void everyChoiceOfADeviceIsRemembered();
    void aFileOfOldHasAScenarioAlone();
    void anUnknownWordIsAutomatic();
    void onlyTheUserCanReadTheFile();
    void aFileThatOthersCouldReadIsClosed();
    void readingLeavesNoFile();
};

void SettingsTest::nothingIsRememberedAtFirst()
{
    const DashboardSettings settings;
    QVERIFY(settings.language().isEmpty());
    QVERIFY(settings.device() == DeviceChoice::automatic());
    QVERIFY(settings.geometry().isEmpty());
}

void SettingsTest::whatWasSetIsThereTheNextTime()
{
    const QString file = QString::fromUtf8("/a b/Übung, 100%.scenario");
    {
        DashboardSettings settings;
        settings.setLanguage(QLatin1String("ar"));
        settings.setDevice(DeviceChoice::simulated(file));
        settings.setGeometry(QByteArray("\0\x01\xff", 3));
    }
    const DashboardSettings settings;
    QCOMPARE(settings.language(), QLatin1String("ar"));
    QVERIFY(settings.device() == DeviceChoice::simulated(file));
    QCOMPARE(settings.geometry(), QByteArray("\0\x01\xff", 3));
}

void SettingsTest::everyChoiceOfADeviceIsRemembered_data()
{
    QTest::addColumn<QString>("word");
    QTest::newRow("automatic") << QString::fromLatin1("automatic");
    QTest::newRow("default network") << QString::fromLatin1("simulated:");
    QTest::newRow("network") << QString::fromLatin1("simulated:/a/b:c.scenario");
    QTest::newRow("modem") << QString::fromLatin1("modem:353612345678901");
}

void SettingsTest::everyChoiceOfADeviceIsRemembered()
{
    QFETCH(QString, word);
    {
        DashboardSettings settings;
        settings.setDevice(DeviceChoice::modem(QLatin1String("earlier")));
        settings.setDevice(DeviceChoice::fromWord(word));
    }
    QCOMPARE(DashboardSettings().device().word(), word);
}

void SettingsTest::aFileOfOldHasAScenarioAlone()
{
    const QString name = DashboardSettings().file();
    QDir().mkpath(QFileInfo(name).path());
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[General]\nscenario=/a/old.scenario\n");
    file.close();
    QCOMPARE(DashboardSettings().device().word(), QLatin1String("simulated:/a/old.scenario"));
    DashboardSettings().setDevice(DeviceChoice::automatic());
    QCOMPARE(DashboardSettings().device().word(), QLatin1String("automatic"));
}

void SettingsTest::anUnknownWordIsAutomatic()
{
    for (const char *word : {"", "modem:", "satellite:1"})
        QVERIFY(DeviceChoice::fromWord(QLatin1String(word)) == DeviceChoice::automatic());
}

void SettingsTest::onlyTheUserCanReadTheFile()
{
    QString file;
    {
        DashboardSettings settings;
        settings.setLanguage(QLatin1String("de"));
        file = settings.file();
    }
    QCOMPARE(QFileInfo(file).permissions(), OWNER);
}

void SettingsTest::aFileThatOthersCouldReadIsClosed()
{
    const QString name = DashboardSettings().file();
    onlyTheUserCanReadTheFile();
    QVERIFY(QFile::setPermissions(name, OWNER | QFile::ReadOther | QFile::ReadGroup));
    {
        DashboardSettings settings;
        settings.setLanguage(QLatin1String("fr"));
    }
    QCOMPARE(QFileInfo(name).permissions(), OWNER);
}

void SettingsTest::readingLeavesNoFile()
{
    QVERIFY(DashboardSettings().language().isEmpty());
    QVERIFY(!QFile::exists(DashboardSettings().file()));
}

USSD_TEST_MAIN(SettingsTest)
#include "settings_test.moc"
