#include "PluginTest.h"

#include <QHeaderView>
#include <QLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>

#include <functional>

#include <sys/stat.h>

#include "fake_tksv.h"
#include "HostState.h"
#include "Languages.h"
#include "ProcessLimits.h"
#include "profiles/ProfileLineEdit.h"
#include "profiles/ProfileRows.h"
#include "profiles/USSDEditCmd.h"
#include "windows/USSDGeneralDlg.h"
#include "windows/USSDService.h"

using namespace Formats;

/** Tests the profile editor, alone and opened by the general dialog's button. */
class ProfileEditorTest : public PluginTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private:
    void openEditor();
    QTableWidget *table() { return find<QTableWidget>("USSDUIPlugin_ProfileTable"); }
    QPushButton *saveButton() { return find<QPushButton>("USSDUIPlugin_ProfileDialog_SaveButton"); }
    template <typename Widget>
    Widget *find(const char *name);
    QString cell(int row, int column);
    void doubleClick(int row, int column);
    QLineEdit *cellEditor(); ///< the line edit of the current cell
    void type(int row, int column, const QString &text);
    /// Calls `act` once in the event loop of the next message box, and stores the text of the box.
    void whenMessageOpens(const std::function<void(QMessageBox *)> &act);
    /// Answers the next message box.
    void answerNextMessage(const QString &buttonKey);
    void press(QMessageBox *box, const QString &buttonKey);
    /// Opens the cell, types the text and leaves the cell in the given way.
    void typeAndLeave(int row, int column, const QString &text, int way);
    QString systemFile() { return pluginFolder() + QLatin1String("/ussdsysprofile.xml"); }
    QString userFile() { return userFolder() + QLatin1String("ussdprofile.xml"); }
    /// Confirms the question whether to save, and the message that follows.
    void saveAndAcknowledge();
    void shutDown(); ///< makes all shut-down calls that docs/host-integration.md allows
    QList<USSDProfile> savedProfiles();

    enum WayToLeave { Tab, ClickOnSave, ClickOnAnotherCell, AnotherWindow, Return };
    static void waysToLeave();

    QScopedPointer<QWidget> m_mainWindow;
    QScopedPointer<QWidget> m_otherWindow;
    QScopedPointer<USSDEditCmd> m_editor;
    QString m_message;
    int m_messages = 0;

private slots:
    void doubleClickOnAnEmptyRowOpensAnEditor();
    void codeOfAnotherRowIsRefusedAndTheCellReopenedEmpty();
    void nameOfAnotherRowIsRefusedAndTheCellReopenedEmpty();
    void duplicateIsRefusedOnceAndReopenedHoweverTheCellIsLeft_data() { waysToLeave(); }
    void duplicateIsRefusedOnceAndReopenedHoweverTheCellIsLeft();
    void messageOfADuplicateOpensOutsideTheDelegate();
    void nameThatIsTheCodeOfAnotherRowIsNoDuplicate();
    void textThatDiffersInCaseIsNoDuplicate_data();
    void textThatDiffersInCaseIsNoDuplicate();
    void duplicateTypedBeforeTheMessageOpenedIsRefusedToo();
    void duplicateIsNotSpokenOfAfterCancel();
    void readOnlyProfileCannotBeEditedAndHasItsColour();
    void savingWithoutChangesAsksNothingAndWrites();
    void savingWithoutChangesKeepsProfilesWithoutNameOrCode();
    void typingDoesNotMoveToAMatchingRow();
    void cellEditorTakesFortyCharacters();
    void longerTextSurvivesItsEditor();
    void longerTextIsNotCutByAnEdit();
    void blanksOfTheFileSurviveTheEditor();
    void blanksAroundWhatIsTypedAreDropped();
    void codeThatDiffersInBlanksOnlyIsADuplicate_data();
    void codeThatDiffersInBlanksOnlyIsADuplicate();
    void blanksAloneAreAnEmptyCell();

    void savingChangesAsksFirst();
    void refusedQuestionLeavesTheEdits();
    void newRowBecomesAUserProfile();
    void openEditorIsCommittedBySaving();
    void duplicateFoundWhileSavingStopsIt();
    void cancelSavesNothing();
    void execTellsWhetherTheUserSaved_data();
    void execTellsWhetherTheUserSaved();

    void fileThatIsNotWholeIsNotSavedOver_data();
    void fileThatIsNotWholeIsNotSavedOver();
    void damagedSystemFileLeavesOwnCodesToBeSaved();
    void editOfADamagedFileStaysInTheWindow();
    void fileThatCannotBeOpenedIsNotSavedOver();
    void emptyFileIsSavedOver();
    void systemFileOfRootLeavesOwnCodesToBeSaved();
    void changeOfAFileThatCannotBeWrittenIsSaidAndKept_data();
    void changeOfAFileThatCannotBeWrittenIsSaidAndKept();
    void fullDiskIsSaidBeforeOldCodesAreLost();
    void fileThatCanBeWrittenInAFolderThatCannotIsSaved();
    void missingUserFolderIsMade();
    void unknownUserFolderIsSaid();
    void fileThatCameAfterTheReadingIsNotSavedOver();
    void fileThatFailsWhileItIsWrittenIsSaid();
    void hostMayShutDownWhileTheRefusalIsOpen();
    void columnsAndSizesAreFixed();
    void marginsAreFixed();
    void cellsAreColouredAndNotSelected();
    void frameHasATitleAndACloseButton();
    void frameInMiniModeKeepsItsFlags();
    void messagesInMiniModeStandOverTheEditor_data();
    void messagesInMiniModeStandOverTheEditor();
    void doubleClickActivatesTheWindow_data();
    void doubleClickActivatesTheWindow();
    void codeReadsLeftToRightInArabic();
    void headsStandWhereTheirColumnsBegin_data();
    void headsStandWhereTheirColumnsBegin();
    void codeIsPaintedLeftToRightAtTheRightInArabic();
    void upAndDownStayInsideTheCell();

    void editButtonFollowsTheConfiguration();
    void savedNamesAppearOnTheButtonsAtOnce();
    void hostMayShutDownWhileTheEditorIsOpen_data();
    void hostMayShutDownWhileTheEditorIsOpen();
    void hostMayShutDownWhileTheQuestionIsOpen();
    void hostMayShutDownWhileTheDuplicateMessageIsOpen_data() { waysToLeave(); }
    void hostMayShutDownWhileTheDuplicateMessageIsOpen();
    void hostMayShutDownBeforeTheDuplicateMessageOpens();
};

void ProfileEditorTest::setUp()
{
    PluginTest::setUp();
    writeSystemProfiles(profileFile(profileItem("Balance", "*100#", "true") +
                                    profileItem("Menu", "*123#", "false", "true", "IDS_OK")));
    m_mainWindow.reset(new QWidget);
    m_mainWindow->resize(700, 600);
    m_mainWindow->show();
    HostCore::HostState::setMainWindow(m_mainWindow.data());
    m_message.clear();
    m_messages = 0;
}

