#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QScrollBar>
#include <QTimer>

#include "account/Favourites.h"
#include "CommandTest.h"
#include "look/Look.h"
#include "pages/ChainDialog.h"
#include "pages/CodesPage.h"
#include "pages/GeneralArea.h"
#include "pages/HistoryPopup.h"
#include "pages/HistoryView.h"
#include "pages/TopUpSheet.h"
#include "plugin/CodeHistory.h"
#include "plugin/KeyboardHelper.h"
#include "plugin/WalkWatcher.h"

using namespace Dashboard;

/** Tests the codes page with the real general window and the fake SDK. */
class CodesPageTest : public CommandTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override;

private slots:
    void theMarginsAreClipped();
    void theFieldIsVisibleWhileTheUserTypes();
    void theFieldGetsTheFocusAfterAMenu();
    void theNarrowFormHidesThePresets();
    void theEditorDoesNotBringThePresetsBack();
    void aSmallPageScrollsBelowTheStrip();
    void theWindowIsDisabledAsAWhole();
    void aCommandOnItsWayKeepsTheWindow();
    void theKeysAnswerAndStop();
    void aHiddenNumberIsAskedFor();
    void theHistoryFitsTheNarrowWindow();
    void theCodesSheetPressesHiddenButtons();
    void theTopUpSheetFillsInTheNumber();
    void theHistoryOpensInTheEmptyField();
    void theFooterOfTheHistoryStays();
    void theLastCodeOfTheHistoryCanBeSeen();
    void anOwnCodeIsNamedAsSuch();
    void theHistoryIsDeletedWithTheKeyboard();
    void anEmptyHistoryOpens();
    void aChainIsInTheHistory();
    void aWalkIsKept();
    void aStoppedChainShowsWhyAndLeavesTheMenu();
    void aBlockedPageRunsNoChain();
    void returnSendsWhatIsTyped();
    void escapeEmptiesTheField();
    void theReplyIsCopied();
    void theReplyIsCopiedByItsButton();
    void wordsAreFoundInTheTranscript();
    void theSearchWrapsAndCounts();
    void theSearchFollowsTheTranscript();
    void theSearchLeavesTheTranscriptAlone();
    void theSearchIsClosed();
    void theTranscriptIsSaved();
    void aTranscriptThatCannotBeSavedIsTold();
    void theRingIsRoundWithTheStyleSheet();

private:
    CodesPage &codes() { return *m_page; }
    GeneralWindow general() { return m_page->general(); }
    QList<QPushButton *> presets();
    QRect transcript();
    QAction *shortcut(const QKeySequence &key);
    template <typename T>
    T *part(const char *name)
    {
        return m_page->findChild<T *>(QLatin1String(name));
    }
    void receive(const char16_t *reply);
    void findWords(const char *words);
    QString count() { return part<QLabel>("Dashboard_FindCount")->text(); }
    QString currentMatch();
    void saveTo(const QString &file);
    HistoryView *list() { return m_page->findChild<HistoryPopup *>()->view(); }

    QScopedPointer<CodeHistory> m_history;
    QList<CodeName> m_names;
    QScopedPointer<Favourites> m_favourites;
    QScopedPointer<ChainRunner> m_chains;
    QScopedPointer<WalkWatcher> m_walks;
    QScopedPointer<CodesPage> m_page;
    KeyboardHelper m_keyboard;
};

void CodesPageTest::setUp()
{
    CommandTest::setUp();
    m_history.reset(new CodeHistory(folder() + QLatin1String("/history")));
    m_names = {{QLatin1String("*100#"), QLatin1String("Balance")},
               {QLatin1String("*7#"), QLatin1String("My own")}};
    m_favourites.reset(new Favourites(QString()));
    m_chains.reset(new ChainRunner(&monitor()));
    m_walks.reset(new WalkWatcher(&monitor()));
    m_page.reset(new CodesPage({&plugin(), &monitor(), m_history.data(), [this] { return m_names; },
                                nullptr, m_chains.data(), m_walks.data(), m_favourites.data()}));
    m_page->resize(900, 700);
    m_page->show();
    m_page->showWindow(true);
    monitor().setWindow([this] { return general(); });
    QVERIFY(QTest::qWaitForWindowActive(m_page.data()));
    settle();
}

