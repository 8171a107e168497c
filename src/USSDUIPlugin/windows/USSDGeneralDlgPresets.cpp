/* The part of USSDGeneralDlg that creates the preset buttons and places all widgets in the grid. */
#include "USSDGeneralDlg.h"

#include <QApplication>
#include <QComboBox>
#include <QFontMetrics>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextDocument>
#include <QVBoxLayout>

#include "base/PluginLog.h"
#include "CommonUtils.h"
#include "markup/TranscriptView.h"
#include "profiles/USSDEditCmd.h"
#include "QtCompat.h"
#include "UssdCode.h"

using namespace Formats;

static const char LOG_SOURCE[] = USSD_LOG_SOURCE("USSDGeneralDlg.cpp");

namespace
{

// The slots for the preset buttons: two boxes with four slots each, a box with one slot and the
// payment field, and two slots outside the boxes.
const int SLOTS = 11;
const int SLOTS_IN_BOX = 4;
const int PAYMENT_FIELD_SLOT = 8;
const int FIRST_FREE_SLOT = 9;
const int RIGHT_COLUMN = 2; // the first of the five columns with the transcript and the input field
const int RIGHT_COLUMNS = 5;
const int PROMPT_ROW = 8;
const int ROW_BELOW_PAYMENT = 11; // the first row below the box with the payment field
const int BOX_SPACING = 4;        // in pixels; the fixed window is too small for a larger spacing

const int ELIDE_WIDTH = 127; // in pixels; does not depend on the width of the button
const int PAY_BUTTONS = 2;   // the last ones

/// Returns the text width plus a margin, clamped to the limits.
int paddedWidth(int textWidth, int minimum, int maximum)
{
    return qBound(minimum, textWidth + 30, maximum);
}

/// Sets the text of a button. A code is read from left to right in every language. A name follows
/// the direction of the language.
void setProfileText(QPushButton *button, const QString &text)
{
    if (isCodeLike(text))
        button->setLayoutDirection(Qt::LeftToRight);
    else
        button->unsetLayoutDirection();
    button->setText(text);
}

/// Makes the tool tip show its text literally. Otherwise, Qt would interpret text that looks like
/// markup, and would load images that the text refers to.
void keepToolTipPlain(QPushButton *button)
{
    const QString tip = button->toolTip();
    if (Qt::mightBeRichText(tip))
        button->setToolTip(QLatin1String("<span>") + QtCompat::escapeHtml(tip) +
                           QLatin1String("</span>"));
}

} // namespace

// ---- preset buttons ------------------------------------------------------------------------

void USSDGeneralDlg::initPreBtns()
{
    if (!m_pListPreBtns)
        m_pListPreBtns = new PreBtnList;
}

bool USSDGeneralDlg::isShowPreBtns()
{
    for (int i = 0; i < m_listProfiles.count(); ++i) {
        if (m_listProfiles.at(i).showButton)
            return true;
    }
    return false;
}

bool USSDGeneralDlg::hasBeenShowPreBtns()
{
    return m_pListPreBtns && !m_pListPreBtns->isEmpty();
}

bool USSDGeneralDlg::isShowPreDescription()
{
    for (int i = 0; i < m_listProfiles.count(); ++i) {
        if (!m_listProfiles.at(i).desLangID.isEmpty())
            return true;
    }
    return false;
}

void USSDGeneralDlg::changeAllPreBtnsStatus(bool enable)
{
    for (int i = 0; m_pListPreBtns && i < m_pListPreBtns->count(); ++i)
        m_pListPreBtns->at(i).first->setEnabled(enable);
}

void USSDGeneralDlg::changePayBtnsStatus(bool enable)
{
    for (int i = 0; m_pListPreBtns && i < m_pListPreBtns->count(); ++i) {
        if (isPayBtn(i))
            m_pListPreBtns->at(i).first->setEnabled(enable);
    }
}

bool USSDGeneralDlg::isPayBtn(int index) const
{
    return index >= m_pListPreBtns->count() - PAY_BUTTONS;
}