void ProfileEditorTest::tearDown()
{
    qDeleteAll(findChildren<QTimer *>()); // belong to messages that were not shown
    m_editor.reset();
    m_otherWindow.reset();
    HostCore::HostState::setMiniMode(false);
    HostCore::Languages::setCurrent(QStringLiteral("en"));
    PluginTest::tearDown();
    HostCore::HostState::setMainWindow(nullptr);
    m_mainWindow.reset();
}

template <typename Widget>
Widget *ProfileEditorTest::find(const char *name)
{
    return m_mainWindow->findChild<Widget *>(QString::fromLatin1(name));
}

void ProfileEditorTest::openEditor()
{
    m_editor.reset(new USSDEditCmd);
    m_editor->InitDialog(m_mainWindow.data());
    table()->window()->show();
}

QString ProfileEditorTest::cell(int row, int column)
{
    const QTableWidgetItem *item = table()->item(row, column);
    return item ? item->text() : QString();
}

QLineEdit *ProfileEditorTest::cellEditor()
{
    return qobject_cast<QLineEdit *>(table()->indexWidget(table()->currentIndex()));
}

void ProfileEditorTest::doubleClick(int row, int column)
{
    table()->scrollTo(table()->model()->index(row, column));
    const QPoint centre = table()->visualRect(table()->model()->index(row, column)).center();
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
    QTest::mouseDClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
}

void ProfileEditorTest::type(int row, int column, const QString &text)
{
    doubleClick(row, column);
    QVERIFY(cellEditor());
    cellEditor()->selectAll();
    QTest::keyClicks(cellEditor(), text);
    QTest::keyClick(cellEditor(), Qt::Key_Return);
    drainEvents();
}

void ProfileEditorTest::whenMessageOpens(const std::function<void(QMessageBox *)> &act)
{
    QTimer *poll = new QTimer(this);
    connect(poll, &QTimer::timeout, this, [this, poll, act] {
        QMessageBox *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        poll->deleteLater();
        poll->stop();
        ++m_messages;
        // A message with a long path is shown in a text view.
        const QPlainTextEdit *longText = box->findChild<QPlainTextEdit *>();
        m_message = longText ? longText->toPlainText() : box->text();
        act(box);
    });
    poll->start(1);
}

void ProfileEditorTest::press(QMessageBox *box, const QString &buttonKey)
{
    const QString text = USSDLogic::tr(buttonKey);
    for (QPushButton *button : box->findChildren<QPushButton *>()) {
        if (button->text() == text)
            return QTest::mouseClick(button, Qt::LeftButton);
    }
    box->reject();
    QFAIL("the message has no such button");
}

void ProfileEditorTest::answerNextMessage(const QString &buttonKey)
{
    whenMessageOpens([this, buttonKey](QMessageBox *box) { press(box, buttonKey); });
}

void ProfileEditorTest::waysToLeave()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<bool>("mini");
    for (bool mini : {false, true}) {
        const char *mode = mini ? ", mini mode" : "";
        QTest::addRow("Tab%s", mode) << int(Tab) << mini;
        QTest::addRow("click on Save%s", mode) << int(ClickOnSave) << mini;
        QTest::addRow("click on another cell%s", mode) << int(ClickOnAnotherCell) << mini;
        QTest::addRow("another window activated%s", mode) << int(AnotherWindow) << mini;
        QTest::addRow("Return%s", mode) << int(Return) << mini;
    }
}

void ProfileEditorTest::typeAndLeave(int row, int column, const QString &text, int way)
{
    QApplication::setActiveWindow(table()->window()); // otherwise the editor has no focus to lose
    doubleClick(row, column);
    QVERIFY(cellEditor());
    cellEditor()->selectAll();
    QTest::keyClicks(cellEditor(), text);
    const QModelIndex another = table()->model()->index(0, column);
    switch (way) {
    case Tab:
        return QTest::keyClick(cellEditor(), Qt::Key_Tab);
    case ClickOnSave:
        return QTest::mouseClick(saveButton(), Qt::LeftButton);
    case ClickOnAnotherCell:
        return QTest::mouseClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier,
                                 table()->visualRect(another).center());
    case AnotherWindow:
        m_otherWindow.reset(new QWidget);
        m_otherWindow->show();
        return QApplication::setActiveWindow(m_otherWindow.data());
    default:
        return QTest::keyClick(cellEditor(), Qt::Key_Return);
    }
}

void ProfileEditorTest::saveAndAcknowledge()
{
    whenMessageOpens([this](QMessageBox *box) {
        answerNextMessage(QStringLiteral("IDS_OK"));
        press(box, QStringLiteral("IDS_YES"));
    });
    saveButton()->click();
    QCOMPARE(m_messages, 2);
}

void ProfileEditorTest::shutDown()
{
    if (CUSSDService *service = CUSSDService::instance())
        service->unSDKRegisterEvent();
    CUSSDService::Destroy();
    HostCore::HostState::setMainWindow(nullptr);
    m_mainWindow.reset();
}

QList<USSDProfile> ProfileEditorTest::savedProfiles()
{
    QList<USSDProfile> list;
    USSDEditCmd().GetProfileList(list);
    return list;
}

// ---- the table -------------------------------------------------------------------------------

void ProfileEditorTest::doubleClickOnAnEmptyRowOpensAnEditor()
{
    openEditor();
    QVERIFY(!table()->item(5, 1));
    doubleClick(5, 1);
    QVERIFY(cellEditor());
    QVERIFY(table()->item(5, 1));
}

void ProfileEditorTest::codeOfAnotherRowIsRefusedAndTheCellReopenedEmpty()
{
    openEditor();
    answerNextMessage(QStringLiteral("IDS_OK"));
    type(4, 1, QStringLiteral("*100#"));
    QCOMPARE(m_messages, 1);
    QVERIFY(m_message.contains(USSDLogic::tr(QStringLiteral("IDS_COMMAND_CODE"))));
    QVERIFY(!m_message.contains(QLatin1String("%s")));
    QCOMPARE(cell(4, 1), QString());
    QVERIFY(cellEditor());
    QCOMPARE(table()->currentRow(), 4);
}

void ProfileEditorTest::nameOfAnotherRowIsRefusedAndTheCellReopenedEmpty()
{
    openEditor();
    answerNextMessage(QStringLiteral("IDS_OK"));
    type(4, 0, QStringLiteral("Menu"));
    QCOMPARE(m_messages, 1);
    QVERIFY(m_message.contains(USSDLogic::tr(QStringLiteral("IDS_COMMAND_NAME"))));
    QCOMPARE(cell(4, 0), QString());
}

