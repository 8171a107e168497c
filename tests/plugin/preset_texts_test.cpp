#include "PresetButtonsTest.h"

#include <QTextDocument>

#include "Languages.h"

/** Tests the labels and widths of the preset buttons. */
class PresetTextsTest : public PresetButtonsTest
{
    Q_OBJECT

private slots:
    void wideNameIsElidedWithATip();
    void nameThatFitsHasNoTip();
    void allButtonsAreEquallyWide_data();
    void allButtonsAreEquallyWide();
    void namesFollowTheLanguageAndStayElided();
    void codesReadFromLeftToRightInArabicNamesDoNot();
    void namesAreNoMarkup();
};

void PresetTextsTest::wideNameIsElidedWithATip()
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

void PresetTextsTest::nameThatFitsHasNoTip()
{
    const QFontMetrics metrics(QApplication::font());
    QString name = latin1("x");
    while (metrics.horizontalAdvance(name + QLatin1Char('x')) < 127)
        name += QLatin1Char('x');
    writeNames({name.toLatin1(), name.toLatin1() + "xx"});
    open();
    QCOMPARE(presetButtons().at(0)->text(), name);
    QCOMPARE(presetButtons().at(0)->toolTip(), QString());
    QCOMPARE(presetButtons().at(1)->toolTip(), name + latin1("xx"));
}

void PresetTextsTest::allButtonsAreEquallyWide_data()
{
    QTest::addColumn<int>("letters");
    for (int letters : {1, 5, 8, 11, 14, 40})
        QTest::newRow(qPrintable(QString::number(letters))) << letters;
}

void PresetTextsTest::allButtonsAreEquallyWide()
{
    QFETCH(int, letters);
    const QByteArray name(letters, 'n');
    writeNames({"a", name, "b"});
    open();
    const int text = QFontMetrics(QApplication::font()).boundingRect(latin1(name)).width();
    for (QPushButton *button : presetButtons()) {
        QCOMPARE(button->minimumWidth(), qBound(80, text + 30, 150));
        QCOMPARE(button->maximumWidth(), qBound(80, text + 30, 150));
    }
}

void PresetTextsTest::namesFollowTheLanguageAndStayElided()
{
    writeSystemProfiles(
        profileFile(profileItem("Plain name", "*1#", "true", "true", "") +
                    profileItem("Prompt", "*2#", "true", "true", "IDS_TOP_PROMPT") + // a long label
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

void PresetTextsTest::codesReadFromLeftToRightInArabicNamesDoNot()
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

/// Tests that names are shown as plain text. A tool tip that interprets markup could load pictures.
void PresetTextsTest::namesAreNoMarkup()
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

USSD_TEST_MAIN(PresetTextsTest)

#include "preset_texts_test.moc"
