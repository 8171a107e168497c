#include "USSDDlg.h"

#include <new>

#include <QApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include "AccountReplyView.h"
#include "base/PluginLog.h"
#include "base/PluginText.h"
#include "ExtendLineEdit.h"
#include "OnlineLink.h"
#include "QtCompat.h"
#include "ReplyMessageBox.h"
#include "tksv.h"
#include "UssdCode.h"

using namespace Formats;

static const char LOG_SOURCE[] = USSD_LOG_SOURCE("USSDDlg.cpp");

namespace
{

const int RETURN_IN_MESSAGE_BOX = 1; // the configured value for replies in a message box
const int LINK_WIDTH = 300;          // in pixels
const int BALANCE_LINES = 3;
const int ACTIVATE_LINES = 3;
const int MSISDN_LINES = 2;

/// Returns a new child of `dialog` with the object name "USSDUIPlugin_" + `role`. Returns null if
/// there is not enough memory.
template <typename Widget>
Widget *createWidget(QWidget *dialog, const char *role)
{
    Widget *widget = new (std::nothrow) Widget(dialog);
    if (widget)
        widget->setObjectName(QLatin1String("USSDUIPlugin_") + QLatin1String(role));
    return widget;
}

QLabel *createLabel(QWidget *dialog, const char *role)
{
    QLabel *label = createWidget<QLabel>(dialog, role);
    if (label)
        label->setTextFormat(Qt::PlainText);
    return label;
}

QFrame *createLine(QWidget *dialog, const char *role)
{
    QFrame *line = createWidget<QFrame>(dialog, role);
    if (line) {
        line->setFrameShape(QFrame::HLine);
        line->setFrameShadow(QFrame::Sunken);
    }
    return line;
}

QLineEdit *createCodeEdit(QWidget *dialog, const char *role)
{
    QLineEdit *edit = createWidget<ExtendLineEdit>(dialog, role);
    if (edit)
        edit->setLayoutDirection(Qt::LeftToRight);
    return edit;
}

QString text(const char *key)
{
    return pluginText(QLatin1String(key));
}

/// Returns a tool tip that shows `text` literally. The text is escaped, because QToolTip might
/// otherwise interpret it as markup.
QString plainToolTip(const QString &text)
{
    return QLatin1String("<p>") + QtCompat::escapeHtml(text) + QLatin1String("</p>");
}

void describe(QWidget *widget, const QLabel *label)
{
    widget->setAccessibleDescription(label->text());
}

} // namespace

USSDDlg::USSDDlg()
    : m_paidType(PAID_TYPE_NONE), m_windowModel(WINDOW_MODEL_MODAL), m_bBusy(false),
      m_bReturnDown(false), m_pGrid(nullptr), m_pBalanceLabel(nullptr),
      m_pBalanceStatusTextEdit(nullptr), m_pBalanceUpdateButton(nullptr),
      m_pBalanceInfoLabel(nullptr), m_pBalanceLine(nullptr), m_pChargeLabel(nullptr),
      m_pChargeEdit(nullptr), m_pChargeActivateButton(nullptr), m_pActivateStatusTextEdit(nullptr),
      m_pChargeLine(nullptr), m_pOnlineChargeLabel(nullptr), m_pOnlineURL(nullptr),
      m_pOnlineChargeLine(nullptr), m_pMSISDNLabel(nullptr), m_pMSISDNStatusTextEdit(nullptr),
      m_pMSISDNUpdateButton(nullptr), m_pCloseButton(nullptr)
{
    USSD_LOG_SCOPE();
}

USSDDlg::~USSDDlg()
{
    USSD_LOG_SCOPE();
}

QString USSDDlg::tr(const QString &key)
{
    return pluginText(key);
}

// ---- building ------------------------------------------------------------------------------

