#include "DialogTest.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTimer>

#include "fake_tksv.h"
#include "Languages.h"
#include "requests/USSDLogic.h"

namespace
{

/// Counts the key events that no child widget has accepted.
class KeyCounter : public QWidget
{
public:
    int keys = 0;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        Q_UNUSED(event)
        ++keys;
    }
};

QGridLayout *gridOf(QWidget *widget)
{
    return qobject_cast<QGridLayout *>(widget->layout());
}

} // namespace

/** Tests the general dialog: its entry fields, sending, answers and the transcript. */
class GeneralDialogTest : public DialogTest
{
    Q_OBJECT

protected:
    void setUp() override;

private:
    /// Presses Clear and answers the confirmation box with the button of this text key, or with
    /// Escape for a null key. Returns the text of the box, or a null text if no box was opened.
    QString clearAndAnswer(const char *buttonKey);
    /// Returns the index of the first log line that contains `part`, or -1.
    int lineOf(const char *part);
    void activateWindow(); ///< makes the dialog's choice of the focus effective
    void changeConfig(const char *from, const char *to);
    void activate(const char *signal, int index);

private slots:
    // parts
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

    // connections
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

    // sending
    void emptyCommandIsNotSent();
    void commandIsShownBeforeItIsSent();
    void waitingDisablesAllThatSends();
    void sendingEmptiesComboAndDescription();
    void queuedCommandWaitsLikeASentOne();
    void deviceTimeOutIsAnsweredLocally();
    void otherFailureIsAnsweredLocally();
    void tooLongCommandIsAnsweredLocally();
    void refusedPresetIsAnsweredLocally_data();
    void refusedPresetIsAnsweredLocally();
    void presetDisablesTheComboButSendDoesNot();
    void menuIsAnsweredByTheNextCommand();

    // answers
    void answerEndsTheWaiting();
    void emptyAnswerIsShownAsFailure();
    void networkRefusalIsShownAsFailure();
    void silenceIsShownAsTimeOut();
    void answerOfAnotherComponentIsIgnored_data();
    void answerOfAnotherComponentIsIgnored();
    void secondAnswerIsIgnored();
    void answerThatNobodyWaitsForIsIgnored();
    void answersOfManyCommandsStandInOrder();
    void lateAnswerAfterTheNextCommandIsTakenForIts();

    // focus
    void keysTypedAfterAnAnswerReachTheCommandEdit_data();
    void keysTypedAfterAnAnswerReachTheCommandEdit();
    void keysTypedAfterALocalFailureReachTheCommandEdit();
    void answerLeavesTheFocusToAWidgetOfTheHost();
    void answerBehindAQuestionGivesTheFocusBack();
    void profileFocusReachesTheCommandEdit();
    void dialogShownAgainHasTheFocusInTheCommandEdit();

    // transcript
    void lineBreakInACommandIsShownAsBr();
    void rightToLeftParagraphsSaySo();
    void paragraphsFollowTheApplicationNotTheDialog();
    void height200And219Are10Points();
    void coloursAreThoseOfTheConfiguration();
    void looksAreReadAnewForEachEntry();
    void withoutConfigurationTheTranscriptIsShownNevertheless();
    void replyIsMarkupButLoadsNothing();

    // clearing
    void clearButtonNeedsSomethingToClear();
    void questionAnsweredWithOkClears();
    void questionHasItsCaptionAndIcon();
    void questionAnsweredWithCancelKeepsAll_data();
    void questionAnsweredWithCancelKeepsAll();
    void withoutQuestionItClearsAtOnce();
    void clearingWhileWaitingKeepsThePrompt();
    void dialogDeletedWhileItAsksCostsNothing();

    // payment
    void letterInThePaymentEditVanishes();
    void semicolonInThePaymentEditVanishes();
    void refusedKeyInTheMiddleLeavesTheCursorThere();
    void pasted25DigitsAreCutTo20();
    void pastedTextWithALetterVanishes();
    void noMoreThan20DigitsCanBeTyped();
    void onlyAsciiDigitsAreAllowed();
    void refusedKeyAfterAnAnswerBringsNoOldNumberBack();

    // language
    void allTextsFollowTheLanguage();
    void promptFollowsTheLanguageOnlyWhenShown();
    void transcriptKeepsItsLanguage();
    void descriptionFollowsTheLanguage();

