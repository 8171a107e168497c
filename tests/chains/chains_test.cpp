#include "ChainRun.h"
#include "UssdTest.h"
#include "WalkRecorder.h"

using namespace Chains;
using Verdict = ChainStep::Verdict;

namespace
{

const char MAIN_MENU[] = "Menu\n1 Account\n2 Internet";
const char PACKS[] = "Internet\n1 1 GB for 2 EUR\n2 5 GB for 7 EUR\n0 Back";
const char BOUGHT[] = "You have bought 1 GB.";

Chain packChain()
{
    return {"1 GB", "*123#", {{"2", "Internet"}, {"1", "1 GB for 2 EUR"}}};
}

/// Records a code that does not contain a number, and the reply to this code.
void sendCode(WalkRecorder &walk, const char *code, const char *reply, bool isMenu)
{
    walk.takeReply(code, true, true, reply, isMenu);
}

void answer(WalkRecorder &walk, const char *answer, const char *reply, bool isMenu)
{
    walk.takeReply(answer, false, true, reply, isMenu);
}

QString keysOf(const WalkRecorder &walk)
{
    const Chain chain = walk.finished();
    return chain.steps.empty() ? QString() : QString::fromStdString(chain.keys());
}

} // namespace

/** Tests when a step of a chain may be sent, and which choices of the user are recorded. */
class ChainsTest : public UssdTest
{
    Q_OBJECT
private slots:
    void eachStepIsSentWhileItIsOffered();
    void aChangedLineStopsTheRun_data();
    void aChangedLineStopsTheRun();
    void aReplyWithoutAMenuStopsTheRun();
    void aWalkIsRecorded();
    void anAnswerThatIsNoChoiceIsNotRecorded_data();
    void anAnswerThatIsNoChoiceIsNotRecorded();
    void aCodeWithANumberIsNotRecorded();
    void aQuestionOfTheNetworkEndsTheRecord();
    void aWalkThatHasNotEndedIsNotOffered();
    void aMenuThatTheUserEndsEndsTheWalk();
    void whatMayNotBeRunIsIncomplete_data();
    void whatMayNotBeRunIsIncomplete();
};

void ChainsTest::eachStepIsSentWhileItIsOffered()
{
    ChainRun run(packChain());
    ChainStep step = run.takeReply(MAIN_MENU, true);
    QVERIFY(step.verdict == Verdict::Send);
    QCOMPARE(step.key, std::string("2"));
    step = run.takeReply(PACKS, true);
    QVERIFY(step.verdict == Verdict::Send);
    QCOMPARE(step.key, std::string("1"));
    QCOMPARE(run.stepsSent(), std::size_t(2));
    QVERIFY(run.takeReply(BOUGHT, false).verdict == Verdict::Done);
    ChainRun open(packChain());
    open.takeReply(MAIN_MENU, true);
    open.takeReply(PACKS, true);
    QVERIFY(open.takeReply("Sure?\n1 Yes\n2 No", true).verdict ==
            Verdict::Done); // the user answers the last menu
}

void ChainsTest::aChangedLineStopsTheRun_data()
{
    QTest::addColumn<QString>("menu");
    QTest::addColumn<bool>("isSent");
    QTest::addColumn<QString>("offered");
    const auto row = [](const char *name, const char *menu, bool isSent, const char *offered) {
        QTest::newRow(name) << QString::fromUtf8(menu) << isSent << QString::fromUtf8(offered);
    };
    row("other words", "1 Account\n2 Roaming", false, "Roaming");
    row("more words", "1 Account\n2 Internet for 50 EUR", false, "Internet for 50 EUR");
    row("other case", "1 Account\n2 INTERNET", false, "INTERNET");
    row("moved", "1 Internet\n2 Account", false, "Account");
    row("gone", "1 Account\n3 Internet", false, "");
    row("no choices", "Type the number", false, "");
    row("not certain", "2 Internet\n1 Account", false, "");
    row("other form", "1) Account\n2)  Internet \r", true, "Internet");
    row("direction marks", "\u200f1. Account\n\u200f2. Internet", true, "Internet");
    row("other text around", "News!\n1 Help\n2 Internet\n0 Back", true, "Internet");
}

void ChainsTest::aChangedLineStopsTheRun()
{
    QFETCH(QString, menu);
    QFETCH(bool, isSent);
    QFETCH(QString, offered);
    ChainRun run(packChain());
    const ChainStep step = run.takeReply(menu.toStdString(), true);
    QCOMPARE(step.verdict == Verdict::Send, isSent);
    QCOMPARE(step.verdict == Verdict::Changed, !isSent);
    QCOMPARE(QString::fromStdString(step.offered), offered);
    QCOMPARE(step.expected, std::string("Internet"));
    QCOMPARE(step.number, std::size_t(2)); // the code is step 1
}

void ChainsTest::aReplyWithoutAMenuStopsTheRun()
{
    ChainRun run(packChain());
    // The network does not wait for an answer.
    QVERIFY(run.takeReply(MAIN_MENU, false).verdict == Verdict::NoMenu);
    QCOMPARE(run.stepsSent(), std::size_t(0));
}