void USSDDlg::InitDialog(QWidget *parent, PAID_TYPE type, WINDOW_MODEL model)
{
    USSD_LOG_SCOPE();
    if (parent)
        setParent(parent);
    setObjectName(QLatin1String("USSDUIPlugin_Pre_PostPaid"));
    m_paidType = type;
    m_windowModel = model;
    if (!createWidgets()) {
        USSD_LOG_EXIT(" Exit: Either of the component objects are NULL");
        return;
    }
    m_pLogic = USSDLogic::GetUSSDLogicInstance();
    createGrid();
    if (!m_pLogic || !m_pGrid) {
        USSD_LOG_EXIT(" Exit: Either Logic or Layout objects are NULL");
        return;
    }
    getConfigure();
    initWidgets();
    layout();
    connectWidgets();
}

bool USSDDlg::createWidgets()
{
    m_pCloseButton = createWidget<QPushButton>(this, "CloseButton");
    // Every function must be called even if an earlier one fails, so that as many widgets as
    // possible are created.
    const bool balance = createBalance();
    const bool charge = createCharge();
    const bool onlineCharge = createOnlineCharge();
    const bool msisdn = createMSISDN();
    return m_pCloseButton && balance && charge && onlineCharge && msisdn;
}

bool USSDDlg::createBalance()
{
    m_pBalanceLabel = createLabel(this, "BalanceLabel");
    m_pBalanceStatusTextEdit = createWidget<AccountReplyView>(this, "BalanceStatusTextEdit");
    m_pBalanceUpdateButton = createWidget<QPushButton>(this, "BalanceUpdateButton");
    m_pBalanceInfoLabel = createLabel(this, "BalanceInfoLabel");
    m_pBalanceLine = createLine(this, "BalanceLine");
    return m_pBalanceLabel && m_pBalanceStatusTextEdit && m_pBalanceUpdateButton &&
           m_pBalanceInfoLabel && m_pBalanceLine;
}

bool USSDDlg::createCharge()
{
    m_pChargeLabel = createLabel(this, "ChargeLabel");
    m_pChargeEdit = createCodeEdit(this, "ChargeEdit");
    m_pChargeActivateButton = createWidget<QPushButton>(this, "ChargeActivateButton");
    m_pActivateStatusTextEdit = createWidget<AccountReplyView>(this, "ActivateStatusTextEdit");
    m_pChargeLine = createLine(this, "ChargeLine");
    return m_pChargeLabel && m_pChargeEdit && m_pChargeActivateButton &&
           m_pActivateStatusTextEdit && m_pChargeLine;
}

bool USSDDlg::createOnlineCharge()
{
    m_pOnlineChargeLabel = createLabel(this, "OnlineChargeLabel");
    m_pOnlineURL = createWidget<QLabel>(this, "OnlineURL");
    m_pOnlineChargeLine = createLine(this, "OnlineChargeLine");
    return m_pOnlineChargeLabel && m_pOnlineURL && m_pOnlineChargeLine;
}

bool USSDDlg::createMSISDN()
{
    m_pMSISDNLabel = createLabel(this, "MSISDNLabel");
    m_pMSISDNStatusTextEdit = createWidget<AccountReplyView>(this, "MSISDNStatusTextEdit");
    m_pMSISDNUpdateButton = createWidget<QPushButton>(this, "MSISDNUpdateButton");
    return m_pMSISDNLabel && m_pMSISDNStatusTextEdit && m_pMSISDNUpdateButton;
}

void USSDDlg::getConfigure()
{
    USSD_LOG_SCOPE();
    m_pLogic->GetPrePostDiffer(m_prePostDiffer);
    m_chargeRules = TopUpInputLimits();
    m_chargeRules.length = m_pLogic->GetComponentAttrInt(m_paidType, COMPONENT_CHARGE, ATTR_LENGTH);
    m_chargeRules.minlenth =
        m_pLogic->GetComponentAttrInt(m_paidType, COMPONENT_CHARGE, ATTR_MINLENTH);
    m_pLogic->GetComponentAttrStr(m_paidType, COMPONENT_CHARGE, ATTR_LIMIT_TEXT,
                                  m_chargeRules.limitText);
    QString url;
    m_pLogic->GetComponentAttrStr(m_paidType, COMPONENT_ONLINE_CHARGE, ATTR_URL, url);
    m_strOnlineAddress = onlineAddress(url);
}