/// The cell to which Tab moves is filled and editable.
void ProfileEditorTest::duplicateIsRefusedOnceAndReopenedHoweverTheCellIsLeft()
{
    QFETCH(int, way);
    QFETCH(bool, mini);
    HostCore::HostState::setMiniMode(mini);
    openEditor();
    answerNextMessage(QStringLiteral("IDS_OK"));
    typeAndLeave(1, 0, QStringLiteral("Balance"), way);
    drainEvents();
    QCOMPARE(m_messages, 1);
    drainEvents(); // a second message would hang here
    QVERIFY(table()->isVisible());
    QCOMPARE(cell(1, 0), QString());
    QCOMPARE(cell(1, 1), QStringLiteral("*123#"));
    QCOMPARE(table()->currentItem(), table()->item(1, 0));
    QVERIFY(cellEditor());
    QTest::keyClicks(cellEditor(), QStringLiteral("Other"));
    QTest::keyClick(cellEditor(), Qt::Key_Return);
    drainEvents();
    QCOMPARE(cell(1, 0), QStringLiteral("Other"));
    QCOMPARE(savedProfiles().at(1).name, QStringLiteral("Menu")); // nothing was saved
}

/// Tests that the message opens later, because the host must not be called while the delegate and
/// the view handle the cell.
void ProfileEditorTest::messageOfADuplicateOpensOutsideTheDelegate()
{
    openEditor();
    typeAndLeave(1, 0, QStringLiteral("Balance"), Tab); // a message in the delegate would hang here
    QCOMPARE(cell(1, 0), QStringLiteral("Balance"));
    QCOMPARE(m_messages, 0);
    answerNextMessage(QStringLiteral("IDS_OK"));
    drainEvents();
    QCOMPARE(m_messages, 1);
    QCOMPARE(cell(1, 0), QString());
}

void ProfileEditorTest::nameThatIsTheCodeOfAnotherRowIsNoDuplicate()
{
    openEditor();
    type(4, 0, QStringLiteral("*100#")); // a message would hang here
    type(4, 1, QStringLiteral("Menu"));
    QCOMPARE(cell(4, 0), QStringLiteral("*100#"));
    QCOMPARE(cell(4, 1), QStringLiteral("Menu"));
}

void ProfileEditorTest::textThatDiffersInCaseIsNoDuplicate_data()
{
    QTest::addColumn<int>("column");
    QTest::newRow("name") << 0;
    QTest::newRow("code") << 1;
}

void ProfileEditorTest::textThatDiffersInCaseIsNoDuplicate()
{
    QFETCH(int, column);
    writeSystemProfiles(profileFile(profileItem("Balance", "*100A#")));
    openEditor();
    const QString other = cell(0, column).toLower();
    QVERIFY(other != cell(0, column));
    type(4, column, other); // a message would hang here
    QCOMPARE(cell(4, column), other);
}

/// The keys arrive together with the Tab that leaves the first cell.
void ProfileEditorTest::duplicateTypedBeforeTheMessageOpenedIsRefusedToo()
{
    openEditor();
    typeAndLeave(1, 0, QStringLiteral("Balance"), Tab);
    QVERIFY(cellEditor());
    cellEditor()->selectAll();
    QTest::keyClicks(cellEditor(), QStringLiteral("*100#"));
    whenMessageOpens([this](QMessageBox *box) {
        QVERIFY(box->text().contains(USSDLogic::tr(QStringLiteral("IDS_COMMAND_NAME"))));
        QCOMPARE(table()->currentItem(), table()->item(1, 0)); // the duplicate cell
        answerNextMessage(QStringLiteral("IDS_OK"));
        press(box, QStringLiteral("IDS_OK"));
    });
    drainEvents();
    QCOMPARE(m_messages, 2);
    QVERIFY(m_message.contains(USSDLogic::tr(QStringLiteral("IDS_COMMAND_CODE"))));
    QCOMPARE(cell(1, 0), QString());
    QCOMPARE(cell(1, 1), QString());
    QCOMPARE(table()->currentItem(), table()->item(1, 1));
}

void ProfileEditorTest::duplicateIsNotSpokenOfAfterCancel()
{
    openEditor();
    typeAndLeave(1, 0, QStringLiteral("Balance"), Tab);
    QTest::mouseClick(find<QPushButton>("USSDUIPlugin_ProfileDialog_CancelButton"), Qt::LeftButton);
    drainEvents(); // a message would hang here
    QVERIFY(!table()->isVisible());
}

void ProfileEditorTest::readOnlyProfileCannotBeEditedAndHasItsColour()
{
    openEditor();
    for (int column = 0; column < 2; ++column) {
        const QTableWidgetItem *item = table()->item(0, column);
        QVERIFY(!(item->flags() & Qt::ItemIsEditable));
        QCOMPARE(item->background().color(), QColor(1, 2, 3));
        doubleClick(0, column);
        QVERIFY(!cellEditor());
        QTest::keyClick(table(), Qt::Key_F2);
        QTest::keyClick(table(), Qt::Key_X);
        QTest::keySequence(table(), QKeySequence::Paste);
        QVERIFY(!cellEditor());
    }
    QVERIFY(!table()->dragEnabled() && !table()->acceptDrops());
    QCOMPARE(cell(0, 0), QStringLiteral("Balance"));
    QCOMPARE(cell(0, 1), QStringLiteral("*100#"));
    QCOMPARE(table()->item(1, 0)->background().color(), QColor(4, 5, 6));
    QCOMPARE(table()->horizontalHeaderItem(0)->background().color(), QColor(7, 8, 9));
}

void ProfileEditorTest::savingWithoutChangesAsksNothingAndWrites()
{
    openEditor();
    const QByteArray system = contentOf(systemFile()); // a file without line breaks
    QVERIFY(!QFile::exists(userFile()));
    QTest::mouseClick(saveButton(), Qt::LeftButton); // a question would hang here
    QVERIFY(QFile::exists(userFile()));
    QVERIFY(contentOf(systemFile()) != system);
    QVERIFY(contentOf(systemFile()).contains("\n    <item>"));
    QVERIFY(!table()->isVisible());
    QCOMPARE(savedProfiles().count(), 2);
}

void ProfileEditorTest::savingWithoutChangesKeepsProfilesWithoutNameOrCode()
{
    QByteArray items;
    for (const char *readonly : {"false", "true"})
        items += profileItem("", "*1#", readonly, "true", "IDS_OK") +
                 profileItem("Name", "", readonly, "true", "IDS_OK") +
                 profileItem("", "", readonly, "false", "", "IDS_OK");
    writeSystemProfiles(profileFile(items));
    const QList<USSDProfile> before = savedProfiles();
    QCOMPARE(before.count(), 6);
    openEditor();
    saveButton()->click(); // a question would hang here
    QVERIFY(savedProfiles() == before);
}

