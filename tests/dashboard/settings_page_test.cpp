#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QSignalSpy>

#include "DeviceTest.h"
#include "look/Controls.h"
#include "look/Look.h"
#include "pages/SettingsPage.h"

using namespace Dashboard;

/** Tests the settings page in the main window. */
class SettingsPageTest : public DeviceTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override;

private slots:
    void everySwitchIsKeptAtOnce_data();
    void everySwitchIsKeptAtOnce();
    void theThemeHoldsAtOnce();
    void theTextSizeIsKeptForTheNextStart();
    void theLanguageIsChosenFromItsMenu();
    void theLowBalanceHasAnAmount();
    void theNumberOfTheSimIsShownWithoutTheEye();
    void askingOnceADayIsOff();
    void allIsDeletedOnlyAfterAYes_data();
    void allIsDeletedOnlyAfterAYes();
    void theCostOfTheQueryIsSaid();

private:
    SettingsPage *page() { return part<SettingsPage>("Dashboard_SettingsPage"); }
    QPushButton *choice(const char *segments, int index)
    {
        return part<Segments>(segments)->findChildren<QPushButton *>().at(index);
    }
};

void SettingsPageTest::setUp()
{
    DeviceTest::setUp();
    window().showPage(PageId::Settings);
}

void SettingsPageTest::tearDown()
{
    Look::instance().setTheme(ThemeChoice::System);
    Look::instance().setReducesMotion(false);
    DeviceTest::tearDown();
}

typedef bool (DashboardSettings::*Getter)() const;
Q_DECLARE_METATYPE(Getter)

void SettingsPageTest::everySwitchIsKeptAtOnce_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<Getter>("getter");
    QTest::addColumn<bool>("isOn");
    const struct {
        const char *name;
        Getter getter;
        bool isOn;
    } rows[] = {
        {"Dashboard_SettingsMotion", &DashboardSettings::reducesMotion, false},
        {"Dashboard_SettingsNotify", &DashboardSettings::notifiesMessages, true},
        {"Dashboard_SettingsNotifyText", &DashboardSettings::showsTextInNotifications, false},
        {"Dashboard_SettingsHide", &DashboardSettings::hidesSimNumber, true},
        {"Dashboard_SettingsKeep", &DashboardSettings::keepsHistory, true},
        {"Dashboard_SettingsDetection", &DashboardSettings::detectsPaidType, false},
    };
    for (const auto &row : rows)
        QTest::newRow(row.name) << QByteArray(row.name) << row.getter << row.isOn;
}

void SettingsPageTest::everySwitchIsKeptAtOnce()
{
    QFETCH(QByteArray, name);
    QFETCH(Getter, getter);
    QFETCH(bool, isOn);
    Switch *found = part<Switch>(name.constData());
    QCOMPARE(found->isChecked(), isOn);
    QVERIFY(!found->accessibleName().isEmpty());
    QTest::mouseClick(found, Qt::LeftButton);
    QCOMPARE((settings().*getter)(), !isOn);
    QTest::keyClick(found, Qt::Key_Space);
    QCOMPARE((settings().*getter)(), isOn);
}

void SettingsPageTest::theThemeHoldsAtOnce()
{
    choice("Dashboard_SettingsTheme", 2)->click();
    QCOMPARE(settings().theme(), QLatin1String("dark"));
    QCOMPARE(int(Look::instance().shade()), int(Shade::Dark));
    choice("Dashboard_SettingsTheme", 1)->click();
    QCOMPARE(settings().theme(), QLatin1String("light"));
    QCOMPARE(int(Look::instance().shade()), int(Shade::Light));
    choice("Dashboard_SettingsTheme", 0)->click();
    QCOMPARE(settings().theme(), QLatin1String("system"));
}

void SettingsPageTest::theTextSizeIsKeptForTheNextStart()
{
    const int em = Look::instance().em();
    choice("Dashboard_SettingsTextSize", 2)->click();
    QCOMPARE(settings().textSize(), 150);
    QCOMPARE(Look::instance().em(), em);
}