void USSDDlg::initWidgets()
{
    USSD_LOG_SCOPE();
    initStatusBoxes();
    initChargeComponent();
    initOnlineChargeComponent();
    SetLanguage();
}

void USSDDlg::initStatusBoxes()
{
    m_pBalanceStatusTextEdit->setLines(BALANCE_LINES);
    m_pActivateStatusTextEdit->setLines(ACTIVATE_LINES);
    m_pMSISDNStatusTextEdit->setLines(MSISDN_LINES);
    // Initially show the error message. Sending a command replaces the message. If no command can
    // be sent, the message remains visible and is the only report of the failure.
    m_pBalanceStatusTextEdit->showText(text("USSD_CODE_FAILED"));
    m_pActivateStatusTextEdit->showText(text("USSD_CODE_FAILED"));
    m_pMSISDNStatusTextEdit->showText(text("USSD_CODE_FAILED"));
}

void USSDDlg::initChargeComponent()
{
    USSD_LOG_SCOPE();
    m_pChargeActivateButton->setEnabled(false);
    m_pChargeEdit->setMaxLength(longestCharge(m_chargeRules));
    if (!isShown(COMPONENT_CHARGE))
        return;
    if (longestCharge(m_chargeRules) == 0)
        USSD_LOG_IMPORTANT(" Charge: length = %d lets nothing be entered", m_chargeRules.length);
    limitChargeEdit();
}

/// Limits the characters that the user can enter. If the configured expression is not usable, all
/// characters are allowed.
void USSDDlg::limitChargeEdit()
{
    delete m_pChargeEdit->validator();
    const QString pattern = chargeExpression(m_chargeRules);
    USSD_LOG(" limittext = %s", m_chargeRules.limitText.toLocal8Bit().constData());
    USSD_LOG(" string validator = %s", pattern.toLocal8Bit().constData());
    if (isChargeExpressionUsable(m_chargeRules))
        m_pChargeEdit->setValidator(
            new QtCompat::RegExpValidator(QRegExp(pattern, Qt::CaseSensitive), m_pChargeEdit));
    else
        USSD_LOG_IMPORTANT(" Charge: LimitText or length make no expression: %s; any character can "
                           "be entered",
                           pattern.toLocal8Bit().constData());
}

void USSDDlg::initOnlineChargeComponent()
{
    const QString shown = QFontMetrics(QApplication::font())
                              .elidedText(m_strOnlineAddress, Qt::ElideRight, LINK_WIDTH);
    m_pOnlineURL->setTextFormat(Qt::RichText);
    m_pOnlineURL->setTextInteractionFlags(Qt::TextBrowserInteraction);
    m_pOnlineURL->setOpenExternalLinks(true);
    m_pOnlineURL->setLayoutDirection(Qt::LeftToRight);
    m_pOnlineURL->setText(onlineLinkMarkup(m_strOnlineAddress, shown));
    m_pOnlineURL->setToolTip(shown == m_strOnlineAddress ? QString()
                                                         : plainToolTip(m_strOnlineAddress));
    m_pOnlineURL->setAccessibleDescription(m_strOnlineAddress);
}

void USSDDlg::connectWidgets()
{
    USSD_LOG_SCOPE();
    connect(m_pCloseButton, SIGNAL(clicked()), this, SLOT(OnCloseButtonClicked()));
    connect(m_pBalanceUpdateButton, SIGNAL(clicked()), this, SLOT(OnClickedBalanceUpdateButton()));
    connect(m_pChargeActivateButton, SIGNAL(clicked()), this, SLOT(OnClickedActivateButton()));
    connect(m_pMSISDNUpdateButton, SIGNAL(clicked()), this, SLOT(OnClickedMSISDNUpdateButton()));
    connect(m_pChargeEdit, SIGNAL(textEdited(QString)), this, SLOT(OnTextEdited(QString)));
    connect(m_pChargeEdit, SIGNAL(returnPressed()), this, SLOT(OnClickedActivateButton()));
    connect(m_pLogic, SIGNAL(responseReceived(int, QString)), this,
            SLOT(OnResponseReceived(int, QString)));
    m_pChargeEdit->installEventFilter(this);
    m_pChargeActivateButton->installEventFilter(this);
    // While the input field and the button are disabled, the status box has the focus and receives
    // the keys.
    m_pActivateStatusTextEdit->installEventFilter(this);
}