void CodesPageTest::tearDown()
{
    plugin().shutDown();
    m_page.reset();
    m_walks.reset();
    m_chains.reset();
    m_favourites.reset();
    m_history.reset();
    CommandTest::tearDown();
}

QList<QPushButton *> CodesPageTest::presets()
{
    return m_page->area()->canvas()->findChildren<QPushButton *>(
        QLatin1String("USSDUIPlugin_AdvancedDialog_PreButton"));
}

/// Returns the position and size of the transcript in the scroll area.
QRect CodesPageTest::transcript()
{
    const QTextEdit *history = general().history();
    return QRect(history->mapTo(codes().area(), QPoint()), history->size());
}

QAction *CodesPageTest::shortcut(const QKeySequence &key)
{
    for (QAction *action : codes().shortcuts()) {
        if (action->shortcut() == key)
            return action;
    }
    return nullptr;
}

void CodesPageTest::theMarginsAreClipped()
{
    const QPushButton *first = presets().first();
    QCOMPARE(first->mapTo(codes().area(), QPoint()).x(), 24);
    QCOMPARE(codes().area()->width() - transcript().right() - 1, 24);
    QVERIFY(first->isVisible());
}

/// Tests that a low page scrolls to the command field when the user types or moves the focus to it,
/// and not when the plug-in disables the field or gives it the focus. Otherwise, the preset buttons
/// would move while the user is pressing them.
void CodesPageTest::theFieldIsVisibleWhileTheUserTypes()
{
    codes().resize(900, 300);
    codes().activateWindow();
    settle();
    QLineEdit *field = general().commandEdit();
    QScrollBar *bar = codes().area()->verticalScrollBar();
    const auto isShown = [this, field] {
        const QWidget *viewport = codes().area()->viewport();
        return viewport->rect().contains(QRect(field->mapTo(viewport, QPoint()), field->size()));
    };
    bar->setValue(0);
    field->setFocus(Qt::OtherFocusReason);
    receive(u"Balance");
    QCOMPARE(general().lastReceived(), QLatin1String("Balance"));
    QCOMPARE(QApplication::focusWidget(), field);
    QCOMPARE(bar->value(), 0);
    QTest::keyClick(field, Qt::Key_1);
    QVERIFY(isShown());
    bar->setValue(0);
    field->clearFocus();
    field->setFocus(Qt::ShortcutFocusReason);
    QVERIFY(isShown());
}

void CodesPageTest::theFieldGetsTheFocusAfterAMenu()
{
    codes().activateWindow();
    for (void (StateStrip::*signal)() : {&StateStrip::menuEnded, &StateStrip::dismissed}) {
        presets().first()->setFocus();
        (codes().strip()->*signal)();
        QCOMPARE(QApplication::focusWidget(), general().commandEdit());
    }
}

void CodesPageTest::theNarrowFormHidesThePresets()
{
    codes().setForm(Form::Narrow);
    codes().resize(360, 560);
    settle();
    for (const QPushButton *preset : presets())
        QVERIFY(preset->isHidden());
    QVERIFY(presets().first()->isEnabled());
    QCOMPARE(transcript().left(), 12);
    QCOMPARE(codes().area()->width() - transcript().right() - 1, 12);
    QVERIFY(codes().area()->canvas()->width() <= codes().area()->viewport()->width());
    codes().setForm(Form::Wide);
    codes().resize(900, 700);
    settle();
    QVERIFY(presets().first()->isVisible());
    QCOMPARE(presets().first()->mapTo(codes().area(), QPoint()).x(), 24);
}

