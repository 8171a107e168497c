#include "base/DashboardText.h"
#include "DeviceTest.h"
#include "LanguageList.h"
#include "window/DeviceMenu.h"

using namespace Dashboard;

/** Tests the device menu and the messages about device problems. */
class DeviceChoiceTest : public DeviceTest
{
    Q_OBJECT
private slots:
    void withoutAModemTheMenuSaysSo();
    void modemsAreNamedAndTwinsTellTheirDigits();
    void aChosenModemIsUsedAndRemembered();
    void automaticIsUsedAndRemembered();
    void aChosenModemThatIsNotThereStaysInTheMenu();
    void anOpenMenuStaysAsItIs();
    void aModemThatComesIsOffered();
    void aNameIsNoMnemonic();
    void demonstrationsAreNamedInTheUsersLanguage();
    void everyProblemIsSaidInEveryLanguage_data();
    void everyProblemIsSaidInEveryLanguage();
    void everyStateOfAModemSaysWhatToDo_data();
    void everyStateOfAModemSaysWhatToDo();
    void aRegisteredModemNeedsNoWords();
    void theStatusLineSaysWhichModem();
};

void DeviceChoiceTest::withoutAModemTheMenuSaysSo()
{
    const QAction *none = networkAction(dashboardText("NETWORK_NO_MODEM"));
    QVERIFY(none);
    QVERIFY(!none->isEnabled());
    QVERIFY(networkAction(dashboardText("NETWORK_AUTOMATIC"))->isChecked());
}

void DeviceChoiceTest::modemsAreNamedAndTwinsTellTheirDigits()
{
    tellModems({modem("353612345678901", "Maker Stick"), modem("353612345678902", "Maker Stick"),
                modem("353699999999999", "Maker Card", true)});
    const QString mark = QString(QChar(0x200e));
    QVERIFY(networkAction(QString::fromUtf8("Maker Stick (…8901)") + mark));
    QVERIFY(networkAction(QString::fromUtf8("Maker Stick (…8902)") + mark));
    QVERIFY(networkAction(QLatin1String("Maker Card (in use)")));
    QVERIFY(!networkAction(dashboardText("NETWORK_NO_MODEM")));
}

void DeviceChoiceTest::aChosenModemIsUsedAndRemembered()
{
    tellModems({modem("353612345678901", "Maker Stick"), modem("353699999999999", "Maker Card")});
    networkAction(QLatin1String("Maker Card"))->trigger();
    const std::vector<FakeCall> calls = fakeSdkCalls("TKSV_Device_UseModem");
    QCOMPARE(calls.size(), std::size_t(1));
    QCOMPARE(calls.front().path, std::string("353699999999999"));
    QCOMPARE(settings().device().word(), QLatin1String("modem:353699999999999"));
    QVERIFY(networkAction(QLatin1String("Maker Card"))->isChecked());
    QVERIFY(!networkAction(dashboardText("NETWORK_AUTOMATIC"))->isChecked());
}

void DeviceChoiceTest::automaticIsUsedAndRemembered()
{
    settings().setDevice(DeviceChoice::modem(QLatin1String("1")));
    networkAction(dashboardText("NETWORK_AUTOMATIC"))->trigger();
    QCOMPARE(fakeSdkCalls("TKSV_Device_UseAutomatic").size(), std::size_t(1));
    QVERIFY(settings().device() == DeviceChoice::automatic());
}

void DeviceChoiceTest::aChosenModemThatIsNotThereStaysInTheMenu()
{
    window().setDevice(DeviceChoice::modem(QLatin1String("353612345678901")));
    QAction *absent =
        networkAction(dashboardText("NETWORK_ABSENT_MODEM").arg(QLatin1String("353612345678901")));
    QVERIFY(absent);
    QVERIFY(absent->isChecked());
    tellModems({modem("353612345678901", "Maker Stick")});
    QVERIFY(networkAction(QLatin1String("Maker Stick"))->isChecked());
}

void DeviceChoiceTest::anOpenMenuStaysAsItIs()
{
    window().deviceMenu()->popup(QPoint());
    const QList<QAction *> before = window().deviceMenu()->actions();
    tellModems({modem("353612345678901", "Maker Stick")});
    QCOMPARE(window().deviceMenu()->actions(), before);
    window().deviceMenu()->close();
    window().deviceMenu()->popup(QPoint());
    QVERIFY(networkAction(QLatin1String("Maker Stick")));
    window().deviceMenu()->close();
}

void DeviceChoiceTest::aModemThatComesIsOffered()
{
    tellModems({modem("353612345678901", "Maker Stick")});
    QVERIFY(networkAction(QLatin1String("Maker Stick")));
    tellModems({});
    QVERIFY(!networkAction(QLatin1String("Maker Stick")));
}

void DeviceChoiceTest::aNameIsNoMnemonic()
{
    tellModems({modem("1", "Maker & Son")});
    QVERIFY(networkAction(QLatin1String("Maker && Son")));
}