/// Rebuilds the window for the other paid type, because prepaid and postpaid windows have separate
/// configurations.
void USSDDlg::changePaidType(PAID_TYPE type)
{
    if (type == m_paidType || !m_pLogic || !m_pGrid)
        return;
    m_paidType = type;
    getConfigure();
    initWidgets();
    createGrid();
    layout();
}

// ---- texts ---------------------------------------------------------------------------------

void USSDDlg::SetLanguage()
{
    USSD_LOG_SCOPE();
    if (!m_pGrid)
        return;
    setWindowTitle(text(m_paidType == PAID_TYPE_POSTPAID ? "IDS_WINDOW_TETLE_POSTPAID"
                                                         : "IDS_WINDOW_TETLE_PREPAID"));
    setLanguageForBalance();
    setLanguageForCharge();
    setLanguageForOnlineCharge();
    setLanguageForMSISDN();
    m_pCloseButton->setText(text("IDS_BUTTON_CLOSE"));
    if (m_pReplyBox)
        ReplyMessageBox::retranslate(m_pReplyBox);
    initAccessibility();
}

void USSDDlg::setLanguageForBalance()
{
    m_pBalanceLabel->setText(text("IDS_STATIC_MYBALANCE"));
    m_pBalanceUpdateButton->setText(text("IDS_BUTTON_UPDATA"));
    m_pBalanceInfoLabel->setText(text("IDS_STATIC_INFO"));
    m_pBalanceStatusTextEdit->retranslate();
}

void USSDDlg::setLanguageForCharge()
{
    m_pChargeLabel->setText(text("IDS_STATIC_PIN"));
    m_pChargeActivateButton->setText(text("IDS_BUTTON_ACTIVATE"));
    m_pActivateStatusTextEdit->retranslate();
}

void USSDDlg::setLanguageForOnlineCharge()
{
    m_pOnlineChargeLabel->setText(text("IDS_STATIC_ONLINEREFILL"));
}

void USSDDlg::setLanguageForMSISDN()
{
    m_pMSISDNLabel->setText(text("IDS_STATIC_MSISSDN"));
    m_pMSISDNUpdateButton->setText(text("IDS_BUTTON_UPDATAMSISDN"));
    m_pMSISDNStatusTextEdit->retranslate();
}

/// Uses the label next to each field as the field's accessible name. The label also becomes the
/// description of the button, because two buttons may have the same text.
void USSDDlg::initAccessibility()
{
    m_pBalanceLabel->setBuddy(m_pBalanceStatusTextEdit);
    m_pChargeLabel->setBuddy(m_pChargeEdit);
    m_pOnlineChargeLabel->setBuddy(m_pOnlineURL);
    m_pMSISDNLabel->setBuddy(m_pMSISDNStatusTextEdit);
    m_pBalanceStatusTextEdit->setAccessibleName(m_pBalanceLabel->text());
    m_pBalanceStatusTextEdit->setAccessibleDescription(m_pBalanceInfoLabel->text());
    m_pChargeEdit->setAccessibleName(m_pChargeLabel->text());
    m_pActivateStatusTextEdit->setAccessibleName(m_pChargeLabel->text());
    m_pOnlineURL->setAccessibleName(m_pOnlineChargeLabel->text());
    m_pMSISDNStatusTextEdit->setAccessibleName(m_pMSISDNLabel->text());
    describe(m_pBalanceUpdateButton, m_pBalanceLabel);
    describe(m_pChargeActivateButton, m_pChargeLabel);
    describe(m_pMSISDNUpdateButton, m_pMSISDNLabel);
}

// ---- opening and closing -------------------------------------------------------------------

