#include "GeneralDialogTest.h"

/** Tests the general dialog: the transcript, the payment field, language changes, and closing. */
class GeneralTranscriptTest : public GeneralDialogTest
{
    Q_OBJECT

private slots:
    // ---- transcript
    void lineBreakInACommandIsShownAsBr();
    void rightToLeftParagraphsSaySo();
    void paragraphsFollowTheApplicationNotTheDialog();
    void height200And219Are10Points();
    void coloursAreThoseOfTheConfiguration();
    void looksAreReadAnewForEachEntry();
    void withoutConfigurationTheTranscriptIsShownNevertheless();
    void replyIsMarkupButLoadsNothing();

    // ---- clearing
    void clearButtonNeedsSomethingToClear();
    void withoutQuestionItClearsAtOnce();
    void questionAnsweredWithOkClears();
    void questionHasItsCaptionAndIcon();
    void questionAnsweredWithCancelKeepsAll_data();
    void questionAnsweredWithCancelKeepsAll();
    void clearingWhileWaitingKeepsThePrompt();
    void dialogDeletedWhileItAsksCostsNothing();

    // ---- payment
    void letterInThePaymentEditVanishes();
    void semicolonInThePaymentEditVanishes();
    void refusedKeyInTheMiddleLeavesTheCursorThere();
    void pasted25DigitsAreCutTo20();
    void pastedTextWithALetterVanishes();
    void noMoreThan20DigitsCanBeTyped();
    void onlyAsciiDigitsAreAllowed();
    void refusedKeyAfterAnAnswerBringsNoOldNumberBack();

    // ---- language
    void allTextsFollowTheLanguage();
    void promptFollowsTheLanguageOnlyWhenShown();
    void transcriptKeepsItsLanguage();
    void descriptionFollowsTheLanguage();

    // ---- closing and showing again
    void closeRequestIsPassedOnInEveryModel_data();
    void closeRequestIsPassedOnInEveryModel();
    void closingTheModalDialogEndsTheWaiting();
    void closingTheEmbeddedDialogKeepsItWaiting();
    void reopenedModalDialogSendsAtOnceAndDropsTheLateAnswer();
    void modalDialogShownAgainHasAnEmptyTranscript();
    void embeddedDialogShownAgainKeepsItsTranscript();
    void reInitWhileWaitingLeavesTheComboDisabled();
    void withoutInitNothingCrashes();
};

// ---- transcript ---------------------------------------------------------------------------------

void GeneralTranscriptTest::lineBreakInACommandIsShownAsBr()
{
    open();
    emit dialog()->preBtnClickedEvent(latin1("*1\n2#"));
    QVERIFY(history()->entries().contains(latin1("*1<br>2#</span></p>")));
    QVERIFY(!history()->entries().contains(QLatin1Char('\n')));
    QCOMPARE(requests(), QStringList{latin1("*1\n2#")}); // the line break is sent unchanged
}

void GeneralTranscriptTest::rightToLeftParagraphsSaySo()
{
    QVERIFY(HostCore::Languages::setCurrent(latin1("ar")));
    open();
    send(latin1("*100#"));
    networkSays(latin1("12"));
    QCOMPARE(history()->entries().count(latin1("<p dir='rtl' style=\"")), 2);
    QCOMPARE(history()->entries().count(latin1("<p ")), 2);
    QVERIFY(history()->toHtml().contains(latin1("dir='rtl'")));

    QApplication::setLayoutDirection(Qt::LeftToRight);
    send(latin1("*100#"));
    QCOMPARE(history()->entries().count(latin1("<p style=\" margin-top:0px;")), 1);
}

void GeneralTranscriptTest::paragraphsFollowTheApplicationNotTheDialog()
{
    open();
    dialog()->setLayoutDirection(Qt::RightToLeft);
    send(latin1("*100#"));
    QVERIFY(!history()->entries().contains(latin1("dir='rtl'")));
}

void GeneralTranscriptTest::height200And219Are10Points()
{
    for (const char *height : {"200", "219"}) {
        changeConfig("<yHeight>200", qPrintable(latin1("<yHeight>") + latin1(height)));
        open();
        send(latin1("*100#"));
        QVERIFY(history()->entries().contains(latin1("font-size : 10pt;")));
    }
}