// Tests that the preset buttons stay hidden in the narrow form, although the plug-in shows them
// again after the user has saved codes.
void CodesPageTest::theEditorDoesNotBringThePresetsBack()
{
    codes().setForm(Form::Narrow);
    settle();
    presets().first()->setVisible(true);
    settle();
    QVERIFY(presets().first()->isHidden());
    codes().setForm(Form::Wide);
    settle();
    QVERIFY(presets().first()->isVisible());
    QVERIFY(presets().at(1)->isHidden()); // the test has shown only the first button
}

void CodesPageTest::aSmallPageScrollsBelowTheStrip()
{
    codes().resize(900, 420);
    settle();
    const int top = codes().strip()->mapTo(&codes(), QPoint()).y();
    QVERIFY(codes().area()->verticalScrollBar()->maximum() > 0);
    codes().area()->verticalScrollBar()->setValue(1000);
    settle();
    QCOMPARE(codes().strip()->mapTo(&codes(), QPoint()).y(), top);
    QVERIFY(codes().area()->geometry().top() >= codes().strip()->geometry().bottom());
}

void CodesPageTest::theWindowIsDisabledAsAWhole()
{
    Situation locked;
    locked.kind = Situation::Kind::SimLocked;
    locked.title = QLatin1String("The SIM is locked");
    codes().setSituation(locked);
    settle();
    QVERIFY(!general().commandEdit()->isEnabled() && !presets().first()->isEnabled());
    QVERIFY(!general().isWaiting());
    QCOMPARE(codes().strip()->title(), locked.title);
    Situation ready;
    ready.canSend = true;
    codes().setSituation(ready);
    QVERIFY(general().commandEdit()->isEnabled() && presets().first()->isEnabled());
}

void CodesPageTest::aCommandOnItsWayKeepsTheWindow()
{
    monitor().send(QLatin1String("*104#"));
    settle();
    codes().setSituation(Situation());
    QVERIFY(presets().first()->parentWidget()->isEnabled());
    fakeSdkRespond(u"Text");
    settle();
    QVERIFY(!presets().first()->parentWidget()->isEnabled());
    QVERIFY(!general().isWaiting());
}

void CodesPageTest::theKeysAnswerAndStop()
{
    fakeSdkScript({fakeReply(u"Menu\n1 One\n2 Two\n0 Back", 1), fakeSilence()});
    monitor().send(QLatin1String("*123#"));
    settle();
    shortcut(QKeySequence(QLatin1String("Alt+5")))->trigger(); // the menu has no such choice
    shortcut(QKeySequence(QLatin1String("Alt+0")))->trigger();
    settle();
    QVERIFY(fakeSdkCommands() == (std::vector<std::u16string>{u"*123#", u"0"}));
    shortcut(QKeySequence(QLatin1String("Ctrl+.")))->trigger();
    settle();
    QCOMPARE(state().kind, Kind::Cancelled);
}

void CodesPageTest::aHiddenNumberIsAskedFor()
{
    bool isAsked = false;
    QTimer::singleShot(0, this, [&] {
        QInputDialog *dialog = codes().findChild<QInputDialog *>();
        isAsked = dialog && dialog->labelText().contains(QString::fromUtf8("*140*…#"));
        if (dialog) {
            dialog->setTextValue(QLatin1String("017012"));
            dialog->accept();
        }
    });
    codes().useCode(QString::fromUtf8("*140*…#"));
    QVERIFY(isAsked);
    QCOMPARE(general().commandEdit()->text(), QLatin1String("*140*017012#"));
    QVERIFY(fakeSdkCommands().empty());
    QVERIFY(general().sendButton()->isEnabled());
}

/// Tests that the list shows the names although the field beside the Send button is narrow.
void CodesPageTest::theHistoryFitsTheNarrowWindow()
{
    codes().resize(1000, 640);
    settle();
    codes().openHistory();
    list()->hide();
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        codes().setLayoutDirection(direction);
        codes().setForm(Form::Narrow);
        codes().resize(360, 640);
        settle();
        codes().openHistory();
        const QRect window(codes().mapToGlobal(QPoint()), codes().size());
        const int margin = Look::instance().px(8);
        QVERIFY(window.adjusted(margin, 0, -margin, 0).contains(list()->geometry()));
        QCOMPARE(list()->width(), qMin(Look::instance().px(340), int(window.width()) - 2 * margin));
        list()->hide();
    }
}