void ProfileEditorTest::typingDoesNotMoveToAMatchingRow()
{
    openEditor();
    table()->setCurrentCell(0, 0);
    table()->keyboardSearch(QStringLiteral("M"));
    QCOMPARE(table()->currentRow(), 0);
}

void ProfileEditorTest::cellEditorTakesFortyCharacters()
{
    openEditor();
    type(3, 0, QString(60, QLatin1Char('n')));
    QCOMPARE(cell(3, 0), QString(40, QLatin1Char('n')));
}

static QByteArray longCode()
{
    return "*100*" + QByteArray(60, '1') + '#';
}

void ProfileEditorTest::longerTextSurvivesItsEditor()
{
    writeSystemProfiles(profileFile(profileItem(QByteArray(50, 'n'), longCode())));
    openEditor();
    for (int column = 0; column < 2; ++column) {
        doubleClick(0, column);
        QTest::keyClick(cellEditor(), Qt::Key_Return);
        drainEvents();
    }
    QCOMPARE(cell(0, 0), QString(50, QLatin1Char('n')));
    QCOMPARE(cell(0, 1), QString::fromLatin1(longCode()));
    saveButton()->click(); // a question would hang here
    QCOMPARE(savedProfiles().at(0).value, QString::fromLatin1(longCode()));
}

void ProfileEditorTest::longerTextIsNotCutByAnEdit()
{
    writeSystemProfiles(profileFile(profileItem("Long", longCode())));
    openEditor();
    doubleClick(0, 1);
    QTest::keyClick(cellEditor(), Qt::Key_End);
    QTest::keyClicks(cellEditor(), QStringLiteral("9"));
    QTest::keyClick(cellEditor(), Qt::Key_Home);
    QTest::keyClick(cellEditor(), Qt::Key_Delete);
    QTest::keyClick(cellEditor(), Qt::Key_Return);
    drainEvents();
    QCOMPARE(cell(0, 1), QString::fromLatin1(longCode().mid(1)));
}

void ProfileEditorTest::blanksOfTheFileSurviveTheEditor()
{
    writeSystemProfiles(profileFile(profileItem(" Balance ", "*100#")));
    openEditor();
    doubleClick(0, 0);
    QTest::keyClick(cellEditor(), Qt::Key_Return);
    drainEvents();
    QCOMPARE(cell(0, 0), QStringLiteral(" Balance "));
}

void ProfileEditorTest::blanksAroundWhatIsTypedAreDropped()
{
    openEditor();
    type(4, 0, QStringLiteral("  My  code "));
    type(4, 1, QStringLiteral(" *5# "));
    QCOMPARE(cell(4, 0), QStringLiteral("My  code"));
    QCOMPARE(cell(4, 1), QStringLiteral("*5#"));
}

void ProfileEditorTest::codeThatDiffersInBlanksOnlyIsADuplicate_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("typed with a blank") << QStringLiteral("*123# ");
    QTest::newRow("in the file with blanks") << QStringLiteral("*100#");
}

/// A code is saved without leading and trailing blanks. If two codes are then equal, only the first
/// one would be read again.
void ProfileEditorTest::codeThatDiffersInBlanksOnlyIsADuplicate()
{
    QFETCH(QString, typed);
    writeSystemProfiles(
        profileFile(profileItem("Balance", " *100# ") + profileItem("Menu", "*123#")));
    openEditor();
    answerNextMessage(QStringLiteral("IDS_OK"));
    type(4, 1, typed);
    QCOMPARE(m_messages, 1);
    QCOMPARE(cell(4, 1), QString());
}

void ProfileEditorTest::blanksAloneAreAnEmptyCell()
{
    openEditor();
    clearLog();
    type(4, 1, QStringLiteral("  "));
    type(5, 1, QStringLiteral("  ")); // an empty code is not a duplicate
    QCOMPARE(cell(4, 1), QString());
    QVERIFY(timesLogged("OnEditorClosed Exit: empty string ") > 0);
}

// ---- saving ----------------------------------------------------------------------------------

void ProfileEditorTest::savingChangesAsksFirst()
{
    openEditor();
    type(1, 0, QStringLiteral("My menu"));
    answerNextMessage(QStringLiteral("IDS_YES"));
    QTest::mouseClick(saveButton(), Qt::LeftButton);
    QCOMPARE(m_messages, 1);
    QVERIFY(!table()->isVisible());
    const USSDProfile saved = savedProfiles().at(1);
    QCOMPARE(saved.name, QStringLiteral("My menu"));
    QCOMPARE(saved.value, QStringLiteral("*123#"));
    QCOMPARE(saved.langID, QString()); // a key would hide the new name by the translated text
    QVERIFY(saved.isSystem);
}

void ProfileEditorTest::refusedQuestionLeavesTheEdits()
{
    openEditor();
    type(1, 0, QStringLiteral("My menu"));
    answerNextMessage(QStringLiteral("IDS_NO"));
    QTest::mouseClick(saveButton(), Qt::LeftButton);
    QVERIFY(table()->isVisible());
    QCOMPARE(cell(1, 0), QStringLiteral("My menu"));
    QCOMPARE(savedProfiles().at(1).name, QStringLiteral("Menu"));
    QCOMPARE(timesLogged("No is pressed"), 1);
}

void ProfileEditorTest::newRowBecomesAUserProfile()
{
    openEditor();
    type(7, 1, QStringLiteral(" *55# "));
    answerNextMessage(QStringLiteral("IDS_YES"));
    QTest::mouseClick(saveButton(), Qt::LeftButton);
    USSDProfile expected;
    expected.name = QStringLiteral("*55#");
    expected.value = QStringLiteral("*55#");
    expected.showButton = true;
    QCOMPARE(savedProfiles().count(), 3);
    QVERIFY(savedProfiles().at(2) == expected);
}

void ProfileEditorTest::openEditorIsCommittedBySaving()
{
    openEditor();
    doubleClick(1, 0);
    cellEditor()->selectAll();
    QTest::keyClicks(cellEditor(), QStringLiteral("Typed"));
    answerNextMessage(QStringLiteral("IDS_YES"));
    saveButton()->click();
    QCOMPARE(savedProfiles().at(1).name, QStringLiteral("Typed"));
}

/// Otherwise the row would be saved without its code and would be lost.
void ProfileEditorTest::duplicateFoundWhileSavingStopsIt()
{
    openEditor();
    doubleClick(1, 1);
    cellEditor()->selectAll();
    QTest::keyClicks(cellEditor(), QStringLiteral("*100#"));
    answerNextMessage(QStringLiteral("IDS_OK"));
    saveButton()->click();
    QVERIFY(table()->isVisible());
    drainEvents();
    QCOMPARE(m_messages, 1);
    QCOMPARE(table()->currentItem(), table()->item(1, 1));
    QVERIFY(cellEditor());
    QCOMPARE(savedProfiles().at(1).value, QStringLiteral("*123#"));
}