void ChainsTest::aWalkIsRecorded()
{
    WalkRecorder walk;
    sendCode(walk, "*123#", MAIN_MENU, true);
    answer(walk, "2", PACKS, true);
    answer(walk, "1", BOUGHT, false);
    Chain expected = packChain();
    QVERIFY(walk.finished().isSameWalk(expected));
    QCOMPARE(keysOf(walk), QString::fromUtf8("*123# › 2 › 1"));
    expected.steps[1].text = "1 GB for 3 EUR";
    QVERIFY(!walk.finished().isSameWalk(expected));
    sendCode(walk, "*100#", "Your balance is 7.00 EUR.", false);
    QCOMPARE(keysOf(walk), QString());
}

void ChainsTest::anAnswerThatIsNoChoiceIsNotRecorded_data()
{
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QString>("answer");
    QTest::newRow("PIN") << "Type your PIN"
                         << "1234";
    QTest::newRow("phone number") << "Type the number"
                                  << "0151234567";
    QTest::newRow("PIN in a menu") << QString::fromLatin1(PACKS) << "4711";
    QTest::newRow("number in the line") << "1 Call +49 151 234567\n2 Back"
                                        << "1";
    QTest::newRow("digits in the line") << "1 To 01512345678\n2 Back"
                                        << "1";
}

void ChainsTest::anAnswerThatIsNoChoiceIsNotRecorded()
{
    QFETCH(QString, menu);
    QFETCH(QString, answer);
    WalkRecorder walk;
    sendCode(walk, "*123#", MAIN_MENU, true);
    ::answer(walk, "2", menu.toUtf8(), true);
    ::answer(walk, answer.toUtf8(), PACKS, true);
    ::answer(walk, "1", BOUGHT, false);
    // Choices after this answer are not recorded either.
    QCOMPARE(keysOf(walk), QString::fromUtf8("*123# › 2"));
}

void ChainsTest::aCodeWithANumberIsNotRecorded()
{
    WalkRecorder walk;
    walk.takeReply("*123*4711#", true, false, MAIN_MENU, true);
    answer(walk, "2", BOUGHT, false);
    QCOMPARE(keysOf(walk), QString());
}

void ChainsTest::aQuestionOfTheNetworkEndsTheRecord()
{
    WalkRecorder walk;
    sendCode(walk, "*123#", MAIN_MENU, true);
    walk.takeReply(std::string(), false, true, "You have won.", false);
    answer(walk, "2", PACKS, true);
    walk.takeReply(std::string(), false, true, "Buy?\n1 Yes\n2 No", true);
    answer(walk, "1", "Bought.", false);
    QCOMPARE(keysOf(walk), QString());
}

void ChainsTest::aWalkThatHasNotEndedIsNotOffered()
{
    WalkRecorder walk;
    sendCode(walk, "*123#", MAIN_MENU, true);
    answer(walk, "2", PACKS, true);
    QCOMPARE(keysOf(walk), QString());
}

void ChainsTest::aMenuThatTheUserEndsEndsTheWalk()
{
    WalkRecorder walk;
    sendCode(walk, "*123#", MAIN_MENU, true);
    answer(walk, "2", PACKS, true);
    walk.end();
    QCOMPARE(keysOf(walk), QString::fromUtf8("*123# › 2"));
    answer(walk, "1", BOUGHT, false); // not recorded, because no menu is open
    QCOMPARE(keysOf(walk), QString::fromUtf8("*123# › 2"));
    walk.forget();
    QCOMPARE(keysOf(walk), QString());
}

void ChainsTest::whatMayNotBeRunIsIncomplete_data()
{
    QTest::addColumn<QString>("part");
    QTest::addColumn<QString>("value");
    QTest::newRow("name") << "name"
                          << "";
    QTest::newRow("code") << "code"
                          << "1234";
    QTest::newRow("code with letters") << "code"
                                       << "*12a#";
    QTest::newRow("place") << "code"
                           << "*12*%s#";
    QTest::newRow("key") << "key"
                         << "12345";
    QTest::newRow("code as key") << "key"
                                 << "*100#";
    QTest::newRow("text") << "text"
                          << "";
    QTest::newRow("steps") << "steps"
                           << "";
}

void ChainsTest::whatMayNotBeRunIsIncomplete()
{
    QFETCH(QString, part);
    QFETCH(QString, value);
    Chain chain = packChain();
    QVERIFY(isComplete(chain));
    if (part == QLatin1String("name"))
        chain.name = value.toStdString();
    else if (part == QLatin1String("code"))
        chain.code = value.toStdString();
    else if (part == QLatin1String("key"))
        chain.steps[1].key = value.toStdString();
    else if (part == QLatin1String("text"))
        chain.steps[1].text = value.toStdString();
    else
        chain.steps.clear();
    QVERIFY(!isComplete(chain));
}

USSD_TEST_MAIN(ChainsTest)
#include "chains_test.moc"
