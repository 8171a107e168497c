/*
 * The part of USSDGeneralDlg that determines which preset buttons are payment buttons. The command
 * of a payment button contains the number in the payment field.
 */
#include "USSDGeneralDlg.h"

#include <QLineEdit>
#include <QList>
#include <QPushButton>

#include "markup/TranscriptView.h"

namespace
{

const int PAY_BUTTONS = 2; // the last two preset buttons are payment buttons
const int MAX_PAYMENT_NUMBER = 20;

} // namespace

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

bool USSDGeneralDlg::IsLimitValid(const QString &text)
{
    if (text.startsWith(QLatin1Char(';')))
        return false;
    for (int i = 0; i < text.length(); ++i) {
        if (!m_strAllowedPayment.contains(text.at(i)))
            return false;
    }
    return true;
}

void USSDGeneralDlg::OnPaymentEdit()
{
    if (!m_pPaymentEdit)
        return;
    int cursor = m_pPaymentEdit->cursorPosition();
    const QString text = m_pPaymentEdit->text();
    if (IsLimitValid(text)) {
        m_strLastValidPayment = text;
    } else {
        m_pPaymentEdit->setText(m_strLastValidPayment);
        --cursor;
    }
    m_pPaymentEdit->setMaxLength(MAX_PAYMENT_NUMBER); // moves the cursor to the end
    m_pPaymentEdit->setCursorPosition(cursor);
    changePayBtnsStatus(!m_pPaymentEdit->text().isEmpty());
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
