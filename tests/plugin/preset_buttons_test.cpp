#include "DialogTest.h"

#include <QGridLayout>
#include <QTextDocument>
#include <QTimer>
#include <QVBoxLayout>

#include "fake_tksv.h"
#include "Languages.h"

namespace
{

const int PAYMENT_SLOT = 8; ///< the position whose box also contains the payment edit
const int ROUNDING = 1;     ///< the pixels that a layout may lose when it distributes the height

QByteArray nameOf(int index)
{
    return "Name " + QByteArray::number(index);
}

QByteArray codeOf(int index)
{
    return "*" + QByteArray::number(100 + index) + "#";
}

/// Returns the grid position of an item as "row,column rows x columns".
QString placeInGrid(const QGridLayout *grid, int index)
{
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(index, &row, &column, &rows, &columns);
    return latin1("%1,%2 %3x%4").arg(row).arg(column).arg(rows).arg(columns);
}

} // namespace

/** Tests the preset buttons of the general dialog and its grid. */
class PresetButtonsTest : public DialogTest
{
    Q_OBJECT

private:
    /// Writes profiles "Name 0", "*100#" and so on. Each '1' in the mask gives its profile a
    /// button.
    void writeProfiles(const QByteArray &mask);
    /// Writes one profile with a button for each code.
    void writeCodes(const QList<QByteArray> &codes);
    void writeNames(const QList<QByteArray> &names);
    QGridLayout *grid()
    {
        return qobject_cast<QGridLayout *>(qobject_cast<QWidget *>(dialog())->layout());
    }
    QString placeOf(QWidget *widget);
    QStringList labels();
    /// Presses Edit in the dialog and then Save in the editor.
    void editAndSave() { editAndPress("SaveButton"); }
    void editAndPress(const char *button);
    QRect shownAt(QWidget *widget);

private slots:
    // the buttons and their positions
    void withoutShownProfileThereIsNoButton();
    void twelfthProfileGetsNoButton();
    void slotsAreFixedByTheProfilesIndex_data();
    void slotsAreFixedByTheProfilesIndex();
    void eachBoxStandsInTheGridEvenWhenEmpty_data();
    void eachBoxStandsInTheGridEvenWhenEmpty();
    void fixedWidgetsStandWhereTheyMust();
    void thirdBoxHoldsThePaymentEdit();
    void profilesNotToBeShownKeepTheirSlotEmpty();
    void userProfilesFollowTheSystemOnes();
    void buttonsHaveTheirObjectName();
    void comboHoldsAllProfiles();
    void nothingOverlapsOrIsCutOff_data();
    void nothingOverlapsOrIsCutOff();

    // sending
    void buttonSendsItsCode();
    void paymentButtonWithoutNumberSendsNothing();
    void buttonOfAProfileWithoutCodeSendsNothing();
    void everyPlaceholderIsReplaced();
    void placeholderInCapitalsIsNotReplaced();
    void placeholderOfAnOrdinaryButtonIsSentAsItIs();
    void numberWithPlaceholderLetterIsNotReplacedAgain();
    void lastTwoOfFewButtonsArePaymentButtons();
    void singleButtonIsAPaymentButton();

    // states
    void paymentButtonsFollowThePaymentEdit();
    void paymentButtonsAreDisabledAfterEveryAnswer();
    void allButtonsAreDisabledWhileWaiting();

    // texts and widths
    void wideNameIsElidedWithATip();
    void nameThatFitsHasNoTip();
    void allButtonsAreEquallyWide_data();
    void allButtonsAreEquallyWide();
    void namesFollowTheLanguageAndStayElided();
    void codesReadFromLeftToRightInArabicNamesDoNot();
    void namesAreNoMarkup();