void ProfileEditorTest::cancelSavesNothing()
{
    openEditor();
    type(1, 0, QStringLiteral("My menu"));
    QTest::mouseClick(find<QPushButton>("USSDUIPlugin_ProfileDialog_CancelButton"), Qt::LeftButton);
    QVERIFY(!table()->isVisible());
    QCOMPARE(savedProfiles().at(1).name, QStringLiteral("Menu"));
    QVERIFY(!QFile::exists(userFolder() + QLatin1String("ussdprofile.xml")));
}

void ProfileEditorTest::execTellsWhetherTheUserSaved_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<bool>("saved");
    QTest::newRow("Save") << QByteArray("USSDUIPlugin_ProfileDialog_SaveButton") << true;
    QTest::newRow("Cancel") << QByteArray("USSDUIPlugin_ProfileDialog_CancelButton") << false;
    QTest::newRow("close button of the window") << QByteArray() << false;
}

void ProfileEditorTest::execTellsWhetherTheUserSaved()
{
    QFETCH(QByteArray, button);
    QFETCH(bool, saved);
    m_editor.reset(new USSDEditCmd);
    m_editor->InitDialog(m_mainWindow.data());
    bool wasModal = false;
    QTimer::singleShot(0, this, [this, button, &wasModal] {
        wasModal = QApplication::activeModalWidget() == table()->window();
        if (button.isEmpty())
            table()->window()->close();
        else
            find<QPushButton>(button.constData())->click();
    });
    QCOMPARE(m_editor->Exec(), saved);
    QVERIFY(wasModal);
    QVERIFY(!table()->isVisible());
}

static QPushButton *editButton(QWidget *window)
{
    return window->findChild<QPushButton *>(
        QStringLiteral("USSDUIPlugin_AdvancedDialog_EditButton"));
}

// ---- failures to save --------------------------------------------------------------------------

static void setMode(const QString &path, mode_t mode)
{
    QCOMPARE(chmod(QFile::encodeName(path).constData(), mode), 0);
}

void ProfileEditorTest::fileThatIsNotWholeIsNotSavedOver_data()
{
    const QByteArray item = profileItem("Mine", "*5#");
    QTest::addColumn<bool>("isSystem");
    QTest::addColumn<QByteArray>("content");
    for (bool isSystem : {true, false}) {
        const char *kind = isSystem ? "system" : "user";
        QTest::addRow("%s file with a bare &", kind)
            << isSystem << profileFile(item + profileItem("Fish & chips", "*6#") + item);
        QTest::addRow("%s file that breaks off", kind)
            << isSystem << profileFile(item + item).chopped(30);
        QTest::addRow("%s file without XML", kind) << isSystem << QByteArray("Mine *5#");
    }
}

/// Otherwise the part of the file that was not read would be lost, even if nothing was edited.
void ProfileEditorTest::fileThatIsNotWholeIsNotSavedOver()
{
    QFETCH(bool, isSystem);
    QFETCH(QByteArray, content);
    if (isSystem)
        writeSystemProfiles(content);
    else
        writeFile(QStringLiteral("user/ussdprofile.xml"), content);
    openEditor();
    answerNextMessage(QStringLiteral("IDS_OK"));
    saveButton()->click();
    QCOMPARE(m_messages, 1);
    const QString path = isSystem ? systemFile() : userFile();
    QCOMPARE(
        m_message,
        USSDLogic::tr(QStringLiteral("IDC_CMDEDIT_DAMAGEDTIP")).replace(QLatin1String("%s"), path));
    QCOMPARE(contentOf(path), content);
    QVERIFY(contentOf(isSystem ? userFile() : systemFile()).contains("<tksvdoc "));
    QVERIFY(!table()->isVisible());
}

void ProfileEditorTest::damagedSystemFileLeavesOwnCodesToBeSaved()
{
    const QByteArray damaged = profileFile(profileItem("Menu", "*123#")).chopped(5);
    writeSystemProfiles(damaged);
    openEditor();
    type(1, 1, QStringLiteral("*5#"));
    saveAndAcknowledge();
    QVERIFY(m_message.contains(systemFile()));
    QVERIFY(!m_message.contains(userFile()));
    QVERIFY(!table()->isVisible());
    QVERIFY(contentOf(userFile()).contains("<value>*5#</value>"));
    QCOMPARE(contentOf(systemFile()), damaged);
}

void ProfileEditorTest::editOfADamagedFileStaysInTheWindow()
{
    const QByteArray damaged = profileFile(profileItem("Menu", "*123#")).chopped(5);
    writeSystemProfiles(damaged);
    openEditor();
    type(0, 0, QStringLiteral("Other"));
    type(1, 1, QStringLiteral("*5#"));
    saveAndAcknowledge();
    QVERIFY(m_message.contains(systemFile()));
    QVERIFY(table()->isVisible());
    QCOMPARE(cell(0, 0), QStringLiteral("Other"));
    QCOMPARE(cell(1, 1), QStringLiteral("*5#"));
    QCOMPARE(contentOf(systemFile()), damaged);
    QVERIFY(!QFile::exists(userFile()));
}

/// Tests that nothing is saved. Saving could delete the file and lose codes that were never read.
void ProfileEditorTest::fileThatCannotBeOpenedIsNotSavedOver()
{
    const QByteArray own = profileFile(profileItem("Mine", "*5#"));
    writeFile(QStringLiteral("user/ussdprofile.xml"), own);
    setMode(folder(), 0755);
    setMode(userFolder(), 0777);
    setMode(userFile(), 0);
    answerNextMessage(QStringLiteral("IDS_OK"));
    {
        const OrdinaryUser user;
        openEditor();
        saveButton()->click();
    }
    QCOMPARE(m_messages, 1);
    QVERIFY(m_message.contains(userFile()));
    setMode(userFile(), 0644);
    QCOMPARE(contentOf(userFile()), own);
}

/// Tests an empty file, which a full disk may leave. It contains nothing that could be lost.
void ProfileEditorTest::emptyFileIsSavedOver()
{
    writeFile(QStringLiteral("user/ussdprofile.xml"), QByteArray());
    openEditor();
    saveButton()->click(); // a message would hang here
    QVERIFY(contentOf(userFile()).contains("<tksvdoc"));
}