void GeneralTranscriptTest::coloursAreThoseOfTheConfiguration()
{
    open();
    send(latin1("*100#"));
    networkSays(latin1("12"));
    QCOMPARE(history()->entries(),
             latin1("<p style=\" margin-top:0px; margin-bottom:0px;\"><span style=\"color : #"
                    "0000ff;\" style=\"font-size : 10pt;\">") +
                 sentLine(latin1("*100#")) + latin1("</span></p>") +
                 latin1("<p style=\" margin-top:0px; margin-bottom:0px;\"><span style=\"color : #"
                        "ff0010;\" style=\"font-size : 12pt;\">") +
                 receivedLine(latin1("12")) + latin1("<br></span></p>"));
}

void GeneralTranscriptTest::looksAreReadAnewForEachEntry()
{
    open();
    send(latin1("*100#"));
    changeConfig("<color red='255' green='0' blue='16'/>", "<color red='1' green='2' blue='3'/>");
    networkSays(latin1("12"));
    QVERIFY(history()->entries().contains(latin1("color : #010203;")));
}

void GeneralTranscriptTest::withoutConfigurationTheTranscriptIsShownNevertheless()
{
    allowWarning("Point size <= 0"); // the configured font size is zero
    writeConfig(QByteArray());
    open();
    send(latin1("*100#"));
    networkSays(latin1("12"));
    QVERIFY(history()->entries().contains(latin1("color : #000000;\" style=\"font-size : 0pt;")));
    QCOMPARE(shownLines().mid(0, 2),
             (QStringList{sentLine(latin1("*100#")), receivedLine(latin1("12"))}));
}

void GeneralTranscriptTest::replyIsMarkupButLoadsNothing()
{
    open();
    send(latin1("*100#"));
    const QString reply = latin1("<b>5</b> EUR<img src='/dev/zero'>");
    networkSays(reply);
    QVERIFY(history()->entries().contains(reply));
    QVERIFY(history()->toPlainText().contains(latin1("5 EUR")));
    QVERIFY(!history()->grab().isNull());
    QVERIFY(isIdle());
}

// ---- clearing -----------------------------------------------------------------------------------

void GeneralTranscriptTest::clearButtonNeedsSomethingToClear()
{
    open();
    QVERIFY(!clearButton()->isEnabled());
    send(latin1("*100#"));
    QVERIFY(clearButton()->isEnabled());
    click(clearButton());
    QVERIFY(!clearButton()->isEnabled());
    networkSays(latin1("12"));
    QVERIFY(clearButton()->isEnabled());
    QCOMPARE(shownLines().first(), receivedLine(latin1("12"))); // the transcript was cleared
}

void GeneralTranscriptTest::withoutQuestionItClearsAtOnce()
{
    open();
    send(latin1("*100#"));
    QVERIFY(clearAndAnswer("IDS_CANCEL").isNull());
    QCOMPARE(history()->entries(), QString());
}

void GeneralTranscriptTest::questionAnsweredWithOkClears()
{
    changeConfig("showConfirmDialog='false'", "showConfirmDialog='true'");
    open();
    send(latin1("*100#"));
    QCOMPARE(clearAndAnswer("IDS_OK"), text("IDS_STR_CLEAR"));
    QVERIFY(shownLines().isEmpty());
    QVERIFY(!clearButton()->isEnabled());
}

void GeneralTranscriptTest::questionHasItsCaptionAndIcon()
{
    changeConfig("showConfirmDialog='false'", "showConfirmDialog='true'");
    open();
    send(latin1("*100#"));
    QString caption;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QWidget *parent = nullptr;
    QTimer::singleShot(0, this, [&] {
        QMessageBox *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        caption = box->windowTitle();
        icon = box->icon();
        parent = box->parentWidget();
        box->reject();
    });
    click(clearButton());
    QCOMPARE(caption, text("IDS_STR_PROMPT"));
    QCOMPARE(icon, QMessageBox::Question);
    QCOMPARE(parent, static_cast<QWidget *>(dialog()));
}

void GeneralTranscriptTest::questionAnsweredWithCancelKeepsAll_data()
{
    QTest::addColumn<bool>("byEscape");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << true;
}