void CodesPageTest::theCodesSheetPressesHiddenButtons()
{
    codes().setForm(Form::Narrow);
    settle();
    codes().findChild<QPushButton *>(QLatin1String("Dashboard_CodesSheetButton"))->click();
    QMenu *sheet = codes().findChild<QMenu *>(QLatin1String("Dashboard_CodesSheet"));
    QVERIFY(sheet && sheet->isVisible());
    QStringList names;
    for (const QAction *action : sheet->actions())
        names << action->text();
    QVERIFY2(names.contains(QLatin1String("My own")), qPrintable(names.join(QLatin1Char('|'))));
    sheet->actions().first()->trigger();
    sheet->close();
    settle();
    QCOMPARE(fakeSdkCommands().size(), std::size_t(1));
}

void CodesPageTest::theTopUpSheetFillsInTheNumber()
{
    codes().setForm(Form::Narrow);
    settle();
    codes().findChild<QPushButton *>(QLatin1String("Dashboard_TopUpSheetButton"))->click();
    TopUpSheet *sheet = codes().findChild<TopUpSheet *>();
    QVERIFY(sheet);
    QPushButton *action = sheet->findChild<QPushButton *>();
    QVERIFY(!action->isEnabled());
    QTest::keyClicks(sheet->findChild<QLineEdit *>(), QLatin1String("1x2345"));
    QVERIFY(action->isEnabled());
    action->click();
    settle();
    QCOMPARE(fakeSdkCommands().size(), std::size_t(1));
    QVERIFY(fakeSdkCommands().front().find(u"12345") != std::u16string::npos);
}

void CodesPageTest::theHistoryOpensInTheEmptyField()
{
    m_history->add(QLatin1String("*104#"));
    QLineEdit *edit = general().commandEdit();
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Down);
    QVERIFY(list()->isVisible());
    const QAbstractItemModel *model = list()->model();
    QCOMPARE(model->rowCount(), 3); // the sent code and two named codes
    QVERIFY(model->index(0, 0).data().toString().contains(QLatin1String("*104#")));
    QCOMPARE(model->index(1, 1).data().toString(), QLatin1String("Balance"));
    QTest::keyClick(list(), Qt::Key_Down);
    QTest::keyClick(list(), Qt::Key_Return);
    settle();
    QCOMPARE(edit->text(), QLatin1String("*100#"));
    QVERIFY(!list()->isVisible() && fakeSdkCommands().empty());
}

void CodesPageTest::theFooterOfTheHistoryStays()
{
    for (int i = 0; i < 30; ++i)
        m_history->add(QString::fromLatin1("*1%1#").arg(i));
    codes().openHistory();
    const QPushButton *button = list()->button();
    QVERIFY(button->isVisible());
    const QPoint before = button->mapTo(list(), QPoint());
    list()->scrollToBottom();
    QCOMPARE(button->mapTo(list(), QPoint()), before);
    QVERIFY(list()->rect().contains(QRect(before, button->size())));
    QVERIFY(list()->viewport()->geometry().bottom() < before.y());
    const int rows =
        list()->viewport()->height() / list()->visualRect(list()->model()->index(0, 0)).height();
    QVERIFY(rows >= 8); // the footer does not reduce the number of visible rows
    list()->button()->click();
    QVERIFY(m_history->codes().isEmpty() && !list()->isVisible());
}

/// Opens a list that is longer than its window, with its last code selected.
void CodesPageTest::theLastCodeOfTheHistoryCanBeSeen()
{
    for (int i = 0; i < 30; ++i)
        m_history->add(QString::fromLatin1("*1%1#").arg(i));
    codes().openHistoryAt(m_names.last().code);
    settle();
    list()->resize(list()->width(), list()->height() - 1); // updates the range of the scroll bar
    const QModelIndex last = list()->currentIndex();
    QCOMPARE(last.row(), list()->model()->rowCount() - 1);
    QVERIFY(list()->viewport()->rect().contains(list()->visualRect(last)));
    codes().openHistoryAt(QLatin1String("*404#")); // the list does not contain this code
    QCOMPARE(list()->currentIndex().row(), 0);
}

