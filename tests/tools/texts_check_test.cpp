#include "FileCheck.h"
#include "Languages.h"
#include "UssdTest.h"

using namespace Tools;

/// Tests how ussd-config checks the file with an operator's texts together with the other files in
/// the same folder.
class TextsCheckTest : public UssdTest
{
    Q_OBJECT

private slots:
    void completeFileIsClean();
    void mistakes_data();
    void mistakes();
    void ownKeyNeedsEveryLanguage();
    void ownKeyOfTheConfigurationIsFound();
    void scenarioIsNoTextFile();

private:
    CheckReport check(const QByteArray &content);
};

namespace
{
QByteArray profiles(const char *key)
{
    return QByteArray("<tksvdoc><item><name>Club</name><value>*1#</value><readonly>true</readonly>"
                      "<showButton>true</showButton><langID>") +
           key + "</langID><desLangID/></item></tksvdoc>";
}

QByteArray inEveryLanguage(const QByteArray &line)
{
    QByteArray content;
    for (const QString &code : HostCore::Languages::codes())
        content += '[' + code.toLatin1() + "]\n" + line + '\n';
    return content;
}

bool hasFinding(const CheckReport &report, const QString &rule, int line, const QString &part)
{
    for (const CheckFinding &finding : report.findings) {
        if (finding.rule == rule && finding.line == line && finding.text.contains(part))
            return true;
    }
    return false;
}
} // namespace

CheckReport TextsCheckTest::check(const QByteArray &content)
{
    return checkFile(writeFile(QLatin1String("ussdtexts.ini"), content));
}

void TextsCheckTest::completeFileIsClean()
{
    const CheckReport report = check("[en]\nIDS_BUTTON_SEND=Off\n[de]\nIDS_BUTTON_SEND=Ab\n");
    QCOMPARE(report.kind, QStringLiteral("texts"));
    QVERIFY2(report.findings.isEmpty(), qPrintable(reportText(report)));
    QCOMPARE(report.tables.first().rows.count(), 2);
}

void TextsCheckTest::mistakes_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("part");
    QTest::newRow("missing language")
        << QByteArray("[en]\nIDS_BUTTON_SEND=Off\n[de]\nIDS_BUTTON_CLOSE=Zu\n")
        << QStringLiteral("language") << 2 << QStringLiteral("no text for de");
    QTest::newRow("unknown language")
        << QByteArray("[en]\nIDS_BUTTON_SEND=a\n[xx]\nIDS_BUTTON_SEND=b\n")
        << QStringLiteral("language") << 4 << QStringLiteral("\"xx\"");
    QTest::newRow("unknown key") << QByteArray("[en]\nIDS_BUTTON_SEDN=Off\n")
                                 << QStringLiteral("key") << 2 << QStringLiteral("IDS_BUTTON_SEDN");
    QTest::newRow("placeholder") << QByteArray("[en]\nIDS_BUTTON_SEND=Off %1\n")
                                 << QStringLiteral("placeholder") << 2 << QStringLiteral("none");
    QTest::newRow("unreadable") << QByteArray("[en]\nIDS_BUTTON_SEND=a\nnonsense\n")
                                << QStringLiteral("texts") << 3 << QStringLiteral("KEY=text");
}

void TextsCheckTest::mistakes()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, rule);
    QFETCH(int, line);
    QFETCH(QString, part);
    const CheckReport report = check(content);
    QVERIFY2(hasFinding(report, rule, line, part), qPrintable(reportText(report)));
}

void TextsCheckTest::ownKeyNeedsEveryLanguage()
{
    writeFile(QLatin1String("ussdsysprofile.xml"), profiles("MY_CLUB"));
    QVERIFY(check(inEveryLanguage("MY_CLUB=Club")).findings.isEmpty());
    const CheckReport report = check("[en]\nMY_CLUB=Club\n[fr]\nMY_CLUB=Club\n");
    QCOMPARE(report.findings.count(), 1);
    QVERIFY(hasFinding(report, QStringLiteral("language"), 2, QStringLiteral("de")));
    QVERIFY(!report.findings.first().text.contains(QLatin1String("fr")));
}

/// Tests that the check of the profiles accepts text keys that are defined only in the operator's
/// file.
void TextsCheckTest::ownKeyOfTheConfigurationIsFound()
{
    const QString file = writeFile(QLatin1String("ussdsysprofile.xml"), profiles("MY_CLUB"));
    const auto keyFindings = [&file] {
        const CheckReport report = checkFile(file);
        int count = 0;
        for (const CheckFinding &finding : report.findings)
            count += finding.rule == QLatin1String("key") ? 1 : 0;
        return count;
    };
    QCOMPARE(keyFindings(), 1);
    writeFile(QLatin1String("ussdtexts.ini"), inEveryLanguage("MY_CLUB=Club"));
    QCOMPARE(keyFindings(), 0);
}

void TextsCheckTest::scenarioIsNoTextFile()
{
    QCOMPARE(check("[Network]\nOperator=a\n").kind, QStringLiteral("scenario"));
    QCOMPARE(check("# [Network]\n[de]\n").kind, QStringLiteral("texts"));
}

USSD_TEST_MAIN(TextsCheckTest)
#include "texts_check_test.moc"