void GeneralTranscriptTest::questionAnsweredWithCancelKeepsAll()
{
    QFETCH(bool, byEscape);
    changeConfig("showConfirmDialog='false'", "showConfirmDialog='true'");
    open();
    send(latin1("*100#"));
    const QString shown = history()->toHtml();
    QCOMPARE(clearAndAnswer(byEscape ? nullptr : "IDS_CANCEL"), text("IDS_STR_CLEAR"));
    QCOMPARE(history()->toHtml(), shown);
    QVERIFY(!history()->entries().isEmpty());
    QVERIFY(clearButton()->isEnabled());
}

void GeneralTranscriptTest::clearingWhileWaitingKeepsThePrompt()
{
    open();
    send(latin1("*100#"));
    click(clearButton());
    QVERIFY(isWaiting());
}

void GeneralTranscriptTest::dialogDeletedWhileItAsksCostsNothing()
{
    changeConfig("showConfirmDialog='false'", "showConfirmDialog='true'");
    open();
    send(latin1("*100#"));
    bool asked = false;
    QPointer<USSDGeneralDlg> asking = dialog();
    QTimer::singleShot(0, this, [&] {
        asked = QApplication::activeModalWidget() != nullptr;
        delete asking;
    });
    // The slot is called directly, because click() would access the button after it has been
    // deleted.
    QVERIFY(QMetaObject::invokeMethod(dialog(), "clearHistory"));
    QVERIFY(asked);
    QVERIFY(!asking);
}

// ---- payment ------------------------------------------------------------------------------------

void GeneralTranscriptTest::letterInThePaymentEditVanishes()
{
    open();
    QTest::keyClicks(paymentEdit(), latin1("12a"));
    QCOMPARE(paymentEdit()->text(), latin1("12"));
    QCOMPARE(paymentEdit()->cursorPosition(), 2);
    QTest::keyClicks(paymentEdit(), latin1("3"));
    QCOMPARE(paymentEdit()->text(), latin1("123"));
}

void GeneralTranscriptTest::semicolonInThePaymentEditVanishes()
{
    open();
    QTest::keyClicks(paymentEdit(), latin1(";"));
    QCOMPARE(paymentEdit()->text(), QString());
    QTest::keyClicks(paymentEdit(), latin1("12;"));
    QCOMPARE(paymentEdit()->text(), latin1("12"));
    QCOMPARE(paymentEdit()->cursorPosition(), 2);
    QTest::keyClick(paymentEdit(), Qt::Key_Home);
    QTest::keyClicks(paymentEdit(), latin1(";"));
    QCOMPARE(paymentEdit()->text(), latin1("12"));
    QCOMPARE(paymentEdit()->cursorPosition(), 0);
}

void GeneralTranscriptTest::refusedKeyInTheMiddleLeavesTheCursorThere()
{
    open();
    QTest::keyClicks(paymentEdit(), latin1("1234"));
    paymentEdit()->setCursorPosition(2);
    QTest::keyClicks(paymentEdit(), latin1("x"));
    QCOMPARE(paymentEdit()->text(), latin1("1234"));
    QCOMPARE(paymentEdit()->cursorPosition(), 2);
    QTest::keyClicks(paymentEdit(), latin1("9"));
    QCOMPARE(paymentEdit()->text(), latin1("12934"));
}