void ProfileEditorTest::systemFileOfRootLeavesOwnCodesToBeSaved()
{
    const QByteArray system = contentOf(systemFile());
    setMode(folder(), 0755);
    setMode(userFolder(), 0777);
    setMode(pluginFolder(), 0555);
    setMode(systemFile(), 0444);
    openEditor();
    type(7, 1, QStringLiteral("*5#"));
    answerNextMessage(QStringLiteral("IDS_YES"));
    {
        const OrdinaryUser user;
        saveButton()->click(); // another message would hang here
    }
    QVERIFY(!table()->isVisible());
    QVERIFY(contentOf(userFile()).contains("<value>*5#</value>"));
    QCOMPARE(contentOf(systemFile()), system);
}

void ProfileEditorTest::changeOfAFileThatCannotBeWrittenIsSaidAndKept_data()
{
    QTest::addColumn<bool>("isSystem");
    QTest::newRow("system file") << true;
    QTest::newRow("user file") << false;
}

void ProfileEditorTest::changeOfAFileThatCannotBeWrittenIsSaidAndKept()
{
    QFETCH(bool, isSystem);
    writeFile(QStringLiteral("user/ussdprofile.xml"), profileFile(profileItem("Mine", "*5#")));
    const QString path = isSystem ? systemFile() : userFile();
    const QByteArray before = contentOf(path);
    setMode(folder(), 0755);
    setMode(isSystem ? userFolder() : pluginFolder(), 0777);
    setMode(isSystem ? pluginFolder() : userFolder(), 0555);
    setMode(path, 0444);
    openEditor();
    type(isSystem ? 1 : 2, 0, QStringLiteral("Other"));
    {
        const OrdinaryUser user;
        saveAndAcknowledge();
    }
    QCOMPARE(
        m_message,
        USSDLogic::tr(QStringLiteral("IDC_CMDEDIT_WRITETIP")).replace(QLatin1String("%s"), path));
    QVERIFY(table()->isVisible());
    QCOMPARE(cell(isSystem ? 1 : 2, 0), QStringLiteral("Other"));
    QCOMPARE(contentOf(path), before);
}

void ProfileEditorTest::fullDiskIsSaidBeforeOldCodesAreLost()
{
    writeFile(QStringLiteral("user/ussdprofile.xml"), profileFile(profileItem("Mine", "*5#")));
    const QByteArray system = contentOf(systemFile());
    const QByteArray user = contentOf(userFile());
    openEditor();
    type(2, 0, QStringLiteral("Other"));
    {
        const FullDisk disk(20);
        saveAndAcknowledge();
    }
    QVERIFY(m_message.contains(userFile()));
    QVERIFY(table()->isVisible());
    QCOMPARE(contentOf(userFile()), user);
    QCOMPARE(contentOf(systemFile()), system);
    answerNextMessage(QStringLiteral("IDS_YES")); // the disk has space again
    saveButton()->click();
    QCOMPARE(savedProfiles().at(2).name, QStringLiteral("Other"));
}

void ProfileEditorTest::fileThatCanBeWrittenInAFolderThatCannotIsSaved()
{
    setMode(folder(), 0755);
    setMode(userFolder(), 0777);
    setMode(pluginFolder(), 0555);
    setMode(systemFile(), 0666);
    openEditor();
    type(1, 0, QStringLiteral("Other"));
    answerNextMessage(QStringLiteral("IDS_YES"));
    {
        const OrdinaryUser user;
        saveButton()->click(); // another message would hang here
    }
    QCOMPARE(savedProfiles().at(1).name, QStringLiteral("Other"));
}

void ProfileEditorTest::missingUserFolderIsMade()
{
    fakeSdkSetUserDataDirectory((folder() + QLatin1String("/new/")).toStdU16String());
    openEditor();
    type(7, 1, QStringLiteral("*5#"));
    answerNextMessage(QStringLiteral("IDS_YES"));
    saveButton()->click(); // another message would hang here
    QVERIFY(contentOf(folder() + QLatin1String("/new/ussdprofile.xml")).contains("*5#"));
}

void ProfileEditorTest::unknownUserFolderIsSaid()
{
    fakeSdkSetResult("TKSV_GetUserDataDirectory", 1);
    openEditor();
    type(7, 1, QStringLiteral("*5#"));
    saveAndAcknowledge();
    QVERIFY(m_message.contains(QLatin1String("ussdprofile.xml")));
    QVERIFY(table()->isVisible());
}

void ProfileEditorTest::fileThatCameAfterTheReadingIsNotSavedOver()
{
    fakeSdkSetResult("TKSV_GetUserDataDirectory", 1); // fails for a moment
    openEditor();
    fakeSdkSetResult("TKSV_GetUserDataDirectory", 0);
    const QByteArray own = profileFile(profileItem("Own", "*9#"));
    QFile file(userFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(own);
    file.close();
    answerNextMessage(QStringLiteral("IDS_OK"));
    saveButton()->click();
    QCOMPARE(contentOf(userFile()), own);
}

/// Tests a directory that seems possible to create, although a dangling link has its name.
void ProfileEditorTest::fileThatFailsWhileItIsWrittenIsSaid()
{
    QVERIFY(QFile::link(folder() + QLatin1String("/nowhere"), folder() + QLatin1String("/link")));
    fakeSdkSetUserDataDirectory((folder() + QLatin1String("/link/")).toStdU16String());
    openEditor();
    type(7, 1, QStringLiteral("*5#"));
    saveAndAcknowledge();
    QVERIFY2(m_message.contains(QLatin1String("/link/ussdprofile.xml")), qPrintable(m_message));
    QVERIFY(!table()->isVisible());
}

void ProfileEditorTest::hostMayShutDownWhileTheRefusalIsOpen()
{
    writeSystemProfiles(profileFile(profileItem("Menu", "*123#")).chopped(5));
    QRect rect(0, 0, 640, 560);
    CUSSDService::instance()->showWindow(m_mainWindow.data(), rect, PAID_TYPE_GENERAL);
    QTimer::singleShot(0, this, [this] {
        whenMessageOpens([this](QMessageBox *) { shutDown(); });
        QTest::mouseClick(saveButton(), Qt::LeftButton);
    });
    editButton(m_mainWindow.data())->click(); // returns when the editor is closed
    drainEvents();
    QCOMPARE(m_messages, 1);
    QVERIFY(!QApplication::activeModalWidget());
}

/// Returns the bounding rectangle of the differences between two pictures, inside `part`.
static QRect differenceOf(const QImage &a, const QImage &b, const QRect &part)
{
    QRect difference;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y))
                difference |= QRect(x, y, 1, 1);
        }
    }
    return difference;
}

// ---- looks -----------------------------------------------------------------------------------