int USSDGeneralDlg::indexOfPreBtn(const QObject *button) const
{
    for (int i = 0; m_pListPreBtns && i < m_pListPreBtns->count(); ++i) {
        if (m_pListPreBtns->at(i).first == button)
            return i;
    }
    return -1;
}

void USSDGeneralDlg::OnPreBtnClicked()
{
    USSD_LOG_SCOPE();
    const int index = indexOfPreBtn(sender());
    if (index < 0)
        return;
    QString command = m_pListPreBtns->at(index).second.value;
    if (isPayBtn(index)) {
        const QString number = m_pPaymentEdit->text();
        if (number.isEmpty())
            return;
        command.replace(INPUT_PLACEHOLDER, number);
    }
    emit preBtnClickedEvent(command);
}

void USSDGeneralDlg::getProfileList()
{
    USSDEditCmd profiles;
    profiles.GetProfileList(m_listProfiles);
    USSD_LOG(" profiles count = %d", m_listProfiles.count());
}

void USSDGeneralDlg::addProfilesToCombo()
{
    if (!m_pProfilesCombo)
        return;
    m_pProfilesCombo->clear();
    for (int i = 0; i < m_listProfiles.count(); ++i)
        m_pProfilesCombo->addItem(m_pLogic->getProfileShowText(m_listProfiles.at(i)));
    m_pProfilesCombo->setCurrentIndex(-1);
    if (m_pDescriptionLabel)
        m_pDescriptionLabel->setText(QString());
}

int USSDGeneralDlg::getPreBtnMaxTextWidth()
{
    const QFontMetrics metrics = QApplication::fontMetrics();
    int widest = 0;
    for (int i = 0; m_pListPreBtns && i < m_pListPreBtns->count(); ++i) {
        const QString text = m_pLogic->getProfileShowText(m_pListPreBtns->at(i).second);
        widest = qMax(widest, metrics.boundingRect(text).width());
    }
    return widest > 0 ? paddedWidth(widest, 80, 150) : 0;
}

void USSDGeneralDlg::updatePreBtnWidth(int width)
{
    updatePreBtnsText(); // sets the full texts, which are elided below
    for (int i = 0; m_pListPreBtns && i < m_pListPreBtns->count(); ++i) {
        QPushButton *button = m_pListPreBtns->at(i).first;
        button->setFixedWidth(width);
        CommonUtils::setElidedTextForWidgetText<QPushButton>(button, ELIDE_WIDTH, Qt::ElideRight);
        keepToolTipPlain(button);
    }
}

void USSDGeneralDlg::updatePreBtnsText()
{
    for (int i = 0; m_pListPreBtns && i < m_pListPreBtns->count(); ++i)
        setProfileText(m_pListPreBtns->at(i).first,
                       m_pLogic->getProfileShowText(m_pListPreBtns->at(i).second));
}

void USSDGeneralDlg::resetWidgetsWidth4DyncBtnArea()
{
    if (isShowPreBtns())
        updatePreBtnWidth(getPreBtnMaxTextWidth());
}

void USSDGeneralDlg::OnClickedEditButton()
{
    USSD_LOG_SCOPE();
    const QPointer<USSDGeneralDlg> self(this);
    USSDEditCmd editor;
    editor.InitDialog(parentWidget());
    // If the host deletes this window, the event loop of the editor must also end.
    connect(this, SIGNAL(destroyed()), &editor, SLOT(OnClickedCancelButton()));
    const bool saved = editor.Exec();
    if (!self || !saved)
        return;
    getProfileList();
    addProfilesToCombo();
    update4EditCommandSave();
    if (!m_bWaiting)
        OnUSSDCmdEdit(); // the combo, which is empty now, has disabled Send
}

void USSDGeneralDlg::update4EditCommandSave()
{
    USSD_LOG_SCOPE();
    if (!isShowPreBtns() && !hasBeenShowPreBtns()) {
        USSD_LOG_EXIT(" Exit no show pre buttons!");
        return;
    }
    updateUssdCmdProfileList();
    updatePreBtnsText();
    updatePreBtnWidth(getPreBtnMaxTextWidth());
    resetWidgetsWidth4DyncBtnArea();
}

