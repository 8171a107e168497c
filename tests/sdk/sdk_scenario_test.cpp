/*
 * Tests the parser of scenario files: the values from valid files, and the error messages for
 * invalid files.
 */
#include <QtTest>

#include "sim/RuleMatching.h"
#include "sim/Scenario.h"
#include "sim/ScenarioReader.h"

using namespace Tksv;

namespace
{

const char SCENARIO_START[] = "[Network]\nOperator=O\nIMSI=001010000000001\nBalance=1.00\n";

QString shown(const std::string &text)
{
    return QString::fromStdString(text);
}

Scenario good(const std::string &text)
{
    const ScenarioResult result = readScenario(text, "f");
    if (!result.scenario)
        qWarning("%s", describe(result.complaints).c_str());
    return result.scenario.value_or(Scenario());
}

QString complaintsAbout(const std::string &text)
{
    const ScenarioResult result = readScenario(text, "f");
    return shown(describe(result.complaints));
}

std::string firstExample(const QString &document)
{
    const QString begin = QString::fromLatin1("```ini\n");
    const int start = document.indexOf(begin) + begin.size();
    const int end = document.indexOf(QString::fromLatin1("```"), start);
    return document.mid(start, end - start).toStdString();
}

} // namespace

class SdkScenario : public QObject
{
    Q_OBJECT
private slots:
    void networkIsRead();
    void defaultsHold();
    void rulesAreRead();
    void delayOfTheNetworkIsThatOfEachReply();
    void eventsAndPushesAreRead();
    void exampleOfTheDocumentIsGood();
    void shippedScenariosAreGood_data();
    void shippedScenariosAreGood();
    void byteOrderMarkAndCarriageReturnsAreTaken();

    void complaints_data();
    void complaints();
    void everyMistakeIsTold();
    void fileThatCannotBeRead_data();
    void fileThatCannotBeRead();

    void exactCodeBeatsPattern();
    void longerPatternBeatsShorter();
    void clientTextNeverReachesTheSyntax();
    void placeholdersAreReplaced();
    void amountsAreShown();
    void smsRuleIsFound();
};

void SdkScenario::networkIsRead()
{
    const Scenario s =
        good("# comment\n\n[Network]\nOperator=Op \\s X\nIMSI=00101012345\nSignal=7\n"
             "State=searching\nDelay=20\nSMS=not-ready\nBalance=-3.5\nCurrency=€\n");
    QCOMPARE(shown(s.operatorName), QString::fromLatin1("Op   X"));
    QCOMPARE(shown(s.imsi), QString::fromLatin1("00101012345"));
    QCOMPARE(s.signalPercent, 7);
    QCOMPARE(int(s.state), int(TKSV_DEVICE_SEARCHING));
    QCOMPARE(s.delay.count(), 20L);
    QVERIFY(!s.smsReady);
    QCOMPARE(s.balance.value_or(0), Amount(-350));
    QCOMPARE(shown(s.currency), QString::fromUtf8("€"));
    QCOMPARE(shown(s.source), QString::fromLatin1("f"));
}

void SdkScenario::defaultsHold()
{
    const Scenario s = good("[Network]\nOperator=O\nIMSI=001010\n");
    QCOMPARE(s.signalPercent, 75);
    QCOMPARE(int(s.state), int(TKSV_DEVICE_REGISTERED));
    QCOMPARE(s.delay.count(), 0L);
    QVERIFY(s.smsReady);
    QVERIFY(!s.balance);
}

void SdkScenario::rulesAreRead()
{
    const Scenario s = good(std::string(SCENARIO_START) +
                            "[*1*%s#]\nDigits=2-3\nWrongDigits=w\nCredit=-%s\nNotEnough=n\n"
                            "Reply=a\\nb {digits}\n[*2#]\nOutcome=unsupported\nDelay=7\n"
                            "[*3#]\nDeviceEvent=6601\nAway=never\n[*4#]\nGoto=*2#\n"
                            "[*5#]\nReply=x\nCredit=2.5\n[SMS 12]\nResult=4\n");
    const Rule pattern = s.rules.at("*1*%s#");
    QCOMPARE(pattern.minDigits, std::size_t(2));
    QCOMPARE(pattern.maxDigits, std::size_t(3));
    QCOMPARE(shown(pattern.wrongDigits), QString::fromLatin1("w"));
    QCOMPARE(shown(pattern.notEnough), QString::fromLatin1("n"));
    QCOMPARE(pattern.creditDigits, -1);
    QCOMPARE(shown(pattern.reply), QString::fromLatin1("a\nb {digits}"));
    QVERIFY(s.rules.at("*2#").outcome == Outcome::Unsupported);
    QCOMPARE(s.rules.at("*2#").delay.count(), 7L);
    QVERIFY(s.rules.at("*3#").outcome == Outcome::DeviceEvent);
    QCOMPARE(s.rules.at("*3#").deviceEvent, 6601);
    QVERIFY(!s.rules.at("*3#").away);
    QCOMPARE(shown(s.rules.at("*4#").goTo), QString::fromLatin1("*2#"));
    QCOMPARE(s.rules.at("*5#").credit, Amount(250));
    QCOMPARE(s.smsRules.at("12").result, 4);
}