void ProfileEditorTest::columnsAndSizesAreFixed()
{
    openEditor();
    QCOMPARE(table()->rowCount(), 100);
    QCOMPARE(table()->columnWidth(0), 177);
    QCOMPARE(table()->columnWidth(1), 177);
    QCOMPARE(table()->rowHeight(50), 19);
    QCOMPARE(table()->height(), 310);
    QWidget *container = find<QWidget>("USSDUIPlugin_ProfileWidget");
    QCOMPARE(container->size(), QSize(420, 440));
    QCOMPARE(container->windowModality(), Qt::WindowModal);
    QCOMPARE(table()->window()->windowTitle(),
             USSDLogic::tr(QStringLiteral("IDC_TITLE_EDITCOMMAND")));
}

void ProfileEditorTest::marginsAreFixed()
{
    openEditor();
    const QLayout *column = find<QWidget>("USSDUIPlugin_ProfileWidget")->layout();
    QCOMPARE(column->contentsMargins(), QMargins(20, 32, 20, 5));
    QCOMPARE(column->count(), 3);
    const QLayout *buttons = column->itemAt(2)->layout();
    QVERIFY(buttons);
    QCOMPARE(buttons->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(buttons->alignment(), Qt::AlignRight);
    QCOMPARE(buttons->itemAt(0)->widget(), saveButton());
}

void ProfileEditorTest::cellsAreColouredAndNotSelected()
{
    openEditor();
    QCOMPARE(table()->selectionMode(), QAbstractItemView::NoSelection);
    for (int column = 0; column < 2; ++column) {
        QCOMPARE(table()->horizontalHeaderItem(column)->background().color(), QColor(7, 8, 9));
        QCOMPARE(table()->item(0, column)->background().color(), QColor(1, 2, 3));
        QCOMPARE(table()->item(1, column)->background().color(), QColor(4, 5, 6));
        doubleClick(1, column);
        QTest::keyClick(cellEditor(), Qt::Key_Escape);
        QVERIFY(table()->selectedItems().isEmpty());
    }
    QVERIFY(table()->verticalHeader()->isHidden());
    QVERIFY(!table()->horizontalHeader()->stretchLastSection());
    QCOMPARE(table()->horizontalHeader()->textElideMode(), Qt::ElideRight);
    QCOMPARE(table()->textElideMode(), Qt::ElideRight);
    QVERIFY(!table()->wordWrap());
    QVERIFY(table()->hasMouseTracking());
}

void ProfileEditorTest::frameHasATitleAndACloseButton()
{
    openEditor();
    QCOMPARE(table()->window()->parentWidget(), m_mainWindow.data());
    QDialog plain(m_mainWindow.data()); // for comparison, because Qt adds a flag
    plain.setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint |
                         Qt::WindowCloseButtonHint);
    QCOMPARE(table()->window()->windowFlags(), plain.windowFlags());
}

void ProfileEditorTest::frameInMiniModeKeepsItsFlags()
{
    HostCore::HostState::setMiniMode(true);
    openEditor();
    QCOMPARE(table()->window()->parentWidget(), m_mainWindow.data());
    const QDialog plain(m_mainWindow.data(), Qt::WindowCloseButtonHint);
    QCOMPARE(table()->window()->windowFlags(), plain.windowFlags());
    QVERIFY(!(plain.windowFlags() & Qt::CustomizeWindowHint));
}

void ProfileEditorTest::messagesInMiniModeStandOverTheEditor_data()
{
    QTest::addColumn<bool>("mini");
    QTest::newRow("mini mode") << true;
    QTest::newRow("otherwise") << false;
}

/// Tests the message about a duplicate and the question whether to save.
void ProfileEditorTest::messagesInMiniModeStandOverTheEditor()
{
    QFETCH(bool, mini);
    HostCore::HostState::setMiniMode(mini);
    openEditor();
    QWidget *parent = mini ? find<QWidget>("USSDUIPlugin_ProfileWidget") : nullptr;
    const auto look = [this, parent](const char *buttonKey) {
        whenMessageOpens([this, parent, buttonKey](QMessageBox *box) {
            QCOMPARE(box->parentWidget(), parent);
            QCOMPARE(box->icon(), QMessageBox::Information);
            QCOMPARE(box->windowTitle(), USSDLogic::tr(QStringLiteral("IDS_PROMPT_CAPTION")));
            press(box, QLatin1String(buttonKey));
        });
    };
    look("IDS_OK");
    type(1, 0, QStringLiteral("Balance"));
    look("IDS_NO");
    saveButton()->click();
    QCOMPARE(m_messages, 2);
}

void ProfileEditorTest::doubleClickActivatesTheWindow_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("read-only cell") << 0;
    QTest::newRow("cell") << 1;
    QTest::newRow("empty row") << 5;
}

void ProfileEditorTest::doubleClickActivatesTheWindow()
{
    QFETCH(int, row);
    openEditor();
    m_otherWindow.reset(new QWidget);
    m_otherWindow->show();
    QApplication::setActiveWindow(m_otherWindow.data());
    table()->setCurrentCell(row, 0);
    const QPoint centre = table()->visualRect(table()->currentIndex()).center();
    QTest::mouseDClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
    drainEvents();
    QCOMPARE(QApplication::activeWindow(), table()->window());
}

void ProfileEditorTest::codeReadsLeftToRightInArabic()
{
    HostCore::Languages::setCurrent(QStringLiteral("ar"));
    openEditor();
    QCOMPARE(table()->layoutDirection(), Qt::RightToLeft);
    doubleClick(3, 1);
    QCOMPARE(cellEditor()->layoutDirection(), Qt::LeftToRight);
}

void ProfileEditorTest::headsStandWhereTheirColumnsBegin_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("fromTheRight");
    QTest::newRow("English") << QStringLiteral("en") << false;
    QTest::newRow("Arabic") << QStringLiteral("ar") << true;
}

/// Uses pictures of the screen, because QWidget::render() does not mirror the widget.
void ProfileEditorTest::headsStandWhereTheirColumnsBegin()
{
    QFETCH(QString, language);
    QFETCH(bool, fromTheRight);
    QVERIFY(HostCore::Languages::setCurrent(language));
    openEditor();
    QHeaderView *header = table()->horizontalHeader();
    QCOMPARE(header->isRightToLeft(), fromTheRight);
    const QImage written = header->grab().toImage();
    for (int column = 0; column < 2; ++column)
        table()->horizontalHeaderItem(column)->setText(QString());
    const QImage blank = header->grab().toImage();
    for (int column = 0; column < 2; ++column) {
        const QRect section(header->sectionViewportPosition(column), 0, header->sectionSize(column),
                            header->height());
        const QRect ink = differenceOf(written, blank, section);
        QVERIFY(!ink.isEmpty());
        const int left = ink.left() - section.left();
        const int right = section.right() - ink.right();
        QVERIFY2((fromTheRight ? right : left) < 10, qPrintable(QString::number(left)));
        QVERIFY2((fromTheRight ? left : right) > 30, qPrintable(QString::number(right)));
        QVERIFY(qAbs(ink.center().y() - section.center().y()) < 4);
    }
    QCOMPARE(header->defaultAlignment(), Qt::AlignLeft | Qt::AlignVCenter);
}

