#include "USSDSMSDlg.h"

#include <QApplication>
#include <QFile>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QXmlStreamReader>

#include "base/PluginLog.h"
#include "base/PluginText.h"
#include "CommonUtils.h"
#include "ForwardXml.h"
#include "InputFile.h"
#include "PluginFiles.h"
#include "requests/USSDLogic.h"
#include "ServiceReplyLabel.h"
#include "tksv.h"
#include "UssdCode.h"

using namespace Formats;

static const char LOG_SOURCE[] = USSD_LOG_SOURCE("USSDSMSDlg.cpp");

namespace
{

const int NO_ENTRY = -1;

/**
 * The position of each fixed widget in m_listWidgets. The layout file lists the controls of a
 * service, which describe these widgets, in the same order.
 */
enum Position { POSITION_INFO, POSITION_CAPTION, POSITION_INPUT, POSITION_BUTTON, POSITION_RESULT };

/// The text keys of the plug-in's own messages in the result label.
const char *const RESULT_KEYS[] = {"USSD_CODE_WAITTING", "USSD_CODE_TIME_OUT", "USSD_CODE_FAILED",
                                   "IDS_SMS_SEND_FAILED"};

bool isMirrored()
{
    return QApplication::layoutDirection() == Qt::RightToLeft;
}

QString textOf(const char *key)
{
    return pluginText(QLatin1String(key));
}

/// Returns the text key of `text`, or an empty key if `text` is not one of the plug-in's own
/// messages.
QString resultKeyOf(const QString &text)
{
    for (const char *key : RESULT_KEYS) {
        if (text == textOf(key))
            return QLatin1String(key);
    }
    return QString();
}

/// Returns the path of the layout file, or an empty string if the host does not provide a folder
/// for its plug-ins.
QString layoutPath()
{
    const QString folder = CommonUtils::GetPluginLibraryPath();
    if (folder.isEmpty())
        return QString();
    return PluginFiles::path(folder, PluginFiles::CONFIGURATION);
}

/// Logs that there is no path. This is the only log line in which text precedes the time.
void logNoPath(const char *function, const QString &path)
{
    USSD_IF_LOGGING(qDebug("config file error %s: %s: %s : %s", PluginLog::timeOfDay(), LOG_SOURCE,
                           function, path.toLocal8Bit().constData()));
}

} // namespace

CUSSDSMSDlg::CUSSDSMSDlg()
    : m_pTree(nullptr), m_pInfoLabel(nullptr), m_pCaptionLabel(nullptr), m_pInputEdit(nullptr),
      m_pSendButton(nullptr), m_pResultLabel(nullptr), m_pValidator(nullptr), m_bBusy(false),
      m_bFocusParked(false), m_nSelected(NO_ENTRY)
{
    USSD_LOG_SCOPE();
    setObjectName(QLatin1String("USSDUIPlugin_SMSDialog"));
    InitConfig();
}

CUSSDSMSDlg::~CUSSDSMSDlg()
{
    USSD_LOG_SCOPE();
}

QString CUSSDSMSDlg::tr(const QString &key)
{
    return pluginText(key);
}

QString CUSSDSMSDlg::objectNameOf(const char *role)
{
    return QLatin1String("USSDUIPlugin_SMSDialog_") + QLatin1String(role);
}

// ---- layout file ---------------------------------------------------------------------------

void CUSSDSMSDlg::InitConfig()
{
    USSD_LOG_SCOPE();
    forgetLayout();
    const QString path = layoutPath();
    if (path.isEmpty())
        logNoPath(__func__, path);
    else if (!QFile::exists(path))
        USSD_LOG_EXIT(": return fail for the file doesn't exist.");
    else
        readLayoutFile(path);
}

void CUSSDSMSDlg::forgetLayout()
{
    if (m_pLogic)
        disconnect(m_pLogic, nullptr, this, nullptr);
    m_pLogic = nullptr;
    if (m_bBusy)
        endSending(); // the outcome will no longer be reported
    forgetService();
    m_nSelected = NO_ENTRY;
    m_layout.clear();
}

