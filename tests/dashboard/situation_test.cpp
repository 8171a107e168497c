#include "base/Isolate.h"
#include "device/DeviceStatus.h"
#include "device/Situation.h"
#include "LanguageList.h"
#include "look/Controls.h"
#include "tksv_device.h"
#include "UssdTest.h"

using namespace Dashboard;

using Kind = Situation::Kind;

namespace
{

DeviceStatus modemStatus(int state, int problem = TKSV_PROBLEM_NONE)
{
    DeviceStatus status;
    status.isSimulated = false;
    status.state = state;
    status.problem = problem;
    return status;
}

QString withoutIsolates(QString text)
{
    return text.remove(QChar(0x2066)).remove(QChar(0x2069));
}

Situation situation(const DeviceStatus &status, bool areCodesKnown = true)
{
    return situationOf(status, areCodesKnown, QLatin1String("Falken M2"));
}

/// Returns all combinations of state, problem and flags.
QList<DeviceStatus> allStatuses()
{
    QList<DeviceStatus> all;
    for (int state = TKSV_DEVICE_ABSENT; state <= TKSV_DEVICE_REGISTERED; ++state) {
        for (int problem = TKSV_PROBLEM_NONE; problem <= TKSV_PROBLEM_MODEM_REMOVED; ++problem) {
            for (int flags = 0; flags < 16; ++flags) {
                DeviceStatus status = modemStatus(state, problem);
                status.isSimulated = flags & 1;
                status.isLooking = flags & 2;
                status.hasForeignSession = flags & 4;
                status.waitsForTurn = flags & 8;
                all << status;
            }
        }
    }
    return all;
}

QString describe(const DeviceStatus &status)
{
    return QString::fromLatin1("state %1 problem %2 simulated %3 looking %4 foreign %5 turn %6")
        .arg(status.state)
        .arg(status.problem)
        .arg(status.isSimulated)
        .arg(status.isLooking)
        .arg(status.hasForeignSession)
        .arg(status.waitsForTurn);
}

} // namespace

/** Tests the table that maps device states to situations. */
class SituationTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override { QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en"))); }

private slots:
    void everyStatusHasACompleteSituation();
    void onlyARegisteredDeviceSends();
    void noRemedyIsLost();
    void kinds_data();
    void kinds();
    void theTriesAreCounted_data();
    void theTriesAreCounted();
    void theChosenModemIsNamed();
    void unknownCodesLeaveTyping();
    void aRefusedModemThatIsRegisteredMayBeAskedAgain();
    void theDemonstrationNeedsNoModem();
    void theInstructionsNameTheirCommand_data();
    void theInstructionsNameTheirCommand();
    void theTerminalGetsTheInstructions();
    void everyProblemIsSaidInEveryLanguage_data();
    void everyProblemIsSaidInEveryLanguage();
};

void SituationTest::everyStatusHasACompleteSituation()
{
    for (const DeviceStatus &status : allStatuses()) {
        const Situation now = situation(status);
        const QByteArray what = describe(status).toLatin1();
        QVERIFY2(!now.title.isEmpty() && !now.title.endsWith(QLatin1Char('.')), what);
        QVERIFY2(!now.title.contains(QLatin1String("%1")), what);
        QVERIFY2(now.text.endsWith(QLatin1Char('.')), what);
        QVERIFY2(!now.text.contains(QLatin1String("%1")), what);
        QVERIFY2(now.icon && *now.icon, what);
        for (const Remedy remedy : now.remedies) {
            QVERIFY2(!remedyText(remedy).isEmpty(), what);
            QCOMPARE(now.remedies.count(remedy), 1);
        }
    }
}

void SituationTest::onlyARegisteredDeviceSends()
{
    for (const DeviceStatus &status : allStatuses()) {
        const QByteArray what = describe(status).toLatin1();
        QVERIFY2(!situation(status).canSend || status.isRegistered(), what);
        QCOMPARE(situation(status).hasPresets, situation(status).canSend);
        QVERIFY2(!situation(status, false).hasPresets, what);
    }
}