void SettingsPageTest::theLanguageIsChosenFromItsMenu()
{
    const MenuButton *button = part<MenuButton>("Dashboard_SettingsLanguage");
    QCOMPARE(button->text(), QLatin1String("English"));
    for (QAction *action : button->menu()->actions()) {
        if (action->text() == QLatin1String("Deutsch"))
            action->trigger();
    }
    QCOMPARE(button->text(), QLatin1String("Deutsch"));
    QCOMPARE(settings().language(), QLatin1String("de"));
}

void SettingsPageTest::theLowBalanceHasAnAmount()
{
    Switch *low = part<Switch>("Dashboard_SettingsLowBalance");
    QLineEdit *amount = part<QLineEdit>("Dashboard_SettingsAmount");
    QVERIFY(!amount->isVisible());
    QTest::mouseClick(low, Qt::LeftButton);
    QVERIFY(amount->isVisible());
    QCOMPARE(settings().lowBalance(), QLatin1String("5.00"));
    amount->selectAll();
    QTest::keyClicks(amount, QLatin1String("2.5x"));
    QTest::keyClick(amount, Qt::Key_Return);
    QCOMPARE(settings().lowBalance(), QLatin1String("2.5"));
    QTest::mouseClick(low, Qt::LeftButton);
    QCOMPARE(settings().lowBalance(), QString());
}

void SettingsPageTest::theNumberOfTheSimIsShownWithoutTheEye()
{
    TKSV_DeviceInfo info = modemInfo(TKSV_DEVICE_REGISTERED);
    qstrncpy(info.imsi, "001990123456789", sizeof info.imsi);
    tell(info);
    const QLabel *sim = part<QLabel>("Dashboard_Sim");
    QVERIFY(!sim->text().contains(QLatin1String("001990123456789")));
    QTest::mouseClick(part<Switch>("Dashboard_SettingsHide"), Qt::LeftButton);
    QVERIFY(sim->text().contains(QLatin1String("001990123456789")));
    QVERIFY(!part<QPushButton>("Dashboard_ShowNumber")->isVisible());
}

void SettingsPageTest::askingOnceADayIsOff()
{
    Switch *daily = part<Switch>("Dashboard_SettingsAskDaily");
    QVERIFY(!daily->isChecked() && !settings().asksDaily());
    QVERIFY(daily->accessibleDescription().contains(QLatin1String("may charge")));
    QSignalSpy changed(page(), &SettingsPage::changed);
    daily->click();
    QVERIFY(settings().asksDaily());
    QCOMPARE(changed.size(), 1);
}

void SettingsPageTest::allIsDeletedOnlyAfterAYes_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("count");
    QTest::newRow("yes") << QString::fromLatin1("Delete all") << 1;
    QTest::newRow("no") << QString::fromLatin1("Cancel") << 0;
}

void SettingsPageTest::allIsDeletedOnlyAfterAYes()
{
    QFETCH(QString, button);
    QFETCH(int, count);
    QSignalSpy deleted(page(), &SettingsPage::deleteAllRequested);
    part<QPushButton>("Dashboard_SettingsDeleteAll")->click();
    const QMessageBox *box = part<QMessageBox>("Dashboard_DeleteAllQuestion");
    QVERIFY(box && box->isVisible());
    QCOMPARE(box->text(),
             QLatin1String("Delete all balances, messages, codes sent and favourites? They cannot "
                           "be brought back."));
    QCOMPARE(box->defaultButton()->text().remove(QLatin1Char('&')), QLatin1String("Cancel"));
    QCOMPARE(deleted.count(), 0);
    for (QAbstractButton *each : box->buttons()) {
        if (each->text().remove(QLatin1Char('&')) == button)
            each->click();
    }
    QCOMPARE(deleted.count(), count);
}

void SettingsPageTest::theCostOfTheQueryIsSaid()
{
    const Switch *detection = part<Switch>("Dashboard_SettingsDetection");
    QVERIFY(detection->accessibleDescription().contains(QLatin1String("may cost money")));
}

USSD_TEST_MAIN(SettingsPageTest)
#include "settings_page_test.moc"
