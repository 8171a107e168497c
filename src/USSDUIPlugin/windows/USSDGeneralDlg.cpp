#include "USSDGeneralDlg.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/PluginLog.h"
#include "base/PluginMessage.h"
#include "base/PluginText.h"
#include "CommonUtils.h"
#include "markup/TranscriptView.h"
#include "profiles/USSDEditCmd.h"
#include "requests/USSDLogic.h"
#include "tksv.h"

using namespace Formats;

static const char LOG_SOURCE[] = USSD_LOG_SOURCE("USSDGeneralDlg.cpp");

namespace
{

const int MODAL_WIDTH = 588;
const int MODAL_HEIGHT = 465;
const int MAX_COMBO_CODE = 40;

QLineEdit *createCodeEdit(QWidget *parent)
{
    QLineEdit *edit = new QLineEdit(parent);
    edit->setLayoutDirection(Qt::LeftToRight);
    return edit;
}

} // namespace

USSDGeneralDlg::USSDGeneralDlg()
    : m_windowModel(WINDOW_MODEL_MODAL), m_bWaiting(false), m_pPromptLabel(nullptr),
      m_pHistoryView(nullptr), m_pInfoLabel(nullptr), m_pProfilesCombo(nullptr),
      m_pSendButton(nullptr), m_pDescriptionLabel(nullptr), m_pClearButton(nullptr),
      m_pEditButton(nullptr), m_pCloseButton(nullptr), m_pListPreBtns(nullptr),
      m_pInfoNumLabel(nullptr), m_pPaymentEdit(nullptr),
      m_strAllowedPayment(QLatin1String("0123456789")), m_pUSSDCmdEdit(nullptr),
      m_pContainer(nullptr), m_pMainGrid(nullptr), m_pPreBtnsBox()
{
    USSD_LOG_SCOPE();
}

USSDGeneralDlg::~USSDGeneralDlg()
{
    USSD_LOG_SCOPE();
    delete m_pListPreBtns;
}

QString USSDGeneralDlg::tr(const QString &key)
{
    return pluginText(key);
}

QString USSDGeneralDlg::objectNameOf(const char *role)
{
    return QLatin1String("USSDUIPlugin_AdvancedDialog_") + QLatin1String(role);
}

// ---- building ------------------------------------------------------------------------------

void USSDGeneralDlg::InitDialog(QWidget *parent, WINDOW_MODEL model)
{
    USSD_LOG_SCOPE();
    if (parent)
        setParent(parent);
    m_windowModel = model;
    if (!createWidgets()) {
        USSD_LOG_EXIT(" createWidgets() failed!");
        return;
    }
    getConfigure();
    initWidgets();
    layout();
    m_pProfilesCombo->setVisible(false);
    m_pMainGrid->setContentsMargins(70, 20, 70, 20);
    int row = 0;
    findPosAndAddElements(row);
    connectWidgets();
}

bool USSDGeneralDlg::createWidgets()
{
    USSD_LOG_SCOPE();
    m_pContainer = new QWidget(this);
    m_pContainer->hide(); // the container is needed only to create the grid
    m_pMainGrid = new QGridLayout(m_pContainer);
    for (int i = 0; i < 3; ++i)
        m_pPreBtnsBox[i] = new QVBoxLayout;
    m_pPromptLabel = new QLabel(this);
    m_pHistoryView = new TranscriptView(this);
    m_pInfoLabel = new QLabel(tr(QLatin1String("IDC_STATIC_USSDTIP")), this);
    m_pInfoNumLabel = new QLabel(tr(QLatin1String("IDC_STATIC_USSDNUMTIP")), this);
    m_pPaymentEdit = createCodeEdit(this);
    m_pUSSDCmdEdit = createCodeEdit(this);
    m_pProfilesCombo = new QComboBox(this);
    m_pSendButton = new QPushButton(tr(QLatin1String("IDS_BUTTON_SEND")), this);
    m_pCloseButton = new QPushButton(tr(QLatin1String("IDC_GENERAL_CLOSE")), this);
    m_pLogic = USSDLogic::GetUSSDLogicInstance();
    m_pDescriptionLabel = new QLabel(this);
    m_pClearButton = new QPushButton(tr(QLatin1String("IDC_BUTTON_CLEARHISTOTY")), this);
    m_pEditButton = new QPushButton(tr(QLatin1String("IDC_TITLE_EDITCOMMAND")), this);
    if (!m_pLogic) {
        USSD_LOG_EXIT_IMPORTANT(" Exit: either of the objects creation failed");
        return false;
    }
    m_pPaymentEdit->setContextMenuPolicy(Qt::NoContextMenu);
    return true;
}

