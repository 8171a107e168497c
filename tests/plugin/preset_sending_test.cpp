#include "PresetButtonsTest.h"

/** Tests which codes the preset buttons send, and when the buttons are enabled. */
class PresetSendingTest : public PresetButtonsTest
{
    Q_OBJECT

private:
    /// Writes a profile with a button for each code.
    void writeCodes(const QList<QByteArray> &codes);

private slots:
    // ---- sending
    void buttonSendsItsCode();
    void paymentButtonWithoutNumberSendsNothing();
    void buttonOfAProfileWithoutCodeSendsNothing();
    void everyPlaceholderIsReplaced();
    void placeholderInCapitalsIsNotReplaced();
    void placeholderOfAnOrdinaryButtonIsSentAsItIs();
    void numberWithPlaceholderLetterIsNotReplacedAgain();
    void lastTwoOfFewButtonsArePaymentButtons();
    void singleButtonIsAPaymentButton();

    // ---- states
    void paymentButtonsFollowThePaymentEdit();
    void paymentButtonsAreDisabledAfterEveryAnswer();
    void allButtonsAreDisabledWhileWaiting();
};

void PresetSendingTest::writeCodes(const QList<QByteArray> &codes)
{
    QByteArray items;
    for (int i = 0; i < codes.count(); ++i)
        items += profileItem(nameOf(i), codes.at(i), "true", "true");
    writeSystemProfiles(profileFile(items));
}

// ---- sending ------------------------------------------------------------------------------------

void PresetSendingTest::buttonSendsItsCode()
{
    writeProfiles("1111");
    open();
    click(presetButtons().at(1));
    QCOMPARE(requests(), QStringList{latin1("*101#")});
    QCOMPARE(shownLines(), QStringList{sentLine(latin1("*101#"))});
    QVERIFY(isWaiting());
}

void PresetSendingTest::paymentButtonWithoutNumberSendsNothing()
{
    writeCodes({"*1#", "*2*%s#", "*3*%s#"});
    open();
    for (int i : {1, 2}) {
        presetButtons().at(i)->setEnabled(true); // as a host might do
        click(presetButtons().at(i));
    }
    QVERIFY(requests().isEmpty());
    QVERIFY(shownLines().isEmpty());
    QVERIFY(commandEdit()->isEnabled());
}

void PresetSendingTest::buttonOfAProfileWithoutCodeSendsNothing()
{
    writeSystemProfiles(profileFile(profileItem("Whole", "*100#") + profileItem("A", "*1#") +
                                    profileItem("B", "*2#"))
                            .replace("<value>*100#", "<value>"));
    open();
    click(presetButtons().first());
    QVERIFY(requests().isEmpty());
    QVERIFY(shownLines().isEmpty());
    QVERIFY(isIdle());
}

void PresetSendingTest::everyPlaceholderIsReplaced()
{
    writeCodes({"*1#", "*2*%s*%s#", "%s%s"});
    open();
    QTest::keyClicks(paymentEdit(), latin1("123"));
    click(presetButtons().at(1));
    QCOMPARE(requests(), QStringList{latin1("*2*123*123#")});
    QCOMPARE(shownLines(), QStringList{sentLine(latin1("*2*123*123#"))});
    networkSays(latin1("ok"));
    QTest::keyClicks(paymentEdit(), latin1("9"));
    click(presetButtons().at(2));
    QCOMPARE(requests().last(), latin1("99"));
}

void PresetSendingTest::placeholderInCapitalsIsNotReplaced()
{
    writeCodes({"*1#", "*2*%S#"});
    open();
    QTest::keyClicks(paymentEdit(), latin1("123"));
    click(presetButtons().at(1));
    QCOMPARE(requests(), QStringList{latin1("*2*%S#")});
}

void PresetSendingTest::placeholderOfAnOrdinaryButtonIsSentAsItIs()
{
    writeCodes({"*1*%s#", "*2#", "*3#"});
    open();
    QTest::keyClicks(paymentEdit(), latin1("123"));
    click(presetButtons().at(0));
    QCOMPARE(requests(), QStringList{latin1("*1*%s#")});
}

void PresetSendingTest::numberWithPlaceholderLetterIsNotReplacedAgain()
{
    writeCodes({"%%s"});
    open();
    paymentEdit()->setText(latin1("s%s")); // setText() bypasses the checks of the field
    presetButtons().first()->setEnabled(true);
    click(presetButtons().first());
    QCOMPARE(requests(), QStringList{latin1("%s%s")});
}

void PresetSendingTest::lastTwoOfFewButtonsArePaymentButtons()
{
    writeProfiles("1011"); // creates three buttons
    open();
    QTest::keyClicks(paymentEdit(), latin1("5"));
    paymentEdit()->clear();
    dialog()->changeAllPreBtnsStatus(true);
    click(presetButtons().at(2));
    click(presetButtons().at(1));
    QVERIFY(requests().isEmpty());
    click(presetButtons().at(0));
    QCOMPARE(requests(), QStringList{latin1("*100#")});
}

void PresetSendingTest::singleButtonIsAPaymentButton()
{
    writeCodes({"*1*%s#"});
    open();
    QPushButton *button = presetButtons().first();
    button->setEnabled(true);
    click(button);
    QVERIFY(requests().isEmpty());
    QTest::keyClicks(paymentEdit(), latin1("7"));
    QVERIFY(button->isEnabled());
    click(button);
    QCOMPARE(requests(), QStringList{latin1("*1*7#")});
    networkSays(latin1("ok"));
    QVERIFY(!button->isEnabled());
}

// ---- states -------------------------------------------------------------------------------------

void PresetSendingTest::paymentButtonsFollowThePaymentEdit()
{
    writeProfiles("11111111111");
    open();
    const QList<QPushButton *> buttons = presetButtons();
    QTest::keyClicks(paymentEdit(), latin1("1"));
    QVERIFY(buttons.at(9)->isEnabled());
    QVERIFY(buttons.at(10)->isEnabled());
    QTest::keyClick(paymentEdit(), Qt::Key_Backspace);
    QVERIFY(!buttons.at(9)->isEnabled());
    QVERIFY(!buttons.at(10)->isEnabled());
    QTest::keyClicks(paymentEdit(), latin1("x")); // the field rejects the letter
    QVERIFY(!buttons.at(10)->isEnabled());
    for (int i = 0; i < 9; ++i)
        QVERIFY(buttons.at(i)->isEnabled());
}

void PresetSendingTest::paymentButtonsAreDisabledAfterEveryAnswer()
{
    writeProfiles("1111");
    open();
    for (int round = 0; round < 3; ++round) {
        QTest::keyClicks(paymentEdit(), latin1("1"));
        send(latin1("*9#"));
        networkSays(latin1("ok"));
        QVERIFY(presetButtons().at(1)->isEnabled());
        QVERIFY(!presetButtons().at(2)->isEnabled());
        QVERIFY(!presetButtons().at(3)->isEnabled());
    }
}

void PresetSendingTest::allButtonsAreDisabledWhileWaiting()
{
    writeProfiles("11111111111");
    open();
    QTest::keyClicks(paymentEdit(), latin1("1"));
    click(presetButtons().at(10));
    for (QPushButton *button : presetButtons())
        QVERIFY(!button->isEnabled());
    click(presetButtons().at(0));
    QCOMPARE(requests().count(), 1);
}

USSD_TEST_MAIN(PresetSendingTest)

#include "preset_sending_test.moc"
