#include "DeviceNotice.h"

#include <QPushButton>

#include "base/DashboardText.h"
#include "CommonUtils.h"
#include "device/DeviceWatcher.h"
#include "PinDialog.h"

namespace Dashboard
{

DeviceNotice::DeviceNotice(const DeviceWatcher *device, QWidget *parent)
    : NoticeBar("Dashboard_DeviceNotice", parent), m_device(device),
      m_pinButton(addButton("Dashboard_PinButton"))
{
    connect(m_pinButton, SIGNAL(clicked()), this, SLOT(askForPin()));
    connect(device, SIGNAL(changed()), this, SLOT(update()));
}

void DeviceNotice::update()
{
    const DeviceStatus &status = m_device->status();
    setText(status.adviceText());
    setButtonText(m_pinButton, status.waitsForPin() ? dashboardText("PIN_BUTTON") : QString());
    if (m_pinDialog)
        m_pinDialog->retranslate();
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
