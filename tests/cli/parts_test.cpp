#include <csignal>

#include "CommandText.h"
#include "ExitCodes.h"
#include "FailureText.h"
#include "SafeText.h"
#include "Signals.h"
#include "TerminalText.h"
#include "UssdTest.h"

#include <sys/wait.h>
#include <unistd.h>

using namespace Cli;

/**
 * Tests functions that `ussd` shares with other programs, and functions that cannot be tested by
 * running the program.
 */
class PartsTest : public UssdTest
{
    Q_OBJECT
private slots:
    void eachCharacterIsAsSafeAsInTheDashboard();
    void lineEndsAreAsInTheDashboard_data();
    void lineEndsAreAsInTheDashboard();
    void invalidBytesAreReplaced();
    void everyReasonHasACodeAndATextOfItsOwn();
    void onlyCertaintySaysNotCarriedOut();
    void textsSurviveTheRecord_data();
    void textsSurviveTheRecord();
    void loneSurrogatesAreReplaced();
    void theSecondSignalIsNotHeldBack();
};

namespace
{

QString safe(const QString &text)
{
    return QString::fromStdString(safeText(text.toUtf8().toStdString()));
}

const int FAILURES[] = {2, 4, 5, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28};

std::string textOf(int reason, bool wasNotSent)
{
    TKSV_FailureInfo failure = {};
    failure.reason = TKSV_Failure(reason);
    failure.wasNotSent = wasNotSent;
    return failureText(failure);
}

} // namespace

/// Tests that safe() and terminalText() return the same string for each character of the basic
/// multilingual plane and for a character outside this plane.
void PartsTest::eachCharacterIsAsSafeAsInTheDashboard()
{
    for (int unit = 1; unit < 0x10000; ++unit) {
        if (QChar::isSurrogate(uint(unit)))
            continue;
        const QString text = QLatin1Char('a') + QString(QChar(unit)) + QLatin1Char('z');
        QCOMPARE(safe(text), HostCore::terminalText(text));
    }
    const QString smile = QString::fromUtf8("\xf0\x9f\x98\x80");
    QCOMPARE(safe(smile), HostCore::terminalText(smile));
}

void PartsTest::lineEndsAreAsInTheDashboard_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"1\r\n2", "1\r2", "1\n\r2", "\r\r\n\n", "\r\n\r\n", "1\r"})
        QTest::newRow(QByteArray(text).toHex()) << latin1(text);
}

void PartsTest::lineEndsAreAsInTheDashboard()
{
    QFETCH(QString, text);
    QCOMPARE(safe(text), HostCore::terminalText(text));
}

void PartsTest::invalidBytesAreReplaced()
{
    QCOMPARE(safeText("a\xff\xfe"), std::string("a\xef\xbf\xbd\xef\xbf\xbd"));
}

void PartsTest::everyReasonHasACodeAndATextOfItsOwn()
{
    QSet<QString> texts;
    QSet<QString> names;
    for (const int reason : FAILURES) {
        QVERIFY(exitCodeOf(TKSV_Failure(reason)) != EXIT_DONE);
        texts << QString::fromStdString(textOf(reason, true));
        names << QString::fromLatin1(reasonName(TKSV_Failure(reason)));
    }
    const int count = int(sizeof FAILURES / sizeof *FAILURES);
    QCOMPARE(texts.size(), count);
    QCOMPARE(names.size(), count);
    QVERIFY(!texts.contains(QString()));
    QCOMPARE(exitCodeOf(TKSV_FAILURE_NONE), int(EXIT_DONE));
    QVERIFY(textOf(TKSV_FAILURE_NONE, true).empty());
}

void PartsTest::onlyCertaintySaysNotCarriedOut()
{
    for (const int reason : FAILURES) {
        const QString certain = QString::fromStdString(textOf(reason, true));
        const QString uncertain = QString::fromStdString(textOf(reason, false));
        QVERIFY2(certain.contains(latin1("It was not carried out.")), qPrintable(certain));
        QVERIFY2(!uncertain.contains(latin1("It was not carried out.")), qPrintable(uncertain));
        QVERIFY(!certain.contains(latin1("may have carried out")));
        const bool isUnknown = reason == TKSV_FAILURE_NO_ANSWER ||
                               reason == TKSV_FAILURE_DEVICE_LOST ||
                               reason == TKSV_FAILURE_CANCELLED;
        QCOMPARE(uncertain.contains(latin1("may have carried out")), isUnknown);
    }
}

void PartsTest::textsSurviveTheRecord_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("code") << QByteArray("*100#");
    QTest::newRow("letters") << QByteArray("Łódź €");
    QTest::newRow("outside the first plane") << QByteArray("\xf0\x9f\x98\x80");
    QTest::newRow("longest") << QByteArray(TKSV_USSD_MAX_UNITS, '1');
}

void PartsTest::textsSurviveTheRecord()
{
    QFETCH(QByteArray, text);
    QCOMPARE(commandProblem(text.toStdString()), std::string());
    const TKSV_USSDRequest request = requestOf(text.toStdString());
    QCOMPARE(request.length, unsigned(QString::fromUtf8(text).size() * 2));
    std::vector<unsigned short> units(request.text, request.text + request.length / 2);
    units.push_back(0);
    QCOMPARE(QByteArray::fromStdString(fromUtf16(units.data())), text);
}

void PartsTest::loneSurrogatesAreReplaced()
{
    const unsigned short units[] = {'a', 0xd83d, 'b', 0xde00, 0xd83d, 0};
    QCOMPARE(fromUtf16(units), std::string("a\xef\xbf\xbd"
                                           "b\xef\xbf\xbd\xef\xbf\xbd"));
}

/// Tests that the first signal can be read from the descriptor, and that the second signal ends the
/// process immediately.
void PartsTest::theSecondSignalIsNotHeldBack()
{
    const pid_t child = fork();
    if (child == 0) {
        signal(SIGTERM, SIG_DFL);
        Signals blocked;
        kill(getpid(), SIGTERM);
        if (blocked.take() != SIGTERM)
            _exit(1);
        kill(getpid(), SIGTERM);
        _exit(2);
    }
    int status = 0;
    QCOMPARE(waitpid(child, &status, 0), child);
    QVERIFY2(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM,
             qPrintable(QString::number(WEXITSTATUS(status))));
}

USSD_TEST_MAIN(PartsTest)
#include "parts_test.moc"