void SdkScenario::delayOfTheNetworkIsThatOfEachReply()
{
    // The default delay applies to all groups, even if the [Network] group comes last.
    const Scenario s =
        good("[*1#]\nReply=x\n[SMS]\n[Network]\nDelay=33\nOperator=O\nIMSI=001010\n");
    QCOMPARE(s.rules.at("*1#").delay.count(), 33L);
    QCOMPARE(findSms(s, "5").delay.count(), 33L);
}

void SdkScenario::eventsAndPushesAreRead()
{
    const Scenario s = good(std::string(SCENARIO_START) +
                            "[Event a]\nAfter=1\nEvery=2\nSMS=ready\nSignal=3\nState=disabled\n"
                            "[Push p]\nAfter=4\nReply=r\n[Push p/1]\nReply=q\n");
    QCOMPARE(s.events.size(), std::size_t(1));
    const TimedEvent event = s.events[0];
    QCOMPARE(event.after.count(), 1L);
    QCOMPARE(event.every.value_or(Milliseconds(0)).count(), 2L);
    QVERIFY(event.smsReady.value_or(false));
    QCOMPARE(event.signalPercent.value_or(0), 3);
    QCOMPARE(int(event.state.value_or(TKSV_DEVICE_ABSENT)), int(TKSV_DEVICE_DISABLED));
    QCOMPARE(s.pushes.size(), std::size_t(1));
    QCOMPARE(s.pushes[0].after.count(), 4L);
    QVERIFY(isMenu(s, s.pushes[0].group));
}

void SdkScenario::exampleOfTheDocumentIsGood()
{
    QFile file(QString::fromUtf8(SCENARIO_DOCUMENT));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const std::string example = firstExample(QString::fromUtf8(file.readAll()));
    QCOMPARE(complaintsAbout(example), QString());
    const Scenario s = good(example);
    QCOMPARE(shown(s.operatorName), QString::fromLatin1("Example Telecom"));
    QVERIFY(isMenu(s, "*123#/2"));
}

void SdkScenario::shippedScenariosAreGood_data()
{
    QTest::addColumn<QString>("path");
    const QDir folder(QString::fromUtf8(SCENARIO_FOLDER));
    const QFileInfoList files = folder.entryInfoList({QString::fromLatin1("*.scenario")});
    QVERIFY(files.size() >= 3);
    for (const QFileInfo &file : files)
        QTest::newRow(file.fileName().toUtf8().constData()) << file.filePath();
}

void SdkScenario::shippedScenariosAreGood()
{
    QFETCH(QString, path);
    const ScenarioResult result = readScenarioFile(path.toStdString());
    QCOMPARE(shown(describe(result.complaints)), QString());
    QVERIFY(result.scenario.has_value());
}

void SdkScenario::byteOrderMarkAndCarriageReturnsAreTaken()
{
    const Scenario s =
        good("\xEF\xBB\xBF[Network]\r\nOperator=O\r\nIMSI=001010\r\n[*1#]\r\nReply=x\r\n");
    QCOMPARE(shown(s.operatorName), QString::fromLatin1("O"));
    QCOMPARE(shown(s.rules.at("*1#").reply), QString::fromLatin1("x"));
}