void CUSSDSMSDlg::readLayoutFile(const QString &path)
{
    QFile file(path);
    QString problem;
    if (!InputFile::open(file, QIODevice::Text, problem)) {
        USSD_LOG_AS("InitConfig", ": %s: %s", path.toLocal8Bit().constData(),
                    problem.toLocal8Bit().constData());
        USSD_LOG_AS("InitConfig",
                    ": return fail for the file can't be open as readonly and text mode.");
        return;
    }
    QXmlStreamReader reader;
    ForwardXml::start(reader, file);
    const bool whole = ReadFile(reader);
    file.close();
    logComplaints();
    if (whole)
        connectLogic();
}

void CUSSDSMSDlg::logComplaints() const
{
    for (int i = 0; i < m_layout.complaints.count(); ++i)
        USSD_LOG_IMPORTANT(" SMSUSSD: %s", m_layout.complaints.at(i).toLocal8Bit().constData());
    if (m_layout.furtherComplaints > 0)
        USSD_LOG_IMPORTANT(" SMSUSSD: %d more", m_layout.furtherComplaints);
}

/// Connects the window to the logic object. Intentionally called only if the file could be read
/// completely. A window without a connection does not receive replies. It can send short messages
/// but no commands.
void CUSSDSMSDlg::connectLogic()
{
    m_pLogic = USSDLogic::GetUSSDLogicInstance();
    if (!m_pLogic)
        return;
    connect(m_pLogic, SIGNAL(responseReceived(int, QString)), this,
            SLOT(OnResponseUSSDSMSReceived(int, QString)));
    connect(m_pLogic, SIGNAL(SmsSendResult(bool, QString, QString)), this,
            SLOT(OnSendResult(bool, QString, QString)));
    connect(m_pLogic, SIGNAL(CanSendSMS(bool)), this, SLOT(OnCanSendSMS(bool)));
}

bool CUSSDSMSDlg::ReadFile(QXmlStreamReader &reader)
{
    if (!reader.device()) {
        USSD_LOG(" return fail");
        return false;
    }
    if (SmsLayoutFile::read(reader, m_layout))
        return true;
    USSD_LOG(": Read Error: ");
    return false;
}

void CUSSDSMSDlg::ReadWidgetInfo(QXmlStreamReader &reader)
{
    SmsLayoutFile::readDialogElement(reader, m_layout);
}

// ---- building ------------------------------------------------------------------------------

void CUSSDSMSDlg::InitDialog()
{
    USSD_LOG_SCOPE();
    if (m_pTree)
        return;
    createWidgets();
    connectWidgets();
    resize(sizeHint());
    InitTree();
    SetLanguage();
}

void CUSSDSMSDlg::createWidgets()
{
    m_pTree = new QTreeWidget(this);
    m_pTree->setObjectName(objectNameOf("ServiceTree"));
    m_pInfoLabel = initLabel(new QLabel(this), "InfoLabel");
    m_pCaptionLabel = initLabel(new QLabel(this), "CaptionLabel");
    createInput();
    m_pSendButton = new QPushButton(this);
    m_pSendButton->setObjectName(objectNameOf("SendButton"));
    m_pResultLabel = initLabel(new ServiceReplyLabel(this), "ResultLabel");
    m_pCaptionLabel->setBuddy(m_pInputEdit);
    m_listWidgets << m_pInfoLabel << m_pCaptionLabel << m_pInputEdit << m_pSendButton
                  << m_pResultLabel;
    for (int i = 0; i < m_listWidgets.count(); ++i)
        m_listWidgets.at(i)->hide(); // hidden until the user selects a service
    setTabOrder(m_pTree, m_pInputEdit);
    setTabOrder(m_pInputEdit, m_pSendButton);
}

QLabel *CUSSDSMSDlg::initLabel(QLabel *label, const char *role)
{
    label->setObjectName(objectNameOf(role));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return label;
}

void CUSSDSMSDlg::createInput()
{
    m_pInputEdit = new QLineEdit(this);
    m_pInputEdit->setObjectName(objectNameOf("InputEdit"));
    m_pInputEdit->setLayoutDirection(Qt::LeftToRight); // for codes and numbers
    m_pValidator = new QtCompat::RegExpValidator(m_pInputEdit);
    m_pInputEdit->setValidator(m_pValidator);
}

