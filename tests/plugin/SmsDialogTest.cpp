#include "SmsDialogTest.h"

QByteArray SmsDialogTest::config()
{
    QByteArray entries;
    for (int service = BALANCE; service <= SIX; ++service)
        entries.prepend(entry(service)); // reverse order, because the tree sorts the entries
    const QByteArray five = group(SIX, NO_INPUT, buttonControl(USSD, "*666#"));
    return "<config><SMSUSSD><MainSize width='520' height='360'/>"
           "<TreeSize posx='10' posy='12' width='150' height='330'/>"
           "<Tree><item name='0' parent='0' id='IDS_SMSUSSD_SERVICES' type='root'/>" +
           entries + "</Tree><Dialog>" + group(BALANCE, NO_INPUT, buttonControl(USSD, "*100#")) +
           group(CALL, inputControl(DIGITS), buttonControl(USSD, "*140*%s#")) +
           group(TWICE, inputControl(DIGITS), buttonControl(USSD, "*1*%s*%s*%S#")) +
           group(FIXED, inputControl(DIGITS), buttonControl(USSD, "*5#")) +
           group(TARIFF, NO_INPUT, buttonControl(SMS, "TARIFF", "1200")) +
           group(WEATHER, inputControl(WORDS), buttonControl(SMS, "WEATHER %s", "1200")) +
           group(NOWHERE, NO_INPUT, buttonControl(SMS, "TARIFF")) + "<item name='8' parent='8'>" +
           QByteArray("<control/>").repeated(4) + "</item>" +
           group(NO_KIND, inputControl(DIGITS), buttonControl("", "*7*%s#")) +
           group(PREPAID, NO_INPUT, buttonControl(USSD, "*200#")) +
           group(TOO_LONG, NO_INPUT, buttonControl(USSD, QByteArray(92, '1'))) +
           group(NOTHING, NO_INPUT, buttonControl(USSD, "")) + five.left(five.indexOf("</item>")) +
           "<control/></item></Dialog></SMSUSSD></config>";
}

void SmsDialogTest::setUp()
{
    PluginTest::setUp();
    allowWarning("The Error code returned by the TKSV_SMSSrv_CreateSMSRecord = ");
    writeConfig(config());
    open();
}

void SmsDialogTest::tearDown()
{
    delete m_dialog;
    m_frame.reset();
    PluginTest::tearDown();
    QVERIFY(HostCore::Languages::setCurrent(latin1("en")));
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void SmsDialogTest::open()
{
    delete m_dialog;
    m_frame.reset(new USSDExtendDialog(nullptr, Qt::WindowCloseButtonHint, 1));
    m_dialog = new CUSSDSMSDlg;
    m_dialog->InitDialog();
    m_frame->setFixedSize(m_dialog->sizeHint() + QSize(0, 20));
    m_frame->AddMainWidget(m_dialog);
    m_frame->show();
    m_frame->activateWindow();
    drainEvents();
}

void SmsDialogTest::openWith(const QByteArray &xml)
{
    writeConfig(xml);
    open();
}

void SmsDialogTest::openShipped()
{
    QFile file(latin1(SHIPPED_DATA_DIR "/USSDPluginConfig.xml"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    openWith(file.readAll());
}

QList<QWidget *> SmsDialogTest::controls()
{
    return QList<QWidget *>() << infoLabel() << captionLabel() << input() << button()
                              << resultLabel();
}

QTreeWidgetItem *SmsDialogTest::row(int service)
{
    return tree()->topLevelItem(0)->child(service - 1);
}

void SmsDialogTest::select(int service)
{
    tree()->scrollToItem(row(service));
    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      tree()->visualItemRect(row(service)).center());
}

void SmsDialogTest::networkSays(const QString &text)
{
    fakeSdkRespond(text.toStdU16String());
    QVERIFY(fakeSdkWaitIdle());
    drainEvents();
}

void SmsDialogTest::deviceSays(int status)
{
    fakeSdkRaiseSmsStatus(status);
    QVERIFY(fakeSdkWaitIdle());
    drainEvents();
}

void SmsDialogTest::smsFared(int result, const QString &number, const QString &text)
{
    fakeSdkRaiseSmsResult(result, number.toStdU16String(), text.toStdU16String());
    QVERIFY(fakeSdkWaitIdle());
    drainEvents();
}

QStringList SmsDialogTest::requests()
{
    QStringList texts;
    for (const std::u16string &command : fakeSdkCommands())
        texts << QString::fromStdU16String(command);
    return texts;
}

bool SmsDialogTest::isBusy()
{
    return !button()->isEnabled() && !tree()->isEnabled() &&
           (input()->isHidden() || !input()->isEnabled());
}

bool SmsDialogTest::isIdle()
{
    return button()->isEnabled() && tree()->isEnabled() && input()->isEnabled();
}

void SmsDialogTest::sendTariff()
{
    deviceSays(TKSV_SMS_STATUS_CAN_SEND);
    select(TARIFF);
    press();
}

/// Returns the number of connections to this signal of USSDLogic.
int SmsDialogTest::receivers(const char *signal)
{
    class Opened : public QObject
    {
    public:
        using QObject::receivers;
    };
    return (USSDLogic::GetUSSDLogicInstance()->*(&Opened::receivers))(signal);
}