    // being closed and shown again
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

void GeneralDialogTest::setUp()
{
    DialogTest::setUp();
    writeSystemProfiles(
        profileFile(profileItem("Balance", "*100#", "true", "true", "", "IDS_BUTTON_SEND") +
                    profileItem("Number", "*101#", "true", "true", "", "IDC_GENERAL_CLOSE") +
                    profileItem("Top up", "*102*%s#", "true", "true") +
                    profileItem("Give", "*103*%s#", "true", "true")));
}

void GeneralDialogTest::changeConfig(const char *from, const char *to)
{
    const QByteArray xml = completeConfig();
    if (!xml.contains(from))
        qFatal("no %s in the configuration", from);
    writeConfig(QByteArray(xml).replace(from, to));
}

QString GeneralDialogTest::clearAndAnswer(const char *buttonKey)
{
    QString question;
    QTimer::singleShot(0, this, [&] {
        QMessageBox *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        question = box->text();
        if (!buttonKey) {
            QTest::keyClick(box, Qt::Key_Escape);
            return;
        }
        for (QAbstractButton *button : box->buttons()) {
            if (button->text() == text(buttonKey))
                button->click();
        }
    });
    click(clearButton());
    drainEvents();
    return question;
}

int GeneralDialogTest::lineOf(const char *part)
{
    const QStringList lines = logLines();
    for (int i = 0; i < lines.count(); ++i) {
        if (lines.at(i).contains(latin1(part)))
            return i;
    }
    return -1;
}

void GeneralDialogTest::activateWindow()
{
    QApplication::setActiveWindow(dialog()->window());
    QVERIFY(QTest::qWaitForWindowActive(dialog()->window()));
}

/// Emits a signal of the combo box with an index.
void GeneralDialogTest::activate(const char *signal, int index)
{
    QVERIFY(QMetaObject::invokeMethod(combo(), signal, Q_ARG(int, index)));
}

// ---- parts -----------------------------------------------------------------------------------

void GeneralDialogTest::partsHaveTheirNames_data()
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

void GeneralDialogTest::partsHaveTheirNames()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, className);
    open();
    const QString fullName = latin1("USSDUIPlugin_AdvancedDialog_") + name;
    const QWidgetList parts = dialog()->findChildren<QWidget *>(fullName);
    QCOMPARE(parts.count(), 1);
    QVERIFY(parts.first()->inherits(className.constData()));
}

void GeneralDialogTest::textsAreThoseOfTheLanguage()
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

void GeneralDialogTest::modalDialogHasAFixedSize()
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