void SdkScenario::complaints_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("complaint");
    // The file consists of a valid [Network] group of four lines, followed by `text`.
    const auto row = [](const char *name, const char *text, const char *complaint) {
        QTest::newRow(name) << QByteArray(text) << QString::fromUtf8(complaint);
    };
    const char keysOfRules[] =
        "Reply, Outcome, Goto, Delay, Credit, NotEnough, Digits, WrongDigits, "
        "DeviceEvent or Away";
    row("no key file", "[*1#]\nReply\n",
        "f:6: expected [group], key=value below a group, a comment that begins with #, or an empty "
        "line, found \"Reply\"");
    row("group not closed", "[*1#\nReply=x\n",
        "f:5: expected [group], key=value below a group, a comment that begins with #, or an empty "
        "line, found \"[*1#\"");
    row("not UTF-8", "[*1#]\nReply=\xFF\n", "f:6: expected text in UTF-8");
    row("unknown key", "[*1#]\nReply=x\nRepply=y\n",
        (std::string("f:7: unknown key Repply; expected ") + keysOfRules).c_str());
    row("unknown key of [Network]", "[Push p]\nAfter=1\nReply=x\nDelay=1\n",
        "f:8: unknown key Delay; expected After or Reply");
    row("translated key", "[*1#]\nReply=x\nReply[de]=y\n",
        (std::string("f:7: unknown key Reply[de]; expected ") + keysOfRules).c_str());
    row("unknown group", "[100]\nReply=x\n",
        "f:5: unknown group [100]; expected [Network], a code such as [*100#] or [*101*%s#], an "
        "answer such as [*100#/1], [SMS], [SMS number], [Push name] or [Event name]");
    row("group twice", "[*1#]\nReply=x\n[*1#]\nDelay=2\n",
        "f:7: [*1#]: expected each group once; line 5 already defines it");
    row("key twice", "[*1#]\nReply=x\nReply=y\n",
        "f:7: Reply: expected each key once in a group; line 6 already defines it");
    row("unknown escape", "[*1#]\nReply=a\\qb\n",
        "f:6: Reply: expected n, t, s, r or \\ after each \\");
    row("no number", "[*1#]\nReply=x\nDelay=soon\n",
        "f:7: Delay: expected milliseconds from 0 to 86400000, found \"soon\"");
    row("negative time", "[*1#]\nReply=x\nDelay=-1\n",
        "f:7: Delay: expected milliseconds from 0 to 86400000, found \"-1\"");
    row("number with a comment", "[*1#]\nReply=x\nDelay=5 # ms\n",
        "f:7: Delay: expected milliseconds from 0 to 86400000, found \"5 # ms\"");
    row("number too large", "[SMS]\nResult=99999999999\n",
        "f:6: Result: expected a whole number from 0 to 65535, found \"99999999999\"");
    row("outcome", "[*1#]\nOutcome=lost\n",
        "f:6: Outcome: expected reply, refuse, unsupported, network-timeout, silence, "
        "device-timeout or no-device, found \"lost\"");
    row("device event", "[*1#]\nDeviceEvent=1\n",
        "f:6: DeviceEvent: expected 6016 or 6601, found \"1\"");
    row("away", "[*1#]\nDeviceEvent=6016\nAway=always\n",
        "f:7: Away: expected never, or milliseconds from 0 to 86400000, found \"always\"");
    row("away alone", "[*1#]\nReply=x\nAway=1\n", "f:7: Away: expected only with DeviceEvent");
    row("credit", "[*1#]\nReply=x\nCredit=1,50\n",
        "f:7: Credit: expected an amount such as 10.00 or -2.50, or %s or -%s for the digits of "
        "the "
        "code, found \"1,50\"");
    row("credit of digits", "[*1#]\nReply=x\nCredit=%s\n",
        "f:7: Credit: expected only an amount in a group of a code without %s");
    row("not enough alone", "[*1#]\nReply=x\nNotEnough=y\n",
        "f:7: NotEnough: expected only with Credit");
    row("digits", "[*1*%s#]\nReply=x\nDigits=16-12\n",
        "f:7: Digits: expected how many digits, such as 12 or 12-16, from 1 to 182, found "
        "\"16-12\"");
    row("digits without pattern", "[*1#]\nReply=x\nDigits=2\n",
        "f:7: Digits: expected only in a group of a code with %s");
    row("wrong digits alone", "[*1*%s#]\nReply=x\nWrongDigits=y\n",
        "f:7: WrongDigits: expected only with Digits");
    row("nothing to reply", "[*1#]\nDelay=1\n",
        "f:5: [*1#]: expected Reply, Goto, Outcome or DeviceEvent");
    row("empty reply", "[*1#]\nReply=\n", "f:6: Reply: expected a text");
    row("reply and silence", "[*1#]\nReply=x\nOutcome=silence\n",
        "f:6: Reply: expected only with Outcome=reply or Outcome=refuse");
    row("event and outcome", "[*1#]\nOutcome=silence\nDeviceEvent=6016\n",
        "f:6: Outcome: expected only without DeviceEvent");
    row("answer to nothing", "[*1#/2]\nReply=x\n",
        "f:5: [*1#/2]: expected a group [*1#], which this is an answer to");
    row("answer to a gap", "[*1#]\nReply=x\n[*1#/2/3]\nReply=x\n",
        "f:7: [*1#/2/3]: expected a group [*1#/2], which this is an answer to");
    row("answer to a refusal", "[*1#]\nOutcome=refuse\n[*1#/2]\nReply=x\n",
        "f:7: [*1#/2]: expected a Reply in [*1#], which this is an answer to");
    row("empty answer", "[*1#]\nReply=x\n[*1#/]\nReply=x\n",
        "f:7: [*1#/]: expected an answer, or %s for any other answer, after the last /");
    row("part of an answer", "[*1#]\nReply=x\n[*1#/a%s]\nReply=x\n",
        "f:7: [*1#/a%s]: expected an answer, or %s for any other answer, after the last /");
    row("answer that is a code", "[*1#]\nReply=x\n[*1#/*2#]\nReply=x\n",
        "f:7: [*1#/*2#]: expected an answer, or %s for any other answer, after the last /");
    row("two patterns", "[*1*%s*%s#]\nReply=x\n",
        "f:5: unknown group [*1*%s*%s#]; expected [Network], a code such as [*100#] or [*101*%s#], "
        "an answer such as [*100#/1], [SMS], [SMS number], [Push name] or [Event name]");
    row("goto nowhere", "[*1#]\nGoto=*2#\n",
        "f:6: Goto: expected a code or answer of this file, such as *123#, found \"*2#\"");
    row("goto a goto", "[*1#]\nReply=x\n[*2#]\nGoto=*1#\n[*3#]\nGoto=*2#\n",
        "f:10: Goto: expected a group without a Goto of its own");
    row("goto itself", "[*1#]\nGoto=*1#\n",
        "f:6: Goto: expected a group without a Goto of its own");
    row("goto a pattern", "[*1*%s#]\nReply=x\n[*2#]\nGoto=*1*%s#\n",
        "f:8: Goto: expected a code without %s, found \"*1*%s#\"");
    row("goto and more", "[*1#]\nReply=x\n[*2#]\nGoto=*1#\nDelay=1\n",
        "f:7: [*2#]: expected no other key beside Goto");
    row("unknown placeholder", "[*1#]\nReply={balanec}\n",
        "f:6: Reply: expected {operator}, {imsi} or {balance} here, found {balanec}");
    row("digits in no pattern", "[*1#]\nReply={digits}\n",
        "f:6: Reply: expected {operator}, {imsi} or {balance} here, found {digits}");
    row("answer in a code", "[*1*%s#]\nReply={answer}\n",
        "f:6: Reply: expected {operator}, {imsi}, {balance} or {digits} here, found {answer}");
    row("open brace", "[*1#]\nReply=a { b\n",
        "f:6: Reply: expected {operator}, {imsi} or {balance} here, or {{ for a brace");
    row("push without time", "[Push p]\nReply=x\n", "f:5: [Push p]: expected a key After");
    row("event without effect", "[Event e]\nAfter=1\n",
        "f:5: [Event e]: expected SMS, Signal, State or DeviceEvent");
    row("event all the time", "[Event e]\nAfter=1\nEvery=0\nSignal=1\n",
        "f:7: Every: expected more than 0 milliseconds");
    row("number of a message", "[SMS one]\nResult=0\n",
        "f:5: unknown group [SMS one]; expected [Network], a code such as [*100#] or [*101*%s#], "
        "an "
        "answer such as [*100#/1], [SMS], [SMS number], [Push name] or [Event name]");
}

