#ifndef COMMANDNOTICE_H
#define COMMANDNOTICE_H

#include "NoticeBar.h"
#include "tksv_device.h"

namespace Dashboard
{

class DeviceWatcher;

/**
 * Shows that the command of the general window is in flight, with a button to cancel it, and then
 * why it failed. The line is empty if the command was answered. It keeps its place while it is
 * empty, so that the general window does not move.
 */
class CommandNotice : public NoticeBar
{
    Q_OBJECT
public:
    /// The watcher must outlive the notice.
    explicit CommandNotice(const DeviceWatcher *device, QWidget *parent = nullptr);

public slots:
    /// Must be called when a command was sent or has ended.
    void look();
    /// Removes the failure, which belongs to a device or page that is no longer in use.
    void forget();
    /// Updates the texts after a change of the device or the language.
    void update();

private slots:
    void cancel();

private:
    QString pendingText() const;

    const DeviceWatcher *const m_device;
    QPushButton *m_cancelButton;
    bool m_isPending = false;
    TKSV_FailureInfo m_failure = {};
};

} // namespace Dashboard

#endif