void GeneralDialogTest::embeddedDialogFitsItsPage()
{
    open(WINDOW_MODEL_EMBEDDED);
    QCOMPARE(dialog()->parentWidget(), page());
    QCOMPARE(dialog()->size(), page()->size());
    QCOMPARE(dialog()->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    QCOMPARE(descriptionLabel()->minimumHeight(), 32);
    QVERIFY(history()->cursorWidth() > 0);
}

void GeneralDialogTest::historyCanBeReadButNotWritten()
{
    open();
    QVERIFY(!history()->textInteractionFlags().testFlag(Qt::TextEditable));
    QVERIFY(history()->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
    QCOMPARE(history()->contextMenuPolicy(), Qt::NoContextMenu);
    QTest::keyClicks(history(), latin1("abc"));
    QCOMPARE(history()->toPlainText(), QString());
}

void GeneralDialogTest::comboIsHiddenButAlive()
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

void GeneralDialogTest::fieldsOfferNoMenuWhereTheyMustNot()
{
    open();
    QCOMPARE(paymentEdit()->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(combo()->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(paymentEdit()->minimumHeight(), 23);
    QCOMPARE(commandEdit()->minimumHeight(), 23);
    QVERIFY(commandEdit()->maxLength() > 1000); // only the field of the combo box is limited
}

void GeneralDialogTest::marginsAreFixed()
{
    for (WINDOW_MODEL model : {WINDOW_MODEL_MODAL, WINDOW_MODEL_EMBEDDED}) {
        open(model);
        QVERIFY(gridOf(dialog()));
        QCOMPARE(gridOf(dialog())->contentsMargins(), QMargins(70, 20, 70, 20));
    }
}

void GeneralDialogTest::labelsAreWrappedPlainText()
{
    open();
    for (QLabel *label : {part<QLabel>("InfoLabel"), part<QLabel>("InfoNumLabel"), promptLabel(),
                          descriptionLabel()}) {
        QVERIFY(label->wordWrap());
        QCOMPARE(label->textFormat(), Qt::PlainText);
    }
}

void GeneralDialogTest::sizeBeforeInitIsInvalid()
{
    USSDGeneralDlg fresh;
    QCOMPARE(fresh.GetSize(), QSize(-1, -1));
    open();
    QCOMPARE(dialog()->GetSize(), gridOf(dialog())->sizeHint());
}

void GeneralDialogTest::clearButtonFollowsTheConfiguration_data()
{
    QTest::addColumn<QByteArray>("visible");
    QTest::addColumn<bool>("shown");
    QTest::newRow("true") << QByteArray("<clearHistory visible='true' ") << true;
    QTest::newRow("false") << QByteArray("<clearHistory visible='false' ") << false;
    QTest::newRow("capitals") << QByteArray("<clearHistory visible='TRUE' ") << false;
    QTest::newRow("no section") << QByteArray("<other ") << false;
}

void GeneralDialogTest::clearButtonFollowsTheConfiguration()
{
    QFETCH(QByteArray, visible);
    QFETCH(bool, shown);
    changeConfig("<clearHistory visible='true' ", visible.constData());
    open();
    QCOMPARE(clearButton()->isVisible(), shown);
    QVERIFY(!clearButton()->isVisible() || !clearButton()->isEnabled());
}

void GeneralDialogTest::editButtonIsHiddenUnlessConfigured()
{
    changeConfig("<cmdEdit visible='true'>", "<cmdEdit visible='false'>");
    open();
    QVERIFY(!part<QPushButton>("EditButton")->isVisible());
}

void GeneralDialogTest::codesReadFromLeftToRightInArabic()
{
    QVERIFY(HostCore::Languages::setCurrent(latin1("ar")));
    open();
    QCOMPARE(dialog()->layoutDirection(), Qt::RightToLeft);
    QCOMPARE(commandEdit()->layoutDirection(), Qt::LeftToRight);
    QCOMPARE(paymentEdit()->layoutDirection(), Qt::LeftToRight);
    // The left-to-right mark keeps the order of a code after an Arabic caption.
    QVERIFY(text("IDS_USSD_SEND").endsWith(QChar(0x200e)));
    QVERIFY(text("IDS_USSD_RECEIVED").endsWith(QChar(0x200e)));
}

void GeneralDialogTest::keysThatReachTheDialogAreSwallowed()
{
    open();
    KeyCounter outside;
    dialog()->setParent(&outside);
    for (int key : {int(Qt::Key_Escape), int(Qt::Key_Return), int(Qt::Key_Enter), int(Qt::Key_A)})
        QTest::keyClick(dialog(), Qt::Key(key));
    QCOMPARE(outside.keys, 0);
    QTest::keyClick(&outside, Qt::Key_A);
    QCOMPARE(outside.keys, 1); // proves that keys are counted
    QVERIFY(requests().isEmpty());
    dialog()->setParent(page());
}

// ---- connections -----------------------------------------------------------------------------

void GeneralDialogTest::closeButtonAsksToBeClosed()
{
    open(WINDOW_MODEL_MODAL);
    QSignalSpy asked(dialog(), SIGNAL(closeButtonClicked()));
    QSignalSpy closed(dialog(), SIGNAL(clickedcloseButton()));
    click(closeButton());
    QCOMPARE(asked.count(), 1);
    QCOMPARE(closed.count(), 0);
}

void GeneralDialogTest::sendButtonSends()
{
    open();
    send(latin1("*100#"));
    QCOMPARE(requests(), QStringList{latin1("*100#")});
}

/// The text of the command edit is sent, not that of the combo box.
void GeneralDialogTest::returnInTheComboSends()
{
    open();
    QTest::keyClicks(commandEdit(), latin1("*7#"));
    combo()->lineEdit()->setText(latin1("*8#"));
    QTest::keyClick(combo()->lineEdit(), Qt::Key_Return);
    QCOMPARE(requests(), QStringList{latin1("*7#")});
}

void GeneralDialogTest::comboTextEnablesSend()
{
    open();
    combo()->setEditText(latin1("*1#"));
    QVERIFY(sendButton()->isEnabled());
    combo()->setEditText(QString());
    QVERIFY(!sendButton()->isEnabled());
}

void GeneralDialogTest::activatedItemIsTakenOver()
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

void GeneralDialogTest::highlightedItemIsTakenOver()
{
    open();
    activate("highlighted", 0);
    QCOMPARE(combo()->lineEdit()->text(), latin1("*100#"));
    QVERIFY(sendButton()->isEnabled());
}

void GeneralDialogTest::activatedIndexOutsideTheListDoesNothing_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("negative") << -1;
    QTest::newRow("behind the last") << 4;
}

void GeneralDialogTest::activatedIndexOutsideTheListDoesNothing()
{
    QFETCH(int, index);
    open();
    combo()->setEditText(latin1("kept"));
    activate("activated", index);
    QCOMPARE(combo()->lineEdit()->text(), latin1("kept"));
    QCOMPARE(timesLogged(latin1("OnActivated Exit: Invalid Index = ") + QString::number(index)), 1);
}

void GeneralDialogTest::comboTextShowsItsDescription()
{
    open();
    combo()->setEditText(latin1("*100#"));
    QCOMPARE(descriptionLabel()->text(), text("IDS_BUTTON_SEND"));
    combo()->setEditText(latin1("*100")); // not a known code, so the label is not changed
    QCOMPARE(descriptionLabel()->text(), text("IDS_BUTTON_SEND"));
    combo()->setEditText(latin1("*102*%s#")); // a code without description
    QCOMPARE(descriptionLabel()->text(), QString());
}

void GeneralDialogTest::answerOfTheLogicIsShown()
{
    open();
    send(latin1("*100#"));
    emit USSDLogic::GetUSSDLogicInstance()->responseReceived(5, latin1("12 EUR"));
    QCOMPARE(timesLogged("Enter: received response = 12 EUR"), 1);
    QVERIFY(shownLines().contains(receivedLine(latin1("12 EUR"))));
}

void GeneralDialogTest::clearButtonClears()
{
    open();
    send(latin1("*100#"));
    networkSays(latin1("12 EUR"));
    QVERIFY(!shownLines().isEmpty());
    click(clearButton());
    QVERIFY(shownLines().isEmpty());
}

void GeneralDialogTest::presetEventSends()
{
    open();
    emit dialog()->preBtnClickedEvent(latin1("*55#"));
    QCOMPARE(requests(), QStringList{latin1("*55#")});
    QVERIFY(isWaiting());
}

void GeneralDialogTest::typedCommandEnablesSend()
{
    open();
    QTest::keyClicks(commandEdit(), latin1(" "));
    QVERIFY(sendButton()->isEnabled()); // any character enables the button
    QTest::keyClick(commandEdit(), Qt::Key_Backspace);
    QVERIFY(!sendButton()->isEnabled());
}

// ---- sending ---------------------------------------------------------------------------------

void GeneralDialogTest::emptyCommandIsNotSent()
{
    open();
    QTest::keyClicks(commandEdit(), latin1("x"));
    commandEdit()->clear(); // not typed, so Send stays enabled
    QVERIFY(sendButton()->isEnabled());
    click(sendButton());
    QTest::keyClick(combo()->lineEdit(), Qt::Key_Return);
    QVERIFY(requests().isEmpty());
    QVERIFY(shownLines().isEmpty());
    QCOMPARE(promptLabel()->text(), QString());
    QVERIFY(commandEdit()->isEnabled());
}

void GeneralDialogTest::commandIsShownBeforeItIsSent()
{
    open();
    fakeSdkSetAnswer(fakeRefused(1, 0));
    clearLog();
    send(latin1("*100#"));
    QCOMPARE(shownLines().value(0), sentLine(latin1("*100#")));
    QCOMPARE(shownLines().value(1), receivedLine(text("USSD_CODE_FAILED")));
    const int shown = lineOf(": appendToCmdHistory Exit");
    const int handedOver = lineOf(" Calling TKSV_USSDSrv_Request ");
    QVERIFY(shown >= 0 && handedOver >= 0);
    QVERIFY2(shown < handedOver, "the request was made before its line was shown");
}

void GeneralDialogTest::waitingDisablesAllThatSends()
{
    open();
    clearLog();
    send(latin1("*100#"));
    QVERIFY(isWaiting());
    QCOMPARE(shownLines(), QStringList{sentLine(latin1("*100#"))});
    QCOMPARE(timesLogged("showPromptForWaitingResponse Enter bShow: 1"), 1);
}

void GeneralDialogTest::sendingEmptiesComboAndDescription()
{
    open();
    QTest::keyClicks(commandEdit(), latin1("*9#"));
    combo()->setCurrentIndex(1);
    combo()->setEditText(latin1("*100#"));
    QVERIFY(!descriptionLabel()->text().isEmpty());
    click(sendButton());
    QCOMPARE(combo()->currentIndex(), -1);
    QCOMPARE(descriptionLabel()->text(), QString());
    QVERIFY(!sendButton()->isEnabled());
}

void GeneralDialogTest::queuedCommandWaitsLikeASentOne()
{
    int status = 0;
    USSDLogic::GetUSSDLogicInstance()->SendUSSDCommand(
        USSDCmdOrResp(COMPONENT_BALANCE, latin1("*1#")), &status);
    open();
    send(latin1("*100#"));
    QCOMPARE(requests(), QStringList{latin1("*1#")});
    QVERIFY(isWaiting());
    networkSays(latin1("for the other"));
    QCOMPARE(requests(), (QStringList{latin1("*1#"), latin1("*100#")}));
    QVERIFY(isWaiting());
    networkSays(latin1("mine"));
    QCOMPARE(shownLines().value(1), receivedLine(latin1("mine")));
}

void GeneralDialogTest::deviceTimeOutIsAnsweredLocally()
{
    open();
    fakeSdkSetAnswer(fakeRefused(1, 5));
    send(latin1("*100#"));
    QCOMPARE(shownLines().value(1), receivedLine(text("USSD_CODE_TIME_OUT")));
    QVERIFY(isIdle());
}

void GeneralDialogTest::otherFailureIsAnsweredLocally()
{
    for (int status : {0, 1, 4, 6, 12}) {
        open();
        fakeSdkSetAnswer(fakeRefused(1, status));
        send(latin1("*100#"));
        QCOMPARE(shownLines().value(1), receivedLine(text("USSD_CODE_FAILED")));
        QVERIFY(isIdle());
    }
}

void GeneralDialogTest::tooLongCommandIsAnsweredLocally()
{
    open();
    commandEdit()->setText(QString(92, QLatin1Char('1')));
    QTest::keyClicks(commandEdit(), latin1("#"));
    click(sendButton());
    QVERIFY(requests().isEmpty());
    QCOMPARE(shownLines().value(1), receivedLine(text("USSD_CODE_FAILED")));
    QVERIFY(isIdle());
}

void GeneralDialogTest::refusedPresetIsAnsweredLocally_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("key");
    QTest::newRow("device did not answer") << 5 << QByteArray("USSD_CODE_TIME_OUT");
    QTest::newRow("no device") << 1 << QByteArray("USSD_CODE_FAILED");
}

void GeneralDialogTest::refusedPresetIsAnsweredLocally()
{
    QFETCH(int, status);
    QFETCH(QByteArray, key);
    open();
    fakeSdkSetAnswer(fakeRefused(1, status));
    click(presetButtons().first());
    QCOMPARE(shownLines().mid(0, 2),
             (QStringList{sentLine(latin1("*100#")), receivedLine(text(key.constData()))}));
    QVERIFY(isIdle());
    QVERIFY(presetButtons().first()->isEnabled());
}

/// The different behaviour is deliberate.
void GeneralDialogTest::presetDisablesTheComboButSendDoesNot()
{
    open();
    send(latin1("*100#"));
    QVERIFY(combo()->isEnabled());
    networkSays(latin1("one"));
    click(presetButtons().first());
    QVERIFY(isWaiting());
    QVERIFY(!combo()->isEnabled());
    networkSays(latin1("two"));
    QVERIFY(combo()->isEnabled());
}

void GeneralDialogTest::menuIsAnsweredByTheNextCommand()
{
    open();
    send(latin1("*100#"));
    networkSays(latin1("1) Yes\n2) No"));
    QVERIFY(isIdle());
    send(latin1("1"));
    networkSays(latin1("Done"));
    QCOMPARE(requests(), (QStringList{latin1("*100#"), latin1("1")}));
    QVERIFY(shownLines().contains(receivedLine(latin1("Done"))));
}

// ---- answers ---------------------------------------------------------------------------------

void GeneralDialogTest::answerEndsTheWaiting()
{
    open();
    QTest::keyClicks(paymentEdit(), latin1("123"));
    send(latin1("*100#"));
    QVERIFY(isWaiting());
    networkSays(latin1("12 EUR"));
    QVERIFY(isIdle());
    const QList<QPushButton *> presets = presetButtons();
    QCOMPARE(presets.count(), 4);
    QVERIFY(presets.at(0)->isEnabled());
    QVERIFY(presets.at(1)->isEnabled());
    QVERIFY(!presets.at(2)->isEnabled()); // the payment edit is empty
    QVERIFY(!presets.at(3)->isEnabled());
    QCOMPARE(timesLogged("showPromptForWaitingResponse Enter bShow: 0"), 1);
}

void GeneralDialogTest::emptyAnswerIsShownAsFailure()
{
    open();
    send(latin1("*100#"));
    networkSays(QString());
    QCOMPARE(shownLines().value(1), receivedLine(text("USSD_CODE_FAILED")));
    QVERIFY(isIdle());
}

void GeneralDialogTest::networkRefusalIsShownAsFailure()
{
    fakeSdkSetAnswer(fakeNetworkRefusal());
    open();
    send(latin1("*100#"));
    QVERIFY(fakeSdkWaitForDeliveries(FakeService::Ussd, 1));
    drainEvents();
    QCOMPARE(shownLines().value(1), receivedLine(text("USSD_CODE_FAILED")));
}

void GeneralDialogTest::silenceIsShownAsTimeOut()
{
    USSDLogic::setReplyTimes({20, 3000});
    open();
    send(latin1("*100#"));
    QVERIFY(isWaiting());
    QTRY_COMPARE(shownLines().value(1), receivedLine(text("USSD_CODE_TIME_OUT")));
    QVERIFY(isIdle());
}

void GeneralDialogTest::answerOfAnotherComponentIsIgnored_data()
{
    QTest::addColumn<int>("component");
    for (int component : {-1, 0, 1, 2, 3, 4, 6, 7})
        QTest::newRow(qPrintable(QString::number(component))) << component;
}

void GeneralDialogTest::answerOfAnotherComponentIsIgnored()
{
    QFETCH(int, component);
    open();
    send(latin1("*100#"));
    clearLog();
    emit USSDLogic::GetUSSDLogicInstance()->responseReceived(component, latin1("not mine"));
    QCOMPARE(shownLines().count(), 1);
    QVERIFY(isWaiting());
    // debug and warning
    QCOMPARE(timesLogged("OnResponseReceived Exit: USSDGeneralDlg no need to handle"), 2);
}

void GeneralDialogTest::secondAnswerIsIgnored()
{
    open();
    send(latin1("*100#"));
    networkSays(latin1("first"));
    const QString shown = history()->toHtml();
    QTest::keyClicks(commandEdit(), latin1("*1"));
    clearLog();
    emit USSDLogic::GetUSSDLogicInstance()->responseReceived(5, latin1("second"));
    QCOMPARE(history()->toHtml(), shown);
    QCOMPARE(commandEdit()->text(), latin1("*1")); // the typed text is kept
    QVERIFY(timesLogged("onResponseReceived Exit: USSDGeneralDlg no need to handle") > 0);
}

void GeneralDialogTest::answerThatNobodyWaitsForIsIgnored()
{
    open();
    emit USSDLogic::GetUSSDLogicInstance()->responseReceived(5, latin1("unasked"));
    QVERIFY(shownLines().isEmpty());
    QVERIFY(timesLogged("onResponseReceived Exit: USSDGeneralDlg no need to handle") > 0);
}

void GeneralDialogTest::answersOfManyCommandsStandInOrder()
{
    open();
    QStringList expected;
    for (int i = 0; i < 30; ++i) {
        const QString code = latin1("*%1#").arg(i);
        send(code);
        networkSays(latin1("reply %1").arg(i));
        expected << sentLine(code) << receivedLine(latin1("reply %1").arg(i));
    }
    QStringList shown = shownLines();
    shown.removeAll(QString()); // each reply ends with a line break
    QCOMPARE(shown, expected);
    QCOMPARE(requests().count(), 30);
}

/// An answer does not contain the command that it belongs to, so it is shown for the current
/// command.
void GeneralDialogTest::lateAnswerAfterTheNextCommandIsTakenForIts()
{
    open(WINDOW_MODEL_MODAL);
    send(latin1("*1#"));
    dialog()->OnClickedCloseButton();
    open(WINDOW_MODEL_MODAL);
    send(latin1("*2#"));
    networkSays(latin1("late"));
    QCOMPARE(shownLines().mid(0, 2),
             (QStringList{sentLine(latin1("*2#")), receivedLine(latin1("late"))}));
    QVERIFY(isIdle());
    networkSays(latin1("for the second"));
    QVERIFY(!shownLines().contains(receivedLine(latin1("for the second"))));
}

// ---- focus -----------------------------------------------------------------------------------

void GeneralDialogTest::keysTypedAfterAnAnswerReachTheCommandEdit_data()
{
    QTest::addColumn<bool>("byPreset");
    QTest::newRow("typed command") << false;
    QTest::newRow("preset button") << true;
}

void GeneralDialogTest::keysTypedAfterAnAnswerReachTheCommandEdit()
{
    QFETCH(bool, byPreset);
    open();
    activateWindow();
    if (byPreset) {
        presetButtons().first()->setFocus();
        click(presetButtons().first());
    } else {
        commandEdit()->setFocus();
        send(latin1("*100#"));
    }
    networkSays(latin1("1) Yes"));
    QTest::keyClicks(QApplication::focusWidget(), latin1("1"));
    QCOMPARE(commandEdit()->text(), latin1("1"));
    QVERIFY(sendButton()->isEnabled());
    QVERIFY(combo()->hasFocus()); // the combo box is the focus proxy of the visible field
}

void GeneralDialogTest::keysTypedAfterALocalFailureReachTheCommandEdit()
{
    fakeSdkSetAnswer(fakeRefused(1, 0));
    open();
    activateWindow();
    sendButton()->setFocus();
    send(latin1("*100#"));
    QTest::keyClicks(QApplication::focusWidget(), latin1("*2"));
    QCOMPARE(commandEdit()->text(), latin1("*2"));
}

void GeneralDialogTest::answerLeavesTheFocusToAWidgetOfTheHost()
{
    open();
    QLineEdit other(page());
    other.show();
    activateWindow();
    send(latin1("*100#"));
    other.setFocus();
    networkSays(latin1("12 EUR"));
    QVERIFY(isIdle());
    QVERIFY(other.hasFocus());
}

void GeneralDialogTest::answerBehindAQuestionGivesTheFocusBack()
{
    changeConfig("showConfirmDialog='false'", "showConfirmDialog='true'");
    open();
    activateWindow();
    send(latin1("*100#"));
    clearButton()->setFocus();
    QTimer::singleShot(0, this, [&] {
        QWidget *question = QApplication::activeModalWidget();
        if (!question)
            return;
        QApplication::setActiveWindow(question);
        networkSays(latin1("1) Yes"));
        question->close();
    });
    click(clearButton());
    QVERIFY(isIdle());
    activateWindow();
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(commandEdit()));
}

void GeneralDialogTest::profileFocusReachesTheCommandEdit()
{
    open();
    activateWindow();
    history()->setFocus();
    dialog()->setProfileFocus();
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(commandEdit()));
}