/// Assigns the visible profiles to the existing buttons. Does not create or delete any buttons.
void USSDGeneralDlg::updateUssdCmdProfileList()
{
    USSD_LOG_SCOPE();
    if (!hasBeenShowPreBtns()) {
        USSD_LOG_EXIT(" Exit no pre button bas been showed!");
        return;
    }
    int next = 0;
    for (int i = 0; i < m_listProfiles.count() && next < m_pListPreBtns->count(); ++i) {
        if (!m_listProfiles.at(i).showButton)
            continue;
        (*m_pListPreBtns)[next].second = m_listProfiles.at(i);
        m_pListPreBtns->at(next).first->setVisible(true);
        ++next;
    }
    for (; next < m_pListPreBtns->count(); ++next)
        m_pListPreBtns->at(next).first->setVisible(false);
}

// ---- layout --------------------------------------------------------------------------------

void USSDGeneralDlg::layout()
{
    if (isShowPreBtns())
        resetWidgetsWidth4DyncBtnArea();
    setLayoutMargins(isShowPreBtns(), isShowPreDescription());
}

void USSDGeneralDlg::setLayoutMargins(bool showPreBtns, bool showPreDescription)
{
    USSD_LOG_SCOPE();
    if (showPreBtns || showPreDescription)
        m_pMainGrid->setHorizontalSpacing(8);
}

void USSDGeneralDlg::findPosAndAddElements(int &row)
{
    USSD_LOG_SCOPE();
    if (!m_pLogic || !m_pMainGrid) {
        USSD_LOG_EXIT(" Fail Exit: Logic/Grid is NULL");
        return;
    }
    for (int slot = 0; slot < SLOTS; ++slot)
        addPreBtnOfSlot(slot, row);
    const int rowBelowButtons = row;
    row = 0;
    addFixedElements(row);
    addBottomButtons(qMax(rowBelowButtons, ROW_BELOW_PAYMENT));
    setLayout(m_pMainGrid);
    resetWidgetsWidth4DyncBtnArea();
    changePayBtnsStatus(false); // the payment field is empty
    initTabOrder();
}

/// Adds the button of a slot. A slot belongs to the profile with the same index. If this profile is
/// missing or hidden, the slot remains empty.
void USSDGeneralDlg::addPreBtnOfSlot(int slot, int &row)
{
    QPushButton *button = createPreBtn(slot);
    if (slot >= FIRST_FREE_SLOT) {
        if (button)
            m_pMainGrid->addWidget(button, row++, RIGHT_COLUMN, 1, RIGHT_COLUMNS);
        if (slot == FIRST_FREE_SLOT)
            ++row;
        return;
    }
    QVBoxLayout *box = m_pPreBtnsBox[slot / SLOTS_IN_BOX];
    if (button)
        box->addWidget(button);
    if (slot == PAYMENT_FIELD_SLOT) {
        box->addWidget(m_pInfoNumLabel);
        box->addWidget(m_pPaymentEdit);
        m_pMainGrid->addLayout(box, row, 0, 3, 2);
        row = 9;
    } else if (slot % SLOTS_IN_BOX == SLOTS_IN_BOX - 1) {
        m_pMainGrid->addLayout(box, row, 0, 4, 1, Qt::AlignTop);
        row = slot + 1;
    }
}

/// Returns the button of a slot, or null if the profile of the slot is missing or hidden.
QPushButton *USSDGeneralDlg::createPreBtn(int slot)
{
    if (slot >= m_listProfiles.count() || !m_listProfiles.at(slot).showButton)
        return nullptr;
    const USSDProfile &profile = m_listProfiles.at(slot);
    QPushButton *button = new QPushButton(this);
    setProfileText(button, m_pLogic->getProfileShowText(profile));
    button->setObjectName(objectNameOf("PreButton"));
    m_pListPreBtns->append(qMakePair(button, profile));
    connect(button, SIGNAL(clicked()), this, SLOT(OnPreBtnClicked()));
    return button;
}