void USSDDlg::MyDoModal(PAID_TYPE type)
{
    USSD_LOG_SCOPE();
    if (static_cast<unsigned int>(type) > PAID_TYPE_POSTPAID) {
        USSD_LOG_EXIT(" Exit: invalid paid type");
        return;
    }
    if (m_pLogic)
        m_pLogic->ReleaseUSSDCommand();
    USSDLogic::ClearQueuedCmds();
    changePaidType(type);
    resetCharge();
    show();
    window()->show();
    if (isShown(COMPONENT_BALANCE))
        OnClickedBalanceUpdateButton();
    if (isShown(COMPONENT_MSISDN))
        OnClickedMSISDNUpdateButton();
}

void USSDDlg::resetCharge()
{
    if (m_pChargeActivateButton)
        m_pChargeActivateButton->setEnabled(false);
    if (m_pActivateStatusTextEdit)
        m_pActivateStatusTextEdit->showText(QString());
    if (!m_pChargeEdit)
        return;
    m_bReturnDown = false;
    m_pChargeEdit->clear();
    m_pChargeEdit->setEnabled(true);
    if (m_pChargeEdit->isHidden()) {
        m_pCloseButton->setFocus(Qt::OtherFocusReason);
        return;
    }
    m_pChargeEdit->setFocus(Qt::OtherFocusReason);
    m_pChargeActivateButton->setDefault(true); // highlights the button that Return presses
}

void USSDDlg::OnCloseButtonClicked()
{
    emit closeButtonClicked(); // the receiver may delete the window
}

void USSDDlg::OnClickedCloseButton()
{
    USSD_LOG_SCOPE();
    USSDLogic::ClearQueuedCmds();
    m_bBusy = false;
    dropReplyBoxes();
    emit clickedcloseButton(); // the receiver may delete the window
}

/// Accepts Return and does nothing else. The widget with the focus has already handled the key, and
/// the frame would press its default button as well. Other keys, such as Escape, are left to the
/// frame.
void USSDDlg::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->accept();
    else
        QWidget::keyPressEvent(event);
}

/// Filters out auto-repeated Return keys. If the user holds Return, only one top-up is sent, even
/// if a reply enables the button again. The held key does not close the message box with the reply
/// either.
bool USSDDlg::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return QWidget::eventFilter(watched, event);
    const QKeyEvent *key = static_cast<QKeyEvent *>(event);
    if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter)
        return false;
    // Some systems do not report auto-repeat but omit the key releases.
    const bool isHeld = key->isAutoRepeat() || m_bReturnDown;
    m_bReturnDown = event->type() == QEvent::KeyPress || key->isAutoRepeat();
    return event->type() == QEvent::KeyPress && isHeld;
}

// ---- sending -------------------------------------------------------------------------------

void USSDDlg::OnClickedBalanceUpdateButton()
{
    sendUSSDCommand(COMPONENT_BALANCE, ATTR_COMMAND);
}

/// Sends the top-up when the user clicks the button, or presses Return in the input field while the
/// button is enabled.
void USSDDlg::OnClickedActivateButton()
{
    if (m_pChargeActivateButton && m_pChargeActivateButton->isEnabled())
        sendUSSDCommand(COMPONENT_CHARGE, ATTR_COMMAND);
}

void USSDDlg::OnClickedMSISDNUpdateButton()
{
    sendUSSDCommand(COMPONENT_MSISDN, ATTR_COMMAND);
}

void USSDDlg::OnTextEdited(QString text)
{
    m_bReturnDown = false; // another widget may have received the key release
    if (m_pChargeActivateButton)
        m_pChargeActivateButton->setEnabled(isChargeLongEnough(m_chargeRules, text.length()));
}

