#include <QHBoxLayout>

#include "base/Isolate.h"
#include "look/Controls.h"
#include "look/Look.h"
#include "UssdTest.h"

using namespace Dashboard;

namespace
{

/// Returns the horizontal centre of the pixels whose colour differs from that of the top-left
/// pixel.
double centreOfContent(const QImage &image)
{
    double sum = 0;
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != image.pixel(0, 0)) {
                sum += x;
                ++count;
            }
    return count ? sum / count : -1;
}

} // namespace

class ControlsTest : public UssdTest
{
    Q_OBJECT

protected:
    void setUpClass() override { Look::instance().start(); }
    void tearDown() override { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

private slots:
    void aWidgetIsShownWithItsParent()
    {
        QWidget parent;
        QLabel *label = makeLabel("body", &parent);
        setShown(label, true);
        QVERIFY(!label->isHidden());
        QVERIFY(!label->testAttribute(Qt::WA_WState_Polished)); // not laid out yet
        setShown(label, false);
        QVERIFY(label->isHidden());
        parent.show();
        QVERIFY(!label->isVisible());
        setShown(label, true);
        QVERIFY(label->isVisible());
    }

    void isolatesCodes()
    {
        QCOMPARE(isolated(latin1("*100#")), QChar(0x2066) + latin1("*100#") + QChar(0x2069));
        QVERIFY(isolated(QString()).isEmpty());
    }

    void marginsFollowTheDirectionAndTheFont()
    {
        QWidget widget;
        QHBoxLayout *row = new QHBoxLayout(&widget);
        setMargins(row, 8, 1, 20, 2);
        setSpacing(row, 4);
        const Look &look = Look::instance();
        QCOMPARE(row->contentsMargins(), QMargins(look.px(8), look.px(1), look.px(20), look.px(2)));
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(row->contentsMargins(), QMargins(look.px(20), look.px(1), look.px(8), look.px(2)));
        QFont font = QApplication::font();
        const QFont before = font;
        font.setPixelSize(28);
        QApplication::setFont(font);
        QCOMPARE(row->contentsMargins(), QMargins(40, 2, 16, 4));
        QCOMPARE(row->spacing(), 8);
        QApplication::setFont(before);
    }

    void marginsMayBeSetAgain()
    {
        QWidget widget;
        QHBoxLayout *row = new QHBoxLayout(&widget);
        setMargins(row, 8, 8, 8, 8);
        setMargins(row, 0, 0, 0, 0);
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(row->contentsMargins(), QMargins());
    }

    void boxTakesEffectAtOnce()
    {
        QWidget window;
        QFrame *box = new QFrame(&window);
        box->resize(40, 40);
        window.show();
        const QImage plain = box->grab().toImage();
        setBox(box, "cardSel");
        QVERIFY(box->grab().toImage() != plain);
    }

    void labelHasPlainText()
    {
        const QScopedPointer<QLabel> label(makeLabel("h1"));
        label->setText(latin1("<b>bold</b>"));
        QCOMPARE(label->textFormat(), Qt::PlainText);
        label->ensurePolished();
        QCOMPARE(label->font().pixelSize(), Look::instance().px(24));
        setLabelType(label.data(), "small");
        QCOMPARE(label->font().pixelSize(), Look::instance().px(13));
    }

    void iconButtonHasAName()
    {
        const QScopedPointer<QPushButton> button(makeIconButton("eye"));
        setIconButtonText(button.data(), latin1("Show the number"));
        QCOMPARE(button->toolTip(), latin1("Show the number"));
        QCOMPARE(button->accessibleName(), latin1("Show the number"));
        QCOMPARE(button->width(), Look::instance().px(40));
    }

    void chipHasItsTone()
    {
        Chip chip;
        chip.setText(latin1("Prepaid"));
        chip.show();
        const QImage neutral = chip.grab().toImage();
        chip.setTone(Tone::Warn);
        QVERIFY(chip.grab().toImage() != neutral);
        QCOMPARE(chip.accessibleName(), latin1("Prepaid"));
        const QColor ground = chip.grab().toImage().pixelColor(chip.width() / 2, 2);
        QCOMPARE(ground, Look::instance().color(Token::WarnSoft));
    }

    void elidedLabelShowsAllInTheToolTip()
    {
        ElidedLabel label;
        label.setText(latin1("A name that is much longer than the label is wide"));
        label.resize(80, 20);
        label.show();
        QCOMPARE(label.toolTip(), label.text());
        QCOMPARE(label.accessibleName(), label.text());
        label.resize(label.sizeHint());
        drainEvents();
        QVERIFY(label.toolTip().isEmpty());
        QVERIFY(label.minimumSizeHint().width() < 80);
    }

    void switchIsMirrored()
    {
        Switch control;
        control.resize(control.sizeHint());
        control.show();
        const QPoint start(control.height() / 2, control.height() / 2);
        const QPoint end(control.width() - start.x(), start.y());
        const QColor knob = Look::instance().color(Token::Control);
        QCOMPARE(control.grab().toImage().pixelColor(start), knob);
        QVERIFY(control.grab().toImage().pixelColor(end) != knob);
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(control.grab().toImage().pixelColor(end), knob);
        QTest::mouseClick(&control, Qt::LeftButton);
        QVERIFY(control.isChecked());
    }

    void segmentsReportOnlyTheUser()
    {
        Segments segments;
        segments.setItems({latin1("System"), latin1("Light"), latin1("Dark")});
        QCOMPARE(segments.current(), -1);
        QSignalSpy choices(&segments, &Segments::chosen);
        segments.setCurrent(1);
        QCOMPARE(segments.current(), 1);
        QCOMPARE(choices.size(), 0);
        const QList<QPushButton *> buttons = segments.findChildren<QPushButton *>();
        QTest::mouseClick(buttons.at(2), Qt::LeftButton);
        QCOMPARE(segments.current(), 2);
        QCOMPARE(choices.size(), 1);
        QCOMPARE(choices.first().first().toInt(), 2);
        segments.setItems({latin1("System"), latin1("Hell"), latin1("Dunkel")});
        QCOMPARE(segments.current(), 2);
    }

    void labelledButtonStartsAtTheStart()
    {
        LabelledButton button("nav");
        button.setIcon("home", Token::Text2);
        button.setText(latin1("Home"));
        button.resize(300, 44);
        button.show();
        QVERIFY(centreOfContent(button.grab().toImage()) < 100);
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        QVERIFY(centreOfContent(button.grab().toImage()) > 200);
        button.setBadge(latin1("2"));
        QVERIFY(centreOfContent(button.grab().toImage()) < 200); // the badge is on the left
    }

    // Qt mirrors the alignment in the style sheet.
    void presetNamesStandAtTheStart()
    {
        QPushButton button(latin1("Data"));
        button.setObjectName(latin1("USSDUIPlugin_AdvancedDialog_PreButton"));
        button.resize(150, 34);
        button.show();
        const auto centre = [&button] {
            const QRect inside = button.rect().adjusted(8, 8, -8, -8); // without the border
            return centreOfContent(button.grab().toImage().copy(inside));
        };
        QVERIFY(centre() < 50);
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        QVERIFY(centre() > 84);
    }

    void labelledButtonHasRoomForItsText()
    {
        LabelledButton button("");
        button.setText(latin1("Data"));
        const QSize one = button.sizeHint();
        button.setSecondLine(latin1("a second line that is longer"));
        QVERIFY(button.sizeHint().width() > one.width());
        QCOMPARE(button.accessibleDescription(), latin1("a second line that is longer"));
        button.setArrangement(LabelledButton::IconOnly);
        QCOMPARE(button.toolTip(), latin1("Data"));
        QCOMPARE(button.sizeHint().width(), Look::instance().px(44));
        button.setArrangement(LabelledButton::Beside);
        QVERIFY(button.toolTip().isEmpty());
    }
};

USSD_TEST_MAIN(ControlsTest)
#include "controls_test.moc"
