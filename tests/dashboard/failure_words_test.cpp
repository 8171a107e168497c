#include <QSet>

#include <cstring>

#include "device/FailureWords.h"
#include "FailureText.h"
#include "LanguageList.h"
#include "UssdTest.h"

using namespace Dashboard;

namespace
{

const TKSV_Failure REASONS[] = {
    TKSV_FAILURE_ENDED_BY_NETWORK, TKSV_FAILURE_NOT_SUPPORTED,  TKSV_FAILURE_NETWORK_TIMEOUT,
    TKSV_FAILURE_REFUSED,          TKSV_FAILURE_NO_ANSWER,      TKSV_FAILURE_EMPTY_REPLY,
    TKSV_FAILURE_UNDECODABLE,      TKSV_FAILURE_NOT_ENCODABLE,  TKSV_FAILURE_NO_DEVICE,
    TKSV_FAILURE_DISABLED,         TKSV_FAILURE_NOT_REGISTERED, TKSV_FAILURE_DEVICE_LOST,
    TKSV_FAILURE_NOT_PERMITTED,    TKSV_FAILURE_IN_USE,         TKSV_FAILURE_NOT_ON_4G,
    TKSV_FAILURE_CANCELLED};

TKSV_FailureInfo failure(TKSV_Failure reason, bool wasNotSent = false, const char *text = "")
{
    TKSV_FailureInfo info = {};
    info.reason = reason;
    info.wasNotSent = wasNotSent ? 1 : 0;
    std::strncpy(info.text, text, sizeof info.text - 1);
    return info;
}

} // namespace

/** Tests the messages about failed commands. */
class FailureWordsTest : public UssdTest
{
    Q_OBJECT
protected:
    void tearDown() override { HostCore::Languages::setCurrent(QLatin1String("en")); }

private slots:
    void noFailureHasNoWords();
    void englishIsThatOfTheOtherPrograms();
    void everyReasonHasItsWordsInEveryLanguage();
    void theClosingTextOfTheNetworkIsShown();
    void everyReasonHasATitleAndAMeaning();
    void anUnknownOutcomeIsSaidBeforeItIsSentAgain();
    void aCommandThatWasNotSentSaysSo();
};

void FailureWordsTest::noFailureHasNoWords()
{
    QCOMPARE(failureWords(failure(TKSV_FAILURE_NONE)), QString());
}

void FailureWordsTest::englishIsThatOfTheOtherPrograms()
{
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en")));
    for (const TKSV_Failure reason : REASONS) {
        for (const bool wasNotSent : {false, true}) {
            const TKSV_FailureInfo info = failure(reason, wasNotSent);
            QCOMPARE(failureWords(info), QString::fromStdString(Cli::failureText(info)));
        }
    }
}

void FailureWordsTest::everyReasonHasItsWordsInEveryLanguage()
{
    QSet<QString> all;
    int count = 0;
    for (const QString &code : languagesWithoutVariants()) {
        QVERIFY(HostCore::Languages::setCurrent(code));
        for (const TKSV_Failure reason : REASONS) {
            all << failureWords(failure(reason));
            ++count;
        }
    }
    QCOMPARE(all.size(), count);
}

void FailureWordsTest::theClosingTextOfTheNetworkIsShown()
{
    const QString words =
        failureWords(failure(TKSV_FAILURE_ENDED_BY_NETWORK, false, "Kein Guthaben für %1"));
    QVERIFY2(words.endsWith(QString::fromUtf8("Kein Guthaben für %1")), qPrintable(words));
}

void FailureWordsTest::everyReasonHasATitleAndAMeaning()
{
    const QString code = QLatin1String("*104#");
    for (const QString &language : HostCore::Languages::codes()) {
        QVERIFY(HostCore::Languages::setCurrent(language));
        for (const TKSV_Failure reason : REASONS) {
            for (const bool wasNotSent : {false, true}) {
                const QString title = failureTitle(failure(reason, wasNotSent), code);
                const QString meaning = failureMeaning(failure(reason, wasNotSent), code);
                QVERIFY(!title.isEmpty() && !meaning.isEmpty());
                QVERIFY2(!(title + meaning).contains(QLatin1Char('%')), qPrintable(title));
                QVERIFY2(!title.contains(QLatin1String("STRIP_")), qPrintable(title));
            }
        }
    }
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en")));
    QCOMPARE(failureTitle(failure(TKSV_FAILURE_NO_ANSWER), code),
             QLatin1String("No reply to *104#"));
    QCOMPARE(failureMeaning(failure(TKSV_FAILURE_REFUSED, false, "Goodbye"), code),
             QLatin1String("Last message of the network: Goodbye"));
}

// Tests that the message warns the user that the network may have executed the code. Otherwise, the
// user might press "Send again" and pay twice.
void FailureWordsTest::anUnknownOutcomeIsSaidBeforeItIsSentAgain()
{
    const QString code = QLatin1String("*104#");
    for (const TKSV_Failure reason :
         {TKSV_FAILURE_NO_ANSWER, TKSV_FAILURE_DEVICE_LOST, TKSV_FAILURE_CANCELLED}) {
        const QString meaning = failureMeaning(failure(reason), code);
        QVERIFY2(meaning.contains(QLatin1String("may have")) ||
                     meaning.contains(QLatin1String("is not known")),
                 qPrintable(meaning));
    }
    for (const TKSV_Failure reason : {TKSV_FAILURE_EMPTY_REPLY, TKSV_FAILURE_UNDECODABLE})
        QVERIFY(!mayBeSentAgain(failure(reason))); // the network has executed the code
}

void FailureWordsTest::aCommandThatWasNotSentSaysSo()
{
    const QString code = QLatin1String("*104#");
    for (const TKSV_Failure reason : REASONS) {
        if (reason == TKSV_FAILURE_CANCELLED)
            continue;
        QCOMPARE(failureTitle(failure(reason, true), code), QLatin1String("*104# was not sent"));
        const QString meaning = failureMeaning(failure(reason, true), code);
        QVERIFY2(!meaning.contains(QLatin1String("may have")), qPrintable(meaning));
    }
    QCOMPARE(failureMeaning(failure(TKSV_FAILURE_CANCELLED, true), code),
             QLatin1String("You stopped *104#. It was not sent."));
}

USSD_TEST_MAIN(FailureWordsTest)
#include "failure_words_test.moc"
