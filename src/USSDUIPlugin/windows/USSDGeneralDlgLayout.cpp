/* The part of USSDGeneralDlg that places the widgets in a grid. */
#include "USSDGeneralDlg.h"

#include <QApplication>
#include <QFontMetrics>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/PluginLog.h"
#include "ButtonWidth.h"
#include "CommonUtils.h"
#include "markup/TranscriptView.h"
#include "QtCompat.h"

static const char LOG_SOURCE[] = USSD_LOG_SOURCE("USSDGeneralDlg.cpp");

namespace
{

// The slots for the preset buttons: two boxes with four slots each, a box with one slot and the
// payment field, and two slots without a box.
const int SLOTS = 11;
const int SLOTS_IN_BOX = 4;
const int PAYMENT_FIELD_SLOT = 8;
const int FIRST_FREE_SLOT = 9;
const int RIGHT_COLUMN = 2; // the first of the columns with the transcript and the input field
const int RIGHT_COLUMNS = 5;
// The row and the column that grow with the window, both of which contain the transcript. The row
// also belongs to the second box of preset buttons, which has free space below its buttons.
const int STRETCHING_ROW = 5;
const int STRETCHING_COLUMN = 3;
const int PROMPT_ROW = 8;
const int ROW_BELOW_PAYMENT = 11; // the row below the box with the payment field
const int SPACING = 4;            // in pixels; limited by the fixed size of the window

} // namespace

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

/// Adds the button of the slot. The slot shows the profile with the same index, and remains empty
/// if there is no such profile or if the profile is hidden.
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

void USSDGeneralDlg::addFixedElements(int row)
{
    m_pMainGrid->setVerticalSpacing(SPACING);
    m_pPreBtnsBox[0]->setSpacing(0);
    m_pPreBtnsBox[1]->setSpacing(0);
    m_pPreBtnsBox[2]->setSpacing(0);
    m_pMainGrid->addWidget(m_pHistoryView, row, RIGHT_COLUMN, 6, RIGHT_COLUMNS);
    row += 6;
    m_pMainGrid->addWidget(m_pInfoLabel, row, RIGHT_COLUMN, 1, RIGHT_COLUMNS);
    ++row;
    m_pMainGrid->addWidget(m_pUSSDCmdEdit, row, RIGHT_COLUMN, 1, RIGHT_COLUMNS - 1);
    m_pMainGrid->addWidget(m_pSendButton, row, RIGHT_COLUMN + RIGHT_COLUMNS - 1, Qt::AlignRight);
    // Reserve two lines for the prompt, so that the layout does not change when the prompt appears
    // or disappears.
    m_pMainGrid->addWidget(m_pPromptLabel, PROMPT_ROW, RIGHT_COLUMN, 1, RIGHT_COLUMNS);
    m_pMainGrid->setRowMinimumHeight(PROMPT_ROW, 2 * m_pPromptLabel->fontMetrics().lineSpacing());
}

void USSDGeneralDlg::addBottomButtons(int row)
{
    QHBoxLayout *buttons = new QHBoxLayout;
    buttons->setSpacing(2 * SPACING);
    buttons->addWidget(m_pDescriptionLabel, 1);
    buttons->addWidget(m_pClearButton);
    buttons->addWidget(m_pEditButton);
    buttons->addWidget(m_pCloseButton);
    m_pMainGrid->addLayout(buttons, row, 0, 1, RIGHT_COLUMN + RIGHT_COLUMNS);
    m_pMainGrid->setRowStretch(STRETCHING_ROW, 1);
    m_pMainGrid->setColumnStretch(STRETCHING_COLUMN, 1);
}

/// Adapts the widths of the bottom buttons to their texts. The function is not currently called.
void USSDGeneralDlg::setRightLayoutBottomButtons()
{
    const QFontMetrics metrics(QApplication::font());
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
