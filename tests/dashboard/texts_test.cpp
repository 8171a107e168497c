#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

#include "base/DashboardText.h"
#include "Languages.h"
#include "UssdTest.h"

using namespace Dashboard;

/**
 * Tests that every text key has a translation. Finds the keys in all string literals, including
 * those in tables.
 */
class TextsTest : public UssdTest
{
    Q_OBJECT
private slots:
    void everyKeyOfTheSourcesHasATextInEveryLanguage();
    void theHelpNamesEveryOption();
};

namespace
{

QStringList keysIn(const QString &code)
{
    // The prefixes of the dashboard's text keys. Other names in upper case are environment
    // variables.
    static const QRegularExpression key(QLatin1String(
        "\"((?:APP|MENU|ACTION|WINDOWS?|NETWORK|SCENARIO|ALL|SOURCE|OPERATOR|SIM|STATE|"
        "SIGNAL|NAME|PLUGIN|CLI|SEND|TOUR|PAID|RESTORE|ADVICE|PIN|TEXT|LOG|CODES|"
        "DEMONSTRATION|FAILURE|COMMAND|DEVICE|FOREIGN|LOOK|NAV|BANNER|SETTINGS|FIRST|HEADER|STRIP|"
        "HISTORY|CHOICE|CHAIN|SHEET|HOME|ACCOUNT|REMEDY|SERVICE|MESSAGE|QUESTION)_[A-Z_]+)\""));
    QStringList keys;
    for (auto match = key.globalMatch(code); match.hasNext();)
        keys << match.next().captured(1);
    return keys;
}

QStringList keysOfSources()
{
    QDirIterator names(QLatin1String(DASHBOARD_SOURCES), QStringList(QLatin1String("*.cpp")),
                       QDir::Files, QDirIterator::Subdirectories);
    QStringList keys;
    while (names.hasNext()) {
        QFile file(names.next());
        if (file.open(QIODevice::ReadOnly))
            keys << keysIn(QString::fromUtf8(file.readAll()));
    }
    keys.removeDuplicates();
    return keys;
}

} // namespace

void TextsTest::everyKeyOfTheSourcesHasATextInEveryLanguage()
{
    const QStringList keys = keysOfSources();
    QVERIFY(keys.size() > 50);
    for (const QString &code : HostCore::Languages::codes()) {
        QVERIFY(HostCore::Languages::setCurrent(code));
        for (const QString &key : keys)
            QVERIFY2(dashboardText(key.toLatin1().constData()) != key,
                     qPrintable(code + QLatin1Char(' ') + key));
    }
}

void TextsTest::theHelpNamesEveryOption()
{
    for (const QString &code : HostCore::Languages::codes()) {
        QVERIFY(HostCore::Languages::setCurrent(code));
        const QString help = dashboardText("CLI_HELP");
        for (const char *option :
             {"--send", "--tour", "--export", "--demo", "--scenario", "--modem", "--enable",
              "--end-foreign-session", "--language", "--verbose", "--log", "--help", "--version"})
            QVERIFY2(help.contains(QLatin1String(option)), option);
    }
}

USSD_TEST_MAIN(TextsTest)
#include "texts_test.moc"
