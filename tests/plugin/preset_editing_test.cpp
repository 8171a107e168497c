#include "PresetButtonsTest.h"

#include <QTimer>

/** Tests the preset buttons after the user has edited the profiles. */
class PresetEditingTest : public PresetButtonsTest
{
    Q_OBJECT

private slots:
    void savedProfilesAreRelabelledInPlace();
    void surplusProfilesHaveNoButton();
    void leftOverButtonsAreHidden();
    void hiddenButtonsComeBack();
    void relabelledButtonSendsTheNewCode();
    void withoutButtonsSavingChangesNothing();
    void savedWideNameIsElidedWithATip();
    void comboIsFilledAnewAfterSaving();
    void afterSavingSendFollowsTheCommandEdit();
    void afterSavingWhileWaitingSendStaysDisabled();
    void cancelledEditorChangesNothing();
    void editorStandsOverTheDialogsParent();
};

void PresetEditingTest::savedProfilesAreRelabelledInPlace()
{
    writeProfiles("1111");
    open();
    const QList<QPushButton *> before = presetButtons();
    writeNames({"New 0", "New 1", "New 2", "New 3"});
    editAndSave();
    QCOMPARE(labels(),
             (QStringList{latin1("New 0"), latin1("New 1"), latin1("New 2"), latin1("New 3")}));
    QCOMPARE(presetButtons(), before);
}

void PresetEditingTest::surplusProfilesHaveNoButton()
{
    writeProfiles("0110");
    open();
    writeProfiles("1011111");
    editAndSave();
    QCOMPARE(labels(), (QStringList{latin1("Name 0"), latin1("Name 2")}));
    open(); // recreates all buttons
    QCOMPARE(presetButtons().count(), 6);
}

void PresetEditingTest::leftOverButtonsAreHidden()
{
    writeProfiles("11111");
    open();
    writeProfiles("00100");
    editAndSave();
    QCOMPARE(labels(), (QStringList{latin1("Name 2"), latin1("(hidden)"), latin1("(hidden)"),
                                    latin1("(hidden)"), latin1("(hidden)")}));
    writeProfiles("00000");
    editAndSave();
    QVERIFY(!labels().contains(latin1("Name 2")));
}

void PresetEditingTest::hiddenButtonsComeBack()
{
    writeProfiles("111");
    open();
    writeProfiles("100");
    editAndSave();
    writeProfiles("011");
    editAndSave();
    QCOMPARE(labels(), (QStringList{latin1("Name 1"), latin1("Name 2"), latin1("(hidden)")}));
}

void PresetEditingTest::relabelledButtonSendsTheNewCode()
{
    writeProfiles("1111");
    open();
    writeProfiles("0111");
    editAndSave();
    click(presetButtons().first());
    QCOMPARE(requests(), QStringList{latin1("*101#")});
}

void PresetEditingTest::withoutButtonsSavingChangesNothing()
{
    writeProfiles("000");
    open();
    writeProfiles("111");
    clearLog();
    editAndSave();
    QVERIFY(presetButtons().isEmpty());
    QCOMPARE(timesLogged("updateUssdCmdProfileList Exit no pre button bas been showed!"), 1);
}

void PresetEditingTest::savedWideNameIsElidedWithATip()
{
    const QByteArray wide = "A profile with a name that no button of this window can hold";
    writeNames({"A", "B", "C"});
    open();
    QCOMPARE(presetButtons().at(1)->toolTip(), QString());
    writeNames({"A", wide, "C"});
    editAndSave();
    QCOMPARE(presetButtons().at(1)->toolTip(), latin1(wide));
    QVERIFY(presetButtons().at(1)->text().endsWith(QChar(0x2026)));
    QCOMPARE(presetButtons().at(0)->minimumWidth(), 150);
    writeNames({"A", "B", "C"});
    editAndSave();
    QCOMPARE(presetButtons().at(1)->toolTip(), QString());
    QCOMPARE(presetButtons().at(1)->text(), latin1("B"));
    QCOMPARE(presetButtons().at(0)->minimumWidth(), 80);
}

void PresetEditingTest::comboIsFilledAnewAfterSaving()
{
    writeProfiles("111");
    open();
    combo()->setEditText(latin1("*100#"));
    writeNames({"New 0", "New 1"});
    editAndSave();
    QCOMPARE(combo()->count(), 2);
    QCOMPARE(combo()->itemText(1), latin1("New 1"));
    QCOMPARE(combo()->currentIndex(), -1);
    QCOMPARE(descriptionLabel()->text(), QString());
}

/// Tests that the visible field is not affected when saving clears the hidden combo box.
void PresetEditingTest::afterSavingSendFollowsTheCommandEdit()
{
    writeProfiles("111");
    open();
    combo()->setEditText(latin1("*100#"));
    QTest::keyClicks(commandEdit(), latin1("*55#"));
    editAndSave();
    QVERIFY(sendButton()->isEnabled());
    commandEdit()->clear();
    combo()->setEditText(latin1("*100#"));
    QVERIFY(sendButton()->isEnabled());
    editAndSave();
    QVERIFY(!sendButton()->isEnabled());
}

void PresetEditingTest::afterSavingWhileWaitingSendStaysDisabled()
{
    writeProfiles("111");
    open();
    send(latin1("*100#"));
    QVERIFY(isWaiting());
    editAndSave();
    QVERIFY(isWaiting());
}

void PresetEditingTest::cancelledEditorChangesNothing()
{
    writeProfiles("111");
    open();
    combo()->setEditText(latin1("*100#"));
    writeNames({"New 0", "New 1"});
    clearLog();
    editAndPress("CancelButton");
    QCOMPARE(labels(), (QStringList{latin1("Name 0"), latin1("Name 1"), latin1("Name 2")}));
    QCOMPARE(combo()->currentText(), latin1("*100#"));
    QCOMPARE(timesLogged("getProfileList profiles count"), 0);
    QCOMPARE(timesLogged("update4EditCommandSave"), 0);
}

void PresetEditingTest::editorStandsOverTheDialogsParent()
{
    writeProfiles("111");
    open();
    QWidget *parent = nullptr;
    QTimer::singleShot(0, this, [&] {
        QWidget *editor = QApplication::activeModalWidget();
        if (!editor)
            return;
        parent = editor->parentWidget();
        editor->close();
    });
    click(part<QPushButton>("EditButton"));
    QCOMPARE(parent, page());
}

USSD_TEST_MAIN(PresetEditingTest)

#include "preset_editing_test.moc"
