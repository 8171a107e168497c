#include "PresetButtonsTest.h"

#include <QFile>
#include <QGridLayout>
#include <QVBoxLayout>

#include "Languages.h"

namespace
{

const int PAYMENT_SLOT = 8; ///< the cell that also contains the payment field
const int ROUNDING = 1;     ///< pixels that may be lost when a layout distributes its height

/// Returns the item's position in the grid as "row,column rows x columns".
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

/** Tests which profiles are shown as preset buttons, and the grid of the general dialog. */
class PresetGridTest : public PresetButtonsTest
{
    Q_OBJECT

private:
    QGridLayout *grid()
    {
        return qobject_cast<QGridLayout *>(qobject_cast<QWidget *>(dialog())->layout());
    }
    QString placeOf(QWidget *widget);
    QRect shownAt(QWidget *widget);

private slots:
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
    void boxesStayTogetherInALargeWindow();
    void transcriptTakesTheRoomOfALargeWindow();
    void nothingOverlapsOrIsCutOff_data();
    void nothingOverlapsOrIsCutOff();
};

QString PresetGridTest::placeOf(QWidget *widget)
{
    return placeInGrid(grid(), grid()->indexOf(widget));
}

QRect PresetGridTest::shownAt(QWidget *widget)
{
    return QRect(widget->mapTo(dialog(), QPoint()), widget->size());
}

void PresetGridTest::withoutShownProfileThereIsNoButton()
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

void PresetGridTest::twelfthProfileGetsNoButton()
{
    writeProfiles("111111111111");
    open();
    QStringList expected;
    for (int i = 0; i < 11; ++i)
        expected << latin1(nameOf(i));
    QCOMPARE(labels(), expected);
    QCOMPARE(combo()->count(), 12);
}

void PresetGridTest::slotsAreFixedByTheProfilesIndex_data()
{
    QTest::addColumn<int>("index");
    // The grid position of the button's box, or an empty string if the button is not in a box.
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("alone"); // the position if there are no other buttons
    QTest::addColumn<QString>("amongAll");
    for (int i = 0; i < 4; ++i)
        QTest::newRow(nameOf(i)) << i << latin1("0,0 4x1") << QString() << QString();
    for (int i = 4; i < 8; ++i)
        QTest::newRow(nameOf(i)) << i << latin1("4,0 4x1") << QString() << QString();
    QTest::newRow(nameOf(8)) << 8 << latin1("8,0 3x2") << QString() << QString();
    QTest::newRow(nameOf(9)) << 9 << QString() << latin1("9,2 1x5") << latin1("9,2 1x5");
    QTest::newRow(nameOf(10)) << 10 << QString() << latin1("10,2 1x5") << latin1("11,2 1x5");
}

void PresetGridTest::slotsAreFixedByTheProfilesIndex()
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
        QStringList places; // the positions of all boxes with this button
        for (int i = 0; i < grid()->count(); ++i) {
            QLayout *inner = grid()->itemAt(i)->layout();
            if (inner && inner->indexOf(button) >= 0)
                places << placeInGrid(grid(), i);
        }
        QCOMPARE(places, QStringList{box});
    }
}

void PresetGridTest::eachBoxStandsInTheGridEvenWhenEmpty_data()
{
    QTest::addColumn<QByteArray>("mask");
    for (const char *mask : {"", "0", "1", "0001", "00000000000", "11111111111", "00000100000"})
        QTest::newRow(*mask ? mask : "none") << QByteArray(mask);
}

void PresetGridTest::eachBoxStandsInTheGridEvenWhenEmpty()
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
    for (int row : {0, 4, 8}) { // no spacing, because the buttons have margins in this style
        QVBoxLayout *box = qobject_cast<QVBoxLayout *>(grid()->itemAtPosition(row, 0)->layout());
        QVERIFY(box);
        QCOMPARE(box->spacing(), 0);
    }
}

void PresetGridTest::fixedWidgetsStandWhereTheyMust()
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

void PresetGridTest::thirdBoxHoldsThePaymentEdit()
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

void PresetGridTest::profilesNotToBeShownKeepTheirSlotEmpty()
{
    writeProfiles("01010000001");
    open();
    QCOMPARE(labels(), (QStringList{latin1("Name 1"), latin1("Name 3"), latin1("Name 10")}));
    QLayout *first = grid()->itemAtPosition(0, 0)->layout();
    QCOMPARE(first->count(), 2);
    QCOMPARE(first->itemAt(0)->widget(), presetButtons().at(0));
}

void PresetGridTest::userProfilesFollowTheSystemOnes()
{
    writeProfiles("1");
    QFile file(userFolder() + latin1("ussdprofile.xml"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(profileFile(profileItem("Mine", "*7#")));
    file.close();
    open();
    QCOMPARE(labels(), (QStringList{latin1("Name 0"), latin1("Mine")}));
}

void PresetGridTest::buttonsHaveTheirObjectName()
{
    writeProfiles("111");
    open();
    QCOMPARE(dialog()
                 ->findChildren<QPushButton *>(latin1("USSDUIPlugin_AdvancedDialog_PreButton"))
                 .count(),
             3);
}

void PresetGridTest::comboHoldsAllProfiles()
{
    writeProfiles("010");
    open();
    QCOMPARE(combo()->count(), 3);
    QCOMPARE(combo()->itemText(0), latin1("Name 0"));
    QCOMPARE(combo()->itemText(2), latin1("Name 2"));
    QVERIFY(combo()->itemIcon(0).isNull());
    QCOMPARE(combo()->currentIndex(), -1);
}

void PresetGridTest::boxesStayTogetherInALargeWindow()
{
    writeProfiles("11111111111");
    open(WINDOW_MODEL_EMBEDDED);
    dialog()->resize(QSize(900, 900));
    drainEvents();
    const QRect last = shownAt(presetButtons().at(3));
    const QRect next = shownAt(presetButtons().at(4));
    QCOMPARE(next.top() - last.bottom() - 1, grid()->verticalSpacing());
}

void PresetGridTest::transcriptTakesTheRoomOfALargeWindow()
{
    writeProfiles("11111111111");
    open(WINDOW_MODEL_EMBEDDED);
    dialog()->resize(QSize(800, 800));
    drainEvents();
    const QSize transcript = history()->size();
    const QSize preset = presetButtons().first()->size();
    const int presetsLeft = shownAt(presetButtons().first()).left();
    dialog()->resize(QSize(900, 900));
    drainEvents();
    QCOMPARE(history()->size(), transcript + QSize(100, 100));
    QCOMPARE(presetButtons().first()->size(), preset);
    QCOMPARE(shownAt(presetButtons().first()).left(), presetsLeft);
}

void PresetGridTest::nothingOverlapsOrIsCutOff_data()
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

void PresetGridTest::nothingOverlapsOrIsCutOff()
{
    QFETCH(QByteArray, mask);
    QFETCH(int, model);
    QFETCH(QString, language);
    QVERIFY(HostCore::Languages::setCurrent(language));
    writeProfiles(mask);
    open(static_cast<WINDOW_MODEL>(model));
    send(latin1("*100#")); // shows the waiting prompt
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

USSD_TEST_MAIN(PresetGridTest)

#include "preset_grid_test.moc"