void USSDGeneralDlg::addFixedElements(int row)
{
    m_pMainGrid->setVerticalSpacing(BOX_SPACING);
    m_pPreBtnsBox[0]->setSpacing(BOX_SPACING);
    m_pPreBtnsBox[1]->setSpacing(0);
    m_pPreBtnsBox[2]->setSpacing(BOX_SPACING);
    m_pMainGrid->addWidget(m_pHistoryView, row, RIGHT_COLUMN, 6, RIGHT_COLUMNS);
    row += 6;
    m_pMainGrid->addWidget(m_pInfoLabel, row, RIGHT_COLUMN, 1, RIGHT_COLUMNS);
    ++row;
    m_pMainGrid->addWidget(m_pUSSDCmdEdit, row, RIGHT_COLUMN, 1, RIGHT_COLUMNS - 1);
    m_pMainGrid->addWidget(m_pSendButton, row, RIGHT_COLUMN + RIGHT_COLUMNS - 1, Qt::AlignRight);
    // Reserve two lines for the prompt, so that the other widgets do not move when the prompt
    // appears or disappears.
    m_pMainGrid->addWidget(m_pPromptLabel, PROMPT_ROW, RIGHT_COLUMN, 1, RIGHT_COLUMNS);
    m_pMainGrid->setRowMinimumHeight(PROMPT_ROW, 2 * m_pPromptLabel->fontMetrics().lineSpacing());
}

void USSDGeneralDlg::addBottomButtons(int row)
{
    QHBoxLayout *buttons = new QHBoxLayout;
    buttons->setSpacing(2 * BOX_SPACING);
    buttons->addWidget(m_pDescriptionLabel, 1);
    buttons->addWidget(m_pClearButton);
    buttons->addWidget(m_pEditButton);
    buttons->addWidget(m_pCloseButton);
    m_pMainGrid->addLayout(buttons, row, 0, 1, RIGHT_COLUMN + RIGHT_COLUMNS);
    m_pMainGrid->setRowStretch(0, 1);
}

void USSDGeneralDlg::initTabOrder()
{
    QWidget *previous = m_pUSSDCmdEdit;
    QList<QWidget *> order;
    order << m_pSendButton;
    for (int i = 0; i < m_pListPreBtns->count() && !isPayBtn(i); ++i)
        order << m_pListPreBtns->at(i).first;
    order << m_pPaymentEdit;
    for (int i = qMax(0, m_pListPreBtns->count() - PAY_BUTTONS); i < m_pListPreBtns->count(); ++i)
        order << m_pListPreBtns->at(i).first;
    order << m_pClearButton << m_pEditButton << m_pCloseButton << m_pHistoryView;
    for (int i = 0; i < order.count(); ++i) {
        QWidget::setTabOrder(previous, order.at(i));
        previous = order.at(i);
    }
}

/// Adjusts the widths of the bottom buttons to their texts. Currently, this function is not called.
void USSDGeneralDlg::setRightLayoutBottomButtons()
{
    const QFontMetrics metrics = QApplication::fontMetrics();
    const int send = QtCompat::textWidth(metrics, m_pSendButton->text());
    const int clear = QtCompat::textWidth(metrics, m_pClearButton->text());
    const int close = QtCompat::textWidth(metrics, m_pCloseButton->text());
    const int width = paddedWidth(m_clearBtnSetting.visible ? qMax(send, clear) : send, 80, 160);
    const bool isModal = m_windowModel == WINDOW_MODEL_MODAL;
    m_pClearButton->setFixedWidth(width);
    CommonUtils::setElidedTextForWidgetText<QPushButton>(
        m_pClearButton, isModal && isShowPreBtns() ? 95 : 120, Qt::ElideRight);
    if (!isModal) {
        m_pSendButton->setFixedWidth(width);
        m_pSendButton->setMaximumWidth(width);
        return;
    }
    const int modalWidth = paddedWidth(qMax(send, close), 80, 160);
    m_pSendButton->setFixedWidth(modalWidth);
    m_pCloseButton->setFixedWidth(modalWidth);
}
