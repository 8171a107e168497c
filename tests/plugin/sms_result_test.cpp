#include "SmsDialogTest.h"

/** Tests the results in the USSD-SMS dialog, language changes, and closing the dialog. */
class SmsResultTest : public SmsDialogTest
{
    Q_OBJECT

private slots:
    // ---- results
    void resultIsPlainText();
    void longResultDoesNotChangeTheWindow();
    void longWordInAResultIsBroken();
    void codeInAResultIsNotTurnedRound_data();
    void codeInAResultIsNotTurnedRound();
    void codeAmongArabicLettersIsDrawnLeftToRight();
    void arabicResultIsARightToLeftParagraph();
    void resultBeginsWhereTheOtherTextsDo();

    // ---- languages
    void languageChangeTranslatesTheTexts();
    void languageChangeKeepsInputAndAnswer();
    void languageChangeKeepsInputOfARowNotSelected();
    void languageChangeTranslatesOurOwnResult();
    void rightToLeftMirrorsTreeAndControls();
    void rightToLeftMirrorsALaterSelection();
    void inputReadsLeftToRight();
    void shippedTextsFit_data();
    void shippedTextsFit();
    void everyShippedServiceCanBeUsed();

    // ---- closing
    void closeClearsQueuedCommands();
    void closeLetsTheOthersCommandsWait();
    void closeWhileBusyMakesReadyAgain();
    void dialogDeletedWhileBusyHearsNothing();
    void logicDestroyedFirstCostsNothing();
};

// ---- results ------------------------------------------------------------------------------------

void SmsResultTest::resultIsPlainText()
{
    const QString reply = latin1("<b>Bold</b> <img src='/dev/zero'> &amp; & <a href='x'>y</a>");
    press();
    networkSays(reply);
    QCOMPARE(result(), reply);
    QCOMPARE(resultLabel()->textFormat(), Qt::PlainText);
    QVERIFY(resultLabel()->grab().width() > 0); // painting must not load any resource
}

void SmsResultTest::longResultDoesNotChangeTheWindow()
{
    const QSize frame = m_frame->size();
    const QRect label = resultLabel()->geometry();
    press();
    networkSays(QString(5000, QLatin1Char('M')));
    press();
    networkSays(latin1("a\n").repeated(5000));
    QCOMPARE(result().length(), 10000);
    QCOMPARE(m_frame->size(), frame);
    QCOMPARE(resultLabel()->geometry(), label);
    m_dialog->SetLanguage();
    QCOMPARE(resultLabel()->geometry(), label);
}

void SmsResultTest::longWordInAResultIsBroken()
{
    press();
    networkSays(QString(60, QLatin1Char('M')));
    const QImage shown = resultLabel()->grab().toImage();
    // Text must also be painted below the first line.
    const int secondLine = resultLabel()->fontMetrics().height();
    QVERIFY(inkIn(shown, QRect(0, secondLine, shown.width(), secondLine)));
}

void SmsResultTest::codeInAResultIsNotTurnedRound_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("marked");
    QTest::newRow("none") << "5 EUR"
                          << "5 EUR";
    QTest::newRow("alone") << "*111#"
                           << "<*111#>";
    QTest::newRow("between") << "dial *140*5# or +4712 now"
                             << "dial <*140*5#> or <+4712> now";
    QTest::newRow("no code") << "# and * or 2 + 3"
                             << "# and * or 2 + 3";
}

void SmsResultTest::codeInAResultIsNotTurnedRound()
{
    QFETCH(QString, text);
    QFETCH(QString, marked);
    marked.replace(QLatin1Char('<'), QChar(0x202A)).replace(QLatin1Char('>'), QChar(0x202C));
    QCOMPARE(ServiceReplyLabel::withCodesMarked(text), marked);
    press();
    networkSays(text);
    QCOMPARE(result(), text);
}

/// Tests that a code between Arabic letters is painted as if it were enclosed in directional marks.
void SmsResultTest::codeAmongArabicLettersIsDrawnLeftToRight()
{
    const QString reply = QString::fromUtf8("اطلب *124# الآن");
    press();
    networkSays(reply);
    const QImage drawn = resultLabel()->grab().toImage();
    press();
    networkSays(ServiceReplyLabel::withCodesMarked(reply));
    QCOMPARE(drawn, resultLabel()->grab().toImage());
}

/// Tests that the full stop is painted to the left of the last word, as in a right-to-left
/// paragraph.
void SmsResultTest::arabicResultIsARightToLeftParagraph()
{
    const QString reply = QString::fromUtf8("مرحبا.");
    press();
    networkSays(reply);
    const QImage drawn = resultLabel()->grab().toImage();
    press();
    networkSays(reply + QChar(0x200F));
    QCOMPARE(drawn, resultLabel()->grab().toImage());
}