void USSDDlg::sendUSSDCommand(_COMPONENT component, int attr)
{
    USSD_LOG_SCOPE();
    if (!m_pLogic) {
        USSD_LOG_EXIT(" Fail Exit: Logic is NULL");
        return;
    }
    QString command;
    m_pLogic->GetComponentAttrStr(m_paidType, component, attr, command);
    USSD_LOG(" USSD command = %s", command.toLocal8Bit().constData());
    if (component == COMPONENT_CHARGE) {
        if (!m_pChargeEdit) {
            USSD_LOG_EXIT(" Fail Exit: m_pChargeEdit is NULL");
            return;
        }
        command.replace(INPUT_PLACEHOLDER, m_pChargeEdit->text());
        USSD_LOG(" USSD command: %s", command.toLocal8Bit().constData());
    }
    int status = 0;
    const int result = sendUnlessEmpty(component, command, &status);
    if (isAnswerAwaited(result))
        awaitAnswer(component, result == 0);
    else
        OnResponseReceived(component, text(failureKey(status, "USSD_CODE_FAILED")));
}

/// Sends the command and returns a SendResult. An empty command, which means that the configuration
/// could not be read, is treated like a command that the device rejects.
int USSDDlg::sendUnlessEmpty(_COMPONENT component, const QString &command, int *status)
{
    if (command.isEmpty())
        return SEND_FAILED;
    return m_pLogic->SendUSSDCommand(USSDCmdOrResp(component, command), status);
}

/// Marks the window as busy and shows the waiting message, which is omitted for a top-up whose
/// reply appears in a message box. Such a top-up must still make the window busy, because a window
/// that is not busy drops the reply.
void USSDDlg::awaitAnswer(_COMPONENT component, bool isSent)
{
    m_bBusy = true;
    enableDisableButton(component, true);
    if (component == COMPONENT_CHARGE && isSent && chargeReturnStyle() == RETURN_IN_MESSAGE_BOX)
        return;
    OnResponseReceived(component, text("USSD_CODE_WAITTING"));
}

// ---- answers -------------------------------------------------------------------------------

void USSDDlg::OnResponseReceived(int component, QString text)
{
    USSD_LOG_SCOPE();
    if (!m_bBusy && component != COMPONENT_PREPOST_QUERY) {
        USSD_LOG_EXIT(" Exit: USSDDlg no need to handle");
        return;
    }
    const bool isWaiting = text == tr(QLatin1String("USSD_CODE_WAITTING"));
    if (text.isEmpty() && component != COMPONENT_PREPOST_QUERY)
        text = tr(QLatin1String("USSD_CODE_FAILED"));
    const QPointer<USSDDlg> self(this); // a host that is notified may shut down the plug-in
    routeResponse(component, text, isWaiting);
    if (self && !isWaiting && !(component == COMPONENT_CHARGE && isReplyBoxDue()))
        enableDisableButton(static_cast<_COMPONENT>(component), false);
}

void USSDDlg::routeResponse(int component, const QString &text, bool isWaiting)
{
    if (AccountReplyView *box = statusBoxOf(component))
        box->showText(text);
    if (component == COMPONENT_CHARGE && !isWaiting)
        onChargeResponseReceived(text);
    else if (component == COMPONENT_PREPOST_QUERY)
        onPrePostPaidRspReceived(text);
}

/// Shows the reply to a top-up. A message box is not opened directly but later from the event loop.
/// While a reply is being reported, an open message box would delay the next command. While a
/// rejected command is being reported, the key handler of the input field is running, and the host
/// could delete the field before the user closes the message box.
void USSDDlg::onChargeResponseReceived(const QString &text)
{
    USSD_LOG_SCOPE();
    if (chargeReturnStyle() == RETURN_IN_MESSAGE_BOX) {
        m_listBoxReplies << text;
        enableDisableButton(COMPONENT_CHARGE, true);
        QMetaObject::invokeMethod(this, "openReplyBox", Qt::QueuedConnection);
        return;
    }
    if (m_pActivateStatusTextEdit)
        m_pActivateStatusTextEdit->showText(text);
    enableDisableButton(COMPONENT_CHARGE, false);
    updateBalanceAfterCharge();
}

/// Returns true if there are replies whose message boxes have not been closed yet.
bool USSDDlg::isReplyBoxDue() const
{
    return !m_listBoxReplies.isEmpty();
}