void SdkScenario::complaints()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, complaint);
    const std::string bytes = text.toStdString();
    QCOMPARE(complaintsAbout(SCENARIO_START + bytes), complaint);
    // No part of an invalid file is used.
    QVERIFY(!readScenario(SCENARIO_START + bytes, "f").scenario);
}

void SdkScenario::everyMistakeIsTold()
{
    QCOMPARE(complaintsAbout(""),
             QString::fromLatin1("f:1: expected a group [Network] with Operator= and IMSI="));
    QCOMPARE(
        complaintsAbout("[*1#]\nReply={balance}\n[Network]\nIMSI=12345\nSignal=101\nState=on\n"),
        QString::fromLatin1(
            "f:2: Reply: expected {operator} or {imsi} here, found {balance}\n"
            "f:3: [Network]: expected a key Operator\n"
            "f:4: IMSI: expected 6 to 15 digits, found \"12345\"\n"
            "f:5: Signal: expected a whole number from 0 to 100, found \"101\"\n"
            "f:6: State: expected registered, searching, disabled, sim-locked, sim-missing or "
            "absent, found \"on\""));
    QCOMPARE(complaintsAbout("x\n[Network]\ny\n"),
             QString::fromLatin1("f:1: expected [group], key=value below a group, a comment that "
                                 "begins with #, or an empty line, found \"x\"\n"
                                 "f:3: expected [group], key=value below a group, a comment that "
                                 "begins with #, or an empty line, found \"y\""));
}

