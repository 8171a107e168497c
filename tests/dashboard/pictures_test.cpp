#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QRadioButton>
#include <QTimer>

#include "Change.h"
#include "ExtendDialog.h"
#include "HostState.h"
#include "IUSSD.h"
#include "Languages.h"
#include "look/Controls.h"
#include "look/Icons.h"
#include "PictureTest.h"
#include "plugin/GeneralWindow.h"
#include "plugin/LoadedPlugin.h"

using namespace Dashboard;

Q_DECLARE_METATYPE(Dashboard::Shade)

namespace
{

struct Variant {
    const char *name;
    Shade shade;
    const char *language;
};

const Variant VARIANTS[] = {
    {"light", Shade::Light, "en"}, {"dark", Shade::Dark, "en"}, {"arabic", Shade::Light, "ar"}};

const struct {
    const char *name;
    PAID_TYPE type;
} WINDOWS[] = {{"general", PAID_TYPE_GENERAL},
               {"prepaid", PAID_TYPE_PREPAID},
               {"postpaid", PAID_TYPE_POSTPAID},
               {"services", PAID_TYPE_USSD_SMS}};

const char *const KINDS[] = {"", "primary", "ghost", "danger", "chip", "choice"};

QWidget *openFrame()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && qobject_cast<ExtendDialog *>(widget))
            return widget;
    }
    return nullptr;
}

QHBoxLayout *addRow(QVBoxLayout *column)
{
    QHBoxLayout *row = new QHBoxLayout;
    column->addLayout(row);
    return row;
}

void addLabels(QVBoxLayout *column)
{
    for (const char *type : {"h1", "h2", "h3", "body", "strong", "muted", "small", "cap", "link"}) {
        QLabel *label = makeLabel(type);
        label->setText(latin1(type) + latin1(": Your balance is 12.50 EUR"));
        column->addWidget(label);
    }
}

void addButtons(QVBoxLayout *column, bool areEnabled)
{
    QHBoxLayout *row = addRow(column);
    for (const char *kind : KINDS) {
        QPushButton *button = makeButton(kind);
        button->setText(latin1(*kind ? kind : "plain"));
        button->setEnabled(areEnabled);
        if (qstrlen(kind) == 0)
            setButtonIcon(button, "send", Token::Text);
        row->addWidget(button);
    }
    row->addStretch();
}

void addTones(QVBoxLayout *column)
{
    QHBoxLayout *row = addRow(column);
    for (const Tone tone : {Tone::Neutral, Tone::Ok, Tone::Warn, Tone::Danger, Tone::Accent}) {
        Chip *chip = new Chip;
        chip->setText(latin1("Prepaid"));
        chip->setTone(tone);
        row->addWidget(chip);
        IconDisc *disc = new IconDisc;
        disc->setIcon("check", tone);
        row->addWidget(disc);
    }
    row->addStretch();
}

void addChoices(QVBoxLayout *column)
{
    QHBoxLayout *row = addRow(column);
    for (const bool isOn : {false, true}) {
        Switch *choice = new Switch;
        choice->setChecked(isOn);
        row->addWidget(choice);
        QRadioButton *radio = new QRadioButton(latin1("Radio"));
        radio->setAutoExclusive(false);
        radio->setChecked(isOn);
        row->addWidget(radio);
        QCheckBox *check = new QCheckBox(latin1("Check"));
        check->setChecked(isOn);
        row->addWidget(check);
    }
    Segments *segments = new Segments;
    segments->setItems({latin1("System"), latin1("Light"), latin1("Dark")});
    segments->setCurrent(1);
    row->addWidget(segments);
    MenuButton *menu = new MenuButton;
    menu->setText(latin1("Automatic"));
    row->addWidget(menu);
    row->addWidget(makeIconButton("eye"));
    row->addStretch();
}

QFrame *makeSide()
{
    QFrame *side = new QFrame;
    setBox(side, "side");
    QVBoxLayout *column = new QVBoxLayout(side);
    for (const char *name : {"home", "codes", "messages"}) {
        LabelledButton *button = new LabelledButton("nav");
        button->setIcon(name, Token::Text2, Token::AccentText);
        button->setText(latin1(name));
        button->setCheckable(true);
        button->setChecked(qstrcmp(name, "home") == 0);
        button->setBadge(qstrcmp(name, "messages") == 0 ? latin1("2") : QString());
        column->addWidget(button);
    }
    return side;
}

QFrame *makeFields()
{
    QFrame *card = makeCard();
    QVBoxLayout *column = new QVBoxLayout(card);
    column->addWidget(new QLineEdit(latin1("*100#")));
    QComboBox *combo = new QComboBox;
    combo->addItem(latin1("One"));
    column->addWidget(combo);
    LabelledButton *favourite = new LabelledButton("");
    favourite->setIcon("data", Token::AccentText);
    favourite->setText(latin1("Data left"));
    favourite->setSecondLine(latin1("104"));
    column->addWidget(favourite);
    return card;
}

QWidget *makeGallery()
{
    QWidget *root = new QWidget;
    setBox(root, "root");
    QVBoxLayout *column = new QVBoxLayout(root);
    setMargins(column, 24, 16, 40, 16);
    addLabels(column);
    addButtons(column, true);
    addButtons(column, false);
    addTones(column);
    addChoices(column);
    QHBoxLayout *row = addRow(column);
    row->addWidget(makeSide());
    row->addWidget(makeFields());
    QFrame *hero = new QFrame;
    setBox(hero, "hero");
    hero->setFixedWidth(40); // a wide gradient would make the file large
    row->addWidget(hero);
    row->addStretch();
    return root;
}

} // namespace