/// Opens the message box for the next reply. If a message box is already open, the next one is
/// opened after the user has closed it.
void USSDDlg::openReplyBox()
{
    if (m_pReplyBox || !isReplyBoxDue())
        return;
    m_pReplyBox = ReplyMessageBox::create(this, m_listBoxReplies.first());
    m_pReplyBox->installEventFilter(this);
    m_pReplyBox->buttons().first()->installEventFilter(this);
    connect(m_pReplyBox, SIGNAL(finished(int)), this, SLOT(OnReplyBoxFinished()));
    m_pReplyBox->show();
}

void USSDDlg::OnReplyBoxFinished()
{
    if (!m_pReplyBox)
        return;
    m_pReplyBox->deleteLater();
    m_pReplyBox = nullptr;
    m_listBoxReplies.removeFirst();
    if (isReplyBoxDue())
        QMetaObject::invokeMethod(this, "openReplyBox", Qt::QueuedConnection);
    else
        enableDisableButton(COMPONENT_CHARGE, false);
    updateBalanceAfterCharge();
}

void USSDDlg::dropReplyBoxes()
{
    m_listBoxReplies.clear();
    delete m_pReplyBox;
}

void USSDDlg::updateBalanceAfterCharge()
{
    if (isShown(COMPONENT_BALANCE))
        OnClickedBalanceUpdateButton();
}

void USSDDlg::enableDisableButton(_COMPONENT component, bool disable)
{
    if (disable)
        parkFocus(component);
    const QList<QWidget *> controls = controlsOf(component);
    for (int i = 0; i < controls.count(); ++i) {
        if (controls.at(i))
            controls.at(i)->setEnabled(!disable);
    }
    if (!disable)
        returnFocus(component);
}

/// Moves the focus from a control that is about to be disabled to the box that will show the reply.
/// By default, Qt would move the focus to the next control, which would then receive the user's key
/// presses.
void USSDDlg::parkFocus(_COMPONENT component)
{
    QWidget *focus = window()->focusWidget(); // also valid while a message box is active
    AccountReplyView *box = statusBoxOf(component);
    if (!focus || !box || !controlsOf(component).contains(focus))
        return;
    m_hashParkFocus[component] = focus;
    box->setFocus(Qt::OtherFocusReason);
}

void USSDDlg::returnFocus(_COMPONENT component)
{
    QWidget *parked = m_hashParkFocus.take(component);
    const AccountReplyView *box = statusBoxOf(component);
    if (parked && box && window()->focusWidget() == box)
        parked->setFocus(Qt::OtherFocusReason);
}

// ---- settings and widgets of a component ---------------------------------------------------

bool USSDDlg::isShown(_COMPONENT component) const
{
    return m_pLogic && m_pLogic->GetComponentAttrInt(m_paidType, component, ATTR_VALUE) > 0;
}

int USSDDlg::chargeReturnStyle() const
{
    return m_pLogic ? m_pLogic->GetComponentAttrInt(m_paidType, COMPONENT_CHARGE, ATTR_RETURN_STYLE)
                    : -1;
}

/// Returns the box for the component's replies, or null if the component has none.
AccountReplyView *USSDDlg::statusBoxOf(int component) const
{
    switch (component) {
    case COMPONENT_BALANCE:
        return m_pBalanceStatusTextEdit;
    case COMPONENT_CHARGE:
        return m_pActivateStatusTextEdit;
    case COMPONENT_MSISDN:
        return m_pMSISDNStatusTextEdit;
    default:
        return nullptr;
    }
}

/// Returns the controls that must be disabled while the component is waiting for a reply.
QList<QWidget *> USSDDlg::controlsOf(int component) const
{
    QList<QWidget *> controls;
    if (component == COMPONENT_BALANCE)
        controls << m_pBalanceUpdateButton;
    else if (component == COMPONENT_CHARGE)
        controls << m_pChargeActivateButton << m_pChargeEdit;
    else if (component == COMPONENT_MSISDN)
        controls << m_pMSISDNUpdateButton;
    return controls;
}
