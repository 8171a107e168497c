/*
 * Tests how the simulated network executes a scenario. The guarantees that apply to all types of
 * devices are tested in sdk_promises_test.cpp.
 */
#include <QtTest>

#include "SdkFixture.h"
#include "tksv_device.h"

using namespace SdkFixture;

namespace
{

const char NETWORK[] = R"([Network]
Operator=Test Net
IMSI=001010000000001
Balance=10.00
Currency=EUR

[*100#]
Reply={balance}
[*101*%s#]
Digits=3-4
Credit=5.00
WrongDigits=not {digits}
Reply={digits}: {balance}
[*102*%s#]
Digits=3
Reply=fits
[*103#]
Credit=5.00
Reply=late
Delay=20
[*106*%s#]
Credit=-%s
NotEnough=only {balance}
Reply=sent {digits}, {balance} left
[*107#]
Credit=-99.00
Reply=refused instead
[*120*%s#]
Reply=menu of {digits}
[*120*%s#/1]
Reply=one of {digits}, {answer}
[*120*%s#/2]
Credit=-%s
Reply={balance}
[*120*%s#/%s]
Goto=*130#/back
[*130#]
Reply={operator} {imsi}
[*130#/back]
Reply=back after {answer}
[*130#/back/0]
Goto=*130#
[*130#/cancel]
Outcome=silence
)";

QString answerTo(const std::u16string &text)
{
    const Response response = ask(text);
    return QString::number(response.type) + QLatin1Char(' ') +
           QString::fromStdU16String(response.text);
}

/// Repeats the request until the device has registered and accepts it.
bool sendWhenRegistered(const std::u16string &code)
{
    for (int attempt = 0; attempt < 1000; ++attempt) {
        if (request(code) == 0)
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return false;
}

QString is(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

class SdkSimulator : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void numberOfDigitsDecides();
    void moneyComesAndGoes();
    void moneyThatIsNotThereIsNotTaken();
    void replacedRequestTakesNoMoney();
    void digitsReachTheAnswers();
    void gotoGoesOnFromItsTarget();
    void unknownAnswerEndsTheSession();
    void silentAnswerCanBeReplaced();
    void eventHappensAgain();
    void stateThatStaysEndsNothing();
    void stateThatChangesRefusesTheRequest();
    void lostDeviceStaysAwayForEver();
};

void SdkSimulator::init()
{
    QCOMPARE(useNetwork(NETWORK), std::string());
    registerAll();
}

void SdkSimulator::cleanup()
{
    unregisterAll();
    received().clear();
}

void SdkSimulator::numberOfDigitsDecides()
{
    QCOMPARE(answerTo(u"*101*12#"), is("0 not 12"));
    QCOMPARE(answerTo(u"*101*12345#"), is("0 not 12345"));
    QCOMPARE(answerTo(u"*100#"), is("0 10.00 EUR"));
    QCOMPARE(answerTo(u"*101*123#"), is("0 123: 15.00 EUR"));
    QCOMPARE(answerTo(u"*101*1234#"), is("0 1234: 20.00 EUR"));
    QCOMPARE(answerTo(u"*102*123#"), is("0 fits"));
    QCOMPARE(answerTo(u"*102*12#"), is("2 "));
}

void SdkSimulator::moneyComesAndGoes()
{
    QCOMPARE(answerTo(u"*106*3#"), is("0 sent 3, 7.00 EUR left"));
    QCOMPARE(answerTo(u"*106*7#"), is("0 sent 7, 0.00 EUR left"));
}

void SdkSimulator::moneyThatIsNotThereIsNotTaken()
{
    QCOMPARE(answerTo(u"*106*11#"), is("0 only 10.00 EUR"));
    QCOMPARE(answerTo(u"*106*99999999999999999999999999#"), is("0 only 10.00 EUR"));
    QCOMPARE(answerTo(u"*107#"), is("2 "));
    QCOMPARE(answerTo(u"*100#"), is("0 10.00 EUR"));
}

void SdkSimulator::replacedRequestTakesNoMoney()
{
    const auto useNewNetwork = [] { useNetwork(NETWORK); };
    QVERIFY(doInTime(20, useNewNetwork, [] {
        request(u"*103#");
        request(u"*100#");
    }));
    QCOMPARE(answerTo(u"*100#"), is("0 10.00 EUR"));
    // When this reply arrives, the reply to the replaced request would already have arrived.
    QCOMPARE(answerTo(u"*103#"), is("0 late"));
    QCOMPARE(answerTo(u"*100#"), is("0 15.00 EUR"));
}

void SdkSimulator::digitsReachTheAnswers()
{
    QCOMPARE(answerTo(u"*120*4#"), is("1 menu of 4"));
    QCOMPARE(answerTo(u"1"), is("0 one of 4, 1"));
    QCOMPARE(answerTo(u"*120*4#"), is("1 menu of 4"));
    QCOMPARE(answerTo(u"2"), is("0 6.00 EUR"));
}

void SdkSimulator::gotoGoesOnFromItsTarget()
{
    QCOMPARE(answerTo(u"*120*4#"), is("1 menu of 4"));
    QCOMPARE(answerTo(u"x"), is("1 back after x"));
    QCOMPARE(answerTo(u"0"), is("1 Test Net 001010000000001"));
    QCOMPARE(answerTo(u"back"), is("1 back after back"));
}

void SdkSimulator::unknownAnswerEndsTheSession()
{
    QCOMPARE(answerTo(u"*130#"), is("1 Test Net 001010000000001"));
    QCOMPARE(answerTo(u"5"), is("2 "));
    QCOMPARE(answerTo(u"back"), is("2 "));
}

void SdkSimulator::silentAnswerCanBeReplaced()
{
    QCOMPARE(answerTo(u"*130#"), is("1 Test Net 001010000000001"));
    QCOMPARE(request(u"cancel"), 0L);
    QCOMPARE(answerTo(u"*100#"), is("0 10.00 EUR"));
}

void SdkSimulator::eventHappensAgain()
{
    QCOMPARE(useNetwork("[Network]\nOperator=O\nIMSI=001010000000001\n"
                        "[Event reset]\nAfter=5\nEvery=10\nDeviceEvent=6601\nAway=1\n"),
             std::string());
    QVERIFY(received().deviceEvents.waitFor(4));
    // The first of the four events is from the previous network, so this is the third event of the
    // scenario.
    QCOMPARE(received().deviceEvents.all()[3], 6601);
}

void SdkSimulator::stateThatStaysEndsNothing()
{
    QCOMPARE(useNetwork("[Network]\nOperator=O\nIMSI=001010000000001\n[*1#]\nReply=late\nDelay=30\n"
                        "[Event same]\nAfter=0\nEvery=5\nState=registered\n"),
             std::string());
    QCOMPARE(answerTo(u"*1#"), is("0 late"));
}

void SdkSimulator::stateThatChangesRefusesTheRequest()
{
    QCOMPARE(useNetwork("[Network]\nOperator=O\nIMSI=001010000000001\n[*1#]\nOutcome=silence\n"
                        "[Event search]\nAfter=10\nEvery=20\nState=searching\n"
                        "[Event found]\nAfter=20\nEvery=20\nState=registered\n"),
             std::string());
    QVERIFY(sendWhenRegistered(u"*1#"));
    QVERIFY(received().responses.waitFor(1));
    QCOMPARE(received().responses.all()[0].type, int(TKSV_FAILURE_NOT_REGISTERED));
}

void SdkSimulator::lostDeviceStaysAwayForEver()
{
    QCOMPARE(useNetwork("[Network]\nOperator=O\nIMSI=001010000000001\n"
                        "[*1#]\nDeviceEvent=6601\nAway=never\n"),
             std::string());
    QCOMPARE(request(u"*1#"), 0L);
    QVERIFY(received().deviceEvents.waitFor(2)); // the first one is from the previous network
    QCOMPARE(received().deviceEvents.all()[1], 6601);
    QVERIFY(request(u"*1#") != 0);
}

QTEST_APPLESS_MAIN(SdkSimulator)
#include "sdk_simulator_test.moc"