void SdkScenario::fileThatCannotBeRead_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("complaint");
    QTest::newRow("missing") << QString::fromLatin1("/nowhere/x")
                             << QString::fromLatin1(
                                    "/nowhere/x: cannot be read: No such file or directory");
    QTest::newRow("folder") << QString::fromLatin1("/tmp")
                            << QString::fromLatin1("/tmp: expected a regular file");
    QTest::newRow("without end") << QString::fromLatin1("/dev/zero")
                                 << QString::fromLatin1("/dev/zero: expected a regular file");
}

void SdkScenario::fileThatCannotBeRead()
{
    QFETCH(QString, path);
    QFETCH(QString, complaint);
    const ScenarioResult result = readScenarioFile(path.toStdString());
    QVERIFY(!result.scenario);
    QCOMPARE(shown(describe(result.complaints)), complaint);
}

void SdkScenario::exactCodeBeatsPattern()
{
    const Scenario s = good(std::string(SCENARIO_START) + "[*1*%s#]\nReply=p\n[*1*22#]\nReply=e\n");
    QCOMPARE(shown(findCode(s, "*1*22#").group), QString::fromLatin1("*1*22#"));
    QCOMPARE(shown(findCode(s, "*1*23#").group), QString::fromLatin1("*1*%s#"));
    QCOMPARE(shown(findCode(s, "*1*23#").digits), QString::fromLatin1("23"));
    QVERIFY(findCode(s, "*1*#").group.empty());
    QVERIFY(findCode(s, "*1*2*3#").group.empty());
    QVERIFY(findCode(s, "*1*2a#").group.empty());
}

void SdkScenario::longerPatternBeatsShorter()
{
    const Scenario s = good(std::string(SCENARIO_START) + "[*1%s#]\nReply=a\n[*1*5%s#]\nReply=b\n"
                                                          "[*15%s#]\nReply=c\n");
    QCOMPARE(shown(findCode(s, "*157#").group), QString::fromLatin1("*15%s#"));
    QCOMPARE(shown(findCode(s, "*157#").digits), QString::fromLatin1("7"));
    QCOMPARE(shown(findCode(s, "*167#").group), QString::fromLatin1("*1%s#"));
}

void SdkScenario::clientTextNeverReachesTheSyntax()
{
    const Scenario s =
        good(std::string(SCENARIO_START) + "[*1*%s#]\nReply=p\n[*2#]\nReply=m\n[*2#/1]\nReply=x\n"
                                           "[*2#/1/2]\nReply=y\n[Push p]\nAfter=1\nReply=z\n");
    for (const char *text : {"*1*%s#", "*2#/1", "Push p", "Network"})
        QVERIFY2(findCode(s, text).group.empty(), text);
    QVERIFY(findAnswer(s, "*2#", "1/2").group.empty());
    QVERIFY(findAnswer(s, "*2#", "%s").group.empty());
    QCOMPARE(shown(findAnswer(s, "*2#", "1").group), QString::fromLatin1("*2#/1"));
}

void SdkScenario::placeholdersAreReplaced()
{
    const Placeholders values = {{"a", "1"}, {"b", "{a}"}};
    QCOMPARE(shown(expand("x {a}{b} {{a} }", values)), QString::fromLatin1("x 1{a} {a} }"));
    QCOMPARE(shown(expand("", values)), QString());
    QVERIFY(!placeholderNames("{a"));
    QVERIFY(!placeholderNames("{}"));
    QCOMPARE(placeholderNames("{a} {{ {b}").value_or(std::vector<std::string>()).size(),
             std::size_t(2));
}

void SdkScenario::amountsAreShown()
{
    QCOMPARE(shown(formatAmount(1250, "EUR")), QString::fromLatin1("12.50 EUR"));
    QCOMPARE(shown(formatAmount(5, "")), QString::fromLatin1("0.05"));
    QCOMPARE(shown(formatAmount(-5, "")), QString::fromLatin1("-0.05"));
}

void SdkScenario::smsRuleIsFound()
{
    const Scenario s =
        good(std::string(SCENARIO_START) + "[SMS]\nResult=1\n[SMS +12]\nResult=0\nDelay=3\n");
    QCOMPARE(findSms(s, "+12").result, 0);
    QCOMPARE(findSms(s, "+12").delay.count(), 3L);
    QCOMPARE(findSms(s, "13").result, 1);
    QCOMPARE(findSms(good(SCENARIO_START), "13").result, 0);
}

QTEST_APPLESS_MAIN(SdkScenario)
#include "sdk_scenario_test.moc"
