#include <QLineEdit>

#include "DeviceTest.h"
#include "look/Controls.h"
#include "window/PinDialog.h"

using namespace Dashboard;

/** Tests entering the PIN of a locked SIM, from pressing the button to the SDK call. */
class PinDialogTest : public DeviceTest
{
    Q_OBJECT
protected:
    void setUp() override;

private slots:
    void onlyALockedSimHasTheButton();
    void aSimThatNeedsItsPukHasNoButton();
    void thePinIsHiddenAndTakesDigitsOnly();
    void theEyeShowsThePinUntilItIsSent();
    void onlyFourToEightDigitsAreSent_data();
    void onlyFourToEightDigitsAreSent();
    void returnSendsAndTheFieldForgets();
    void whileItIsTriedNothingIsSentAgain();
    void theRightPinClosesTheDialog();
    void aWrongPinIsSaidAndTheDialogStays();
    void theLastTryIsWarnedOf();
    void thePukEndsTheTrying();
    void aPinThatCannotBeSentIsSaid();
    void escapeForgetsThePin();
    void thePinIsInNoLogAndNoFile();
    void theTabOrderAndTheNames();

private:
    PinDialog *dialog() const { return part<PinDialog>("Dashboard_PinDialog"); }
    QLineEdit *edit() const { return part<QLineEdit>("Dashboard_PinEdit"); }
    QPushButton *ok() const { return part<QPushButton>("Dashboard_PinOk"); }
    QString said() const { return part<QLabel>("Dashboard_PinMessage")->text(); }
    static std::vector<std::string> sentPins();
};

void PinDialogTest::setUp()
{
    DeviceTest::setUp();
    tell(modemInfo(TKSV_DEVICE_SIM_LOCKED, TKSV_PROBLEM_NONE, 3));
    QTest::mouseClick(remedyButton(Remedy::EnterPin), Qt::LeftButton);
    QVERIFY(dialog() && dialog()->isVisible());
}

std::vector<std::string> PinDialogTest::sentPins()
{
    std::vector<std::string> pins;
    for (const FakeCall &call : fakeSdkCalls("TKSV_Device_SendPin"))
        pins.push_back(call.path);
    return pins;
}

void PinDialogTest::onlyALockedSimHasTheButton()
{
    QVERIFY(remedyButton(Remedy::EnterPin));
    tell(modemInfo(TKSV_DEVICE_REGISTERED));
    QVERIFY(!remedyButton(Remedy::EnterPin));
}

void PinDialogTest::aSimThatNeedsItsPukHasNoButton()
{
    tell(modemInfo(TKSV_DEVICE_SIM_LOCKED, TKSV_PROBLEM_PUK_NEEDED, 0));
    QVERIFY(!remedyButton(Remedy::EnterPin));
    QVERIFY(trouble().contains(QLatin1String("PUK")));
}

void PinDialogTest::thePinIsHiddenAndTakesDigitsOnly()
{
    QCOMPARE(edit()->echoMode(), QLineEdit::Password);
    QTest::keyClicks(edit(), QLatin1String("1a2*3#4567890"));
    QCOMPARE(edit()->text(), QLatin1String("12345678"));
    QVERIFY(!edit()->displayText().contains(QLatin1Char('1')));
}

void PinDialogTest::theEyeShowsThePinUntilItIsSent()
{
    QTest::keyClicks(edit(), QLatin1String("2468"));
    QTest::mouseClick(part<QPushButton>("Dashboard_PinEye"), Qt::LeftButton);
    QCOMPARE(edit()->displayText(), QLatin1String("2468"));
    QTest::keyClick(edit(), Qt::Key_Return);
    QCOMPARE(edit()->echoMode(), QLineEdit::Password);
}

void PinDialogTest::onlyFourToEightDigitsAreSent_data()
{
    QTest::addColumn<QString>("pin");
    QTest::addColumn<bool>("isSent");
    QTest::newRow("none") << QString() << false;
    QTest::newRow("three") << QString::fromLatin1("123") << false;
    QTest::newRow("four") << QString::fromLatin1("1234") << true;
    QTest::newRow("eight") << QString::fromLatin1("12345678") << true;
}

void PinDialogTest::onlyFourToEightDigitsAreSent()
{
    QFETCH(QString, pin);
    QFETCH(bool, isSent);
    QTest::keyClicks(edit(), pin);
    QCOMPARE(ok()->isEnabled(), isSent);
    QTest::keyClick(edit(), Qt::Key_Return);
    QCOMPARE(sentPins().size(), std::size_t(isSent));
    if (isSent)
        QCOMPARE(QString::fromStdString(sentPins().front()), pin);
}

void PinDialogTest::returnSendsAndTheFieldForgets()
{
    QTest::keyClicks(edit(), QLatin1String("2468"));
    QTest::keyClick(edit(), Qt::Key_Return);
    QCOMPARE(sentPins(), std::vector<std::string>{"2468"});
    QVERIFY(edit()->text().isEmpty());
    edit()->setEnabled(true);
    edit()->undo();
    QVERIFY(edit()->text().isEmpty());
}

