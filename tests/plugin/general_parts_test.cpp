#include "GeneralDialogTest.h"

/** Tests the widgets of the general dialog and their connections. */
class GeneralPartsTest : public GeneralDialogTest
{
    Q_OBJECT

private slots:
    // ---- parts
    void partsHaveTheirNames_data();
    void partsHaveTheirNames();
    void textsAreThoseOfTheLanguage();
    void modalDialogHasAFixedSize();
    void embeddedDialogFitsItsPage();
    void historyCanBeReadButNotWritten();
    void comboIsHiddenButAlive();
    void fieldsOfferNoMenuWhereTheyMustNot();
    void marginsAreFixed();
    void labelsAreWrappedPlainText();
    void sizeBeforeInitIsInvalid();
    void clearButtonFollowsTheConfiguration_data();
    void clearButtonFollowsTheConfiguration();
    void editButtonIsHiddenUnlessConfigured();
    void codesReadFromLeftToRightInArabic();
    void keysThatReachTheDialogAreSwallowed();

    // ---- connections
    void closeButtonAsksToBeClosed();
    void sendButtonSends();
    void returnInTheComboSends();
    void comboTextEnablesSend();
    void activatedItemIsTakenOver();
    void highlightedItemIsTakenOver();
    void activatedIndexOutsideTheListDoesNothing_data();
    void activatedIndexOutsideTheListDoesNothing();
    void comboTextShowsItsDescription();
    void answerOfTheLogicIsShown();
    void clearButtonClears();
    void presetEventSends();
    void typedCommandEnablesSend();
};

// ---- parts --------------------------------------------------------------------------------------

void GeneralPartsTest::partsHaveTheirNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("className");
    QTest::newRow("history") << latin1("History") << QByteArray("QTextEdit");
    QTest::newRow("info") << latin1("InfoLabel") << QByteArray("QLabel");
    QTest::newRow("combo") << latin1("ProfilesCombo") << QByteArray("QComboBox");
    QTest::newRow("send") << latin1("SendButton") << QByteArray("QPushButton");
    QTest::newRow("clear") << latin1("ClearButton") << QByteArray("QPushButton");
    QTest::newRow("close") << latin1("CloseButton") << QByteArray("QPushButton");
    QTest::newRow("edit") << latin1("EditButton") << QByteArray("QPushButton");
    QTest::newRow("number") << latin1("InfoNumLabel") << QByteArray("QLabel");
    QTest::newRow("payment") << latin1("PaymentEdit") << QByteArray("QLineEdit");
    QTest::newRow("command") << latin1("USSDCmdEdit") << QByteArray("QLineEdit");
}

void GeneralPartsTest::partsHaveTheirNames()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, className);
    open();
    const QString fullName = latin1("USSDUIPlugin_AdvancedDialog_") + name;
    const QWidgetList parts = dialog()->findChildren<QWidget *>(fullName);
    QCOMPARE(parts.count(), 1);
    QVERIFY(parts.first()->inherits(className.constData()));
}

void GeneralPartsTest::textsAreThoseOfTheLanguage()
{
    open();
    QCOMPARE(dialog()->windowTitle(), text("IDS_ADVANCE_USSD"));
    QCOMPARE(part<QLabel>("InfoLabel")->text(), text("IDC_STATIC_USSDTIP"));
    QCOMPARE(part<QLabel>("InfoNumLabel")->text(), text("IDC_STATIC_USSDNUMTIP"));
    QCOMPARE(sendButton()->text(), text("IDS_BUTTON_SEND"));
    QCOMPARE(clearButton()->text(), text("IDC_BUTTON_CLEARHISTOTY"));
    QCOMPARE(closeButton()->text(), text("IDC_GENERAL_CLOSE"));
    QCOMPARE(promptLabel()->text(), QString());
    QCOMPARE(descriptionLabel()->text(), QString());
    QVERIFY(!sendButton()->isEnabled());
}

void GeneralPartsTest::modalDialogHasAFixedSize()
{
    open(WINDOW_MODEL_MODAL);
    QCOMPARE(dialog()->minimumSize(), QSize(588, 465));
    QCOMPARE(dialog()->maximumSize(), QSize(588, 465));
    QCOMPARE(promptLabel()->minimumHeight(), 32);
    QCOMPARE(history()->minimumHeight(), 100);
    QCOMPARE(history()->maximumHeight(), 220);
    QCOMPARE(history()->cursorWidth(), 0);
    QCOMPARE(descriptionLabel()->minimumHeight(), 32);
}