void CUSSDSMSDlg::connectWidgets()
{
    connect(m_pInputEdit, SIGNAL(textChanged(QString)), this, SLOT(OnTextChanged(QString)));
    connect(m_pInputEdit, SIGNAL(returnPressed()), m_pSendButton, SLOT(click()));
    connect(m_pSendButton, SIGNAL(clicked()), this, SLOT(OnClickedUSSDSMSButton()));
}

void CUSSDSMSDlg::SetLanguage()
{
    USSD_LOG_SCOPE();
    setWindowTitle(textOf("IDS_WINDOW_TITLE_SMSUSSD"));
    if (!m_pTree)
        return;
    translateTree();
    SetTreeGeometry();
    translateControls();
    placeControls(isMirrored());
}

QSize CUSSDSMSDlg::GetSize()
{
    return QSize(m_layout.dialog.width, m_layout.dialog.height);
}

QSize CUSSDSMSDlg::sizeHint() const
{
    return SmsLayoutFile::windowSize(m_layout.dialog);
}

/// Returns the width of the window, limited to a range in which calculations cannot overflow.
int CUSSDSMSDlg::windowWidth() const
{
    return SmsLayoutFile::windowSize(m_layout.dialog).width();
}

/// Accepts Return and does nothing. Otherwise, pressing Return in the tree would press the frame's
/// default button, which sends a command.
void CUSSDSMSDlg::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        QWidget::keyPressEvent(event);
}

void CUSSDSMSDlg::OnClickedCloseButton()
{
    USSD_LOG_SCOPE();
    if (m_pLogic)
        m_pLogic->ClearUSSDSMSQueuedCmds();
    if (m_bBusy && m_command.kind == CONTROL_KIND_USSD)
        endSending();          // the command has been removed from the queue
    emit clickedcloseButton(); // the receiver may delete the window
}

// ---- tree ----------------------------------------------------------------------------------

void CUSSDSMSDlg::InitTree()
{
    if (!m_pTree)
        return;
    m_pTree->setHeaderHidden(true);
    m_pTree->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_pTree->setSelectionMode(QAbstractItemView::SingleSelection);
    m_pTree->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_pTree->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_nSelected = NO_ENTRY;
    m_pTree->clear();
    addRows();
    connect(m_pTree, SIGNAL(itemSelectionChanged()), this, SLOT(OnTreeItemSelectionChanged()),
            Qt::UniqueConnection);
}

void CUSSDSMSDlg::addRows()
{
    CTreeItem *rootEntry = m_layout.hasRoot ? m_layout.entries.value(m_layout.rootNumber) : nullptr;
    if (!rootEntry)
        return;
    QTreeWidgetItem *root = new QTreeWidgetItem(m_pTree);
    rootEntry->treeWidgetItem = root;
    root->setExpanded(true);
    const QList<CTreeItem *> entries = m_layout.entries.values(); // sorted by number
    for (int i = 0; i < entries.count(); ++i) {
        CTreeItem *entry = entries.at(i);
        if (entry == rootEntry || !entry->isChild)
            continue;
        entry->treeWidgetItem = new QTreeWidgetItem(root);
        if (root->childCount() == 1) // select the first service, even if its number is NO_ENTRY
            m_nSelected = entry->number;
    }
}

void CUSSDSMSDlg::translateTree()
{
    const QList<CTreeItem *> entries = m_layout.entries.values();
    for (int i = 0; i < entries.count(); ++i) {
        QTreeWidgetItem *row = entries.at(i)->treeWidgetItem;
        if (!row)
            continue;
        row->setText(0, tr(entries.at(i)->textId));
    }
    // Make the column as wide as the longest text, so that the user can scroll to the end of this
    // text. sizeHintForColumn() is public only in the base class.
    const QAbstractItemView *view = m_pTree;
    m_pTree->header()->setMinimumSectionSize(view->sizeHintForColumn(0));
    m_pTree->setAccessibleName(windowTitle());
}