    // after the editor
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

void PresetButtonsTest::writeProfiles(const QByteArray &mask)
{
    QByteArray items;
    for (int i = 0; i < mask.size(); ++i)
        items += profileItem(nameOf(i), codeOf(i), "true", mask.at(i) == '1' ? "true" : "false");
    writeSystemProfiles(profileFile(items));
}

void PresetButtonsTest::writeCodes(const QList<QByteArray> &codes)
{
    QByteArray items;
    for (int i = 0; i < codes.count(); ++i)
        items += profileItem(nameOf(i), codes.at(i), "true", "true");
    writeSystemProfiles(profileFile(items));
}

void PresetButtonsTest::writeNames(const QList<QByteArray> &names)
{
    QByteArray items;
    for (int i = 0; i < names.count(); ++i)
        items += profileItem(names.at(i), codeOf(i), "true", "true");
    writeSystemProfiles(profileFile(items));
}

QString PresetButtonsTest::placeOf(QWidget *widget)
{
    return placeInGrid(grid(), grid()->indexOf(widget));
}

QStringList PresetButtonsTest::labels()
{
    QStringList texts;
    for (QPushButton *button : presetButtons())
        texts << (button->isHidden() ? latin1("(hidden)") : button->text());
    return texts;
}

QRect PresetButtonsTest::shownAt(QWidget *widget)
{
    return QRect(widget->mapTo(dialog(), QPoint()), widget->size());
}

void PresetButtonsTest::editAndPress(const char *button)
{
    bool pressed = false;
    QTimer::singleShot(0, this, [&] {
        // The window of the editor is a child of the widget that contains the dialog.
        QPushButton *found = page()->findChild<QPushButton *>(
            latin1("USSDUIPlugin_ProfileDialog_") + latin1(button));
        if (!found)
            return;
        pressed = true;
        found->click();
    });
    click(part<QPushButton>("EditButton"));
    QVERIFY(pressed);
    drainEvents();
}

// ---- the buttons and their positions ---------------------------------------------------------

void PresetButtonsTest::withoutShownProfileThereIsNoButton()
{
    writeProfiles("00000000000");
    open();
    QVERIFY(presetButtons().isEmpty());
    QVERIFY(!dialog()->isShowPreBtns());
    QVERIFY(!dialog()->hasBeenShowPreBtns());
    clearLog();
    editAndSave();
    QVERIFY(presetButtons().isEmpty());
    QCOMPARE(timesLogged("update4EditCommandSave Exit no show pre buttons!"), 1);
}

void PresetButtonsTest::twelfthProfileGetsNoButton()
{
    writeProfiles("111111111111");
    open();
    QStringList expected;
    for (int i = 0; i < 11; ++i)
        expected << latin1(nameOf(i));
    QCOMPARE(labels(), expected);
    QCOMPARE(combo()->count(), 12);
}

void PresetButtonsTest::slotsAreFixedByTheProfilesIndex_data()
{
    QTest::addColumn<int>("index");
    // The position of the button's box, or an empty string if the button has no box.
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("alone"); // the position of the button if it is the only one
    QTest::addColumn<QString>("amongAll");
    for (int i = 0; i < 4; ++i)
        QTest::newRow(nameOf(i)) << i << latin1("0,0 4x1") << QString() << QString();
    for (int i = 4; i < 8; ++i)
        QTest::newRow(nameOf(i)) << i << latin1("4,0 4x1") << QString() << QString();
    QTest::newRow(nameOf(8)) << 8 << latin1("8,0 3x2") << QString() << QString();
    QTest::newRow(nameOf(9)) << 9 << QString() << latin1("9,2 1x5") << latin1("9,2 1x5");
    QTest::newRow(nameOf(10)) << 10 << QString() << latin1("10,2 1x5") << latin1("11,2 1x5");
}

void PresetButtonsTest::slotsAreFixedByTheProfilesIndex()
{
    QFETCH(int, index);
    QFETCH(QString, box);
    QFETCH(QString, alone);
    QFETCH(QString, amongAll);
    QByteArray onlyThis(11, '0');
    onlyThis[index] = '1';
    const QByteArray all(11, '1');
    for (const QByteArray &mask : {all, onlyThis}) {
        writeProfiles(mask);
        open();
        QPushButton *button = presetButtons().value(mask == all ? index : 0);
        QVERIFY(button);
        QCOMPARE(button->text(), latin1(nameOf(index)));
        if (box.isEmpty()) {
            QCOMPARE(placeOf(button), mask == all ? amongAll : alone);
            continue;
        }
        QStringList places; // the positions of all boxes that contain the button
        for (int i = 0; i < grid()->count(); ++i) {
            QLayout *inner = grid()->itemAt(i)->layout();
            if (inner && inner->indexOf(button) >= 0)
                places << placeInGrid(grid(), i);
        }
        QCOMPARE(places, QStringList{box});
    }
}

void PresetButtonsTest::eachBoxStandsInTheGridEvenWhenEmpty_data()
{
    QTest::addColumn<QByteArray>("mask");
    for (const char *mask : {"", "0", "1", "0001", "00000000000", "11111111111", "00000100000"})
        QTest::newRow(*mask ? mask : "none") << QByteArray(mask);
}

void PresetButtonsTest::eachBoxStandsInTheGridEvenWhenEmpty()
{
    QFETCH(QByteArray, mask);
    writeProfiles(mask);
    open();
    QStringList places;
    for (int i = 0; i < grid()->count(); ++i) {
        if (qobject_cast<QVBoxLayout *>(grid()->itemAt(i)->layout()))
            places << placeInGrid(grid(), i);
    }
    QCOMPARE(places, (QStringList{latin1("0,0 4x1"), latin1("4,0 4x1"), latin1("8,0 3x2")}));
    QVBoxLayout *second = qobject_cast<QVBoxLayout *>(grid()->itemAtPosition(4, 0)->layout());
    QVERIFY(second);
    QCOMPARE(second->spacing(), 0);
}

void PresetButtonsTest::fixedWidgetsStandWhereTheyMust()
{
    for (const char *mask : {"", "11111111111"}) {
        writeProfiles(mask);
        open();
        QCOMPARE(placeOf(history()), latin1("0,2 6x5"));
        QCOMPARE(placeOf(part<QLabel>("InfoLabel")), latin1("6,2 1x5"));
        QCOMPARE(placeOf(commandEdit()), latin1("7,2 1x4"));
        QCOMPARE(placeOf(sendButton()), latin1("7,6 1x1"));
        QVERIFY(grid()->itemAt(grid()->indexOf(sendButton()))->alignment() & Qt::AlignRight);
    }
}

void PresetButtonsTest::thirdBoxHoldsThePaymentEdit()
{
    for (const char *mask : {"", "11111111"}) {
        writeProfiles(mask);
        open();
        QVBoxLayout *box = qobject_cast<QVBoxLayout *>(grid()->itemAtPosition(8, 0)->layout());
        QVERIFY(box);
        QCOMPARE(box->count(), 2);
        QCOMPARE(box->itemAt(0)->widget(), part<QLabel>("InfoNumLabel"));
        QCOMPARE(box->itemAt(1)->widget(), paymentEdit());
    }
    writeProfiles(QByteArray(PAYMENT_SLOT + 1, '1'));
    open();
    QVBoxLayout *box = qobject_cast<QVBoxLayout *>(grid()->itemAtPosition(8, 0)->layout());
    QVERIFY(box);
    QCOMPARE(box->itemAt(0)->widget(), presetButtons().last());
    QCOMPARE(box->count(), 3);
}

void PresetButtonsTest::profilesNotToBeShownKeepTheirSlotEmpty()
{
    writeProfiles("01010000001");
    open();
    QCOMPARE(labels(), (QStringList{latin1("Name 1"), latin1("Name 3"), latin1("Name 10")}));
    QLayout *first = grid()->itemAtPosition(0, 0)->layout();
    QCOMPARE(first->count(), 2);
    QCOMPARE(first->itemAt(0)->widget(), presetButtons().at(0));
}

void PresetButtonsTest::userProfilesFollowTheSystemOnes()
{
    writeProfiles("1");
    QFile file(userFolder() + latin1("ussdprofile.xml"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(profileFile(profileItem("Mine", "*7#")));
    file.close();
    open();
    QCOMPARE(labels(), (QStringList{latin1("Name 0"), latin1("Mine")}));
}

void PresetButtonsTest::buttonsHaveTheirObjectName()
{
    writeProfiles("111");
    open();
    QCOMPARE(dialog()
                 ->findChildren<QPushButton *>(latin1("USSDUIPlugin_AdvancedDialog_PreButton"))
                 .count(),
             3);
}

void PresetButtonsTest::comboHoldsAllProfiles()
{
    writeProfiles("010");
    open();
    QCOMPARE(combo()->count(), 3);
    QCOMPARE(combo()->itemText(0), latin1("Name 0"));
    QCOMPARE(combo()->itemText(2), latin1("Name 2"));
    QVERIFY(combo()->itemIcon(0).isNull());
    QCOMPARE(combo()->currentIndex(), -1);
}

void PresetButtonsTest::nothingOverlapsOrIsCutOff_data()
{
    QTest::addColumn<QByteArray>("mask");
    QTest::addColumn<int>("model");
    QTest::addColumn<QString>("language");
    const char *const masks[] = {"",           "1",           "11111",       "00000000110",
                                 "0000000001", "00000000001", "11111111",    "111111111",
                                 "1111111111", "11111111111", "111111111111"};
    for (const char *mask : masks) {
        for (int model : {int(WINDOW_MODEL_MODAL), int(WINDOW_MODEL_EMBEDDED)}) {
            for (const char *language : {"en", "de", "ar"})
                QTest::newRow(QByteArray(*mask ? mask : "none") +
                              (model ? " embedded " : " modal ") + language)
                    << QByteArray(mask) << model << latin1(language);
        }
    }
}

void PresetButtonsTest::nothingOverlapsOrIsCutOff()
{
    QFETCH(QByteArray, mask);
    QFETCH(int, model);
    QFETCH(QString, language);
    QVERIFY(HostCore::Languages::setCurrent(language));
    writeProfiles(mask);
    open(static_cast<WINDOW_MODEL>(model));
    send(latin1("*100#")); // makes the prompt visible
    QWidgetList shown;
    for (QWidget *widget :
         dialog()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (widget->isVisible())
            shown << widget;
    }
    QVERIFY(shown.count() >= 8);
    for (int i = 0; i < shown.count(); ++i) {
        const QRect first = shownAt(shown.at(i));
        const QByteArray name = shown.at(i)->objectName().toLatin1();
        QVERIFY2(dialog()->rect().contains(first), name);
        const bool isOneLine =
            qobject_cast<QPushButton *>(shown.at(i)) || qobject_cast<QLineEdit *>(shown.at(i));
        const int least = shown.at(i)->minimumSizeHint().height() - ROUNDING;
        QVERIFY2(!isOneLine || first.height() >= least, name);
        for (int j = i + 1; j < shown.count(); ++j)
            QVERIFY2(!first.intersects(shownAt(shown.at(j))),
                     name + " and " + shown.at(j)->objectName().toLatin1());
    }
}

// ---- sending ---------------------------------------------------------------------------------

void PresetButtonsTest::buttonSendsItsCode()
{
    writeProfiles("1111");
    open();
    click(presetButtons().at(1));
    QCOMPARE(requests(), QStringList{latin1("*101#")});
    QCOMPARE(shownLines(), QStringList{sentLine(latin1("*101#"))});
    QVERIFY(isWaiting());
}

void PresetButtonsTest::paymentButtonWithoutNumberSendsNothing()
{
    writeCodes({"*1#", "*2*%s#", "*3*%s#"});
    open();
    for (int i : {1, 2}) {
        presetButtons().at(i)->setEnabled(true); // a host could make this call
        click(presetButtons().at(i));
    }
    QVERIFY(requests().isEmpty());
    QVERIFY(shownLines().isEmpty());
    QVERIFY(commandEdit()->isEnabled());
}

void PresetButtonsTest::buttonOfAProfileWithoutCodeSendsNothing()
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

void PresetButtonsTest::everyPlaceholderIsReplaced()
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

void PresetButtonsTest::placeholderInCapitalsIsNotReplaced()
{
    writeCodes({"*1#", "*2*%S#"});
    open();
    QTest::keyClicks(paymentEdit(), latin1("123"));
    click(presetButtons().at(1));
    QCOMPARE(requests(), QStringList{latin1("*2*%S#")});
}

void PresetButtonsTest::placeholderOfAnOrdinaryButtonIsSentAsItIs()
{
    writeCodes({"*1*%s#", "*2#", "*3#"});
    open();
    QTest::keyClicks(paymentEdit(), latin1("123"));
    click(presetButtons().at(0));
    QCOMPARE(requests(), QStringList{latin1("*1*%s#")});
}

void PresetButtonsTest::numberWithPlaceholderLetterIsNotReplacedAgain()
{
    writeCodes({"%%s"});
    open();
    paymentEdit()->setText(latin1("s%s")); // the text is not typed, so it is not checked
    presetButtons().first()->setEnabled(true);
    click(presetButtons().first());
    QCOMPARE(requests(), QStringList{latin1("%s%s")});
}

void PresetButtonsTest::lastTwoOfFewButtonsArePaymentButtons()
{
    writeProfiles("1011"); // three buttons
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

void PresetButtonsTest::singleButtonIsAPaymentButton()
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

// ---- states ----------------------------------------------------------------------------------

void PresetButtonsTest::paymentButtonsFollowThePaymentEdit()
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
    QTest::keyClicks(paymentEdit(), latin1("x")); // the letter is refused
    QVERIFY(!buttons.at(10)->isEnabled());
    for (int i = 0; i < 9; ++i)
        QVERIFY(buttons.at(i)->isEnabled());
}

void PresetButtonsTest::paymentButtonsAreDisabledAfterEveryAnswer()
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

void PresetButtonsTest::allButtonsAreDisabledWhileWaiting()
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

// ---- texts and widths ------------------------------------------------------------------------

void PresetButtonsTest::wideNameIsElidedWithATip()
{
    const QByteArray wide = "A profile with a name that no button of this window can hold";
    writeNames({wide, "B", "C"});
    open();
    QPushButton *button = presetButtons().first();
    QCOMPARE(button->toolTip(), latin1(wide));
    QVERIFY(button->text() != latin1(wide));
    QVERIFY(button->text().endsWith(QChar(0x2026)));
    QVERIFY(latin1(wide).startsWith(button->text().chopped(1)));
    QVERIFY(button->fontMetrics().horizontalAdvance(button->text()) <= 127);
    QCOMPARE(combo()->itemText(0), latin1(wide));
    QCOMPARE(button->width(), 150);
    QCOMPARE(presetButtons().last()->toolTip(), QString());
}

void PresetButtonsTest::nameThatFitsHasNoTip()
{
    const QFontMetrics metrics = QApplication::fontMetrics();
    QString name = latin1("x");
    while (metrics.horizontalAdvance(name + QLatin1Char('x')) < 127)
        name += QLatin1Char('x');
    writeNames({name.toLatin1(), name.toLatin1() + "xx"});
    open();
    QCOMPARE(presetButtons().at(0)->text(), name);
    QCOMPARE(presetButtons().at(0)->toolTip(), QString());
    QCOMPARE(presetButtons().at(1)->toolTip(), name + latin1("xx"));
}

void PresetButtonsTest::allButtonsAreEquallyWide_data()
{
    QTest::addColumn<int>("letters");
    for (int letters : {1, 5, 8, 11, 14, 40})
        QTest::newRow(qPrintable(QString::number(letters))) << letters;
}

void PresetButtonsTest::allButtonsAreEquallyWide()
{
    QFETCH(int, letters);
    const QByteArray name(letters, 'n');
    writeNames({"a", name, "b"});
    open();
    const int text = QApplication::fontMetrics().boundingRect(latin1(name)).width();
    for (QPushButton *button : presetButtons()) {
        QCOMPARE(button->minimumWidth(), qBound(80, text + 30, 150));
        QCOMPARE(button->maximumWidth(), qBound(80, text + 30, 150));
    }
}

void PresetButtonsTest::namesFollowTheLanguageAndStayElided()
{
    writeSystemProfiles(
        profileFile(profileItem("Plain name", "*1#", "true", "true", "") +
                    profileItem("Prompt", "*2#", "true", "true", "IDS_TOP_PROMPT") + // a long text
                    profileItem("Send", "*3#", "true", "true", "IDS_BUTTON_SEND")));
    open();
    for (const char *language : {"en", "de", "ru", "en"}) {
        QVERIFY(HostCore::Languages::setCurrent(latin1(language)));
        dialog()->SetLanguage();
        const QList<QPushButton *> buttons = presetButtons();
        QCOMPARE(buttons.at(0)->text(), latin1("Plain name"));
        QCOMPARE(buttons.at(1)->toolTip(), text("IDS_TOP_PROMPT"));
        QVERIFY(buttons.at(1)->text().endsWith(QChar(0x2026)));
        QVERIFY(text("IDS_TOP_PROMPT").startsWith(buttons.at(1)->text().chopped(1)));
        QCOMPARE(buttons.at(2)->text(), text("IDS_BUTTON_SEND"));
    }
}

void PresetButtonsTest::codesReadFromLeftToRightInArabicNamesDoNot()
{
    writeNames({"*111#", "123", "Balance", QByteArray("\xd8\xb1\xd8\xb5\xd9\x8a\xd8\xaf")});
    QVERIFY(HostCore::Languages::setCurrent(latin1("ar")));
    open();
    const QList<QPushButton *> buttons = presetButtons();
    QCOMPARE(buttons.at(0)->layoutDirection(), Qt::LeftToRight);
    QCOMPARE(buttons.at(1)->layoutDirection(), Qt::LeftToRight);
    QCOMPARE(buttons.at(2)->layoutDirection(), Qt::RightToLeft);
    QCOMPARE(buttons.at(3)->layoutDirection(), Qt::RightToLeft);
    QVERIFY(HostCore::Languages::setCurrent(latin1("en")));
    dialog()->SetLanguage();
    QCOMPARE(buttons.at(3)->layoutDirection(), Qt::LeftToRight);
}

/// Tests that names are not interpreted as markup. A tool tip would interpret markup and load
/// pictures.
void PresetButtonsTest::namesAreNoMarkup()
{
    const QByteArray name = "&lt;img src='/dev/zero'&gt; a name that is much too wide";
    writeNames({name, "B"});
    open();
    const QPushButton *button = presetButtons().first();
    QVERIFY(button->text().startsWith(latin1("<img")));
    QVERIFY(!button->toolTip().contains(latin1("<img")));
    QTextDocument tip;
    tip.setHtml(button->toolTip());
    QCOMPARE(tip.toPlainText(), latin1("<img src='/dev/zero'> a name that is much too wide"));
}

// ---- after the editor ------------------------------------------------------------------------

void PresetButtonsTest::savedProfilesAreRelabelledInPlace()
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

void PresetButtonsTest::surplusProfilesHaveNoButton()
{
    writeProfiles("0110");
    open();
    writeProfiles("1011111");
    editAndSave();
    QCOMPARE(labels(), (QStringList{latin1("Name 0"), latin1("Name 2")}));
    open(); // creates all buttons again
    QCOMPARE(presetButtons().count(), 6);
}

void PresetButtonsTest::leftOverButtonsAreHidden()
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

void PresetButtonsTest::hiddenButtonsComeBack()
{
    writeProfiles("111");
    open();
    writeProfiles("100");
    editAndSave();
    writeProfiles("011");
    editAndSave();
    QCOMPARE(labels(), (QStringList{latin1("Name 1"), latin1("Name 2"), latin1("(hidden)")}));
}

void PresetButtonsTest::relabelledButtonSendsTheNewCode()
{
    writeProfiles("1111");
    open();
    writeProfiles("0111");
    editAndSave();
    click(presetButtons().first());
    QCOMPARE(requests(), QStringList{latin1("*101#")});
}

void PresetButtonsTest::withoutButtonsSavingChangesNothing()
{
    writeProfiles("000");
    open();
    writeProfiles("111");
    clearLog();
    editAndSave();
    QVERIFY(presetButtons().isEmpty());
    QCOMPARE(timesLogged("updateUssdCmdProfileList Exit no pre button bas been showed!"), 1);
}

void PresetButtonsTest::savedWideNameIsElidedWithATip()
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

void PresetButtonsTest::comboIsFilledAnewAfterSaving()
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

/// Tests the visible field after saving. Saving clears the hidden combo box, which must not affect
/// this field.
void PresetButtonsTest::afterSavingSendFollowsTheCommandEdit()
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

void PresetButtonsTest::afterSavingWhileWaitingSendStaysDisabled()
{
    writeProfiles("111");
    open();
    send(latin1("*100#"));
    QVERIFY(isWaiting());
    editAndSave();
    QVERIFY(isWaiting());
}

void PresetButtonsTest::cancelledEditorChangesNothing()
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

void PresetButtonsTest::editorStandsOverTheDialogsParent()
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

USSD_TEST_MAIN(PresetButtonsTest)

#include "preset_buttons_test.moc"
