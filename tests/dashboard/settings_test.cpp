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
    void theDefaultsAreCareful();
    void everySettingIsRemembered();
    void aBadValueIsTheDefault_data();
    void aBadValueIsTheDefault();
    void anAmountIsADecimalNumber_data();
    void anAmountIsADecimalNumber();

private:
    static void writeSettings(const QByteArray &lines);
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

void SettingsTest::writeSettings(const QByteArray &lines)
{
    const QString name = DashboardSettings().file();
    QDir().mkpath(QFileInfo(name).path());
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[General]\n" + lines);
}

void SettingsTest::aFileOfOldHasAScenarioAlone()
{
    writeSettings("scenario=/a/old.scenario\n");
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

void SettingsTest::theDefaultsAreCareful()
{
    const DashboardSettings settings;
    QCOMPARE(settings.theme(), QLatin1String("system"));
    QCOMPARE(settings.textSize(), 100);
    QVERIFY(!settings.reducesMotion());
    QVERIFY(settings.notifiesMessages());
    QVERIFY(!settings.showsTextInNotifications());
    QVERIFY(settings.lowBalance().isEmpty());
    QVERIFY(settings.hidesSimNumber());
    QVERIFY(settings.keepsHistory());
    QVERIFY(!settings.isFirstRunDone());
    QVERIFY(!settings.detectsPaidType());
    QVERIFY(!settings.asksDaily());
}

void SettingsTest::everySettingIsRemembered()
{
    {
        DashboardSettings settings;
        settings.setTheme(QLatin1String("dark"));
        settings.setTextSize(150);
        settings.setReducesMotion(true);
        settings.setNotifiesMessages(false);
        settings.setShowsTextInNotifications(true);
        settings.setLowBalance(QLatin1String("5.00"));
        settings.setHidesSimNumber(false);
        settings.setKeepsHistory(false);
        settings.setFirstRunDone(true);
    }
    const DashboardSettings settings;
    QCOMPARE(settings.theme(), QLatin1String("dark"));
    QCOMPARE(settings.textSize(), 150);
    QVERIFY(settings.reducesMotion());
    QVERIFY(!settings.notifiesMessages());
    QVERIFY(settings.showsTextInNotifications());
    QCOMPARE(settings.lowBalance(), QLatin1String("5.00"));
    QVERIFY(!settings.hidesSimNumber());
    QVERIFY(!settings.keepsHistory());
    QVERIFY(settings.isFirstRunDone());
}

void SettingsTest::aBadValueIsTheDefault_data()
{
    QTest::addColumn<QByteArray>("value");
    for (const char *value : {"", "maybe", "-1", "175", "100 %", "2", "a, b", "@Invalid()"})
        QTest::newRow(value) << QByteArray(value);
}

void SettingsTest::aBadValueIsTheDefault()
{
    QFETCH(QByteArray, value);
    QByteArray lines;
    for (const char *key :
         {"theme", "text-size", "reduce-motion", "notify-messages", "show-text-in-notifications",
          "hide-sim-number", "keep-history", "first-run-done", "detect-paid-type", "ask-daily"})
        lines += key + QByteArray("=") + value + "\n";
    writeSettings(lines);
    theDefaultsAreCareful();
}

void SettingsTest::anAmountIsADecimalNumber_data()
{
    QTest::addColumn<QString>("amount");
    QTest::addColumn<bool>("isAmount");
    for (const char *amount : {"0", "5", "5.00", "12.5"})
        QTest::newRow(amount) << QString::fromLatin1(amount) << true;
    for (const char *amount : {"", "-5", "+5", "5,00", "5.", ".5", "1.2.3", "5 EUR", "five"})
        QTest::newRow(amount) << QString::fromLatin1(amount) << false;
}

void SettingsTest::anAmountIsADecimalNumber()
{
    QFETCH(QString, amount);
    QFETCH(bool, isAmount);
    DashboardSettings settings;
    settings.setLowBalance(amount);
    QCOMPARE(settings.lowBalance(), isAmount ? amount : QString());
}

USSD_TEST_MAIN(SettingsTest)
#include "settings_test.moc"