void CUSSDSMSDlg::SetTreeGeometry()
{
    if (!m_pTree)
        return;
    m_pTree->setGeometry(SmsLayoutFile::geometry(m_layout.tree, windowWidth(), isMirrored()));
    if (m_nSelected == NO_ENTRY)
        return;
    const CTreeItem *entry = m_layout.entries.value(m_nSelected);
    // Selecting the current row again would clear the input.
    if (entry && entry->treeWidgetItem && m_pTree->currentItem() != entry->treeWidgetItem)
        m_pTree->setCurrentItem(entry->treeWidgetItem);
}

/// Returns the entry of the current row, or null if there is no current row or its entry no longer
/// exists.
const CTreeItem *CUSSDSMSDlg::currentEntry() const
{
    const QTreeWidgetItem *row = m_pTree->currentItem();
    const QList<CTreeItem *> entries = m_layout.entries.values();
    for (int i = 0; row && i < entries.count(); ++i) {
        if (entries.at(i)->treeWidgetItem == row)
            return entries.at(i);
    }
    return nullptr;
}

void CUSSDSMSDlg::OnTreeItemSelectionChanged()
{
    if (m_bBusy || !m_pTree)
        return;
    const CTreeItem *entry = currentEntry();
    if (!entry)
        return;
    m_nSelected = entry->number;
    // If the entry has no group that can be shown, the controls of the previous service remain
    // usable.
    if (const CWidget *group = m_layout.groups.value(m_nSelected))
        SetWidgetGeometry(group->controls, isMirrored());
}

// ---- controls ------------------------------------------------------------------------------

bool CUSSDSMSDlg::SetWidgetGeometry(QList<CWidgetItemInfo *> controls, bool mirrored)
{
    if (controls.isEmpty() || controls.count() > SmsLayoutFile::CONTROLS_OF_GROUP ||
        controls.count() != m_listWidgets.count()) {
        USSD_LOG(" Fail Exit: %d controls", int(controls.count()));
        return false;
    }
    takeControls(controls);
    takeCommand();
    placeControls(mirrored);
    limitInput(m_listControls.at(POSITION_INPUT));
    showResult(QString());
    m_strResultKey = m_listControls.at(POSITION_RESULT).id;
    translateControls();
    enableFirstSend();
    return true;
}

void CUSSDSMSDlg::takeControls(const QList<CWidgetItemInfo *> &controls)
{
    m_listControls.clear();
    for (int i = 0; i < controls.count(); ++i) {
        controls.at(i)->widget = m_listWidgets.at(i);
        m_listControls << *controls.at(i);
    }
}

/// Reads the command and its kind from the control of the button, and the limits from the control
/// of the input field.
void CUSSDSMSDlg::takeCommand()
{
    const CWidgetItemInfo &input = m_listControls.at(POSITION_INPUT);
    const CWidgetItemInfo &button = m_listControls.at(POSITION_BUTTON);
    m_command = CCommandWidget();
    m_command.command = button.command;
    m_command.number = button.number;
    m_command.minLength = input.minLength;
    m_command.limit = input.length;
    m_command.kind = button.kind;
    m_command.sendButton = button.visible ? m_pSendButton : nullptr;
    m_command.inputField = input.visible ? m_pInputEdit : nullptr;
    m_command.resultLabel = m_listControls.at(POSITION_RESULT).visible ? m_pResultLabel : nullptr;
}

void CUSSDSMSDlg::placeControls(bool mirrored)
{
    for (int i = 0; i < m_listControls.count(); ++i) {
        const CWidgetItemInfo &control = m_listControls.at(i);
        if (control.visible)
            control.widget->setGeometry(SmsLayoutFile::geometry(control, windowWidth(), mirrored));
        control.widget->setVisible(control.visible);
    }
}

void CUSSDSMSDlg::translateControls()
{
    for (int i = 0; i < m_listControls.count(); ++i)
        translateControl(i);
    m_pInputEdit->setAccessibleName(m_pCaptionLabel->text());
}

