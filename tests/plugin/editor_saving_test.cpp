#include "ProfileEditorTest.h"

/** Tests how the profile editor saves the profiles. */
class EditorSavingTest : public ProfileEditorTest
{
    Q_OBJECT

private slots:
    // ---- saving
    void savingChangesAsksFirst();
    void refusedQuestionLeavesTheEdits();
    void newRowBecomesAUserProfile();
    void openEditorIsCommittedBySaving();
    void duplicateFoundWhileSavingStopsIt();
    void cancelSavesNothing();
    void execTellsWhetherTheUserSaved_data();
    void execTellsWhetherTheUserSaved();

    // ---- failures to save
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
};

// ---- saving -------------------------------------------------------------------------------------

void EditorSavingTest::savingChangesAsksFirst()
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
    QCOMPARE(saved.langID, QString()); // a text key would hide the new name
    QVERIFY(saved.isSystem);
}

void EditorSavingTest::refusedQuestionLeavesTheEdits()
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

void EditorSavingTest::newRowBecomesAUserProfile()
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

void EditorSavingTest::openEditorIsCommittedBySaving()
{
    openEditor();
    doubleClick(1, 0);
    cellEditor()->selectAll();
    QTest::keyClicks(cellEditor(), QStringLiteral("Typed"));
    answerNextMessage(QStringLiteral("IDS_YES"));
    saveButton()->click();
    QCOMPARE(savedProfiles().at(1).name, QStringLiteral("Typed"));
}

/// Tests that a duplicate prevents saving. Otherwise, the row would be saved without its code.
void EditorSavingTest::duplicateFoundWhileSavingStopsIt()
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

void EditorSavingTest::cancelSavesNothing()
{
    openEditor();
    type(1, 0, QStringLiteral("My menu"));
    QTest::mouseClick(find<QPushButton>("USSDUIPlugin_ProfileDialog_CancelButton"), Qt::LeftButton);
    QVERIFY(!table()->isVisible());
    QCOMPARE(savedProfiles().at(1).name, QStringLiteral("Menu"));
    QVERIFY(!QFile::exists(userFolder() + QLatin1String("ussdprofile.xml")));
}

void EditorSavingTest::execTellsWhetherTheUserSaved_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<bool>("saved");
    QTest::newRow("Save") << QByteArray("USSDUIPlugin_ProfileDialog_SaveButton") << true;
    QTest::newRow("Cancel") << QByteArray("USSDUIPlugin_ProfileDialog_CancelButton") << false;
    QTest::newRow("close button of the window") << QByteArray() << false;
}

void EditorSavingTest::execTellsWhetherTheUserSaved()
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

// ---- failures to save ---------------------------------------------------------------------------

static void setMode(const QString &path, mode_t mode)
{
    QCOMPARE(chmod(QFile::encodeName(path).constData(), mode), 0);
}

void EditorSavingTest::fileThatIsNotWholeIsNotSavedOver_data()
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

/// Tests that a file that cannot be read completely is never overwritten, even if nothing was
/// edited. Otherwise, the part that was not read would be lost.
void EditorSavingTest::fileThatIsNotWholeIsNotSavedOver()
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

void EditorSavingTest::damagedSystemFileLeavesOwnCodesToBeSaved()
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

void EditorSavingTest::editOfADamagedFileStaysInTheWindow()
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

/// Tests that an existing file that cannot be opened is not overwritten. Otherwise, codes that were
/// never read would be lost.
void EditorSavingTest::fileThatCannotBeOpenedIsNotSavedOver()
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

/// Tests that an empty file, which a full disk may have left behind, is overwritten. There is
/// nothing to lose.
void EditorSavingTest::emptyFileIsSavedOver()
{
    writeFile(QStringLiteral("user/ussdprofile.xml"), QByteArray());
    openEditor();
    saveButton()->click(); // a message box would block the test here
    QVERIFY(contentOf(userFile()).contains("<tksvdoc"));
}