void USSDGeneralDlg::getConfigure()
{
    getProfileList();
    if (!m_pLogic)
        return;
    m_pLogic->GetClearBtnSetting(m_clearBtnSetting);
    m_pLogic->GetCmdEditSetting(m_cmdEditSetting);
}

void USSDGeneralDlg::initWidgets()
{
    USSD_LOG_SCOPE();
    initObjectNames();
    setWindowTitle(tr(QLatin1String("IDS_ADVANCE_USSD")));
    QLabel *const labels[] = {m_pInfoLabel, m_pInfoNumLabel, m_pPromptLabel, m_pDescriptionLabel};
    for (QLabel *label : labels) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    m_pPaymentEdit->setMinimumHeight(23);
    m_pUSSDCmdEdit->setMinimumHeight(23);
    initCombo();
    m_pSendButton->setEnabled(false);
    m_pHistoryView->setTextInteractionFlags(m_pHistoryView->textInteractionFlags() &
                                            ~Qt::TextInteractionFlags(Qt::TextEditable));
    m_pHistoryView->setContextMenuPolicy(Qt::NoContextMenu);
    if (m_windowModel == WINDOW_MODEL_MODAL)
        initFixedSizes();
    m_pDescriptionLabel->setMinimumHeight(32);
    m_pDescriptionLabel->setMaximumHeight(112);
    m_pClearButton->setVisible(m_clearBtnSetting.visible);
    if (m_clearBtnSetting.visible)
        enableClearHistoryBtn(false);
    // An embedded window has no frame that could be closed.
    m_pCloseButton->setVisible(m_windowModel == WINDOW_MODEL_MODAL);
    m_pEditButton->setVisible(m_cmdEditSetting.visible);
    initPreBtns();
    initAccessibility();
}

void USSDGeneralDlg::initObjectNames()
{
    m_pHistoryView->setObjectName(objectNameOf("History"));
    m_pInfoLabel->setObjectName(objectNameOf("InfoLabel"));
    m_pProfilesCombo->setObjectName(objectNameOf("ProfilesCombo"));
    m_pSendButton->setObjectName(objectNameOf("SendButton"));
    m_pClearButton->setObjectName(objectNameOf("ClearButton"));
    m_pEditButton->setObjectName(objectNameOf("EditButton"));
    m_pCloseButton->setObjectName(objectNameOf("CloseButton"));
    m_pInfoNumLabel->setObjectName(objectNameOf("InfoNumLabel"));
    m_pPaymentEdit->setObjectName(objectNameOf("PaymentEdit"));
    m_pUSSDCmdEdit->setObjectName(objectNameOf("USSDCmdEdit"));
}

void USSDGeneralDlg::initCombo()
{
    m_pProfilesCombo->setMaxVisibleItems(5);
    m_pProfilesCombo->setContextMenuPolicy(Qt::NoContextMenu);
    m_pProfilesCombo->setInsertPolicy(QComboBox::NoInsert);
    if (QAbstractItemView *list = m_pProfilesCombo->view())
        list->setTextElideMode(Qt::ElideNone);
    addProfilesToCombo();
    m_pProfilesCombo->setEditable(true);
    m_pProfilesCombo->setCurrentIndex(-1);
    // The combo box itself is hidden, so the visible input field must receive its focus.
    m_pProfilesCombo->setFocusProxy(m_pUSSDCmdEdit);
    if (QLineEdit *edit = m_pProfilesCombo->lineEdit()) {
        edit->setMaxLength(MAX_COMBO_CODE);
        USSD_LOG(" max length is set for combo");
    }
}

void USSDGeneralDlg::initFixedSizes()
{
    setFixedSize(MODAL_WIDTH, MODAL_HEIGHT);
    m_pPromptLabel->setMinimumHeight(32);
    m_pHistoryView->setMinimumHeight(100);
    m_pHistoryView->setMaximumHeight(220);
    m_pHistoryView->setCursorWidth(0);
}

