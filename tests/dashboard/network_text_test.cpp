#include <QPlainTextEdit>
#include <QSignalSpy>

#include <cstring>

#include "DeviceTest.h"
#include "plugin/GeneralWindow.h"
#include "sim/PaidTypeFinder.h"
#include "window/NetworkTextPanel.h"

using namespace Dashboard;

/** Tests how the dashboard shows messages that the network initiates. */
class NetworkTextTest : public DeviceTest
{
    Q_OBJECT
private slots:
    void nothingIsShownBeforeATextCame();
    void aTextIsShownPlainWithItsTime();
    void severalTextsStandInOrder();
    void aTextCannotSteerWhatIsShown();
    void aCodeReadsFromLeftToRight();
    void aLongTextChangesNoSize();
    void thePanelTakesNoFocus();
    void aQuestionDoesNotMoveThePage();
    void openingTheGeneralWindowEndsNothingOnTheDevice();
    void whatIsBeingTypedStays();
    void anAnswerEndsTheQuestion();
    void aMenuWithoutItsTextIsSaidInWords();
    void nothingIsAskedWhileAMenuIsOpen();
    void closingForgetsTheTexts();

private:
    void say(const char *text, bool waitsForAnswer = false);
    QString shown() const { return panel()->findChild<QPlainTextEdit *>()->toPlainText(); }
    NetworkTextPanel *panel() const { return part<NetworkTextPanel>("Dashboard_NetworkTexts"); }
    bool isAsking() const { return part<QLabel>("Dashboard_NetworkQuestion")->isVisible(); }
    GeneralWindow page() { return GeneralWindow(window().page()); }
};

namespace
{
const long long NOON = 1795262400; // 2026-11-21 12:00 UTC
}

void NetworkTextTest::say(const char *text, bool waitsForAnswer)
{
    fakeSdkTellNetworkText(text, waitsForAnswer, NOON);
    QVERIFY(fakeSdkWaitIdle());
    drainEvents();
}

void NetworkTextTest::nothingIsShownBeforeATextCame()
{
    QVERIFY(!panel()->isVisible());
}

void NetworkTextTest::aTextIsShownPlainWithItsTime()
{
    say("<b>Offer</b> &amp; <img src='file:///etc/passwd'>");
    QVERIFY(panel()->isVisible());
    QVERIFY2(shown().contains(QLatin1String("<b>Offer</b> &amp; <img src='file:///etc/passwd'>")),
             qPrintable(shown()));
    const QDateTime noon = QDateTime::fromSecsSinceEpoch(NOON).toLocalTime();
    QVERIFY(shown().contains(QLocale().toString(noon, QLocale::ShortFormat)));
    QVERIFY(!isAsking());
}

void NetworkTextTest::severalTextsStandInOrder()
{
    say("first");
    say("second");
    QVERIFY(shown().indexOf(QLatin1String("first")) < shown().indexOf(QLatin1String("second")));
    QVERIFY(shown().contains(QLatin1String("first")));
}

void NetworkTextTest::aTextCannotSteerWhatIsShown()
{
    say("a\xe2\x80\xaegfed\x1b[31m\x07");
    QVERIFY(!shown().contains(QChar(0x202e)));
    QVERIFY(!shown().contains(QChar(0x1b)));
}

void NetworkTextTest::aCodeReadsFromLeftToRight()
{
    say("\xd8\xa7\xd8\xb7\xd9\x84\xd8\xa8 *100*12# 5");
    const QString mark = QString(QChar(0x200e));
    QVERIFY(shown().contains(mark + QLatin1String("*100*12#") + mark + QLatin1String(" 5")));
}

void NetworkTextTest::aLongTextChangesNoSize()
{
    say("short");
    const QSize size = window().size();
    const QSize least = window().minimumSizeHint();
    say(QByteArray(200000, 'W').constData());
    QCOMPARE(window().size(), size);
    QCOMPARE(window().minimumSizeHint(), least);
    QVERIFY(shown().size() < 20000);
}

void NetworkTextTest::thePanelTakesNoFocus()
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

void NetworkTextTest::aQuestionDoesNotMoveThePage()
{
    loadPlugin();
    window().showPage(PageId::Home);
    QVERIFY(!page().commandEdit()->isVisible());
    say("A gigabyte?\n1 Yes", true);
    QVERIFY(!page().commandEdit()->isVisible()); // a message never moves the page
    QVERIFY(isAsking());
}

void NetworkTextTest::openingTheGeneralWindowEndsNothingOnTheDevice()
{
    loadPlugin();
    window().showPage(PageId::Home);
    fakeSdkForgetRecords();
    say("A gigabyte?\n1 Yes", true);
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
    QVERIFY(isAsking());
    QVERIFY(page().send(QLatin1String("1")));
    QTRY_VERIFY(!isAsking());
    QVERIFY(panel()->isVisible());
}

void NetworkTextTest::aMenuWithoutItsTextIsSaidInWords()
{
    say("", true);
    QVERIFY2(shown().contains(QLatin1String("menu is still open")), qPrintable(shown()));
    QVERIFY(isAsking());
}

// The request that detects the paid type would close the menu.
void NetworkTextTest::nothingIsAskedWhileAMenuIsOpen()
{
    loadPlugin();
    fakeSdkForgetRecords();
    say("", true);
    TKSV_DeviceInfo info = modemInfo(TKSV_DEVICE_REGISTERED);
    std::strcpy(info.imsi, "001010000000007");
    QSignalSpy settled(window().findChild<PaidTypeFinder *>(), SIGNAL(settled()));
    tell(info);
    QVERIFY(settled.wait(10000)); // without a menu, the request would be sent now
    drainEvents();
    QVERIFY(fakeSdkCommands().empty());
    QVERIFY(fakeSdkCalls("TKSV_USSDSrv_Release").empty());
}

void NetworkTextTest::closingForgetsTheTexts()
{
    say("secret");
    QTest::mouseClick(part<QPushButton>("Dashboard_CloseNetworkTexts"), Qt::LeftButton);
    QVERIFY(!panel()->isVisible());
    say("other");
    QVERIFY(!shown().contains(QLatin1String("secret")));
}

USSD_TEST_MAIN(NetworkTextTest)
#include "network_text_test.moc"