/** Compares the dashboard's controls and the plug-in's windows with the expected pictures. */
class PicturesTest : public PictureTest
{
    Q_OBJECT

protected:
    void tearDown() override
    {
        m_plugin.reset();
        HostCore::HostState::setShuttingDown(false);
        HostCore::Languages::setCurrent(latin1("en"));
        PictureTest::tearDown();
    }

private:
    QScopedPointer<LoadedPlugin> m_plugin;

    void loadPlugin()
    {
        m_plugin.reset(new LoadedPlugin);
        const PluginFailure failure = m_plugin->load(LoadedPlugin::installedFile());
        QVERIFY2(m_plugin->isUsable(), qPrintable(failure.text()));
    }

    /// Returns true if the window is not waiting for a reply.
    static bool isAtRest(const QWidget *frame)
    {
        const QString waiting = Change::tr(latin1("USSDUIPlugin"), latin1("USSD_CODE_WAITTING"));
        for (const QTextEdit *edit : frame->findChildren<QTextEdit *>())
            if (edit->toPlainText() == waiting)
                return false;
        const QLineEdit *command =
            frame->findChild<QLineEdit *>(latin1(GeneralWindow::COMMAND_EDIT));
        return !command || command->isEnabled();
    }

private slots:
    void differencesAreFound()
    {
        QImage picture(100, 100, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QImage other = picture;
        QCOMPARE(differences(picture, other), 0);
        other.setPixel(5, 5, qRgb(220, 255, 255)); // like a slightly different edge of a letter
        QCOMPARE(differences(picture, other), 0);
        other.setPixel(5, 5, qRgb(255, 255, 0));
        QCOMPARE(differences(picture, other), 1);
        QCOMPARE(differences(picture, picture.copy(0, 0, 99, 100)), -1);
    }

    void controls_data()
    {
        QTest::addColumn<Shade>("shade");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("controls-light") << Shade::Light << Qt::LeftToRight;
        QTest::newRow("controls-dark") << Shade::Dark << Qt::LeftToRight;
        QTest::newRow("controls-mirrored") << Shade::Light << Qt::RightToLeft;
    }

    void controls()
    {
        QFETCH(Shade, shade);
        QFETCH(Qt::LayoutDirection, direction);
        use(shade, direction);
        const QScopedPointer<QWidget> gallery(makeGallery());
        gallery->show();
        compare(gallery.data(), latin1(QTest::currentDataTag()));
    }

    void messageBox_data()
    {
        QTest::addColumn<Shade>("shade");
        QTest::newRow("box-light") << Shade::Light;
        QTest::newRow("box-dark") << Shade::Dark;
    }

    void messageBox()
    {
        QFETCH(Shade, shade);
        use(shade);
        QMessageBox box(QMessageBox::Question, QString(), latin1("Clear the transcript?"));
        box.addButton(latin1("Clear"), QMessageBox::AcceptRole);
        box.addButton(latin1("Cancel"), QMessageBox::RejectRole);
        box.show();
        compare(&box, latin1(QTest::currentDataTag()));
    }

    void windowsOfThePlugin_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<Shade>("shade");
        QTest::addColumn<QString>("language");
        for (const auto &window : WINDOWS)
            for (const Variant &variant : VARIANTS)
                QTest::addRow("%s-%s", window.name, variant.name)
                    << int(window.type) << variant.shade << latin1(variant.language);
    }

    void windowsOfThePlugin()
    {
        QFETCH(int, type);
        QFETCH(Shade, shade);
        QFETCH(QString, language);
        QVERIFY(HostCore::Languages::setCurrent(language));
        use(shade, QGuiApplication::layoutDirection());
        loadPlugin();
        QCOMPARE(m_plugin->ussd()->DoPrePostPaidModal(static_cast<PAID_TYPE>(type)), 1);
        QWidget *frame = openFrame();
        QVERIFY(frame);
        if (type == PAID_TYPE_GENERAL)
            QVERIFY(GeneralWindow(frame).send(latin1("*100#")));
        QTRY_VERIFY(isAtRest(frame));
        compare(frame, latin1(QTest::currentDataTag()));
    }

    void largeText()
    {
        const QFont font = QApplication::font();
        QFont large = font;
        large.setPixelSize(28);
        QApplication::setFont(large);
        loadPlugin();
        QCOMPARE(m_plugin->ussd()->DoPrePostPaidModal(PAID_TYPE_PREPAID), 1);
        QWidget *frame = openFrame();
        QVERIFY(frame);
        QTRY_VERIFY(isAtRest(frame));
        compare(frame, latin1("prepaid-large"));
        QApplication::setFont(font);
    }

    void editor_data()
    {
        QTest::addColumn<Shade>("shade");
        QTest::newRow("editor-light") << Shade::Light;
        QTest::newRow("editor-dark") << Shade::Dark;
    }

    void editor()
    {
        QFETCH(Shade, shade);
        use(shade);
        loadPlugin();
        QCOMPARE(m_plugin->ussd()->DoPrePostPaidModal(PAID_TYPE_GENERAL), 1);
        QPushButton *edit =
            openFrame()->findChild<QPushButton *>(latin1("USSDUIPlugin_AdvancedDialog_EditButton"));
        QVERIFY(edit);
        bool wasOpen = false;
        // The timer is needed because the editor runs its own event loop.
        QTimer::singleShot(0, this, [&] {
            QWidget *frame = QApplication::activeModalWidget();
            wasOpen = frame && frame->findChild<QWidget *>(latin1("USSDUIPlugin_ProfileTable"));
            if (wasOpen)
                compare(frame, latin1(QTest::currentDataTag()));
            if (frame)
                frame->close();
        });
        edit->click();
        QVERIFY(wasOpen);
    }
};

USSD_TEST_MAIN(PicturesTest)
#include "pictures_test.moc"