/// Makes the labels above the fields the accessible names of the fields.
void USSDGeneralDlg::initAccessibility()
{
    m_pInfoLabel->setBuddy(m_pUSSDCmdEdit);
    m_pInfoNumLabel->setBuddy(m_pPaymentEdit);
    m_pUSSDCmdEdit->setAccessibleName(m_pInfoLabel->text());
    m_pPaymentEdit->setAccessibleName(m_pInfoNumLabel->text());
    m_pHistoryView->setAccessibleName(windowTitle());
    m_pHistoryView->setTabChangesFocus(true);
}

void USSDGeneralDlg::connectWidgets()
{
    USSD_LOG_SCOPE();
    connect(m_pCloseButton, SIGNAL(clicked()), this, SLOT(OnCloseButtonClicked()));
    connect(m_pSendButton, SIGNAL(clicked()), this, SLOT(OnClickedSendButton()));
    connect(m_pProfilesCombo->lineEdit(), SIGNAL(returnPressed()), this,
            SLOT(OnClickedSendButton()));
    connect(m_pProfilesCombo, SIGNAL(editTextChanged(QString)), this,
            SLOT(OnEditTextChanged(QString)));
    connect(m_pProfilesCombo, SIGNAL(activated(int)), this, SLOT(OnActivated(int)));
    connect(m_pProfilesCombo, SIGNAL(highlighted(int)), this, SLOT(OnActivated(int)));
    connect(m_pProfilesCombo, SIGNAL(editTextChanged(const QString &)), this,
            SLOT(setCommandDesByValue(const QString &)));
    connect(m_pLogic, SIGNAL(responseReceived(int, QString)), this,
            SLOT(OnResponseReceived(int, QString)));
    connect(m_pClearButton, SIGNAL(clicked()), this, SLOT(clearHistory()));
    connect(this, SIGNAL(preBtnClickedEvent(QString)), this, SLOT(handlePreBtnClicked(QString)));
    connect(m_pPaymentEdit, SIGNAL(textEdited(QString)), this, SLOT(OnPaymentEdit()));
    connect(m_pUSSDCmdEdit, SIGNAL(textEdited(QString)), this, SLOT(OnUSSDCmdEdit()));
    connect(m_pEditButton, SIGNAL(clicked()), this, SLOT(OnClickedEditButton()));
}

void USSDGeneralDlg::SetLanguage()
{
    USSD_LOG_SCOPE();
    if (!m_pMainGrid)
        return;
    if (!m_pPromptLabel->text().isEmpty())
        m_pPromptLabel->setText(tr(QLatin1String("IDS_TOP_PROMPT")));
    m_pInfoLabel->setText(tr(QLatin1String("IDC_STATIC_USSDTIP")));
    m_pInfoNumLabel->setText(tr(QLatin1String("IDC_STATIC_USSDNUMTIP")));
    if (m_pDescriptionLabel && m_pProfilesCombo)
        setCommandDesByValue(m_pProfilesCombo->currentText());
    m_pSendButton->setText(tr(QLatin1String("IDS_BUTTON_SEND")));
    m_pClearButton->setText(tr(QLatin1String("IDC_BUTTON_CLEARHISTOTY")));
    m_pEditButton->setText(tr(QLatin1String("IDC_TITLE_EDITCOMMAND")));
    m_pCloseButton->setText(tr(QLatin1String("IDC_GENERAL_CLOSE")));
    setWindowTitle(tr(QLatin1String("IDS_ADVANCE_USSD")));
    if (isShowPreBtns())
        updatePreBtnsText();
    resetWidgetsWidth4DyncBtnArea(); // the new strings may be longer
    initAccessibility();
}

void USSDGeneralDlg::ReInitDialog()
{
    USSD_LOG_SCOPE();
    if (m_pProfilesCombo && !m_bWaiting) {
        m_pProfilesCombo->setEnabled(true);
        m_pProfilesCombo->setFocus(Qt::OtherFocusReason);
    }
    if (m_windowModel == WINDOW_MODEL_MODAL && m_pHistoryView)
        m_pHistoryView->clearEntries(); // the Clear button keeps its state
    showHideCmdBtn();
}

QSize USSDGeneralDlg::GetSize()
{
    return m_pMainGrid ? m_pMainGrid->sizeHint() : QSize(-1, -1);
}

void USSDGeneralDlg::resize(const QSize &size)
{
    QWidget::resize(size);
}

void USSDGeneralDlg::setProfileFocus()
{
    if (m_pProfilesCombo)
        m_pProfilesCombo->setFocus(Qt::OtherFocusReason);
}

void USSDGeneralDlg::showHideCmdBtn() {}

