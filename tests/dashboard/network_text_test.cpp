#include <QDir>
#include <QSignalSpy>

#include <cstring>

#include "account/Favourites.h"
#include "DeviceTest.h"
#include "pages/SettingsPage.h"
#include "plugin/CodeHistory.h"
#include "plugin/GeneralWindow.h"
#include "ProvisionWriter.h"
#include "sim/PaidTypeFinder.h"
#include "window/HomeSetup.h"
#include "window/MessageParts.h"

using namespace Dashboard;

/** Tests how the dashboard shows network-initiated messages. */
class NetworkTextTest : public DeviceTest
{
    Q_OBJECT
protected:
    void setUp() override;

private slots:
    void aTextIsCountedAndKept();
    void readingMakesTheBadgeDisappear();
    void aTextTakesNoFocus();
    void aLongTextChangesNoSize();
    void aQuestionDoesNotMoveThePage();
    void goingToTheGeneralWindowEndsNothingOnTheDevice();
    void whatIsBeingTypedStays();
    void anAnswerEndsTheQuestion();
    void nothingIsAskedWhileAMenuIsOpen();
    void deletingAllDeletesTheTexts();
    void deletingAllLeavesNoFile();

private:
    void say(const char *text, bool waitsForAnswer = false);
    MessageStore &store() { return window().findChild<MessageParts *>()->store(); }
    QString unread() const
    {
        return part<QPushButton>("Dashboard_NavMessages")->accessibleDescription();
    }
    GeneralWindow page() { return GeneralWindow(window().page()); }
};

namespace
{

const long long NOON = 1795262400; // 2026-11-21 12:00 UTC

/// Returns the names of the files in which the program has stored the user's data.
QStringList keptFiles()
{
    const QDir home(Provisioning::userDataHome());
    QStringList files = home.entryList(QDir::Files, QDir::Name);
    for (const QString &name : QDir(home.filePath(QLatin1String("account"))).entryList(QDir::Files))
        files << QLatin1String("account/") + name;
    return files;
}

} // namespace

void NetworkTextTest::setUp()
{
    DeviceTest::setUp();
    store().removeAll(); // deletes the messages of the previous test
}

void NetworkTextTest::say(const char *text, bool waitsForAnswer)
{
    fakeSdkTellNetworkText(text, waitsForAnswer, NOON);
    QVERIFY(fakeSdkWaitIdle());
    drainEvents();
}

void NetworkTextTest::aTextIsCountedAndKept()
{
    QCOMPARE(unread(), QString());
    say("<b>Offer</b> &amp;\xe2\x80\xaegfed\x1b[31m");
    QCOMPARE(unread(), QLatin1String("1 unread"));
    QVERIFY(store().newest().text.startsWith(QLatin1String("<b>Offer</b> &amp;")));
    QVERIFY(!store().newest().text.contains(QChar(0x202e)));
    QVERIFY(!store().newest().text.contains(QChar(0x1b)));
    QCOMPARE(store().newest().receivedAt, QDateTime::fromSecsSinceEpoch(NOON).toLocalTime());
    QCOMPARE(store().waiting(), 0);
    say("second");
    QCOMPARE(unread(), QLatin1String("2 unread"));
}

void NetworkTextTest::readingMakesTheBadgeDisappear()
{
    say("first");
    store().markAllRead();
    QCOMPARE(unread(), QString());
    QCOMPARE(part<QPushButton>("Dashboard_Bell")->toolTip(), QLatin1String("Messages"));
}

void NetworkTextTest::aTextTakesNoFocus()
{
    loadPlugin();
    drainEvents();
    QLineEdit *edit = page().commandEdit();
    edit->setFocus();
    QWidget *before = window().focusWidget();
    say("offer");
    QCOMPARE(window().focusWidget(), before);
    QCOMPARE(before, edit);
}

void NetworkTextTest::aLongTextChangesNoSize()
{
    say("short");
    const QSize size = window().size();
    const QSize least = window().minimumSizeHint();
    say(QByteArray(200000, 'W').constData());
    QCOMPARE(window().size(), size);
    QCOMPARE(window().minimumSizeHint(), least);
    QVERIFY(store().newest().text.size() < 20000);
}

void NetworkTextTest::aQuestionDoesNotMoveThePage()
{
    loadPlugin();
    window().showPage(PageId::Home);
    say("A gigabyte?\n1 Yes", true);
    QCOMPARE(int(window().currentPage()), int(PageId::Home));
    QVERIFY(!page().commandEdit()->isVisible());
    QVERIFY(store().waiting() != 0);
    QCOMPARE(unread(), QLatin1String("1 unread"));
}