void CodesPageTest::anOwnCodeIsNamedAsSuch()
{
    m_names.last().isOwn = true;
    codes().openHistory();
    const QAbstractItemModel *model = list()->model();
    QCOMPARE(model->index(0, 2).data().toString(), QString());
    QCOMPARE(model->index(1, 2).data().toString(), QLatin1String("Your code"));
    m_history->add(m_names.last().code);
    codes().openHistory();
    QVERIFY(model->index(0, 2).data().toString().startsWith(QLatin1String("today")));
}

void CodesPageTest::theHistoryIsDeletedWithTheKeyboard()
{
    m_history->add(QLatin1String("*104#"));
    codes().openHistory();
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(list(), Qt::Key_Down);
    QVERIFY(list()->isButtonCurrent());
    QTest::keyClick(list(), Qt::Key_Up);
    QVERIFY(!list()->isButtonCurrent());
    QCOMPARE(list()->currentIndex().row(), 2);
    QTest::keyClick(list(), Qt::Key_Down);
    QTest::keyClick(list(), Qt::Key_Return);
    settle();
    QVERIFY(m_history->codes().isEmpty());
    QVERIFY(fakeSdkCommands().empty() && general().commandEdit()->text().isEmpty());
}

void CodesPageTest::anEmptyHistoryOpens()
{
    m_names.clear();
    codes().openHistory();
    QVERIFY(list()->isVisible() && list()->button()->isHidden());
    QCOMPARE(list()->model()->rowCount(), 1);
    QCOMPARE(list()->model()->index(0, 1).data().toString(), QLatin1String("No code was sent yet"));
    QTest::keyClick(list(), Qt::Key_Return);
    settle();
    QVERIFY(fakeSdkCommands().empty() && general().commandEdit()->text().isEmpty());
}

void CodesPageTest::aChainIsInTheHistory()
{
    QVERIFY(m_favourites->keep({"Pack", "*123#", {{"2", "Two"}}}));
    fakeSdkScript({fakeReply(u"Menu\n1 One\n2 Two", 1), fakeReply(u"Done")});
    codes().openHistory();
    const QAbstractItemModel *model = list()->model();
    QCOMPARE(model->rowCount(), 3);
    QCOMPARE(model->index(2, 1).data().toString(), QLatin1String("Pack"));
    QVERIFY(model->index(2, 0).data().toString().contains(QString::fromUtf8("*123# › 2")));
    QTest::keyClick(list(), Qt::Key_Down);
    QTest::keyClick(list(), Qt::Key_Down);
    QTest::keyClick(list(), Qt::Key_Return);
    for (int i = 0; i < 3; ++i)
        settle();
    QVERIFY(fakeSdkCommands() == (std::vector<std::u16string>{u"*123#", u"2"}));
    // The name of a chain can be typed.
    QTest::keyClicks(general().commandEdit(), QLatin1String("pa"));
    QCOMPARE(list()->model()->rowCount(), 1);
}

void CodesPageTest::aWalkIsKept()
{
    const auto keep = [this] {
        return codes().strip()->findChild<QPushButton *>(QLatin1String("Dashboard_KeepWalk"));
    };
    fakeSdkScript({fakeReply(u"Menu\n1 One\n2 Two", 1), fakeReply(u"Done"), fakeReply(u"Balance")});
    monitor().send(QLatin1String("*123#"));
    settle();
    QVERIFY(!keep()); // not offered while the menu is open
    monitor().answer(QLatin1String("2"));
    settle();
    QVERIFY(keep());
    keep()->click();
    ChainDialog *dialog = codes().findChild<ChainDialog *>();
    QVERIFY(dialog && dialog->isVisible());
    QCOMPARE(dialog->name(), QLatin1String("Two"));
    dialog->setName(QLatin1String("Every month"));
    dialog->accept();
    settle();
    QCOMPARE(m_favourites->chain(QLatin1String("Every month")).keys(),
             std::string("*123# \xe2\x80\xba 2"));
    QVERIFY(!keep()); // not offered again, because the walk has been kept
    QVERIFY(m_favourites->remove(QLatin1String("Every month")));
    settle();
    QVERIFY(keep());
    monitor().send(QLatin1String("*100#"));
    settle();
    QVERIFY(!keep());
}