/// Accepts all keys. Otherwise, the frame would handle them: Escape would close it, and Return
/// would press its default button.
void USSDGeneralDlg::keyPressEvent(QKeyEvent *event)
{
    Q_UNUSED(event);
}

void USSDGeneralDlg::OnCloseButtonClicked()
{
    emit closeButtonClicked();
}

void USSDGeneralDlg::OnClickedCloseButton()
{
    if (m_windowModel == WINDOW_MODEL_MODAL)
        m_bWaiting = false;
    emit clickedcloseButton(); // the receiver may delete the window
}

// ---- entry ---------------------------------------------------------------------------------

void USSDGeneralDlg::OnUSSDCmdEdit()
{
    if (m_pSendButton)
        m_pSendButton->setEnabled(m_pUSSDCmdEdit && !m_pUSSDCmdEdit->text().isEmpty());
}

void USSDGeneralDlg::OnEditTextChanged(QString text)
{
    Q_UNUSED(text);
    changeSendButtonStatus();
}

void USSDGeneralDlg::changeSendButtonStatus()
{
    if (!m_pSendButton || !m_pProfilesCombo) {
        USSD_LOG(" Fail Exit");
        return;
    }
    const QLineEdit *edit = m_pProfilesCombo->lineEdit();
    m_pSendButton->setEnabled(edit && !edit->text().isEmpty());
}

void USSDGeneralDlg::OnActivated(int index)
{
    USSD_LOG(" Enter: Item Index = %d", index);
    USSD_LOG(" profiles count = %d", int(m_listProfiles.count()));
    if (index < 0 || index >= m_listProfiles.count()) {
        USSD_LOG(" Exit: Invalid Index = %d", index);
        return;
    }
    QLineEdit *edit = m_pProfilesCombo ? m_pProfilesCombo->lineEdit() : nullptr;
    if (!edit)
        return;
    edit->clear();
    edit->setText(m_listProfiles.at(index).value);
    edit->setCursorPosition(edit->text().length());
    changeSendButtonStatus();
}

void USSDGeneralDlg::setCommandDesByValue(const QString &value)
{
    if (!m_pDescriptionLabel)
        return;
    for (int i = 0; i < m_listProfiles.count(); ++i) {
        if (m_listProfiles.at(i).value == value) {
            m_pDescriptionLabel->setText(tr(m_listProfiles.at(i).desLangID));
            return;
        }
    }
}

// ---- sending and answers -------------------------------------------------------------------

void USSDGeneralDlg::OnClickedSendButton()
{
    USSD_LOG_SCOPE();
    if (!m_pUSSDCmdEdit || !m_pLogic || !m_pSendButton) {
        USSD_LOG_EXIT(" Fail Exit");
        return;
    }
    const QString command = m_pUSSDCmdEdit->text();
    if (command.isEmpty())
        return;
    if (sendCommand(command)) {
        // The combo box stays enabled. Only a preset button disables it.
        m_pSendButton->setEnabled(false);
        changeAllPreBtnsStatus(false);
        m_pUSSDCmdEdit->setEnabled(false);
        m_pPaymentEdit->setEnabled(false);
    }
    m_pProfilesCombo->setCurrentIndex(-1);
    m_pDescriptionLabel->setText(QString());
}

void USSDGeneralDlg::handlePreBtnClicked(const QString &command)
{
    USSD_LOG_SCOPE();
    if (!m_pLogic || !m_pSendButton) {
        USSD_LOG_EXIT(" Fail Exit");
        return;
    }
    // The command is empty if the code of the profile could not be read.
    if (command.isEmpty() || !sendCommand(command))
        return;
    m_pSendButton->setEnabled(false);
    changeAllPreBtnsStatus(false);
    m_pProfilesCombo->setEnabled(false);
    m_pPaymentEdit->setEnabled(false);
    m_pUSSDCmdEdit->setEnabled(false);
}

bool USSDGeneralDlg::sendCommand(const QString &command)
{
    appendToCmdHistory(command, true);
    int reason = 0;
    const int result =
        m_pLogic->SendUSSDCommand(USSDCmdOrResp(COMPONENT_GENERAL, command), &reason);
    m_bWaiting = true;
    if (isAnswerAwaited(result)) {
        parkFocus();
        return true;
    }
    OnResponseReceived(COMPONENT_GENERAL,
                       tr(QLatin1String(failureKey(reason, "USSD_CODE_FAILED"))));
    return false;
}