/// In right-to-left order the code would read "#123*". In a picture, a star and a hash can be
/// distinguished because the hash extends further down.
void ProfileEditorTest::codeIsPaintedLeftToRightAtTheRightInArabic()
{
    QVERIFY(HostCore::Languages::setCurrent(QStringLiteral("ar")));
    openEditor();
    const QRect cell = table()->visualItemRect(table()->item(1, 1));
    const QImage written = table()->viewport()->grab(cell).toImage();
    table()->item(1, 1)->setText(QString());
    const QImage blank = table()->viewport()->grab(cell).toImage();
    const QRect ink = differenceOf(written, blank, blank.rect());
    QVERIFY2(ink.left() > cell.width() / 2, qPrintable(QString::number(ink.left())));
    const int glyph = ink.width() / 6;
    const QRect first = differenceOf(written, blank, QRect(ink.left(), 0, glyph, cell.height()));
    const QRect last =
        differenceOf(written, blank, QRect(ink.right() - glyph, 0, glyph, cell.height()));
    QVERIFY(first.bottom() < last.bottom());
}

void ProfileEditorTest::upAndDownStayInsideTheCell()
{
    ProfileLineEdit edit;
    edit.setText(QStringLiteral("*100#"));
    edit.setCursorPosition(2);
    QTest::keyClick(&edit, Qt::Key_Up);
    QCOMPARE(edit.cursorPosition(), 1);
    QTest::keyClick(&edit, Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(edit.selectedText(), QStringLiteral("1"));
    QTest::keyClick(&edit, Qt::Key_Delete);
    QCOMPARE(edit.text(), QStringLiteral("*00#"));
}

// ---- opened by the general dialog ---------------------------------------------------------------

void ProfileEditorTest::editButtonFollowsTheConfiguration()
{
    QRect rect(0, 0, 640, 560);
    CUSSDService::instance()->showWindow(m_mainWindow.data(), rect, PAID_TYPE_GENERAL);
    QVERIFY(editButton(m_mainWindow.data())->isVisible());
    CUSSDService::Destroy();
    writeConfig(completeConfig().replace("<cmdEdit visible='true'>", "<cmdEdit visible='false'>"));
    CUSSDService::instance()->showWindow(m_mainWindow.data(), rect, PAID_TYPE_GENERAL);
    QVERIFY(!editButton(m_mainWindow.data())->isVisible());
}

void ProfileEditorTest::savedNamesAppearOnTheButtonsAtOnce()
{
    QRect rect(0, 0, 640, 560);
    CUSSDService::instance()->showWindow(m_mainWindow.data(), rect, PAID_TYPE_GENERAL);
    QTimer::singleShot(0, this, [this] {
        type(1, 0, QStringLiteral("My menu"));
        answerNextMessage(QStringLiteral("IDS_YES"));
        saveButton()->click();
    });
    QTest::mouseClick(editButton(m_mainWindow.data()), Qt::LeftButton);
    QStringList texts;
    for (QPushButton *button : m_mainWindow->findChildren<QPushButton *>(
             QStringLiteral("USSDUIPlugin_AdvancedDialog_PreButton")))
        texts << button->text();
    QCOMPARE(texts, QStringList() << QStringLiteral("Balance") << QStringLiteral("My menu"));
}

void ProfileEditorTest::hostMayShutDownWhileTheEditorIsOpen_data()
{
    QTest::addColumn<bool>("framed");
    QTest::newRow("over the embedded window") << false;
    QTest::newRow("over the framed window") << true;
}

void ProfileEditorTest::hostMayShutDownWhileTheEditorIsOpen()
{
    QFETCH(bool, framed);
    QRect rect(0, 0, 640, 560);
    if (framed)
        CUSSDService::instance()->DoModal();
    else
        CUSSDService::instance()->showWindow(m_mainWindow.data(), rect, PAID_TYPE_GENERAL);
    bool wasOpen = false;
    QTimer::singleShot(0, this, [this, &wasOpen] {
        wasOpen = table() && table()->isVisible();
        CUSSDService::Destroy();
    });
    QTest::mouseClick(editButton(m_mainWindow.data()),
                      Qt::LeftButton); // returns when the editor is closed
    QVERIFY(wasOpen);
    drainEvents();
    QVERIFY(!table());
}

/// The question box has no parent that would delete it.
void ProfileEditorTest::hostMayShutDownWhileTheQuestionIsOpen()
{
    QRect rect(0, 0, 640, 560);
    CUSSDService::instance()->showWindow(m_mainWindow.data(), rect, PAID_TYPE_GENERAL);
    bool wasOpen = false;
    QTimer::singleShot(0, this, [this, &wasOpen] {
        type(1, 0, QStringLiteral("My menu"));
        QTimer::singleShot(0, this, [&wasOpen] {
            wasOpen = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            CUSSDService::Destroy();
        });
        saveButton()->click();
    });
    QTest::mouseClick(editButton(m_mainWindow.data()),
                      Qt::LeftButton); // returns when the editor is closed
    QVERIFY(wasOpen);
    drainEvents();
    QVERIFY(!table());
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(savedProfiles().at(1).name, QStringLiteral("Menu"));
}

void ProfileEditorTest::hostMayShutDownWhileTheDuplicateMessageIsOpen()
{
    QFETCH(int, way);
    QFETCH(bool, mini);
    HostCore::HostState::setMiniMode(mini);
    QRect rect(0, 0, 640, 560);
    CUSSDService::instance()->showWindow(m_mainWindow.data(), rect, PAID_TYPE_GENERAL);
    QTimer::singleShot(0, this, [this, way] {
        whenMessageOpens([this](QMessageBox *) { shutDown(); });
        typeAndLeave(1, 0, QStringLiteral("Balance"), way);
    });
    editButton(m_mainWindow.data())->click(); // returns when the editor is closed
    drainEvents();
    QCOMPARE(m_messages, 1);
    QVERIFY(!m_mainWindow);
    QVERIFY(!QApplication::activeModalWidget());
}

void ProfileEditorTest::hostMayShutDownBeforeTheDuplicateMessageOpens()
{
    QRect rect(0, 0, 640, 560);
    CUSSDService::instance()->showWindow(m_mainWindow.data(), rect, PAID_TYPE_GENERAL);
    QTimer::singleShot(0, this, [this] {
        typeAndLeave(1, 0, QStringLiteral("Balance"), Tab);
        shutDown();
    });
    editButton(m_mainWindow.data())->click();
    drainEvents(); // a message would hang here
    QVERIFY(!m_mainWindow);
}

USSD_TEST_MAIN(ProfileEditorTest)

#include "profile_editor_test.moc"
