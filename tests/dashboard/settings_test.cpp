#include <QFile>
#include <QFileInfo>

#include "DashboardSettings.h"
#include "UssdTest.h"

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
    void onlyTheUserCanReadTheFile();
    void aFileThatOthersCouldReadIsClosed();
    void readingLeavesNoFile();
};

void SettingsTest::nothingIsRememberedAtFirst()
{
    const DashboardSettings settings;
    QVERIFY(settings.language().isEmpty());
    QVERIFY(settings.scenario().isEmpty());
    QVERIFY(settings.geometry().isEmpty());
}

void SettingsTest::whatWasSetIsThereTheNextTime()
{
    const QString file = QString::fromUtf8("/a b/Übung, 100%.scenario");
    {
        DashboardSettings settings;
        settings.setLanguage(QLatin1String("ar"));
        settings.setScenario(file);
        settings.setGeometry(QByteArray("\0\x01\xff", 3));
    }
    const DashboardSettings settings;
    QCOMPARE(settings.language(), QLatin1String("ar"));
    QCOMPARE(settings.scenario(), file);
    QCOMPARE(settings.geometry(), QByteArray("\0\x01\xff", 3));
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
