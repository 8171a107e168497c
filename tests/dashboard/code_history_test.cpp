#include <QFileInfo>
#include <QSignalSpy>

#include "plugin/CodeForms.h"
#include "plugin/CodeHistory.h"
#include "UssdTest.h"

using namespace Dashboard;

/** Tests that codes are stored, but that phone numbers and PINs are not. */
class CodeHistoryTest : public UssdTest
{
    Q_OBJECT
private slots:
    void numbersAreHidden_data();
    void numbersAreHidden();
    void digitsComeBack();
    void codesAreKept();
    void theFileIsPrivate();
    void onlyFiftyAreKept();
    void noNumberIsOnTheDisk();
    void codesOfTheOperatorAreKeptWhole();
    void otherLinesAreSkipped();
    void nothingIsWrittenIfTheUserSaysSo();
    void inventedCodesHaveTheirOwnList();
    void allIsDeleted();
    void aFullDiskIsReported();

private:
    QString file() { return folder() + QLatin1String("/data/code-history"); }
    static QStringList codesOf(const CodeHistory &history);
};

QStringList CodeHistoryTest::codesOf(const CodeHistory &history)
{
    QStringList codes;
    for (const SentCode &sent : history.codes())
        codes << sent.code;
    return codes;
}

void CodeHistoryTest::numbersAreHidden_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("templates");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *code, const char *templates, const char *shown) {
        QTest::newRow(code) << QString::fromUtf8(code) << QString::fromUtf8(templates)
                            << QString::fromUtf8(shown);
    };
    row("*100#", "", "*100#");
    row("*#06#", "", "*#06#");
    row("*149*01#", "", "*149*01#");
    row("*101*1234567890#", "", "*101*…#");
    row("*101*1234#", "", "*101*…#");
    row("*140*+49170123#", "", "*140*…#");
    row("*21*017012345678#", "", "*21*…#");
    row("*140*0170*5*2580#", "", "*140*…*5*…#");
    row("*140*123#", "*140*%s#", "*140*…#");
    row("*140*12#", "*150*%s#|*140*%s#", "*140*…#");
    row("*1000*2024#", "*1000*2024#", "*1000*2024#");
    row("*100*1234#", "*100*%s#|*100*1234#", "*100*1234#"); // a code of the operator
    row("*100*1235#", "*100*%s#|*100*1234#", "*100*…#");
    row("*123456#", "*123456#", "*123456#");
    row("*123456#", "", "*…#");
    row("01701234567", "", "…");
    row("*140*…#", "", "*140*…#");
}

void CodeHistoryTest::numbersAreHidden()
{
    QFETCH(QString, code);
    QFETCH(QString, templates);
    QFETCH(QString, shown);
    QCOMPARE(codeWithoutNumbers(code, templates.split(QLatin1Char('|'))), shown);
}

void CodeHistoryTest::digitsComeBack()
{
    const QString code = QString::fromUtf8("*140*…*…#");
    QVERIFY(hasHiddenDigits(code));
    const QString once = withDigits(code, QLatin1String("1"));
    QCOMPARE(once, QString::fromUtf8("*140*1*…#"));
    QCOMPARE(withDigits(once, QLatin1String("2")), QLatin1String("*140*1*2#"));
    QVERIFY(!hasHiddenDigits(withDigits(once, QLatin1String("2"))));
}

void CodeHistoryTest::codesAreKept()
{
    {
        CodeHistory history(file());
        QSignalSpy changed(&history, &CodeHistory::changed);
        for (const char *code : {"*100#", "*104#", "*100#"})
            history.add(QLatin1String(code));
        QCOMPARE(changed.count(), 3);
    }
    const CodeHistory again(file());
    QCOMPARE(codesOf(again), QStringList({QLatin1String("*100#"), QLatin1String("*104#")}));
    QVERIFY(again.codes().first().time.secsTo(QDateTime::currentDateTimeUtc()) < 60);
}

void CodeHistoryTest::theFileIsPrivate()
{
    CodeHistory history(file());
    history.add(QLatin1String("*100#"));
    QCOMPARE(QFile::permissions(file()) & ~(QFile::ReadUser | QFile::WriteUser),
             QFile::ReadOwner | QFile::WriteOwner);
}