void SituationTest::noRemedyIsLost()
{
    for (const DeviceStatus &status : allStatuses()) {
        const QList<Remedy> remedies = situation(status).remedies;
        const QByteArray what = describe(status).toLatin1();
        if (status.isSimulated)
            continue;
        const bool mayBeEnabled =
            status.state == TKSV_DEVICE_DISABLED && status.problem != TKSV_PROBLEM_NOT_PERMITTED;
        QVERIFY2(!status.waitsForPin() || remedies.contains(Remedy::EnterPin), what);
        QCOMPARE(remedies.contains(Remedy::Enable), mayBeEnabled);
        QVERIFY2(!status.mayBeFound() || remedies.contains(Remedy::LookAgain), what);
        QCOMPARE(remedies.contains(Remedy::EndForeignSession), status.hasForeignSession);
    }
}

void SituationTest::kinds_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("problem");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("remedy"); // the remedy of the main button
    QTest::addColumn<int>("tone");
    const auto row = [](const char *title, int state, int problem, Kind kind, Remedy remedy,
                        Tone tone) {
        QTest::newRow(title) << state << problem << int(kind) << QString::fromUtf8(title)
                             << int(remedy) << int(tone);
    };
    const int absent = TKSV_DEVICE_ABSENT;
    const int registered = TKSV_DEVICE_REGISTERED;
    const int none = TKSV_PROBLEM_NONE;
    row("Ready", registered, none, Kind::Ready, Remedy::None, Tone::Ok);
    row("No modem", absent, none, Kind::NoModem, Remedy::LookAgain, Tone::Neutral);
    row("No SIM", TKSV_DEVICE_SIM_MISSING, none, Kind::NoSim, Remedy::LookAgain, Tone::Warn);
    row("The SIM is locked", TKSV_DEVICE_SIM_LOCKED, none, Kind::SimLocked, Remedy::EnterPin,
        Tone::Warn);
    row("The SIM needs its PUK", TKSV_DEVICE_SIM_LOCKED, TKSV_PROBLEM_PUK_NEEDED, Kind::PukNeeded,
        Remedy::WhatIsPuk, Tone::Danger);
    row("The modem is switched off", TKSV_DEVICE_DISABLED, none, Kind::Off, Remedy::Enable,
        Tone::Neutral);
    row("Looking for a network", TKSV_DEVICE_SEARCHING, none, Kind::Searching, Remedy::None,
        Tone::Accent);
    row("The network does not accept this SIM", TKSV_DEVICE_SEARCHING,
        TKSV_PROBLEM_REGISTRATION_DENIED, Kind::RegistrationDenied, Remedy::None, Tone::Danger);
    row("Not permitted", TKSV_DEVICE_DISABLED, TKSV_PROBLEM_NOT_PERMITTED, Kind::NotPermitted,
        Remedy::HowToAllow, Tone::Warn);
    row("The modem service does not run", absent, TKSV_PROBLEM_NO_SERVICE, Kind::NoService,
        Remedy::HowToStart, Tone::Danger);
    row("The message bus does not run", absent, TKSV_PROBLEM_NO_BUS, Kind::NoBus,
        Remedy::HowToStart, Tone::Danger);
    row("The modem service does not answer", absent, TKSV_PROBLEM_SERVICE_SILENT,
        Kind::ServiceSilent, Remedy::LookAgain, Tone::Warn);
    row("This modem cannot send codes", registered, TKSV_PROBLEM_NO_USSD, Kind::NoUssd,
        Remedy::ChooseModem, Tone::Danger);
    row("Falken M2 is not connected", absent, TKSV_PROBLEM_CHOSEN_ABSENT, Kind::ChosenAbsent,
        Remedy::ChooseModem, Tone::Neutral);
    row("The modem was removed", absent, TKSV_PROBLEM_MODEM_REMOVED, Kind::ModemRemoved,
        Remedy::LookAgain, Tone::Neutral);
    row("The modem does not work", TKSV_DEVICE_DISABLED, TKSV_PROBLEM_MODEM_FAILED,
        Kind::ModemFailed, Remedy::ChooseModem, Tone::Danger);
}

