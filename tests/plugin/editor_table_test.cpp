#include "ProfileEditorTest.h"

/** Tests the table of the profile editor. */
class EditorTableTest : public ProfileEditorTest
{
    Q_OBJECT

private slots:
    // ---- the table
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
};

// ---- the table ----------------------------------------------------------------------------------

void EditorTableTest::doubleClickOnAnEmptyRowOpensAnEditor()
{
    openEditor();
    QVERIFY(!table()->item(5, 1));
    doubleClick(5, 1);
    QVERIFY(cellEditor());
    QVERIFY(table()->item(5, 1));
}

void EditorTableTest::codeOfAnotherRowIsRefusedAndTheCellReopenedEmpty()
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

void EditorTableTest::nameOfAnotherRowIsRefusedAndTheCellReopenedEmpty()
{
    openEditor();
    answerNextMessage(QStringLiteral("IDS_OK"));
    type(4, 0, QStringLiteral("Menu"));
    QCOMPARE(m_messages, 1);
    QVERIFY(m_message.contains(USSDLogic::tr(QStringLiteral("IDS_COMMAND_NAME"))));
    QCOMPARE(cell(4, 0), QString());
}

/// Tests that the message opens only once, regardless of how the user leaves the cell. Pressing Tab
/// moves the focus to another editable cell with text.
void EditorTableTest::duplicateIsRefusedOnceAndReopenedHoweverTheCellIsLeft()
{
    QFETCH(int, way);
    QFETCH(bool, mini);
    HostCore::HostState::setMiniMode(mini);
    openEditor();
    answerNextMessage(QStringLiteral("IDS_OK"));
    typeAndLeave(1, 0, QStringLiteral("Balance"), way);
    drainEvents();
    QCOMPARE(m_messages, 1);
    drainEvents(); // a second message box would block the test here
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

/// Tests that the message opens only after the delegate and the view have finished processing the
/// cell. Until then, no code of the host may run.
void EditorTableTest::messageOfADuplicateOpensOutsideTheDelegate()
{
    openEditor();
    typeAndLeave(1, 0, QStringLiteral("Balance"), Tab); // the message must not open here
    QCOMPARE(cell(1, 0), QStringLiteral("Balance"));
    QCOMPARE(m_messages, 0);
    answerNextMessage(QStringLiteral("IDS_OK"));
    drainEvents();
    QCOMPARE(m_messages, 1);
    QCOMPARE(cell(1, 0), QString());
}

void EditorTableTest::nameThatIsTheCodeOfAnotherRowIsNoDuplicate()
{
    openEditor();
    type(4, 0, QStringLiteral("*100#")); // a message box would block the test here
    type(4, 1, QStringLiteral("Menu"));
    QCOMPARE(cell(4, 0), QStringLiteral("*100#"));
    QCOMPARE(cell(4, 1), QStringLiteral("Menu"));
}

void EditorTableTest::textThatDiffersInCaseIsNoDuplicate_data()
{
    QTest::addColumn<int>("column");
    QTest::newRow("name") << 0;
    QTest::newRow("code") << 1;
}

void EditorTableTest::textThatDiffersInCaseIsNoDuplicate()
{
    QFETCH(int, column);
    writeSystemProfiles(profileFile(profileItem("Balance", "*100A#")));
    openEditor();
    const QString other = cell(0, column).toLower();
    QVERIFY(other != cell(0, column));
    type(4, column, other); // a message box would block the test here
    QCOMPARE(cell(4, column), other);
}

/// Tests that a second duplicate that is typed before the message about the first one has opened is
/// also rejected.
void EditorTableTest::duplicateTypedBeforeTheMessageOpenedIsRefusedToo()
{
    openEditor();
    typeAndLeave(1, 0, QStringLiteral("Balance"), Tab);
    QVERIFY(cellEditor());
    cellEditor()->selectAll();
    QTest::keyClicks(cellEditor(), QStringLiteral("*100#"));
    whenMessageOpens([this](QMessageBox *box) {
        QVERIFY(box->text().contains(USSDLogic::tr(QStringLiteral("IDS_COMMAND_NAME"))));
        QCOMPARE(table()->currentItem(), table()->item(1, 0)); // the cell with the duplicate
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

void EditorTableTest::duplicateIsNotSpokenOfAfterCancel()
{
    openEditor();
    typeAndLeave(1, 0, QStringLiteral("Balance"), Tab);
    QTest::mouseClick(find<QPushButton>("USSDUIPlugin_ProfileDialog_CancelButton"), Qt::LeftButton);
    drainEvents(); // a message box would block the test here
    QVERIFY(!table()->isVisible());
}

void EditorTableTest::readOnlyProfileCannotBeEditedAndHasItsColour()
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

void EditorTableTest::savingWithoutChangesAsksNothingAndWrites()
{
    openEditor();
    const QByteArray system = contentOf(systemFile()); // without the line breaks that saving adds
    QVERIFY(!QFile::exists(userFile()));
    QTest::mouseClick(saveButton(), Qt::LeftButton); // a message box would block the test here
    QVERIFY(QFile::exists(userFile()));
    QVERIFY(contentOf(systemFile()) != system);
    QVERIFY(contentOf(systemFile()).contains("\n    <item>"));
    QVERIFY(!table()->isVisible());
    QCOMPARE(savedProfiles().count(), 2);
}

void EditorTableTest::savingWithoutChangesKeepsProfilesWithoutNameOrCode()
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
    saveButton()->click(); // a message box would block the test here
    QVERIFY(savedProfiles() == before);
}

void EditorTableTest::typingDoesNotMoveToAMatchingRow()
{
    openEditor();
    table()->setCurrentCell(0, 0);
    table()->keyboardSearch(QStringLiteral("M"));
    QCOMPARE(table()->currentRow(), 0);
}

void EditorTableTest::cellEditorTakesFortyCharacters()
{
    openEditor();
    type(3, 0, QString(60, QLatin1Char('n')));
    QCOMPARE(cell(3, 0), QString(40, QLatin1Char('n')));
}

static QByteArray longCode()
{
    return "*100*" + QByteArray(60, '1') + '#';
}

void EditorTableTest::longerTextSurvivesItsEditor()
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
    saveButton()->click(); // a message box would block the test here
    QCOMPARE(savedProfiles().at(0).value, QString::fromLatin1(longCode()));
}

void EditorTableTest::longerTextIsNotCutByAnEdit()
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

void EditorTableTest::blanksOfTheFileSurviveTheEditor()
{
    writeSystemProfiles(profileFile(profileItem(" Balance ", "*100#")));
    openEditor();
    doubleClick(0, 0);
    QTest::keyClick(cellEditor(), Qt::Key_Return);
    drainEvents();
    QCOMPARE(cell(0, 0), QStringLiteral(" Balance "));
}

void EditorTableTest::blanksAroundWhatIsTypedAreDropped()
{
    openEditor();
    type(4, 0, QStringLiteral("  My  code "));
    type(4, 1, QStringLiteral(" *5# "));
    QCOMPARE(cell(4, 0), QStringLiteral("My  code"));
    QCOMPARE(cell(4, 1), QStringLiteral("*5#"));
}

void EditorTableTest::codeThatDiffersInBlanksOnlyIsADuplicate_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("typed with a blank") << QStringLiteral("*123# ");
    QTest::newRow("in the file with blanks") << QStringLiteral("*100#");
}

/// Tests that codes that differ only in leading or trailing spaces are treated as duplicates. Codes
/// are saved without these spaces, and only the first of two equal codes would be loaded again.
void EditorTableTest::codeThatDiffersInBlanksOnlyIsADuplicate()
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

void EditorTableTest::blanksAloneAreAnEmptyCell()
{
    openEditor();
    clearLog();
    type(4, 1, QStringLiteral("  "));
    type(5, 1, QStringLiteral("  ")); // an empty code is not a duplicate
    QCOMPARE(cell(4, 1), QString());
    QVERIFY(timesLogged("OnEditorClosed Exit: empty string ") > 0);
}

USSD_TEST_MAIN(EditorTableTest)
#include "editor_table_test.moc"