void GeneralPartsTest::embeddedDialogFitsItsPage()
{
    open(WINDOW_MODEL_EMBEDDED);
    QCOMPARE(dialog()->parentWidget(), page());
    QCOMPARE(dialog()->size(), page()->size());
    QCOMPARE(dialog()->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    QCOMPARE(descriptionLabel()->minimumHeight(), 32);
    QVERIFY(history()->cursorWidth() > 0);
}

void GeneralPartsTest::historyCanBeReadButNotWritten()
{
    open();
    QVERIFY(!history()->textInteractionFlags().testFlag(Qt::TextEditable));
    QVERIFY(history()->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
    QCOMPARE(history()->contextMenuPolicy(), Qt::NoContextMenu);
    QTest::keyClicks(history(), latin1("abc"));
    QCOMPARE(history()->toPlainText(), QString());
}

void GeneralPartsTest::comboIsHiddenButAlive()
{
    open();
    QVERIFY(!combo()->isVisible());
    QVERIFY(combo()->isEditable());
    QCOMPARE(combo()->count(), 4);
    QCOMPARE(combo()->itemText(2), latin1("Top up"));
    QCOMPARE(combo()->currentIndex(), -1);
    QCOMPARE(combo()->maxVisibleItems(), 5);
    QCOMPARE(combo()->insertPolicy(), QComboBox::NoInsert);
    QCOMPARE(combo()->view()->textElideMode(), Qt::ElideNone);
    QCOMPARE(combo()->lineEdit()->maxLength(), 40);
    QCOMPARE(timesLogged(" max length is set for combo"), 1);
}

void GeneralPartsTest::fieldsOfferNoMenuWhereTheyMustNot()
{
    open();
    QCOMPARE(paymentEdit()->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(combo()->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(paymentEdit()->minimumHeight(), 23);
    QCOMPARE(commandEdit()->minimumHeight(), 23);
    QVERIFY(commandEdit()->maxLength() > 1000); // only the combo box limits the length
}

void GeneralPartsTest::marginsAreFixed()
{
    for (WINDOW_MODEL model : {WINDOW_MODEL_MODAL, WINDOW_MODEL_EMBEDDED}) {
        open(model);
        QVERIFY(gridOf(dialog()));
        QCOMPARE(gridOf(dialog())->contentsMargins(), QMargins(70, 20, 70, 20));
    }
}

void GeneralPartsTest::labelsAreWrappedPlainText()
{
    open();
    for (QLabel *label : {part<QLabel>("InfoLabel"), part<QLabel>("InfoNumLabel"), promptLabel(),
                          descriptionLabel()}) {
        QVERIFY(label->wordWrap());
        QCOMPARE(label->textFormat(), Qt::PlainText);
    }
}

void GeneralPartsTest::sizeBeforeInitIsInvalid()
{
    USSDGeneralDlg fresh;
    QCOMPARE(fresh.GetSize(), QSize(-1, -1));
    open();
    QCOMPARE(dialog()->GetSize(), gridOf(dialog())->sizeHint());
}

void GeneralPartsTest::clearButtonFollowsTheConfiguration_data()
{
    QTest::addColumn<QByteArray>("visible");
    QTest::addColumn<bool>("shown");
    QTest::newRow("true") << QByteArray("<clearHistory visible='true' ") << true;
    QTest::newRow("false") << QByteArray("<clearHistory visible='false' ") << false;
    QTest::newRow("capitals") << QByteArray("<clearHistory visible='TRUE' ") << false;
    QTest::newRow("no section") << QByteArray("<other ") << false;
}

void GeneralPartsTest::clearButtonFollowsTheConfiguration()
{
    QFETCH(QByteArray, visible);
    QFETCH(bool, shown);
    changeConfig("<clearHistory visible='true' ", visible.constData());
    open();
    QCOMPARE(clearButton()->isVisible(), shown);
    QVERIFY(!clearButton()->isVisible() || !clearButton()->isEnabled());
}

void GeneralPartsTest::editButtonIsHiddenUnlessConfigured()
{
    changeConfig("<cmdEdit visible='true'>", "<cmdEdit visible='false'>");
    open();
    QVERIFY(!part<QPushButton>("EditButton")->isVisible());
}

void GeneralPartsTest::codesReadFromLeftToRightInArabic()
{
    QVERIFY(HostCore::Languages::setCurrent(latin1("ar")));
    open();
    QCOMPARE(dialog()->layoutDirection(), Qt::RightToLeft);
    QCOMPARE(commandEdit()->layoutDirection(), Qt::LeftToRight);
    QCOMPARE(paymentEdit()->layoutDirection(), Qt::LeftToRight);
    // After an Arabic caption, the left-to-right mark ensures that a code is displayed in the
    // correct order.
    QVERIFY(text("IDS_USSD_SEND").endsWith(QChar(0x200e)));
    QVERIFY(text("IDS_USSD_RECEIVED").endsWith(QChar(0x200e)));
}

void GeneralPartsTest::keysThatReachTheDialogAreSwallowed()
{
    open();
    KeyCounter outside;
    dialog()->setParent(&outside);
    for (int key : {int(Qt::Key_Escape), int(Qt::Key_Return), int(Qt::Key_Enter), int(Qt::Key_A)})
        QTest::keyClick(dialog(), Qt::Key(key));
    QCOMPARE(outside.keys, 0);
    QTest::keyClick(&outside, Qt::Key_A);
    QCOMPARE(outside.keys, 1); // proves that key events are counted
    QVERIFY(requests().isEmpty());
    dialog()->setParent(page());
}

// ---- connections --------------------------------------------------------------------------------

void GeneralPartsTest::closeButtonAsksToBeClosed()
{
    open(WINDOW_MODEL_MODAL);
    QSignalSpy asked(dialog(), SIGNAL(closeButtonClicked()));
    QSignalSpy closed(dialog(), SIGNAL(clickedcloseButton()));
    click(closeButton());
    QCOMPARE(asked.count(), 1);
    QCOMPARE(closed.count(), 0);
}

void GeneralPartsTest::sendButtonSends()
{
    open();
    send(latin1("*100#"));
    QCOMPARE(requests(), QStringList{latin1("*100#")});
}

/// Tests that pressing Return in the combo box sends the text of the command field, and not the
/// text of the combo box.
void GeneralPartsTest::returnInTheComboSends()
{
    open();
    QTest::keyClicks(commandEdit(), latin1("*7#"));
    combo()->lineEdit()->setText(latin1("*8#"));
    QTest::keyClick(combo()->lineEdit(), Qt::Key_Return);
    QCOMPARE(requests(), QStringList{latin1("*7#")});
}

void GeneralPartsTest::comboTextEnablesSend()
{
    open();
    combo()->setEditText(latin1("*1#"));
    QVERIFY(sendButton()->isEnabled());
    combo()->setEditText(QString());
    QVERIFY(!sendButton()->isEnabled());
}

void GeneralPartsTest::activatedItemIsTakenOver()
{
    open();
    clearLog();
    activate("activated", 1);
    QCOMPARE(combo()->lineEdit()->text(), latin1("*101#"));
    QCOMPARE(combo()->lineEdit()->cursorPosition(), 5);
    QVERIFY(sendButton()->isEnabled());
    QCOMPARE(timesLogged("OnActivated Enter: Item Index = 1"), 1);
    QCOMPARE(descriptionLabel()->text(), text("IDC_GENERAL_CLOSE"));
}

void GeneralPartsTest::highlightedItemIsTakenOver()
{
    open();
    activate("highlighted", 0);
    QCOMPARE(combo()->lineEdit()->text(), latin1("*100#"));
    QVERIFY(sendButton()->isEnabled());
}

void GeneralPartsTest::activatedIndexOutsideTheListDoesNothing_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("negative") << -1;
    QTest::newRow("behind the last") << 4;
}

void GeneralPartsTest::activatedIndexOutsideTheListDoesNothing()
{
    QFETCH(int, index);
    open();
    combo()->setEditText(latin1("kept"));
    activate("activated", index);
    QCOMPARE(combo()->lineEdit()->text(), latin1("kept"));
    QCOMPARE(timesLogged(latin1("OnActivated Exit: Invalid Index = ") + QString::number(index)), 1);
}

void GeneralPartsTest::comboTextShowsItsDescription()
{
    open();
    combo()->setEditText(latin1("*100#"));
    QCOMPARE(descriptionLabel()->text(), text("IDS_BUTTON_SEND"));
    combo()->setEditText(latin1("*100")); // an unknown code does not change the label
    QCOMPARE(descriptionLabel()->text(), text("IDS_BUTTON_SEND"));
    combo()->setEditText(latin1("*102*%s#")); // this code has no description
    QCOMPARE(descriptionLabel()->text(), QString());
}

void GeneralPartsTest::answerOfTheLogicIsShown()
{
    open();
    send(latin1("*100#"));
    emit USSDLogic::GetUSSDLogicInstance()->responseReceived(5, latin1("12 EUR"));
    QCOMPARE(timesLogged("Enter: received response = 12 EUR"), 1);
    QVERIFY(shownLines().contains(receivedLine(latin1("12 EUR"))));
}

void GeneralPartsTest::clearButtonClears()
{
    open();
    send(latin1("*100#"));
    networkSays(latin1("12 EUR"));
    QVERIFY(!shownLines().isEmpty());
    click(clearButton());
    QVERIFY(shownLines().isEmpty());
}

void GeneralPartsTest::presetEventSends()
{
    open();
    emit dialog()->preBtnClickedEvent(latin1("*55#"));
    QCOMPARE(requests(), QStringList{latin1("*55#")});
    QVERIFY(isWaiting());
}

void GeneralPartsTest::typedCommandEnablesSend()
{
    open();
    QTest::keyClicks(commandEdit(), latin1(" "));
    QVERIFY(sendButton()->isEnabled()); // any text enables the button
    QTest::keyClick(commandEdit(), Qt::Key_Backspace);
    QVERIFY(!sendButton()->isEnabled());
}

USSD_TEST_MAIN(GeneralPartsTest)
#include "general_parts_test.moc"