void CodesPageTest::aStoppedChainShowsWhyAndLeavesTheMenu()
{
    QVERIFY(m_favourites->keep({"Pack", "*123#", {{"2", "Two"}}}));
    fakeSdkScript(
        {fakeReply(u"Menu\n1 One\n2 Three", 1), fakeReply(u"Done"), fakeReply(u"Balance")});
    codes().runChain(QLatin1String("Pack"));
    for (int i = 0; i < 3; ++i)
        settle();
    QString title = codes().strip()->title();
    QCOMPARE(title.remove(QChar(0x2068)).remove(QChar(0x2069)),
             QLatin1String("Pack stopped at step 2 of 2"));
    QVERIFY(codes().strip()->text().contains(QLatin1String("Three")));
    QCOMPARE(codes().strip()->findChildren<QPushButton *>(QLatin1String("Dashboard_Choice")).size(),
             2);
    codes().strip()->findChild<QPushButton *>(QLatin1String("Dashboard_WhyStopped"))->click();
    QMessageBox *box = codes().findChild<QMessageBox *>(QLatin1String("Dashboard_ChainBox"));
    QVERIFY(box && box->isVisible() && box->text() == codes().strip()->text());
    box->close();
    shortcut(QKeySequence(QLatin1String("Alt+1")))->trigger(); // the user answers the menu
    settle();
    QCOMPARE(codes().strip()->title(), QLatin1String("Ready"));
    QVERIFY(fakeSdkCommands() == (std::vector<std::u16string>{u"*123#", u"1"}));
    QVERIFY(m_favourites->keep({"Gone", "*100#", {{"2", "Two"}}}));
    codes().runChain(QLatin1String("Gone"));
    for (int i = 0; i < 3; ++i)
        settle();
    QVERIFY(codes().strip()->title().contains(QLatin1String("stopped")));
    codes().strip()->findChild<QPushButton *>(QLatin1String("Dashboard_DismissFailure"))->click();
    QCOMPARE(codes().strip()->title(), QLatin1String("Ready"));
}

void CodesPageTest::aBlockedPageRunsNoChain()
{
    QVERIFY(m_favourites->keep({"Pack", "*123#", {{"2", "Two"}}}));
    setDevice(TKSV_DEVICE_SIM_LOCKED);
    settle();
    codes().runChain(QLatin1String("Pack"));
    codes().runChain(QLatin1String("No such chain"));
    settle();
    QVERIFY(fakeSdkCommands().empty());
}

// Tests that Return sends the typed code if no row of the list is selected, although the list has
// opened while the user was typing.
void CodesPageTest::returnSendsWhatIsTyped()
{
    QLineEdit *edit = general().commandEdit();
    edit->setFocus();
    QTest::keyClicks(edit, QLatin1String("*1"));
    QVERIFY(list()->isVisible());
    QTest::keyClicks(list(), QLatin1String("0#"));
    QCOMPARE(edit->text(), QLatin1String("*10#"));
    QTest::keyClicks(edit, QLatin1String(""));
    QTest::keyClick(list()->isVisible() ? static_cast<QWidget *>(list()) : edit, Qt::Key_Return);
    settle();
    QVERIFY(fakeSdkCommands() == std::vector<std::u16string>{u"*10#"});
}

void CodesPageTest::escapeEmptiesTheField()
{
    QLineEdit *edit = general().commandEdit();
    QTest::keyClicks(edit, QLatin1String("xyz"));
    QVERIFY(general().sendButton()->isEnabled());
    QTest::keyClick(edit, Qt::Key_Escape);
    QCOMPARE(edit->text(), QString());
    QVERIFY(!general().sendButton()->isEnabled());
}