void GeneralDialogTest::dialogShownAgainHasTheFocusInTheCommandEdit()
{
    open();
    activateWindow();
    history()->setFocus();
    dialog()->ReInitDialog();
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(commandEdit()));
}

// ---- transcript ------------------------------------------------------------------------------

void GeneralDialogTest::lineBreakInACommandIsShownAsBr()
{
    open();
    emit dialog()->preBtnClickedEvent(latin1("*1\n2#"));
    QVERIFY(history()->entries().contains(latin1("*1<br>2#</span></p>")));
    QVERIFY(!history()->entries().contains(QLatin1Char('\n')));
    QCOMPARE(requests(), QStringList{latin1("*1\n2#")}); // sent unchanged
}

void GeneralDialogTest::rightToLeftParagraphsSaySo()
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

void GeneralDialogTest::paragraphsFollowTheApplicationNotTheDialog()
{
    open();
    dialog()->setLayoutDirection(Qt::RightToLeft);
    send(latin1("*100#"));
    QVERIFY(!history()->entries().contains(latin1("dir='rtl'")));
}

void GeneralDialogTest::height200And219Are10Points()
{
    for (const char *height : {"200", "219"}) {
        changeConfig("<yHeight>200", qPrintable(latin1("<yHeight>") + latin1(height)));
        open();
        send(latin1("*100#"));
        QVERIFY(history()->entries().contains(latin1("font-size : 10pt;")));
    }
}