/// Moves the focus to the transcript before the input fields are disabled. By default, Qt would
/// move the focus to the Clear button, which would then receive the user's key presses.
void USSDGeneralDlg::parkFocus()
{
    const QWidget *focus = QApplication::focusWidget();
    if (focus && isAncestorOf(focus))
        m_pHistoryView->setFocus(Qt::OtherFocusReason);
}

/// Returns true if a widget of the host has the focus, which a reply must not take away.
bool USSDGeneralDlg::isFocusElsewhere() const
{
    const QWidget *focus = QApplication::focusWidget();
    return focus && focus->window() == window() && !isAncestorOf(focus);
}

void USSDGeneralDlg::OnResponseReceived(int component, QString text)
{
    USSD_LOG(" Enter: received response = %s", text.toLocal8Bit().constData());
    if (component != COMPONENT_GENERAL) {
        USSD_LOG_IMPORTANT(" Exit: USSDGeneralDlg no need to handle");
        return;
    }
    if (text.isEmpty())
        text = tr(QLatin1String("USSD_CODE_FAILED"));
    if (onResponseReceived())
        appendToCmdHistory(text, false);
}

bool USSDGeneralDlg::onResponseReceived()
{
    USSD_LOG_SCOPE();
    if (!m_bWaiting) {
        USSD_LOG_EXIT(" Exit: USSDGeneralDlg no need to handle");
        return false;
    }
    m_bWaiting = false;
    if (!m_pProfilesCombo) {
        USSD_LOG_EXIT(" Fail Exit");
        return false;
    }
    m_pProfilesCombo->setEnabled(true);
    if (!isFocusElsewhere())
        m_pProfilesCombo->setFocus(Qt::OtherFocusReason);
    changeAllPreBtnsStatus(true);
    changePayBtnsStatus(false);
    m_pSendButton->setEnabled(false);
    m_pPaymentEdit->setEnabled(true);
    m_pPaymentEdit->clear();
    m_strLastValidPayment.clear(); // otherwise, a rejected key would restore the old number
    m_pUSSDCmdEdit->setEnabled(true);
    m_pUSSDCmdEdit->clear();
    return true;
}

void USSDGeneralDlg::appendToCmdHistory(QString text, bool sent)
{
    USSD_LOG_SCOPE();
    if (!m_pHistoryView || !m_pLogic) {
        USSD_LOG_EXIT(" Fail Exit");
        return;
    }
    Char look;
    m_pLogic->GetCharSet(sent ? CHAR_SET_SEND : CHAR_SET_RECEIVE, look);
    const bool rightToLeft = QApplication::layoutDirection() == Qt::RightToLeft;
    const QString caption = tr(QLatin1String(sent ? "IDS_USSD_SEND" : "IDS_USSD_RECEIVED"));
    m_pHistoryView->appendEntry(Transcript::entry(sent ? Transcript::Sent : Transcript::Received,
                                                  look, rightToLeft, caption, text));
    enableClearHistoryBtn(true);
    showPromptForWaitingResponse(sent);
}

void USSDGeneralDlg::showPromptForWaitingResponse(bool show)
{
    USSD_LOG(" Enter bShow: %d", show);
    if (!m_pPromptLabel)
        return;
    m_pPromptLabel->setText(show ? tr(QLatin1String("IDS_TOP_PROMPT")) : QString());
    m_pPromptLabel->repaint();
}

void USSDGeneralDlg::enableClearHistoryBtn(bool enable)
{
    if (m_pClearButton && m_pClearButton->isEnabled() != enable)
        m_pClearButton->setEnabled(enable);
}

void USSDGeneralDlg::clearHistory()
{
    USSD_LOG_SCOPE();
    if (!m_pHistoryView) {
        USSD_LOG_EXIT(" Fail Exit");
        return;
    }
    if (m_clearBtnSetting.showConfirmDialog) {
        const QPointer<USSDGeneralDlg> self(this); // the host may shut down during the call
        const int answer =
            PluginMessage::show(QMessageBox::Question, this, tr(QLatin1String("IDS_STR_PROMPT")),
                                tr(QLatin1String("IDS_STR_CLEAR")), QLatin1String("IDS_OK"),
                                QLatin1String("IDS_CANCEL"));
        if (!self || answer != QMessageBox::Ok)
            return;
    }
    m_pHistoryView->clearEntries();
    enableClearHistoryBtn(false);
}