void SmsResultTest::resultBeginsWhereTheOtherTextsDo()
{
    QVERIFY(HostCore::Languages::setCurrent(latin1("ar")));
    open();
    for (const QString &reply : {latin1("in English"), text("USSD_CODE_TIME_OUT")}) {
        press();
        networkSays(reply);
        const QImage shown = resultLabel()->grab().toImage();
        QVERIFY(inkIn(shown, shown.rect().adjusted(shown.width() - 10, 0, 0, 0)));
    }
}

// ---- languages ----------------------------------------------------------------------------------

void SmsResultTest::languageChangeTranslatesTheTexts()
{
    const QString english = captionLabel()->text();
    QVERIFY(HostCore::Languages::setCurrent(latin1("de")));
    m_dialog->SetLanguage();
    QVERIFY(captionLabel()->text() != english);
    QCOMPARE(captionLabel()->text(), text("IDS_SMSUSSD_LABEL_NUMBER"));
    QCOMPARE(button()->text(), text("IDS_BUTTON_SEND"));
    QCOMPARE(tree()->topLevelItem(0)->text(0), text("IDS_SMSUSSD_SERVICES"));
    QCOMPARE(m_dialog->windowTitle(), text("IDS_WINDOW_TITLE_SMSUSSD"));
    QCOMPARE(input()->accessibleName(), captionLabel()->text());
}

void SmsResultTest::languageChangeKeepsInputAndAnswer()
{
    select(CALL);
    type(latin1("555"));
    m_dialog->OnResponseUSSDSMSReceived(COMPONENT_USSD_SMS, latin1("an answer"));
    QVERIFY(HostCore::Languages::setCurrent(latin1("de")));
    m_dialog->SetLanguage();
    QCOMPARE(input()->text(), latin1("555"));
    QCOMPARE(result(), latin1("an answer"));
    QCOMPARE(tree()->currentItem(), row(CALL));
    QVERIFY(button()->isEnabled());
}

/// Tests that a language change preserves the input if the current row is not selected, for example
/// after it was clicked with Ctrl.
void SmsResultTest::languageChangeKeepsInputOfARowNotSelected()
{
    select(CALL);
    type(latin1("555"));
    row(CALL)->setSelected(false);
    QCOMPARE(tree()->currentItem(), row(CALL));
    type(latin1("5"));
    const QString before = input()->text();
    m_dialog->SetLanguage();
    QCOMPARE(input()->text(), before);
}

void SmsResultTest::languageChangeTranslatesOurOwnResult()
{
    sendTariff();
    QVERIFY(HostCore::Languages::setCurrent(latin1("de")));
    m_dialog->SetLanguage();
    QCOMPARE(result(), text("USSD_CODE_WAITTING"));
    QVERIFY(isBusy());
    smsFared(1, latin1("1200"), latin1("TARIFF"));
    QVERIFY(HostCore::Languages::setCurrent(latin1("fr")));
    m_dialog->SetLanguage();
    QCOMPARE(result(), text("IDS_SMS_SEND_FAILED"));
}

void SmsResultTest::rightToLeftMirrorsTreeAndControls()
{
    select(CALL);
    type(latin1("555"));
    QApplication::setLayoutDirection(Qt::RightToLeft);
    m_dialog->SetLanguage();
    QCOMPARE(tree()->geometry(), QRect(520 - 10 - 150, 12, 150, 330));
    QCOMPARE(infoLabel()->geometry(), QRect(520 - 170 - 300, 10, 300, 40));
    QCOMPARE(input()->geometry(), QRect(520 - 170 - 120, 85, 120, 24));
    QCOMPARE(button()->geometry(), QRect(520 - 300 - 110, 86, 110, 26));
    QCOMPARE(resultLabel()->geometry(), QRect(520 - 170 - 320, 120, 320, 100));
    QCOMPARE(input()->text(), latin1("555"));
    QApplication::setLayoutDirection(Qt::LeftToRight);
    m_dialog->SetLanguage();
    QCOMPARE(tree()->geometry(), QRect(10, 12, 150, 330));
    QCOMPARE(input()->geometry(), QRect(170, 85, 120, 24));
}

void SmsResultTest::rightToLeftMirrorsALaterSelection()
{
    QVERIFY(HostCore::Languages::setCurrent(latin1("ar")));
    open();
    QCOMPARE(tree()->geometry(), QRect(520 - 10 - 150, 12, 150, 330));
    select(CALL);
    QCOMPARE(input()->geometry(), QRect(520 - 170 - 120, 85, 120, 24));
}