void CodesPageTest::theReplyIsCopied()
{
    fakeSdkSetAnswer(fakeReply(u"Your balance is 7.00 EUR."));
    monitor().send(QLatin1String("*100#"));
    settle();
    shortcut(QKeySequence(QLatin1String("Ctrl+Shift+C")))->trigger();
    QCOMPARE(QApplication::clipboard()->text(), QLatin1String("Your balance is 7.00 EUR."));
}

void CodesPageTest::receive(const char16_t *reply)
{
    fakeSdkSetAnswer(fakeReply(reply));
    monitor().send(QLatin1String("*100#"));
    settle();
}

void CodesPageTest::findWords(const char *words)
{
    codes().find();
    part<QLineEdit>("Dashboard_FindField")->setText(QString::fromUtf8(words));
}

/// Returns the text that is highlighted as the current match, and the character after it.
QString CodesPageTest::currentMatch()
{
    for (const QTextEdit::ExtraSelection &selection : general().history()->extraSelections()) {
        QTextCursor cursor = selection.cursor;
        if (selection.format.foreground().color() != Qt::white)
            continue;
        cursor.setPosition(cursor.selectionStart());
        cursor.setPosition(selection.cursor.selectionEnd() + 1, QTextCursor::KeepAnchor);
        return cursor.selectedText();
    }
    return QString();
}

void CodesPageTest::theReplyIsCopiedByItsButton()
{
    QPushButton *copy = part<QPushButton>("Dashboard_CopyReplyButton");
    QVERIFY(copy->isVisible() && !copy->isEnabled());
    receive(u"Your balance is 8.00 EUR.");
    QVERIFY(copy->isEnabled());
    copy->click();
    QCOMPARE(QApplication::clipboard()->text(), QLatin1String("Your balance is 8.00 EUR."));
    codes().setForm(Form::Narrow);
    QVERIFY(!copy->isVisible());
    QApplication::clipboard()->clear();
    part<QPushButton>("Dashboard_StripMore")->click();
    part<QMenu>("Dashboard_StripMenu")->actions().first()->trigger();
    QCOMPARE(QApplication::clipboard()->text(), QLatin1String("Your balance is 8.00 EUR."));
}

void CodesPageTest::wordsAreFoundInTheTranscript()
{
    receive(u"Roaming1 roaming2 ROAMING3");
    QVERIFY(!part<QWidget>("Dashboard_FindBar")->isVisible());
    findWords("roaming");
    QCOMPARE(QApplication::focusWidget(), part<QWidget>("Dashboard_FindField"));
    QCOMPARE(general().history()->extraSelections().size(), 3);
    QCOMPARE(count(), QLatin1String("1 of 3"));
    QCOMPARE(currentMatch(), QLatin1String("Roaming1"));
    findWords("roaming.");
    QCOMPARE(count(), QLatin1String("Not found"));
    QVERIFY(general().history()->extraSelections().isEmpty());
    findWords("");
    QCOMPARE(count(), QString());
}

