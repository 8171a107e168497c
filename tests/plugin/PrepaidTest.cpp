#include "PrepaidTest.h"

#include <QMessageBox>
#include <QPlainTextEdit>

#include "Change.h"
#include "fake_tksv.h"
#include "Languages.h"
#include "windows/USSDService.h"

namespace
{

const int FRAME_HEIGHT = 20; // the height that the frame adds to the dialog

QByteArray item(const char *name, int pos, const QByteArray &children)
{
    return QByteArray("<item name='") + name + "' value='true' pos='" + QByteArray::number(pos) +
           "'>" + children + "</item>";
}

QByteArray element(const char *name, const QByteArray &text)
{
    return QByteArray("<") + name + ">" + text + "</" + name + ">";
}

/// Returns the item, or a placeholder with an unknown name if the item is empty. The parser
/// requires four items.
QByteArray orUnknown(const QByteArray &item)
{
    return item.isEmpty() ? QByteArray("<item name='none'/>") : item;
}

QString textOf(const QMessageBox *box)
{
    const QPlainTextEdit *view = box->findChild<QPlainTextEdit *>();
    return view ? view->toPlainText() : box->text();
}

} // namespace

void PrepaidTest::setUp()
{
    PluginTest::setUp();
    // Opening the dialog cancels a pending command, and the next command waits for the time-out of
    // the cancelled one. This wait must be short.
    const ReplyTimes times = {30000, 1};
    USSDLogic::setReplyTimes(times);
}

void PrepaidTest::tearDown()
{
    m_frame.reset();
    PluginTest::tearDown();
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en")));
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

// ---- configuration ---------------------------------------------------------------------------

QByteArray PrepaidTest::balanceItem(int pos)
{
    return item("Balance", pos, element("command", "*100#"));
}

QByteArray PrepaidTest::chargeItem(int pos, int returnStyle, int length, int minlenth,
                                   const QByteArray &limitText)
{
    return item("Charge", pos,
                element("command", "*101*%s#") + element("length", QByteArray::number(length)) +
                    element("minlenth", QByteArray::number(minlenth)) +
                    element("ReturnStyle", QByteArray::number(returnStyle)) +
                    element("LimitText", limitText));
}

QByteArray PrepaidTest::onlineItem(int pos, const QByteArray &url)
{
    return item("OnlineCharge", pos, element("URL", url));
}

QByteArray PrepaidTest::msisdnItem(int pos)
{
    return item("MSISDN", pos, element("command", "*102#") + element("UpdateButton", "1"));
}

/// Returns the sections that the general window and device event 579 require.
QByteArray PrepaidTest::sectionsForOthers()
{
    const QByteArray looks =
        element("yHeight", "200") + element("yOffset", "2") + "<color red='0' green='0' blue='0'/>";
    return element("send", looks) + element("recevie", looks) +
           "<clearHistory visible='true' showConfirmDialog='true'/><cmdEdit visible='true'>"
           "<readonlycolor red='1' green='2' blue='3'/><commoncolor red='4' green='5' blue='6'/>"
           "<headcolor red='7' green='8' blue='9'/></cmdEdit>"
           "<autoUSSD valid='true'><item imsi='00101' ussd='Prepaid/Postpaid'/></autoUSSD>";
}

void PrepaidTest::configure(const Account &prepaid, const Account &postpaid,
                            const QByteArray &pattern, const QByteArray &query)
{
    QByteArray xml = "<config><PrePostDiffer value='";
    xml += pattern.isEmpty() ? "false" : "true";
    xml += "'>" + element("command", query) + element("ReturnPattern", pattern) +
           element("style", "1") + "</PrePostDiffer>";
    const Account *const accounts[] = {&prepaid, &postpaid};
    const char *const sections[] = {"Prepaid", "Postpaid"};
    for (int i = 0; i < 2; ++i)
        xml += element(sections[i],
                       orUnknown(accounts[i]->balance) + orUnknown(accounts[i]->charge) +
                           orUnknown(accounts[i]->online) + orUnknown(accounts[i]->msisdn));
    writeConfig(xml + sectionsForOthers() + "</config>");
}

// ---- the window ------------------------------------------------------------------------------

void PrepaidTest::make(PAID_TYPE type, WINDOW_MODEL model)
{
    m_frame.reset(new USSDExtendDialog(nullptr, Qt::WindowCloseButtonHint, 1));
    m_dialog = new USSDDlg;
    m_dialog->InitDialog(nullptr, type, model);
    fitFrame();
    m_frame->AddMainWidget(m_dialog);
    m_frame->show();
    drainEvents();
}

void PrepaidTest::open(PAID_TYPE type)
{
    make(type);
    m_dialog->MyDoModal(type);
    drainEvents();
}

void PrepaidTest::openByService(PAID_TYPE type)
{
    QCOMPARE(CUSSDService::instance()->DoPrePostPaidModal(type), 1);
    drainEvents();
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (USSDDlg *opened = qobject_cast<USSDDlg *>(widget))
            m_dialog = opened;
    }
    QVERIFY(m_dialog);
}

void PrepaidTest::fitFrame()
{
    m_frame->setFixedSize(m_dialog->GetSize() + QSize(0, FRAME_HEIGHT));
    drainEvents();
}

// ---- user and network actions ----------------------------------------------------------------

void PrepaidTest::click(QPushButton *button)
{
    QTest::mouseClick(button, Qt::LeftButton);
}

void PrepaidTest::type(const QString &pin)
{
    QTest::keyClicks(chargeEdit(), pin);
}

QWidget *PrepaidTest::keyTarget()
{
    QWidget *window = messageBox() ? messageBox() : m_dialog->window();
    return window->focusWidget() ? window->focusWidget() : window;
}

void PrepaidTest::pressReturn(bool isRepetition)
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"),
                    isRepetition);
    QApplication::sendEvent(keyTarget(), &press);
}

void PrepaidTest::releaseReturn()
{
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QApplication::sendEvent(keyTarget(), &release);
}

void PrepaidTest::topUp(const QString &pin)
{
    chargeEdit()->selectAll();
    type(pin);
    click(activateButton());
}

void PrepaidTest::networkSays(const QString &text)
{
    fakeSdkRespond(text.toStdU16String());
    QVERIFY(fakeSdkWaitIdle());
    drainEvents();
}

QString PrepaidTest::networkSaysIntoBox(const QString &text,
                                        const std::function<void(QMessageBox *)> &look)
{
    networkSays(text);
    if (!messageBox())
        return QString();
    QString shown = textOf(messageBox());
    if (look)
        look(messageBox());
    closeMessageBox();
    return shown;
}

QMessageBox *PrepaidTest::messageBox()
{
    return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
}

QString PrepaidTest::textInMessageBox()
{
    return messageBox() ? textOf(messageBox()) : QString();
}

void PrepaidTest::closeMessageBox()
{
    QVERIFY(messageBox());
    QTest::mouseClick(messageBox()->buttons().first(), Qt::LeftButton);
    drainEvents();
}

void PrepaidTest::logicSays(int component, const QString &text)
{
    emit USSDLogic::GetUSSDLogicInstance()->responseReceived(component, text);
}

QStringList PrepaidTest::requests()
{
    QStringList texts;
    for (const std::u16string &command : fakeSdkCommands())
        texts << QString::fromStdU16String(command);
    return texts;
}

QString PrepaidTest::text(const char *key)
{
    return Change::tr(QLatin1String("USSDUIPlugin"), QLatin1String(key));
}

QStringList PrepaidTest::languages()
{
    return QString::fromLatin1("en de fr es pt pt_BR ru ar zh").split(QLatin1Char(' '));
}
