/* The part of USSDGeneralDlg that creates the preset buttons and updates them. */
#include "USSDGeneralDlg.h"

#include <QApplication>
#include <QComboBox>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextDocument>

#include "base/PluginLog.h"
#include "ButtonWidth.h"
#include "CommonUtils.h"
#include "profiles/USSDEditCmd.h"
#include "QtCompat.h"
#include "UssdCode.h"

using namespace Formats;

static const char LOG_SOURCE[] = USSD_LOG_SOURCE("USSDGeneralDlg.cpp");

namespace
{

const int ELIDE_WIDTH = 127; // in pixels; independent of the button's width

/// Sets the text of a button. Codes are displayed from left to right in every language. Names
/// follow the direction of the language.
void setProfileText(QPushButton *button, const QString &text)
{
    if (isCodeLike(text))
        button->setLayoutDirection(Qt::LeftToRight);
    else
        button->unsetLayoutDirection();
    button->setText(text);
}

/// Makes the tool tip show its text literally. Otherwise, Qt could interpret the text as markup and
/// load images to which it refers.
void keepToolTipPlain(QPushButton *button)
{
    const QString tip = button->toolTip();
    if (Qt::mightBeRichText(tip))
        button->setToolTip(QLatin1String("<span>") + QtCompat::escapeHtml(tip) +
                           QLatin1String("</span>"));
}

} // namespace

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
    USSD_LOG(" profiles count = %d", int(m_listProfiles.count()));
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
    const QFontMetrics metrics(QApplication::font());
    int widest = 0;
    for (int i = 0; m_pListPreBtns && i < m_pListPreBtns->count(); ++i) {
        const QString text = m_pLogic->getProfileShowText(m_pListPreBtns->at(i).second);
        widest = qMax(widest, metrics.boundingRect(text).width());
    }
    return widest > 0 ? paddedWidth(widest, 80, 150) : 0;
}

void USSDGeneralDlg::updatePreBtnWidth(int width)
{
    updatePreBtnsText(); // sets the full texts, which are elided afterwards
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
    // The event loop of the editor must end if the host deletes this window.
    connect(this, SIGNAL(destroyed()), &editor, SLOT(OnClickedCancelButton()));
    const bool saved = editor.Exec();
    if (!self || !saved)
        return;
    getProfileList();
    addProfilesToCombo();
    update4EditCommandSave();
    if (!m_bWaiting)
        OnUSSDCmdEdit(); // required because clearing the combo box has disabled Send
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

/// Assigns the visible profiles to the existing buttons. Buttons are neither created nor deleted.
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

/// Creates the button of the slot. Returns null if its profile is missing or hidden.
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