void DeviceChoiceTest::demonstrationsAreNamedInTheUsersLanguage()
{
    QVERIFY(networkAction(QLatin1String("Demonstration: weak signal")));
    QVERIFY(networkAction(QLatin1String("Demonstration: postpaid")));
    window().setLanguage(QLatin1String("fr"));
    const QString pattern = dashboardText("NETWORK_DEMONSTRATION");
    QVERIFY(networkAction(pattern.arg(QLatin1String("signal faible"))));
    const QString own = QLatin1String("/elsewhere/weak-signal.scenario");
    window().setDevice(DeviceChoice::simulated(own));
    QVERIFY(networkAction(pattern.arg(QLatin1String("weak-signal"))));
}

void DeviceChoiceTest::everyProblemIsSaidInEveryLanguage_data()
{
    QTest::addColumn<int>("problem");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("word"); // a part of the message that is the same in every language
    const auto row = [](int problem, int state, const char *word) {
        QTest::newRow(qPrintable(QString::number(problem)))
            << problem << state << QString::fromLatin1(word);
    };
    row(TKSV_PROBLEM_NO_BUS, TKSV_DEVICE_ABSENT, "D-Bus");
    row(TKSV_PROBLEM_NO_SERVICE, TKSV_DEVICE_ABSENT, "ModemManager");
    row(TKSV_PROBLEM_NOT_PERMITTED, TKSV_DEVICE_DISABLED, "");
    row(TKSV_PROBLEM_CHOSEN_ABSENT, TKSV_DEVICE_ABSENT, "");
    row(TKSV_PROBLEM_WRONG_PIN, TKSV_DEVICE_SIM_LOCKED, "2");
    row(TKSV_PROBLEM_PUK_NEEDED, TKSV_DEVICE_SIM_LOCKED, "PUK");
    row(TKSV_PROBLEM_NO_USSD, TKSV_DEVICE_REGISTERED, "USSD");
    row(TKSV_PROBLEM_REGISTRATION_DENIED, TKSV_DEVICE_SEARCHING, "SIM");
    row(TKSV_PROBLEM_SERVICE_SILENT, TKSV_DEVICE_ABSENT, "ModemManager");
    row(TKSV_PROBLEM_MODEM_REMOVED, TKSV_DEVICE_ABSENT, "");
    row(TKSV_PROBLEM_MODEM_FAILED, TKSV_DEVICE_ABSENT, "ModemManager");
}

void DeviceChoiceTest::everyProblemIsSaidInEveryLanguage()
{
    QFETCH(int, problem);
    QFETCH(int, state);
    QFETCH(QString, word);
    tell(modemInfo(state, problem, 2));
    QSet<QString> texts;
    for (const QString &code : HostCore::Languages::codes()) {
        window().setLanguage(code);
        const QString text = trouble();
        QVERIFY2(text.contains(word), qPrintable(code + QLatin1Char(' ') + text));
        texts << text;
    }
    QVERIFY(texts.size() >= languagesWithoutVariants().size());
    QVERIFY(!texts.contains(QString()));
}

void DeviceChoiceTest::everyStateOfAModemSaysWhatToDo_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("words");
    QTest::newRow("absent") << int(TKSV_DEVICE_ABSENT) << QString::fromLatin1("No modem");
    QTest::newRow("missing") << int(TKSV_DEVICE_SIM_MISSING) << QString::fromLatin1("Put a SIM");
    QTest::newRow("locked") << int(TKSV_DEVICE_SIM_LOCKED) << QString::fromLatin1("PIN");
    QTest::newRow("disabled") << int(TKSV_DEVICE_DISABLED) << QString::fromLatin1("switched off");
}

void DeviceChoiceTest::everyStateOfAModemSaysWhatToDo()
{
    QFETCH(int, state);
    QFETCH(QString, words);
    tell(modemInfo(state));
    QVERIFY2(trouble().contains(words), qPrintable(trouble()));
}

void DeviceChoiceTest::aRegisteredModemNeedsNoWords()
{
    tell(modemInfo(TKSV_DEVICE_DISABLED));
    tell(modemInfo(TKSV_DEVICE_REGISTERED));
    QCOMPARE(trouble(), QString());
}

void DeviceChoiceTest::theStatusLineSaysWhichModem()
{
    const QWidget *source = part<QWidget>("Dashboard_DeviceLine");
    QCOMPARE(source->toolTip(), QLatin1String("Source: modem (Maker Model)"));
    TKSV_DeviceInfo none = modemInfo(TKSV_DEVICE_ABSENT);
    none.source[0] = 0;
    tell(none);
    QCOMPARE(source->toolTip(), QLatin1String("Source: modem (none)"));
    none.isLooking = 1;
    tell(none);
    QCOMPARE(source->toolTip(), dashboardText("SOURCE_LOOKING"));
}

USSD_TEST_MAIN(DeviceChoiceTest)
#include "device_choice_test.moc"