void PinDialogTest::whileItIsTriedNothingIsSentAgain()
{
    QTest::keyClicks(edit(), QLatin1String("2468"));
    QTest::mouseClick(ok(), Qt::LeftButton);
    QVERIFY(!edit()->isEnabled());
    QVERIFY(!ok()->isEnabled());
    QTest::mouseClick(ok(), Qt::LeftButton);
    QCOMPARE(sentPins().size(), std::size_t(1));
    QVERIFY(!said().isEmpty());
}

void PinDialogTest::theRightPinClosesTheDialog()
{
    QTest::keyClicks(edit(), QLatin1String("2468"));
    QTest::keyClick(edit(), Qt::Key_Return);
    tell(modemInfo(TKSV_DEVICE_SEARCHING));
    QVERIFY(!dialog() || !dialog()->isVisible());
}

void PinDialogTest::aWrongPinIsSaidAndTheDialogStays()
{
    QTest::keyClicks(edit(), QLatin1String("1111"));
    QTest::keyClick(edit(), Qt::Key_Return);
    tell(modemInfo(TKSV_DEVICE_SIM_LOCKED, TKSV_PROBLEM_WRONG_PIN, 2));
    QVERIFY(dialog()->isVisible());
    QVERIFY2(said().contains(QLatin1String("not the PIN")), qPrintable(said()));
    QCOMPARE(part<Chip>("Dashboard_PinTriesChip")->text(), QLatin1String("2 tries left"));
    QVERIFY(!part<QLabel>("Dashboard_PinTries")->isVisible());
    QVERIFY(edit()->isEnabled());
    QTest::keyClicks(edit(), QLatin1String("2468"));
    QTest::keyClick(edit(), Qt::Key_Return);
    QCOMPARE(sentPins(), (std::vector<std::string>{"1111", "2468"}));
}

void PinDialogTest::theLastTryIsWarnedOf()
{
    tell(modemInfo(TKSV_DEVICE_SIM_LOCKED, TKSV_PROBLEM_WRONG_PIN, 1));
    const QLabel *tries = part<QLabel>("Dashboard_PinTries");
    QVERIFY(tries->isVisible());
    QVERIFY(tries->text().contains(QLatin1String("One try is left")));
    QCOMPARE(part<Chip>("Dashboard_PinTriesChip")->text(), QLatin1String("1 try left"));
    QVERIFY(trouble().contains(QLatin1String("One try is left")));
}

void PinDialogTest::thePukEndsTheTrying()
{
    QTest::keyClicks(edit(), QLatin1String("1111"));
    QTest::keyClick(edit(), Qt::Key_Return);
    tell(modemInfo(TKSV_DEVICE_SIM_LOCKED, TKSV_PROBLEM_PUK_NEEDED, 0));
    QVERIFY(dialog()->isVisible());
    QVERIFY(said().contains(QLatin1String("PUK")));
    QVERIFY(!edit()->isEnabled());
    QVERIFY(!ok()->isEnabled());
}

void PinDialogTest::aPinThatCannotBeSentIsSaid()
{
    fakeSdkSetResult("TKSV_Device_SendPin", 1);
    QTest::keyClicks(edit(), QLatin1String("2468"));
    QTest::keyClick(edit(), Qt::Key_Return);
    QVERIFY(said().contains(QLatin1String("could not be sent")));
    QVERIFY(edit()->isEnabled());
}

void PinDialogTest::escapeForgetsThePin()
{
    QTest::keyClicks(edit(), QLatin1String("2468"));
    QTest::keyClick(edit(), Qt::Key_Escape);
    QVERIFY(!dialog() || edit()->text().isEmpty());
    drainEvents();
    QVERIFY(!dialog());
    QVERIFY(sentPins().empty());
}

void PinDialogTest::thePinIsInNoLogAndNoFile()
{
    QTest::keyClicks(edit(), QLatin1String("97531864"));
    QTest::keyClick(edit(), Qt::Key_Return);
    tell(modemInfo(TKSV_DEVICE_SIM_LOCKED, TKSV_PROBLEM_WRONG_PIN, 2));
    QCOMPARE(sentPins().size(), std::size_t(1));
    QCOMPARE(timesLogged("97531864"), 0);
    for (const QObject *object : window().findChildren<QObject *>()) {
        const QLabel *label = qobject_cast<const QLabel *>(object);
        QVERIFY(!label || !label->text().contains(QLatin1String("97531864")));
    }
}

void PinDialogTest::theTabOrderAndTheNames()
{
    QVERIFY(edit()->hasFocus() || dialog()->focusWidget() == edit());
    QTest::keyClicks(edit(), QLatin1String("2468"));
    QVERIFY(!edit()->accessibleName().isEmpty());
    QTest::keyClick(edit(), Qt::Key_Tab);
    QCOMPARE(dialog()->focusWidget(), ok());
    QTest::keyClick(ok(), Qt::Key_Tab);
    QCOMPARE(dialog()->focusWidget(), part<QPushButton>("Dashboard_PinCancel"));
    QCOMPARE(part<QLabel>("Dashboard_PinLabel")->buddy(), edit());
}

USSD_TEST_MAIN(PinDialogTest)
#include "pin_dialog_test.moc"
