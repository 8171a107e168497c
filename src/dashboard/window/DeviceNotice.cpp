#include "DeviceNotice.h"

#include <QPushButton>

#include "base/DashboardText.h"
#include "CommonUtils.h"
#include "device/DeviceWatcher.h"
#include "PinDialog.h"
#include "tksv_device.h"

namespace Dashboard
{

DeviceNotice::DeviceNotice(const DeviceWatcher *device, QWidget *parent)
    : NoticeBar("Dashboard_DeviceNotice", parent), m_device(device),
      m_pinButton(addButton("Dashboard_PinButton")),
      m_enableButton(addButton("Dashboard_EnableButton")),
      m_lookButton(addButton("Dashboard_LookAgainButton")),
      m_endButton(addButton("Dashboard_EndForeignSessionButton"))
{
    connect(m_pinButton, &QPushButton::clicked, this, &DeviceNotice::askForPin);
    connect(m_enableButton, &QPushButton::clicked, this, &TKSV_Device_Enable);
    connect(m_lookButton, &QPushButton::clicked, this, &TKSV_Device_LookAgain);
    connect(m_endButton, &QPushButton::clicked, this, &DeviceNotice::endForeignSession);
    connect(device, &DeviceWatcher::changed, this, &DeviceNotice::update);
}

void DeviceNotice::update()
{
    const DeviceStatus &status = m_device->status();
    setText(status.adviceText());
    const bool isDisabled = status.state == TKSV_DEVICE_DISABLED && !status.isSimulated &&
                            status.problem != TKSV_PROBLEM_NOT_PERMITTED;
    showButton(m_pinButton, status.waitsForPin(), "PIN_BUTTON");
    showButton(m_enableButton, isDisabled, "DEVICE_ENABLE");
    showButton(m_lookButton, status.mayBeFound(), "DEVICE_LOOK_AGAIN");
    showButton(m_endButton, status.hasForeignSession, "DEVICE_END_SESSION");
    if (m_pinDialog)
        m_pinDialog->retranslate();
}

void DeviceNotice::showButton(QPushButton *button, bool isShown, const char *textKey)
{
    setButtonText(button, isShown ? dashboardText(textKey) : QString());
}

void DeviceNotice::endForeignSession()
{
    const int answer = CommonUtils::ShowMessage(
        QMessageBox::Question, window(), dashboardText("FOREIGN_CAPTION"),
        dashboardText("FOREIGN_QUESTION"), QLatin1String("IDS_YES"), QLatin1String("IDS_NO"));
    if (answer == QMessageBox::Ok)
        TKSV_Device_EndForeignSession();
}

void DeviceNotice::askForPin()
{
    if (!m_pinDialog) {
        m_pinDialog = new PinDialog(m_device, window());
        m_pinDialog->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_pinDialog->show();
    CommonUtils::MoveCentre(m_pinDialog);
}

} // namespace Dashboard