void SituationTest::kinds()
{
    QFETCH(int, state);
    QFETCH(int, problem);
    const Situation now = situation(modemStatus(state, problem));
    QTEST(int(now.kind), "kind");
    QTEST(withoutIsolates(now.title), "title");
    QTEST(int(now.remedies.value(0, Remedy::None)), "remedy");
    QTEST(int(now.tone), "tone");
}

void SituationTest::theTriesAreCounted_data()
{
    QTest::addColumn<int>("problem");
    QTest::addColumn<int>("tries");
    QTest::addColumn<QString>("text");
    const int none = TKSV_PROBLEM_NONE;
    QTest::newRow("unknown") << none << -1 << QString::fromLatin1("Enter its PIN to use it.");
    QTest::newRow("two") << none << 2
                         << QString::fromLatin1("Enter its PIN to use it. 2 tries are left.");
    QTest::newRow("one") << none << 1
                         << QString::fromLatin1("Enter its PIN to use it. One try is left. After "
                                                "another wrong PIN the SIM needs its PUK.");
    QTest::newRow("wrong") << int(TKSV_PROBLEM_WRONG_PIN) << 2
                           << QString::fromLatin1("That was not the PIN. 2 tries are left.");
}

void SituationTest::theTriesAreCounted()
{
    QFETCH(int, problem);
    QFETCH(int, tries);
    DeviceStatus status = modemStatus(TKSV_DEVICE_SIM_LOCKED, problem);
    status.pinRetries = tries;
    QTEST(situation(status).text, "text");
}

void SituationTest::theChosenModemIsNamed()
{
    const DeviceStatus status = modemStatus(TKSV_DEVICE_ABSENT, TKSV_PROBLEM_CHOSEN_ABSENT);
    QCOMPARE(situationOf(status, true, QLatin1String("100% %1")).title,
             isolated(QLatin1String("100% %1")) + QLatin1String(" is not connected"));
    QCOMPARE(situationOf(status, true, QString()).title,
             QLatin1String("The chosen modem is not connected"));
}

void SituationTest::unknownCodesLeaveTyping()
{
    const Situation now = situation(modemStatus(TKSV_DEVICE_REGISTERED), false);
    QVERIFY(now.kind == Kind::CodesUnknown);
    QVERIFY(now.canSend);
    QVERIFY(!now.hasPresets);
    QVERIFY(now.remedies == (QList<Remedy>{Remedy::ChooseOperator, Remedy::TypeCode}));
}

void SituationTest::aRefusedModemThatIsRegisteredMayBeAskedAgain()
{
    const int refused = TKSV_PROBLEM_NOT_PERMITTED;
    QVERIFY(situation(modemStatus(TKSV_DEVICE_REGISTERED, refused)).canSend);
    QVERIFY(!situation(modemStatus(TKSV_DEVICE_DISABLED, refused)).canSend);
}

void SituationTest::theDemonstrationNeedsNoModem()
{
    for (int state : {TKSV_DEVICE_ABSENT, TKSV_DEVICE_SIM_MISSING, TKSV_DEVICE_DISABLED}) {
        DeviceStatus status = modemStatus(state);
        status.isSimulated = true;
        QCOMPARE(situation(status).text, QLatin1String("This state belongs to the demonstration."));
        QVERIFY(situation(status).remedies == QList<Remedy>{Remedy::UseMyModem});
    }
}