void GeneralDialogTest::coloursAreThoseOfTheConfiguration()
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

void GeneralDialogTest::looksAreReadAnewForEachEntry()
{
    open();
    send(latin1("*100#"));
    changeConfig("<color red='255' green='0' blue='16'/>", "<color red='1' green='2' blue='3'/>");
    networkSays(latin1("12"));
    QVERIFY(history()->entries().contains(latin1("color : #010203;")));
}

void GeneralDialogTest::withoutConfigurationTheTranscriptIsShownNevertheless()
{
    allowWarning("Point size <= 0"); // the configured size is zero
    writeConfig(QByteArray());
    open();
    send(latin1("*100#"));
    networkSays(latin1("12"));
    QVERIFY(history()->entries().contains(latin1("color : #000000;\" style=\"font-size : 0pt;")));
    QCOMPARE(shownLines().mid(0, 2),
             (QStringList{sentLine(latin1("*100#")), receivedLine(latin1("12"))}));
}

void GeneralDialogTest::replyIsMarkupButLoadsNothing()
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

// ---- clearing --------------------------------------------------------------------------------

void GeneralDialogTest::clearButtonNeedsSomethingToClear()
{
    open();
    QVERIFY(!clearButton()->isEnabled());
    send(latin1("*100#"));
    QVERIFY(clearButton()->isEnabled());
    click(clearButton());
    QVERIFY(!clearButton()->isEnabled());
    networkSays(latin1("12"));
    QVERIFY(clearButton()->isEnabled());
    QCOMPARE(shownLines().first(), receivedLine(latin1("12"))); // the earlier text was cleared
}