void SmsResultTest::inputReadsLeftToRight()
{
    QVERIFY(HostCore::Languages::setCurrent(latin1("ar")));
    open();
    QCOMPARE(tree()->layoutDirection(), Qt::RightToLeft);
    QCOMPARE(input()->layoutDirection(), Qt::LeftToRight);
}

void SmsResultTest::shippedTextsFit_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &code : HostCore::Languages::codes())
        QTest::newRow(qPrintable(code)) << code;
    QCOMPARE(HostCore::Languages::codes().count(), 9);
}

void SmsResultTest::shippedTextsFit()
{
    QFETCH(QString, language);
    QVERIFY(HostCore::Languages::setCurrent(language));
    openShipped();
    QVERIFY(!tree()->horizontalScrollBar()->isVisible());
    const int services = tree()->topLevelItem(0)->childCount();
    for (int service = 1; service <= services; ++service) {
        select(service);
        for (QLabel *label : {infoLabel(), captionLabel()}) {
            const QByteArray what = label->text().toUtf8();
            QVERIFY2(label->heightForWidth(label->width()) <= label->height(), what.constData());
        }
        QVERIFY2(button()->sizeHint().width() <= button()->width(), qPrintable(button()->text()));
        QVERIFY2(button()->sizeHint().height() <= button()->height(),
                 qPrintable(QString::number(button()->sizeHint().height())));
        QVERIFY(input()->isHidden() || input()->sizeHint().height() <= input()->height());
    }
}

void SmsResultTest::everyShippedServiceCanBeUsed()
{
    openShipped();
    deviceSays(TKSV_SMS_STATUS_CAN_SEND);
    const int services = tree()->topLevelItem(0)->childCount();
    QCOMPARE(services, 12);
    for (int service = 1; service <= services; ++service) {
        select(service);
        type(latin1("1234"));
        press();
        QVERIFY2(isBusy(), qPrintable(row(service)->text(0)));
        const std::vector<FakeCall> messages = fakeSdkCalls("TKSV_SMSSrv_CreateSMSRecord");
        networkSays(latin1("answer")); // ignored if a short message was sent
        if (!messages.empty())
            smsFared(0, QString::fromStdU16String(messages.back().number),
                     QString::fromStdU16String(messages.back().text));
        QVERIFY(isIdle());
    }
    QCOMPARE(requests().count(), 9);
    QCOMPARE(smsSent(), 3);
}

// ---- closing ------------------------------------------------------------------------------------

void SmsResultTest::closeClearsQueuedCommands()
{
    int status = 0;
    USSDLogic *logic = USSDLogic::GetUSSDLogicInstance();
    logic->SendUSSDCommand(USSDCmdOrResp(COMPONENT_GENERAL, latin1("*1#")), &status);
    press();
    QSignalSpy closed(m_dialog, SIGNAL(clickedcloseButton()));
    m_dialog->OnClickedCloseButton();
    QCOMPARE(closed.count(), 1);
    networkSays(latin1("first"));
    QCOMPARE(requests(), QStringList() << latin1("*1#"));
}

void SmsResultTest::closeLetsTheOthersCommandsWait()
{
    int status = 0;
    USSDLogic *logic = USSDLogic::GetUSSDLogicInstance();
    logic->SendUSSDCommand(USSDCmdOrResp(COMPONENT_GENERAL, latin1("*1#")), &status);
    press();
    logic->SendUSSDCommand(USSDCmdOrResp(COMPONENT_GENERAL, latin1("*2#")), &status);
    m_dialog->OnClickedCloseButton();
    networkSays(latin1("first"));
    QCOMPARE(requests(), QStringList() << latin1("*1#") << latin1("*2#"));
}

void SmsResultTest::closeWhileBusyMakesReadyAgain()
{
    press();
    m_dialog->OnClickedCloseButton();
    QVERIFY(isIdle());
    QCOMPARE(result(), QString());
}

void SmsResultTest::dialogDeletedWhileBusyHearsNothing()
{
    press();
    delete m_dialog;
    networkSays(latin1("too late"));
    QCOMPARE(receivers(SIGNAL(responseReceived(int, QString))), 0);
}

void SmsResultTest::logicDestroyedFirstCostsNothing()
{
    select(TARIFF);
    USSDLogic::Destroy();
    m_dialog->OnCanSendSMS(true);
    m_dialog->SetLanguage();
    select(WEATHER);
    select(BALANCE);
    QSignalSpy closed(m_dialog, SIGNAL(clickedcloseButton()));
    m_dialog->OnClickedCloseButton();
    QCOMPARE(closed.count(), 1);
    QVERIFY(requests().isEmpty());
}

USSD_TEST_MAIN(SmsResultTest)
#include "sms_result_test.moc"