void CUSSDSMSDlg::translateControl(int position)
{
    const CWidgetItemInfo &control = m_listControls.at(position);
    const QString text = control.visible ? tr(control.id) : QString();
    if (position == POSITION_INFO)
        m_pInfoLabel->setText(text);
    else if (position == POSITION_CAPTION)
        m_pCaptionLabel->setText(text);
    else if (position == POSITION_BUTTON)
        m_pSendButton->setText(text);
    else if (position == POSITION_RESULT && !control.visible)
        m_pResultLabel->setText(QString());
    else if (position == POSITION_RESULT && !m_strResultKey.isEmpty())
        setResultText(tr(m_strResultKey));
}

void CUSSDSMSDlg::limitInput(const CWidgetItemInfo &control)
{
    m_pValidator->setRegExp(SmsLayoutFile::inputPattern(control));
    m_pInputEdit->clear();
    m_pInputEdit->setEnabled(true);
}

void CUSSDSMSDlg::enableFirstSend()
{
    const bool ready = m_command.kind == CONTROL_KIND_USSD ||
                       (m_command.kind == CONTROL_KIND_SMS && m_pLogic && m_pLogic->CanSendSMS() &&
                        !m_command.number.isEmpty());
    m_pSendButton->setEnabled(ready && !m_command.inputField && !m_command.command.isEmpty());
}

void CUSSDSMSDlg::forgetService()
{
    m_command = CCommandWidget();
    m_listControls.clear();
    for (int i = 0; i < m_listWidgets.count(); ++i)
        m_listWidgets.at(i)->hide();
}

void CUSSDSMSDlg::enableSend(bool enable)
{
    if (m_command.sendButton)
        m_command.sendButton->setEnabled(enable);
}

void CUSSDSMSDlg::showResult(const QString &text)
{
    m_strResultKey = resultKeyOf(text);
    setResultText(text);
}

void CUSSDSMSDlg::setResultText(const QString &text)
{
    if (m_command.resultLabel)
        m_command.resultLabel->setText(text);
}

// ---- sending -------------------------------------------------------------------------------

void CUSSDSMSDlg::OnTextChanged(QString text)
{
    const bool complete = m_command.minLength <= text.length() && !m_command.command.isEmpty();
    const bool blocked = m_command.kind == CONTROL_KIND_SMS && lacksReadiness();
    enableSend(complete && !blocked);
}

bool CUSSDSMSDlg::lacksReadiness() const
{
    return m_pLogic && !m_pLogic->CanSendSMS() && !m_command.number.isEmpty();
}

/// Enables or disables the button when the device reports whether it can send short messages.
/// Intentionally, the input must be longer than the minimum here, whereas OnTextChanged() also
/// accepts an input of exactly the minimum length.
void CUSSDSMSDlg::OnCanSendSMS(bool can)
{
    if (m_command.kind == CONTROL_KIND_USSD)
        return;
    if (!can)
        enableSend(false);
    else if (!m_bBusy &&
             (!m_command.inputField || m_command.minLength < m_command.inputField->text().length()))
        enableSend(true);
}

void CUSSDSMSDlg::OnClickedUSSDSMSButton()
{
    USSD_LOG_SCOPE();
    if (m_bBusy)
        return;
    parkFocus();
    fillPlaceholder();
    if (mayStart())
        startSending();
    if (!m_bBusy)
        returnFocus();
}

/// Replaces the placeholder in the stored command. Because this happens only once, the button sends
/// the first input again until the user selects a service.
void CUSSDSMSDlg::fillPlaceholder()
{
    if (!m_command.inputField)
        return;
    m_command.command.replace(INPUT_PLACEHOLDER, m_command.inputField->text(), Qt::CaseSensitive);
    m_command.inputField->setEnabled(false);
}

bool CUSSDSMSDlg::mayStart()
{
    const bool sendable = m_command.kind == CONTROL_KIND_SMS || m_command.kind == CONTROL_KIND_USSD;
    if (!sendable || m_command.command.isEmpty())
        return false;
    if (m_command.kind != CONTROL_KIND_SMS || !lacksReadiness())
        return true;
    showResult(textOf("IDS_SMS_SEND_FAILED"));
    return false;
}

