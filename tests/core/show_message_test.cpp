#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

#include <functional>

#include "CommonUtils.h"
#include "Languages.h"
#include "UssdTest.h"

namespace
{

const char CAPTION[] = "Question";
const char OK_KEY[] = "IDS_OK";
const char CANCEL_KEY[] = "IDS_CANCEL";

QMessageBox *openBox()
{
    return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
}

} // namespace

class ShowMessageTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override { QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en"))); }
    void tearDown() override { QVERIFY(!QApplication::activeModalWidget()); }

private slots:
    void theFirstButtonIsOk();
    void theSecondButtonIsCancel();
    void escapeIsCancel_data();
    void escapeIsCancel();
    void theCloseButtonIsCancel_data();
    void theCloseButtonIsCancel();
    void returnPressesTheFirstButton();
    void aParentThatDiesIsCancel();
    void theButtonsSpeakTheLanguage();
    void theTextIsShownAsItIs();
    void aLongTextStaysOnTheScreen_data();
    void aLongTextStaysOnTheScreen();

private:
    /// Shows the message and calls `answer` with the open message box. Returns the result of the
    /// message box.
    int ask(const std::function<void(QMessageBox *)> &answer, const QString &text,
            bool secondButton = true, QWidget *parent = nullptr);
    int ask(const std::function<void(QMessageBox *)> &answer, bool secondButton = true)
    {
        return ask(answer, QLatin1String("Really?"), secondButton);
    }
};

int ShowMessageTest::ask(const std::function<void(QMessageBox *)> &answer, const QString &text,
                         bool secondButton, QWidget *parent)
{
    bool answered = false;
    QTimer::singleShot(0, this, [&] {
        QMessageBox *box = openBox();
        if (!box)
            return;
        answered = true;
        answer(box);
    });
    const QString second = secondButton ? QLatin1String(CANCEL_KEY) : QString();
    const int result = CommonUtils::ShowMessage(
        QMessageBox::Question, parent, QLatin1String(CAPTION), text, QLatin1String(OK_KEY), second);
    return answered ? result : -1;
}

void ShowMessageTest::theFirstButtonIsOk()
{
    const auto click = [](QMessageBox *box) {
        QTest::mouseClick(box->buttons().first(), Qt::LeftButton);
    };
    QCOMPARE(ask(click, true), 1024);
    QCOMPARE(ask(click, false), 1024);
}

void ShowMessageTest::theSecondButtonIsCancel()
{
    const auto click = [](QMessageBox *box) {
        QTest::mouseClick(box->buttons().last(), Qt::LeftButton);
    };
    QCOMPARE(ask(click), int(QMessageBox::Cancel));
}

void ShowMessageTest::escapeIsCancel_data()
{
    QTest::addColumn<bool>("secondButton");
    QTest::newRow("one button") << false;
    QTest::newRow("two buttons") << true;
}

void ShowMessageTest::escapeIsCancel()
{
    QFETCH(bool, secondButton);
    const auto press = [](QMessageBox *box) { QTest::keyClick(box, Qt::Key_Escape); };
    QCOMPARE(ask(press, secondButton), int(QMessageBox::Cancel));
}

void ShowMessageTest::theCloseButtonIsCancel_data()
{
    escapeIsCancel_data();
}

void ShowMessageTest::theCloseButtonIsCancel()
{
    QFETCH(bool, secondButton);
    const auto close = [](QMessageBox *box) { box->close(); };
    QCOMPARE(ask(close, secondButton), int(QMessageBox::Cancel));
}

void ShowMessageTest::returnPressesTheFirstButton()
{
    const auto press = [](QMessageBox *box) { QTest::keyClick(box, Qt::Key_Return); };
    QCOMPARE(ask(press), int(QMessageBox::Ok));
}

void ShowMessageTest::aParentThatDiesIsCancel()
{
    QPointer<QWidget> parent(new QWidget);
    QPointer<QMessageBox> seen;
    const auto kill = [&](QMessageBox *box) {
        seen = box;
        delete parent;
    };
    QCOMPARE(ask(kill, QLatin1String("Really?"), true, parent), int(QMessageBox::Cancel));
    QVERIFY(!seen);
}

void ShowMessageTest::theButtonsSpeakTheLanguage()
{
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("de")));
    QStringList texts;
    QString caption;
    ask([&](QMessageBox *box) {
        caption = box->windowTitle();
        for (const QAbstractButton *button : box->buttons())
            texts << button->text().remove(QLatin1Char('&'));
        box->reject();
    });
    QCOMPARE(caption, QLatin1String(CAPTION));
    QCOMPARE(texts, QStringList() << QLatin1String("OK") << QLatin1String("Abbrechen"));
}

void ShowMessageTest::theTextIsShownAsItIs()
{
    const QString text = QLatin1String("<img src=\"/dev/zero\"><b>bold</b>  &amp; *111#");
    QString shown;
    Qt::TextFormat format = Qt::AutoText;
    ask(
        [&](QMessageBox *box) {
            const QLabel *label = box->findChild<QLabel *>(QLatin1String("qt_msgbox_label"));
            shown = label->text();
            format = label->textFormat();
            box->reject();
        },
        text);
    QCOMPARE(shown, text);
    QCOMPARE(format, Qt::PlainText);
}

void ShowMessageTest::aLongTextStaysOnTheScreen_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("without a blank") << QString(10000, QLatin1Char('x'));
    QTest::newRow("words") << QString::fromLatin1("word ").repeated(3000);
    QTest::newRow("lines") << QString::fromLatin1("line\n").repeated(500);
    QTest::newRow("just over a word") << QString(51, QLatin1Char('W'));
}

void ShowMessageTest::aLongTextStaysOnTheScreen()
{
    QFETCH(QString, text);
    QSize size;
    QString shown;
    ask(
        [&](QMessageBox *box) {
            QTest::qWait(0);
            size = box->frameGeometry().size();
            const QPlainTextEdit *view = box->findChild<QPlainTextEdit *>();
            shown = view ? view->toPlainText() : QString();
            box->reject();
        },
        text);
    const QSize screen = QGuiApplication::primaryScreen()->availableGeometry().size();
    QVERIFY2(size.width() <= screen.width() && size.height() <= screen.height(),
             qPrintable(QString::fromLatin1("%1 x %2").arg(size.width()).arg(size.height())));
    QCOMPARE(shown, text);
}

USSD_TEST_MAIN(ShowMessageTest)
#include "show_message_test.moc"