void GeneralDialogTest::withoutQuestionItClearsAtOnce()
{
    open();
    send(latin1("*100#"));
    QVERIFY(clearAndAnswer("IDS_CANCEL").isNull());
    QCOMPARE(history()->entries(), QString());
}

void GeneralDialogTest::questionAnsweredWithOkClears()
{
    changeConfig("showConfirmDialog='false'", "showConfirmDialog='true'");
    open();
    send(latin1("*100#"));
    QCOMPARE(clearAndAnswer("IDS_OK"), text("IDS_STR_CLEAR"));
    QVERIFY(shownLines().isEmpty());
    QVERIFY(!clearButton()->isEnabled());
}

void GeneralDialogTest::questionHasItsCaptionAndIcon()
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

void GeneralDialogTest::questionAnsweredWithCancelKeepsAll_data()
{
    QTest::addColumn<bool>("byEscape");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << true;
}

void GeneralDialogTest::questionAnsweredWithCancelKeepsAll()
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

void GeneralDialogTest::clearingWhileWaitingKeepsThePrompt()
{
    open();
    send(latin1("*100#"));
    click(clearButton());
    QVERIFY(isWaiting());
}

void GeneralDialogTest::dialogDeletedWhileItAsksCostsNothing()
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
    // The slot is called directly because a click would use the deleted button.
    QVERIFY(QMetaObject::invokeMethod(dialog(), "clearHistory"));
    QVERIFY(asked);
    QVERIFY(!asking);
}