void NetworkTextTest::goingToTheGeneralWindowEndsNothingOnTheDevice()
{
    loadPlugin();
    window().showPage(PageId::Home);
    fakeSdkForgetRecords();
    say("A gigabyte?\n1 Yes", true);
    window().showPage(PageId::Codes);
    QVERIFY(page().commandEdit()->isVisible());
    QVERIFY(fakeSdkCalls("TKSV_USSDSrv_Release").empty());
    QVERIFY(page().send(QLatin1String("1")));
    QVERIFY(fakeSdkCommands() == std::vector<std::u16string>{u"1"});
    QVERIFY(fakeSdkCalls("TKSV_USSDSrv_Release").empty());
}

void NetworkTextTest::whatIsBeingTypedStays()
{
    loadPlugin();
    typeInto(page().commandEdit(), QLatin1String("*10"));
    say("A gigabyte?\n1 Yes", true);
    QCOMPARE(page().commandEdit()->text(), QLatin1String("*10"));
}

void NetworkTextTest::anAnswerEndsTheQuestion()
{
    loadPlugin();
    say("A gigabyte?\n1 Yes", true);
    QVERIFY(store().waiting() != 0);
    QVERIFY(page().send(QLatin1String("1")));
    QTRY_COMPARE(store().waiting(), 0);
    QVERIFY(!store().newest().text.isEmpty());
}

// Tests that the prepaid/postpaid query is not sent while a menu is open, because the query would
// close the menu.
void NetworkTextTest::nothingIsAskedWhileAMenuIsOpen()
{
    loadPlugin();
    fakeSdkForgetRecords();
    say("", true);
    TKSV_DeviceInfo info = modemInfo(TKSV_DEVICE_REGISTERED);
    std::strcpy(info.imsi, "001010000000007");
    QSignalSpy settled(window().findChild<PaidTypeFinder *>(), SIGNAL(settled()));
    tell(info);
    QVERIFY(settled.wait(10000)); // without a menu, the query would be sent now
    drainEvents();
    QVERIFY(fakeSdkCommands().empty());
    QVERIFY(fakeSdkCalls("TKSV_USSDSrv_Release").empty());
}

void NetworkTextTest::deletingAllDeletesTheTexts()
{
    say("secret");
    window().showPage(PageId::Settings);
    emit part<SettingsPage>("Dashboard_SettingsPage")->deleteAllRequested();
    QCOMPARE(unread(), QString());
    QVERIFY(store().newest().text.isEmpty());
}

void NetworkTextTest::deletingAllLeavesNoFile()
{
    TKSV_DeviceInfo info = modemInfo(TKSV_DEVICE_REGISTERED);
    std::strcpy(info.imsi, "001010123456789");
    tell(info);
    say("secret");
    AccountEntry entry;
    entry.askedAt = QDateTime::currentDateTime();
    entry.code = QLatin1String("*100#");
    entry.text = QLatin1String("Balance: 12.50 EUR");
    window().findChild<HomeSetup *>()->store().add(entry);
    NamedCode balance;
    balance.code = QLatin1String("*100#");
    QVERIFY(Favourites(Favourites::userFile()).select({balance}));
    CodeHistory(CodeHistory::fileOfUser()).add(QLatin1String("*100#"));
    const QStringList all = {QLatin1String("code-history"), QLatin1String("favourites.json"),
                             QLatin1String("messages.sqlite"), QLatin1String("sim-salt"),
                             QLatin1String("account/replies.sqlite")};
    QCOMPARE(keptFiles(), all);
    const QString salt = Provisioning::userDataHome() + QLatin1String("/sim-salt");
    const QByteArray before = contentOf(salt);
    window().showPage(PageId::Settings);
    emit part<SettingsPage>("Dashboard_SettingsPage")->deleteAllRequested();
    QCOMPARE(keptFiles(), QStringList(QLatin1String("sim-salt"))); // a new salt for later entries
    QVERIFY(contentOf(salt) != before);
    say("next");
    tell(modemInfo(TKSV_DEVICE_ABSENT));
    tell(info);
    QCOMPARE(store().newest().text, QLatin1String("next")); // the salt has not changed again
}

USSD_TEST_MAIN(NetworkTextTest)
#include "network_text_test.moc"