void SituationTest::theInstructionsNameTheirCommand_data()
{
    QTest::addColumn<int>("remedy");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("words");
    const auto row = [](const char *words, Remedy remedy, Kind kind) {
        QTest::newRow(words) << int(remedy) << int(kind) << QString::fromLatin1(words);
    };
    row("systemctl start dbus", Remedy::HowToStart, Kind::NoBus);
    row("systemctl start ModemManager", Remedy::HowToStart, Kind::NoService);
    row("systemctl restart ModemManager", Remedy::HowToStart, Kind::ServiceSilent);
    row("org.freedesktop.ModemManager1.", Remedy::HowToAllow, Kind::NotPermitted);
}

void SituationTest::theInstructionsNameTheirCommand()
{
    QFETCH(int, remedy);
    QFETCH(int, kind);
    QFETCH(QString, words);
    const Instruction instruction = instructionFor(Remedy(remedy), Kind(kind));
    QVERIFY2(instruction.command.contains(words), qPrintable(instruction.command));
    QVERIFY(!instruction.title.isEmpty());
    QVERIFY(instruction.text.endsWith(QLatin1Char('.')));
}

void SituationTest::theTerminalGetsTheInstructions()
{
    const Situation stopped = situation(modemStatus(TKSV_DEVICE_ABSENT, TKSV_PROBLEM_NO_SERVICE));
    const QString text = situationAsText(stopped);
    QVERIFY(text.startsWith(QLatin1String("The modem service does not run. ModemManager is not")));
    QVERIFY2(text.endsWith(QLatin1String("sudo systemctl start ModemManager")), qPrintable(text));
    const Situation off = situation(modemStatus(TKSV_DEVICE_DISABLED));
    QCOMPARE(situationAsText(off), off.title + QLatin1String(". ") + off.text);
}

void SituationTest::everyProblemIsSaidInEveryLanguage_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("problem");
    QTest::addColumn<QString>("words"); // a part of the text that is the same in every language
    const auto row = [](const char *name, int state, int problem, const char *words) {
        QTest::newRow(name) << state << problem << QString::fromLatin1(words);
    };
    const int absent = TKSV_DEVICE_ABSENT;
    row("no bus", absent, TKSV_PROBLEM_NO_BUS, "D-Bus");
    row("no service", absent, TKSV_PROBLEM_NO_SERVICE, "systemctl start ModemManager");
    row("silent", absent, TKSV_PROBLEM_SERVICE_SILENT, "systemctl restart ModemManager");
    row("not permitted", TKSV_DEVICE_DISABLED, TKSV_PROBLEM_NOT_PERMITTED,
        "org.freedesktop.ModemManager1.");
    row("chosen absent", absent, TKSV_PROBLEM_CHOSEN_ABSENT, "Falken M2");
    row("removed", absent, TKSV_PROBLEM_MODEM_REMOVED, "");
    row("failed", absent, TKSV_PROBLEM_MODEM_FAILED, "ModemManager");
    row("PIN", TKSV_DEVICE_SIM_LOCKED, TKSV_PROBLEM_WRONG_PIN, "PIN");
    row("PUK", TKSV_DEVICE_SIM_LOCKED, TKSV_PROBLEM_PUK_NEEDED, "PUK");
    row("no USSD", TKSV_DEVICE_REGISTERED, TKSV_PROBLEM_NO_USSD, "USSD");
    row("denied", TKSV_DEVICE_SEARCHING, TKSV_PROBLEM_REGISTRATION_DENIED, "SIM");
}

void SituationTest::everyProblemIsSaidInEveryLanguage()
{
    QFETCH(int, state);
    QFETCH(int, problem);
    QFETCH(QString, words);
    DeviceStatus status = modemStatus(state, problem);
    status.pinRetries = 2;
    QSet<QString> texts;
    for (const QString &code : HostCore::Languages::codes()) {
        QVERIFY(HostCore::Languages::setCurrent(code));
        const QString text = situationAsText(situation(status));
        QVERIFY2(text.contains(words), qPrintable(code + QLatin1Char(' ') + text));
        texts << text;
    }
    QVERIFY(texts.size() >= languagesWithoutVariants().size());
}

USSD_TEST_MAIN(SituationTest)
#include "situation_test.moc"