void CUSSDSMSDlg::startSending()
{
    enableSend(false);
    m_pTree->setEnabled(false);
    m_bBusy = true;
    if (m_command.kind == CONTROL_KIND_SMS)
        startSms();
    else // the previous reply stays visible until the new one arrives
        SendUSSDCommand(COMPONENT_USSD_SMS, m_command.command);
}

/// Sends the short message. The message is sent even without a logic object, but its outcome is
/// then not reported.
void CUSSDSMSDlg::startSms()
{
    showResult(textOf("USSD_CODE_WAITTING"));
    if (SendSMS(&m_command.number, &m_command.command) == 0)
        return;
    showResult(textOf("IDS_SMS_SEND_FAILED"));
    endSending();
}

void CUSSDSMSDlg::SendUSSDCommand(_COMPONENT component, QString command)
{
    USSD_LOG_SCOPE();
    if (command.isEmpty())
        return;
    int status = 0;
    const int result =
        m_pLogic ? m_pLogic->SendUSSDCommand(USSDCmdOrResp(component, command), &status) : 1;
    if (result == SEND_QUEUED)
        OnResponseUSSDSMSReceived(component, textOf("USSD_CODE_WAITTING"));
    else if (result != SEND_OK)
        OnResponseUSSDSMSReceived(component, textOf(failureKey(status, "IDS_SMS_SEND_FAILED")));
}

int CUSSDSMSDlg::SendSMS(QString *number, QString *text)
{
    USSD_LOG_UNTIMED(":Entered ");
    if (!number || !text)
        return 1;
    TKSV_SMSRecord record = nullptr;
    const long created = TKSV_SMSSrv_CreateSMSRecord(&record, number->utf16(), text->utf16());
    USSD_IF_LOGGING(
        qWarning("The Error code returned by the TKSV_SMSSrv_CreateSMSRecord = %ld", created));
    int result = 1;
    if (created == 0) {
        USSD_LOG(": Calling TKSV_SMSSrv_SendMsg ()");
        const long sent = TKSV_SMSSrv_SendMsg(record);
        USSD_LOG(": TKSV_SMSSrv_SendMsg () returned %li", sent);
        result = sent == 0 ? 0 : 1;
    }
    if (record && TKSV_SMSSrv_ReleaseSMSRecord(record) != 0)
        USSD_LOG(": TKSV_SMSSrv_ReleaseSMSRecord returned error");
    return result;
}

// ---- answers -------------------------------------------------------------------------------

void CUSSDSMSDlg::OnResponseUSSDSMSReceived(int component, QString text)
{
    if (component != COMPONENT_USSD_SMS)
        return;
    if (text != textOf("USSD_CODE_WAITTING"))
        endSending();
    showResult(text);
}

void CUSSDSMSDlg::OnSendResult(bool ok, QString number, QString text)
{
    if (number != m_command.number || text != m_command.command)
        return;
    showResult(ok ? QString() : textOf("IDS_SMS_SEND_FAILED"));
    endSending();
}

void CUSSDSMSDlg::endSending()
{
    m_bBusy = false;
    enableSend(true);
    if (m_pTree)
        m_pTree->setEnabled(true);
    if (m_command.inputField)
        m_command.inputField->setEnabled(true);
    returnFocus();
}

/// Moves the focus to the window before the focused widget is disabled. By default, Qt would move
/// the focus to the next widget, which would then receive the user's key presses.
void CUSSDSMSDlg::parkFocus()
{
    const QWidget *focus = window()->focusWidget();
    if (!focus || !isAncestorOf(focus))
        return;
    setFocus(Qt::OtherFocusReason);
    m_bFocusParked = true;
}

/// Moves the focus to the tree. If the focus returned to the button, holding a key would send the
/// command, and thus buy the service, repeatedly.
void CUSSDSMSDlg::returnFocus()
{
    if (m_bFocusParked && m_pTree && window()->focusWidget() == this)
        m_pTree->setFocus(Qt::OtherFocusReason);
    m_bFocusParked = false;
}