void CodesPageTest::theSearchWrapsAndCounts()
{
    receive(u"Roaming1 roaming2 ROAMING3");
    findWords("roaming");
    QLineEdit *field = part<QLineEdit>("Dashboard_FindField");
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(currentMatch(), QLatin1String("roaming2"));
    QTest::keyClick(field, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClick(field, Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(currentMatch(), QLatin1String("ROAMING3"));
    QCOMPARE(count(), QLatin1String("3 of 3"));
    part<QPushButton>("Dashboard_FindNext")->click();
    QCOMPARE(count(), QLatin1String("1 of 3"));
    part<QPushButton>("Dashboard_FindPrevious")->click();
    QCOMPARE(count(), QLatin1String("3 of 3"));
}

void CodesPageTest::theSearchFollowsTheTranscript()
{
    receive(u"Roaming1 roaming2");
    findWords("roaming");
    QTest::keyClick(part<QLineEdit>("Dashboard_FindField"), Qt::Key_Return);
    receive(u"roaming3");
    QCOMPARE(count(), QLatin1String("2 of 3"));
    general().history()->clear(); // the Clear button would ask for confirmation
    QCOMPARE(count(), QLatin1String("Not found"));
}

// Tests that a search does not change the transcript or its text cursor, which belongs to the
// plug-in and the user. The match must be scrolled into view without moving the text cursor.
void CodesPageTest::theSearchLeavesTheTranscriptAlone()
{
    receive(u"Needle");
    for (int i = 0; i < 30; ++i)
        receive(u"Your balance is 9.00 EUR.");
    QTextEdit *history = general().history();
    const QString before = history->toHtml();
    const int cursor = history->textCursor().position();
    QVERIFY(history->verticalScrollBar()->value() > history->viewport()->height());
    findWords("needle");
    const QRect match = history->cursorRect(history->extraSelections().first().cursor);
    QVERIFY(history->viewport()->rect().contains(match.center()));
    QCOMPARE(history->textCursor().position(), cursor);
    QCOMPARE(history->toHtml(), before);
}

void CodesPageTest::theSearchIsClosed()
{
    receive(u"Roaming");
    QLineEdit *edit = general().commandEdit();
    edit->setFocus();
    findWords("roaming");
    QTest::keyClick(part<QLineEdit>("Dashboard_FindField"), Qt::Key_Escape);
    QVERIFY(!part<QWidget>("Dashboard_FindBar")->isVisible());
    QVERIFY(general().history()->extraSelections().isEmpty());
    QCOMPARE(QApplication::focusWidget(), edit);
    codes().find();
    QCOMPARE(part<QLineEdit>("Dashboard_FindField")->selectedText(), QLatin1String("roaming"));
    part<QPushButton>("Dashboard_FindClose")->click();
    QVERIFY(!part<QWidget>("Dashboard_FindBar")->isVisible());
}

void CodesPageTest::saveTo(const QString &file)
{
    codes().saveTranscript();
    QFileDialog *dialog = part<QFileDialog>("Dashboard_SaveTranscript");
    QVERIFY(dialog && dialog->isVisible());
    QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
    emit dialog->fileSelected(file);
    dialog->close();
}

void CodesPageTest::theTranscriptIsSaved()
{
    receive(u"Saldo: 7,00 \u20ac\nG\u00fcltig bis morgen");
    const QString file = folder() + QLatin1String("/transcript.txt");
    saveTo(file);
    const QString text = QString::fromUtf8(contentOf(file));
    QVERIFY(text.contains(QLatin1String("*100#")));
    QVERIFY2(text.contains(QString::fromUtf8("Saldo: 7,00 €\nGültig bis morgen\n")),
             text.toUtf8().constData());
    const QFile::Permissions others = QFile::ReadGroup | QFile::ReadOther;
    QVERIFY(!(QFile::permissions(file) & others));
    QVERIFY(!part<QMessageBox>("Dashboard_SaveFailed"));
}

void CodesPageTest::aTranscriptThatCannotBeSavedIsTold()
{
    const QString file = folder() + QLatin1String("/missing/transcript.txt");
    saveTo(file);
    const QMessageBox *box = part<QMessageBox>("Dashboard_SaveFailed");
    QVERIFY(box);
    QVERIFY(box->isVisible());
    QVERIFY(box->text().startsWith(file + QLatin1String(" cannot be written: ")));
    QVERIFY(box->text().size() > file.size() + 25); // the message ends with the system's reason
}

// Tests that the ring is as high as it is wide, although the style sheet makes other progress bars
// flat.
void CodesPageTest::theRingIsRoundWithTheStyleSheet()
{
    Look::instance().start();
    monitor().send(QLatin1String("*104#"));
    settle();
    const QWidget *ring = codes().findChild<QWidget *>(QLatin1String("Dashboard_SecondsRing"));
    QVERIFY(ring->isVisible());
    QCOMPARE(ring->size(), QSize(Look::instance().px(40), Look::instance().px(40)));
}

USSD_TEST_MAIN(CodesPageTest)
#include "codes_page_test.moc"
