#include "CommandNotice.h"

#include <QPushButton>

#include "base/DashboardText.h"
#include "device/DeviceWatcher.h"
#include "device/FailureWords.h"
#include "plugin/UserActivity.h"

namespace Dashboard
{

CommandNotice::CommandNotice(const DeviceWatcher *device, QWidget *parent)
    : NoticeBar("Dashboard_CommandNotice", parent), m_device(device),
      m_cancelButton(addButton("Dashboard_CancelCommand"))
{
    setFrameShape(QFrame::NoFrame);
    setCompact();
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    setMinimumHeight(m_cancelButton->sizeHint().height());
    connect(m_cancelButton, &QPushButton::clicked, this, &CommandNotice::cancel);
    connect(device, &DeviceWatcher::changed, this, &CommandNotice::update);
}

void CommandNotice::look()
{
    m_isPending = UserActivity::isCommandPending();
    m_failure = m_isPending ? TKSV_FailureInfo() : lastFailure();
    update();
}

void CommandNotice::forget()
{
    m_failure = TKSV_FailureInfo();
    update();
}

void CommandNotice::update()
{
    setText(m_isPending ? pendingText() : failureWords(m_failure));
    setButtonText(m_cancelButton, m_isPending ? dashboardText("COMMAND_CANCEL") : QString());
}

QString CommandNotice::pendingText() const
{
    return dashboardText(m_device->status().waitsForTurn ? "COMMAND_WAITS_FOR_TURN"
                                                         : "COMMAND_PENDING");
}

// The plug-in receives an empty reply, which ends its wait.
void CommandNotice::cancel()
{
    TKSV_Device_CancelRequest();
}

} // namespace Dashboard
