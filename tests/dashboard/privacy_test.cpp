#include <QDir>
#include <QDirIterator>
#include <QLineEdit>

#include <cstring>

#include "account/Favourites.h"
#include "DeviceTest.h"
#include "pages/CodesPage.h"
#include "plugin/CodeHistory.h"
#include "plugin/GeneralWindow.h"
#include "plugin/ProfileBackup.h"
#include "window/MessageParts.h"

using namespace Dashboard;

namespace
{

const char PIN[] = "83619274";
const char VOUCHER[] = "7319462850317";
const char IMSI[] = "001019358274610";
const char NUMBER[] = "551846203"; // the phone number in all replies, without the country code
const char16_t NUMBER_REPLY[] = u"Your number is +999551846203.";
const char16_t BALANCE_REPLY[] =
    u"Balance: 12.50 EUR. +999 55-184-6203 has used voucher 7319-4628-50317.";
const char MISSED_CALL[] = "Missed call from +999551846203. A new voucher: 7319462850317";
const long long NOON = 1795262400; // 2026-11-21 12:00 UTC

QByteArray utf16(const QByteArray &text, bool isBigEndian)
{
    QByteArray result;
    for (const char character : text)
        result += isBigEndian ? QByteArray(1, '\0') + character : character + QByteArray(1, '\0');
    return result;
}

/// Returns the content without the characters that may separate the digits of a number.
QByteArray packed(QByteArray content)
{
    for (const char separator : {'\0', ' ', '-', '.'})
        content.replace(QByteArray(1, separator), QByteArray());
    return content;
}

bool contains(const QByteArray &content, const QByteArray &secret)
{
    return content.contains(secret) || content.contains(utf16(secret, false)) ||
           content.contains(utf16(secret, true)) || packed(content).contains(secret);
}

/// Returns the files below the folder that contain the secret.
QStringList filesWith(const QString &folder, const char *secret)
{
    QStringList found;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        if (contains(contentOf(file), secret))
            found << file;
    }
    return found;
}

} // namespace

/**
 * Tests that no file contains a PIN, a voucher, an IMSI or a phone number after a session in which
 * the program has handled all of them.
 */
class PrivacyTest : public DeviceTest
{
    Q_OBJECT
protected:
    void setUpClass() override { qputenv("USSD_PLUGIN_LIBRARY_PATH", PLUGIN_FOLDER); }
    void setUp() override;

private slots:
    void theSearchFindsEachForm();
    void aSessionLeavesNoSecretInAFile();

private:
    void saveOwnCode();
    void enterPin();
    void send(const char *code, const std::u16string &reply, int type = 0);
    void say(const char *text, bool waitsForAnswer);
    void useEverything();
};

void PrivacyTest::setUp()
{
    QDir(QDir::homePath()).removeRecursively(); // deletes the files of an earlier run
    QVERIFY(QDir().mkpath(QDir::homePath()));
    DeviceTest::setUp();
}

void PrivacyTest::enterPin()
{
    tell(modemInfo(TKSV_DEVICE_SIM_LOCKED, TKSV_PROBLEM_NONE, 3));
    remedyButton(Remedy::EnterPin)->click();
    QTest::keyClicks(part<QLineEdit>("Dashboard_PinEdit"), QLatin1String(PIN));
    part<QPushButton>("Dashboard_PinOk")->click();
    QCOMPARE(int(fakeSdkCalls("TKSV_Device_SendPin").size()), 1);
    TKSV_DeviceInfo info = modemInfo(TKSV_DEVICE_REGISTERED);
    std::strcpy(info.imsi, IMSI);
    tell(info);
}

void PrivacyTest::send(const char *code, const std::u16string &reply, int type)
{
    fakeSdkSetAnswer(fakeReply(reply, type));
    const GeneralWindow general(window().page());
    QTRY_VERIFY(!general.isWaiting());
    QVERIFY(general.send(QLatin1String(code)));
    QVERIFY(fakeSdkWaitIdle());
    drainEvents();
}

void PrivacyTest::say(const char *text, bool waitsForAnswer)
{
    fakeSdkTellNetworkText(text, waitsForAnswer, NOON);
    QVERIFY(fakeSdkWaitIdle());
    drainEvents();
}

/// Saves a code of the user, as the editor does.
void PrivacyTest::saveOwnCode()
{
    const QString own = QDir::homePath() + QLatin1String("/own/");
    QVERIFY(QDir().mkpath(own));
    fakeSdkSetUserDataDirectory(own.toStdU16String());
    QFile profiles(ProfileBackup::ofUser().userFile());
    QVERIFY(profiles.open(QIODevice::WriteOnly));
    profiles.write("<tksvdoc><item><name>Mine</name><value>*199*4711#</value><readonly>false"
                   "</readonly><showButton>false</showButton><langID></langID><desLangID>"
                   "</desLangID></item></tksvdoc>");
}

void PrivacyTest::useEverything()
{
    saveOwnCode();
    enterPin();
    loadPlugin();
    window().showPage(PageId::Home);
    send("*100#", BALANCE_REPLY);
    send("*102#", NUMBER_REPLY);
    send("*101*7319462850317#", u"Voucher 7319462850317 accepted.");
    send("*199*4711#", u"Done.");
    send("*199*83619274#", u"Done.");
    send("*106*551846203#", u"1.00 EUR sent to 0551846203.");
    send("*123#", u"To which number?", 1);
    send("0551846203", u"Sent to +999551846203.");
    say(MISSED_CALL, false);
    say("Call +999551846203?\n1 Yes", true);
    send("1", u"");
    NamedCode topUp;
    topUp.code = QLatin1String("*101*%s#");
    QVERIFY(Favourites(Favourites::userFile()).select({topUp}));
    for (const PageId page : {PageId::Codes, PageId::Messages, PageId::Settings, PageId::Home})
        window().showPage(page);
    drainEvents();
}

void PrivacyTest::theSearchFindsEachForm()
{
    writeFile(QLatin1String("utf8"), "x+999551846203x");
    writeFile(QLatin1String("le"), 'x' + utf16("0551846203", false));
    writeFile(QLatin1String("be"), utf16("0551846203", true));
    writeFile(QLatin1String("spaces"), "+999 55-184 6203");
    writeFile(QLatin1String("other"), "+999551846204");
    QCOMPARE(filesWith(folder(), NUMBER).size(), 4);
}

void PrivacyTest::aSessionLeavesNoSecretInAFile()
{
    useEverything();
    const MessageStore &store = window().findChild<MessageParts *>()->store();
    QCOMPARE(store.file().isEmpty(), false);
    tearDown(); // writes the data that is still in memory
    const QString home = QDir::homePath();
    // Proves that the session has written its files.
    QCOMPARE(filesWith(home, "1250EUR").size(), 1);
    QCOMPARE(filesWith(home, "Missedcallfrom").size(), 1);
    QVERIFY(filesWith(home, "*106*").size() == 1);
    QCOMPARE(filesWith(home, "*101*%s#").size(), 1);
    QVERIFY(contentOf(CodeHistory::fileOfUser()).contains("*199*4711#"));
    for (const char *secret : {PIN, VOUCHER, IMSI, NUMBER})
        QCOMPARE(filesWith(home, secret), QStringList());
}

USSD_TEST_MAIN(PrivacyTest)
#include "privacy_test.moc"