// ---- payment ---------------------------------------------------------------------------------

void GeneralDialogTest::letterInThePaymentEditVanishes()
{
    open();
    QTest::keyClicks(paymentEdit(), latin1("12a"));
    QCOMPARE(paymentEdit()->text(), latin1("12"));
    QCOMPARE(paymentEdit()->cursorPosition(), 2);
    QTest::keyClicks(paymentEdit(), latin1("3"));
    QCOMPARE(paymentEdit()->text(), latin1("123"));
}

void GeneralDialogTest::semicolonInThePaymentEditVanishes()
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

void GeneralDialogTest::refusedKeyInTheMiddleLeavesTheCursorThere()
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

void GeneralDialogTest::pasted25DigitsAreCutTo20()
{
    open();
    QApplication::clipboard()->setText(latin1("1234567890123456789012345"));
    QTest::keyClick(paymentEdit(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(paymentEdit()->text(), latin1("12345678901234567890"));
    QVERIFY(presetButtons().last()->isEnabled());
    QTest::keyClick(paymentEdit(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(paymentEdit(), latin1("x")); // would replace the selected text
    QCOMPARE(paymentEdit()->text(), latin1("12345678901234567890"));
}

void GeneralDialogTest::pastedTextWithALetterVanishes()
{
    open();
    QTest::keyClicks(paymentEdit(), latin1("7"));
    QApplication::clipboard()->setText(latin1("12 34"));
    QTest::keyClick(paymentEdit(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(paymentEdit()->text(), latin1("7"));
}

void GeneralDialogTest::noMoreThan20DigitsCanBeTyped()
{
    open();
    QTest::keyClicks(paymentEdit(), QString(25, QLatin1Char('7')));
    QCOMPARE(paymentEdit()->text(), QString(20, QLatin1Char('7')));
    QCOMPARE(paymentEdit()->maxLength(), 20);
}

void GeneralDialogTest::onlyAsciiDigitsAreAllowed()
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

/// Tests that an old number does not come back. A number that has been used for a payment must not
/// be sent again by accident.
void GeneralDialogTest::refusedKeyAfterAnAnswerBringsNoOldNumberBack()
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

// ---- language --------------------------------------------------------------------------------

void GeneralDialogTest::allTextsFollowTheLanguage()
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

void GeneralDialogTest::promptFollowsTheLanguageOnlyWhenShown()
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

void GeneralDialogTest::transcriptKeepsItsLanguage()
{
    open();
    send(latin1("*100#"));
    networkSays(latin1("12"));
    const QString shown = history()->toHtml();
    QVERIFY(HostCore::Languages::setCurrent(latin1("de")));
    dialog()->SetLanguage();
    QCOMPARE(history()->toHtml(), shown);
    send(latin1("*101#"));
    QCOMPARE(shownLines().last(), sentLine(latin1("*101#"))); // in German
    QVERIFY(!shownLines().first().startsWith(text("IDS_USSD_SEND")));
}

void GeneralDialogTest::descriptionFollowsTheLanguage()
{
    open();
    combo()->setEditText(latin1("*100#"));
    QVERIFY(HostCore::Languages::setCurrent(latin1("de")));
    dialog()->SetLanguage();
    QCOMPARE(descriptionLabel()->text(), text("IDS_BUTTON_SEND"));
}

// ---- being closed and shown again ------------------------------------------------------------

void GeneralDialogTest::closeRequestIsPassedOnInEveryModel_data()
{
    QTest::addColumn<int>("model");
    QTest::newRow("modal") << int(WINDOW_MODEL_MODAL);
    QTest::newRow("embedded") << int(WINDOW_MODEL_EMBEDDED);
}

void GeneralDialogTest::closeRequestIsPassedOnInEveryModel()
{
    QFETCH(int, model);
    open(static_cast<WINDOW_MODEL>(model));
    QSignalSpy closed(dialog(), SIGNAL(clickedcloseButton()));
    dialog()->OnClickedCloseButton();
    QCOMPARE(closed.count(), 1);
}

void GeneralDialogTest::closingTheModalDialogEndsTheWaiting()
{
    open(WINDOW_MODEL_MODAL);
    send(latin1("*100#"));
    dialog()->OnClickedCloseButton();
    networkSays(latin1("late"));
    QCOMPARE(shownLines(), QStringList{sentLine(latin1("*100#"))});
}

void GeneralDialogTest::closingTheEmbeddedDialogKeepsItWaiting()
{
    open(WINDOW_MODEL_EMBEDDED);
    send(latin1("*100#"));
    dialog()->OnClickedCloseButton();
    networkSays(latin1("in time"));
    QCOMPARE(shownLines().value(1), receivedLine(latin1("in time")));
}

void GeneralDialogTest::reopenedModalDialogSendsAtOnceAndDropsTheLateAnswer()
{
    open(WINDOW_MODEL_MODAL);
    send(latin1("*100#"));
    dialog()->OnClickedCloseButton();
    open(WINDOW_MODEL_MODAL); // as the outer window does
    QVERIFY(isIdle());
    networkSays(latin1("late"));
    QVERIFY(shownLines().isEmpty());
    send(latin1("*101#"));
    QVERIFY(isWaiting());
    QCOMPARE(requests().last(), latin1("*101#"));
}

void GeneralDialogTest::modalDialogShownAgainHasAnEmptyTranscript()
{
    open(WINDOW_MODEL_MODAL);
    send(latin1("*100#"));
    networkSays(latin1("12"));
    dialog()->ReInitDialog();
    QVERIFY(shownLines().isEmpty());
    QCOMPARE(history()->entries(), QString());
    QVERIFY(clearButton()->isEnabled()); // the button keeps its state
    send(latin1("*101#"));
    QCOMPARE(shownLines(), QStringList{sentLine(latin1("*101#"))});
}

void GeneralDialogTest::embeddedDialogShownAgainKeepsItsTranscript()
{
    open(WINDOW_MODEL_EMBEDDED);
    send(latin1("*100#"));
    const QString shown = history()->toHtml();
    dialog()->ReInitDialog();
    QCOMPARE(history()->toHtml(), shown);
}

void GeneralDialogTest::reInitWhileWaitingLeavesTheComboDisabled()
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

void GeneralDialogTest::withoutInitNothingCrashes()
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

USSD_TEST_MAIN(GeneralDialogTest)

#include "general_dialog_test.moc"