void CodeHistoryTest::onlyFiftyAreKept()
{
    CodeHistory history(file());
    for (int i = 100; i < 160; ++i)
        history.add(QString::fromLatin1("*%1#").arg(i));
    QCOMPARE(history.codes().size(), 50);
    QCOMPARE(history.codes().first().code, QLatin1String("*159#"));
    QCOMPARE(CodeHistory(file()).codes().size(), 50);
}

void CodeHistoryTest::noNumberIsOnTheDisk()
{
    CodeHistory history(file());
    for (const char *code : {"*101*1234567890#", "1234567890", "*140*1234567890*1#"})
        history.add(QLatin1String(code));
    const QByteArray kept = contentOf(file());
    QVERIFY(kept.contains("*101*"));
    QVERIFY2(!kept.contains("1234567890"), kept.constData());
    QCOMPARE(history.codes().size(), 2); // answers and phone numbers are not codes
}

void CodeHistoryTest::codesOfTheOperatorAreKeptWhole()
{
    const QStringList sent = {QLatin1String("*100*1234#"), QLatin1String("*123456#")};
    {
        CodeHistory history(file());
        history.setTemplates(sent);
        for (const QString &code : sent)
            history.add(code);
        history.add(QLatin1String("*100*1235#")); // a code that the user has typed
        QCOMPARE(codesOf(history).first(), QString::fromUtf8("*100*…#"));
    }
    const CodeHistory again(file());
    QCOMPARE(codesOf(again).mid(1), QStringList({sent.last(), sent.first()}));
}

void CodeHistoryTest::otherLinesAreSkipped()
{
    const QString path =
        writeFile(QLatin1String("history"), "rubbish\n2026-11-22T10:00:00Z\t*100#\n"
                                            "2026-11-22T10:00:00Z\tno code\nno time\t*101#\n\n"
                                            "2026-11-22T10:00:00Z\t*102*…#\n");
    const CodeHistory history(path);
    QCOMPARE(codesOf(history), QStringList(QLatin1String("*100#")) << QString::fromUtf8("*102*…#"));
}

void CodeHistoryTest::nothingIsWrittenIfTheUserSaysSo()
{
    CodeHistory history(file());
    history.add(QLatin1String("*100#"));
    history.setKept(false);
    QVERIFY(!QFile::exists(file()));
    history.add(QLatin1String("*104#"));
    QVERIFY(!QFile::exists(file()));
    QCOMPARE(history.codes().size(), 2);
}

void CodeHistoryTest::inventedCodesHaveTheirOwnList()
{
    CodeHistory history(file());
    history.add(QLatin1String("*100#"));
    history.setInvented(true);
    QVERIFY(history.codes().isEmpty());
    history.add(QLatin1String("*199#"));
    QCOMPARE(codesOf(history), QStringList(QLatin1String("*199#")));
    QVERIFY(!contentOf(file()).contains("*199#"));
    history.setInvented(false);
    history.add(QLatin1String("*104#"));
    QCOMPARE(codesOf(history), QStringList({QLatin1String("*104#"), QLatin1String("*100#")}));
    QVERIFY(!contentOf(file()).contains("*199#"));
    history.deleteAll();
    history.setInvented(true);
    QVERIFY(history.codes().isEmpty());
}

void CodeHistoryTest::allIsDeleted()
{
    CodeHistory history(file());
    history.add(QLatin1String("*100#"));
    history.deleteAll();
    QVERIFY(history.codes().isEmpty() && !QFile::exists(file()));
}

void CodeHistoryTest::aFullDiskIsReported()
{
    writeFile(QLatin1String("data"), "a file in place of the folder");
    CodeHistory history(file());
    QSignalSpy failed(&history, &CodeHistory::notWritten);
    history.add(QLatin1String("*100#"));
    QCOMPARE(failed.count(), 1);
    QCOMPARE(history.codes().size(), 1);
}

USSD_TEST_MAIN(CodeHistoryTest)
#include "code_history_test.moc"