void EditorSavingTest::systemFileOfRootLeavesOwnCodesToBeSaved()
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
        saveButton()->click(); // another message box would block the test here
    }
    QVERIFY(!table()->isVisible());
    QVERIFY(contentOf(userFile()).contains("<value>*5#</value>"));
    QCOMPARE(contentOf(systemFile()), system);
}

void EditorSavingTest::changeOfAFileThatCannotBeWrittenIsSaidAndKept_data()
{
    QTest::addColumn<bool>("isSystem");
    QTest::newRow("system file") << true;
    QTest::newRow("user file") << false;
}

void EditorSavingTest::changeOfAFileThatCannotBeWrittenIsSaidAndKept()
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

void EditorSavingTest::fullDiskIsSaidBeforeOldCodesAreLost()
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
    answerNextMessage(QStringLiteral("IDS_YES")); // the disk has free space again
    saveButton()->click();
    QCOMPARE(savedProfiles().at(2).name, QStringLiteral("Other"));
}

void EditorSavingTest::fileThatCanBeWrittenInAFolderThatCannotIsSaved()
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
        saveButton()->click(); // another message box would block the test here
    }
    QCOMPARE(savedProfiles().at(1).name, QStringLiteral("Other"));
}

void EditorSavingTest::missingUserFolderIsMade()
{
    fakeSdkSetUserDataDirectory((folder() + QLatin1String("/new/")).toStdU16String());
    openEditor();
    type(7, 1, QStringLiteral("*5#"));
    answerNextMessage(QStringLiteral("IDS_YES"));
    saveButton()->click(); // another message box would block the test here
    QVERIFY(contentOf(folder() + QLatin1String("/new/ussdprofile.xml")).contains("*5#"));
}

void EditorSavingTest::unknownUserFolderIsSaid()
{
    fakeSdkSetResult("TKSV_GetUserDataDirectory", 1);
    openEditor();
    type(7, 1, QStringLiteral("*5#"));
    saveAndAcknowledge();
    QVERIFY(m_message.contains(QLatin1String("ussdprofile.xml")));
    QVERIFY(table()->isVisible());
}

void EditorSavingTest::fileThatCameAfterTheReadingIsNotSavedOver()
{
    fakeSdkSetResult("TKSV_GetUserDataDirectory", 1); // simulates a temporary failure
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

/// Tests that the error message contains the path of the file if the folder cannot be created
/// because a dangling link has the same name.
void EditorSavingTest::fileThatFailsWhileItIsWrittenIsSaid()
{
    QVERIFY(QFile::link(folder() + QLatin1String("/nowhere"), folder() + QLatin1String("/link")));
    fakeSdkSetUserDataDirectory((folder() + QLatin1String("/link/")).toStdU16String());
    openEditor();
    type(7, 1, QStringLiteral("*5#"));
    saveAndAcknowledge();
    QVERIFY2(m_message.contains(QLatin1String("/link/ussdprofile.xml")), qPrintable(m_message));
    QVERIFY(!table()->isVisible());
}

void EditorSavingTest::hostMayShutDownWhileTheRefusalIsOpen()
{
    writeSystemProfiles(profileFile(profileItem("Menu", "*123#")).chopped(5));
    QRect rect(0, 0, 640, 560);
    CUSSDService::instance()->showWindow(m_mainWindow.data(), rect, PAID_TYPE_GENERAL);
    QTimer::singleShot(0, this, [this] {
        whenMessageOpens([this](QMessageBox *) { shutDown(); });
        QTest::mouseClick(saveButton(), Qt::LeftButton);
    });
    editButton(m_mainWindow.data())->click(); // returns after the editor has closed
    drainEvents();
    QCOMPARE(m_messages, 1);
    QVERIFY(!QApplication::activeModalWidget());
}

USSD_TEST_MAIN(EditorSavingTest)
#include "editor_saving_test.moc"