void GeneralTranscriptTest::pasted25DigitsAreCutTo20()
{
    open();
    QApplication::clipboard()->setText(latin1("1234567890123456789012345"));
    QTest::keyClick(paymentEdit(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(paymentEdit()->text(), latin1("12345678901234567890"));
    QVERIFY(presetButtons().last()->isEnabled());
    QTest::keyClick(paymentEdit(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(paymentEdit(), latin1("x")); // an accepted key would replace the selection
    QCOMPARE(paymentEdit()->text(), latin1("12345678901234567890"));
}

void GeneralTranscriptTest::pastedTextWithALetterVanishes()
{
    open();
    QTest::keyClicks(paymentEdit(), latin1("7"));
    QApplication::clipboard()->setText(latin1("12 34"));
    QTest::keyClick(paymentEdit(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(paymentEdit()->text(), latin1("7"));
}

void GeneralTranscriptTest::noMoreThan20DigitsCanBeTyped()
{
    open();
    QTest::keyClicks(paymentEdit(), QString(25, QLatin1Char('7')));
    QCOMPARE(paymentEdit()->text(), QString(20, QLatin1Char('7')));
    QCOMPARE(paymentEdit()->maxLength(), 20);
}

void GeneralTranscriptTest::onlyAsciiDigitsAreAllowed()
{
    open();
    for (const char *refused : {"+", "*", "#", "-", " ", ".", "\xc2\xb2", "\xd9\xa1"}) {
        QApplication::clipboard()->setText(QString::fromUtf8(refused));
        QTest::keyClick(paymentEdit(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(paymentEdit()->text(), QString());
    }
    QTest::keyClicks(paymentEdit(), latin1("0123456789"));
    QCOMPARE(paymentEdit()->text(), latin1("0123456789"));
}

/// Tests that a rejected key does not restore a number that was used in an earlier payment.
/// Otherwise, the user might pay for this number again by accident.
void GeneralTranscriptTest::refusedKeyAfterAnAnswerBringsNoOldNumberBack()
{
    open();
    QTest::keyClicks(paymentEdit(), latin1("123"));
    click(presetButtons().last());
    networkSays(latin1("paid"));
    QVERIFY(isIdle());
    QTest::keyClicks(paymentEdit(), latin1("x"));
    QCOMPARE(paymentEdit()->text(), QString());
    QVERIFY(!presetButtons().last()->isEnabled());
}

// ---- language -----------------------------------------------------------------------------------

void GeneralTranscriptTest::allTextsFollowTheLanguage()
{
    open();
    const QString before = sendButton()->text();
    for (const char *code : {"de", "ar", "zh", "en"}) {
        QVERIFY(HostCore::Languages::setCurrent(latin1(code)));
        dialog()->SetLanguage();
        QCOMPARE(dialog()->windowTitle(), text("IDS_ADVANCE_USSD"));
        QCOMPARE(part<QLabel>("InfoLabel")->text(), text("IDC_STATIC_USSDTIP"));
        QCOMPARE(part<QLabel>("InfoNumLabel")->text(), text("IDC_STATIC_USSDNUMTIP"));
        QCOMPARE(sendButton()->text(), text("IDS_BUTTON_SEND"));
        QCOMPARE(clearButton()->text(), text("IDC_BUTTON_CLEARHISTOTY"));
        QCOMPARE(closeButton()->text(), text("IDC_GENERAL_CLOSE"));
        QCOMPARE(part<QPushButton>("EditButton")->text(), text("IDC_TITLE_EDITCOMMAND"));
        QCOMPARE(sendButton()->text() == before, latin1(code) == latin1("en"));
    }
}

void GeneralTranscriptTest::promptFollowsTheLanguageOnlyWhenShown()
{
    open();
    QVERIFY(HostCore::Languages::setCurrent(latin1("de")));
    dialog()->SetLanguage();
    QCOMPARE(promptLabel()->text(), QString());
    send(latin1("*100#"));
    QVERIFY(HostCore::Languages::setCurrent(latin1("fr")));
    dialog()->SetLanguage();
    QCOMPARE(promptLabel()->text(), text("IDS_TOP_PROMPT"));
    QVERIFY(isWaiting());
}

void GeneralTranscriptTest::transcriptKeepsItsLanguage()
{
    open();
    send(latin1("*100#"));
    networkSays(latin1("12"));
    const QString shown = history()->toHtml();
    QVERIFY(HostCore::Languages::setCurrent(latin1("de")));
    dialog()->SetLanguage();
    QCOMPARE(history()->toHtml(), shown);
    send(latin1("*101#"));
    QCOMPARE(shownLines().last(), sentLine(latin1("*101#"))); // the caption is now German
    QVERIFY(!shownLines().first().startsWith(text("IDS_USSD_SEND")));
}

void GeneralTranscriptTest::descriptionFollowsTheLanguage()
{
    open();
    combo()->setEditText(latin1("*100#"));
    QVERIFY(HostCore::Languages::setCurrent(latin1("de")));
    dialog()->SetLanguage();
    QCOMPARE(descriptionLabel()->text(), text("IDS_BUTTON_SEND"));
}

// ---- closing and showing again ------------------------------------------------------------------

void GeneralTranscriptTest::closeRequestIsPassedOnInEveryModel_data()
{
    QTest::addColumn<int>("model");
    QTest::newRow("modal") << int(WINDOW_MODEL_MODAL);
    QTest::newRow("embedded") << int(WINDOW_MODEL_EMBEDDED);
}

void GeneralTranscriptTest::closeRequestIsPassedOnInEveryModel()
{
    QFETCH(int, model);
    open(static_cast<WINDOW_MODEL>(model));
    QSignalSpy closed(dialog(), SIGNAL(clickedcloseButton()));
    dialog()->OnClickedCloseButton();
    QCOMPARE(closed.count(), 1);
}

void GeneralTranscriptTest::closingTheModalDialogEndsTheWaiting()
{
    open(WINDOW_MODEL_MODAL);
    send(latin1("*100#"));
    dialog()->OnClickedCloseButton();
    networkSays(latin1("late"));
    QCOMPARE(shownLines(), QStringList{sentLine(latin1("*100#"))});
}

void GeneralTranscriptTest::closingTheEmbeddedDialogKeepsItWaiting()
{
    open(WINDOW_MODEL_EMBEDDED);
    send(latin1("*100#"));
    dialog()->OnClickedCloseButton();
    networkSays(latin1("in time"));
    QCOMPARE(shownLines().value(1), receivedLine(latin1("in time")));
}

void GeneralTranscriptTest::reopenedModalDialogSendsAtOnceAndDropsTheLateAnswer()
{
    open(WINDOW_MODEL_MODAL);
    send(latin1("*100#"));
    dialog()->OnClickedCloseButton();
    open(WINDOW_MODEL_MODAL); // as the frame does when it is reopened
    QVERIFY(isIdle());
    networkSays(latin1("late"));
    QVERIFY(shownLines().isEmpty());
    send(latin1("*101#"));
    QVERIFY(isWaiting());
    QCOMPARE(requests().last(), latin1("*101#"));
}

void GeneralTranscriptTest::modalDialogShownAgainHasAnEmptyTranscript()
{
    open(WINDOW_MODEL_MODAL);
    send(latin1("*100#"));
    networkSays(latin1("12"));
    dialog()->ReInitDialog();
    QVERIFY(shownLines().isEmpty());
    QCOMPARE(history()->entries(), QString());
    QVERIFY(clearButton()->isEnabled()); // although the transcript is empty
    send(latin1("*101#"));
    QCOMPARE(shownLines(), QStringList{sentLine(latin1("*101#"))});
}

void GeneralTranscriptTest::embeddedDialogShownAgainKeepsItsTranscript()
{
    open(WINDOW_MODEL_EMBEDDED);
    send(latin1("*100#"));
    const QString shown = history()->toHtml();
    dialog()->ReInitDialog();
    QCOMPARE(history()->toHtml(), shown);
}

void GeneralTranscriptTest::reInitWhileWaitingLeavesTheComboDisabled()
{
    open();
    click(presetButtons().first());
    QVERIFY(!combo()->isEnabled());
    dialog()->ReInitDialog();
    QVERIFY(!combo()->isEnabled());
    networkSays(latin1("12"));
    combo()->setEnabled(false);
    dialog()->ReInitDialog();
    QVERIFY(combo()->isEnabled());
}

void GeneralTranscriptTest::withoutInitNothingCrashes()
{
    USSDGeneralDlg fresh;
    fresh.ReInitDialog();
    fresh.SetLanguage();
    fresh.setProfileFocus();
    fresh.showHideCmdBtn();
    fresh.changeAllPreBtnsStatus(true);
    fresh.changePayBtnsStatus(true);
    QVERIFY(!fresh.isShowPreBtns());
    QVERIFY(!fresh.hasBeenShowPreBtns());
    for (const char *slot : {"OnClickedSendButton", "OnUSSDCmdEdit", "OnPaymentEdit",
                             "OnPreBtnClicked", "clearHistory"})
        QVERIFY2(QMetaObject::invokeMethod(&fresh, slot), slot);
    QCOMPARE(timesLogged("OnClickedSendButton Fail Exit"), 1);
}

USSD_TEST_MAIN(GeneralTranscriptTest)
#include "general_transcript_test.moc"
