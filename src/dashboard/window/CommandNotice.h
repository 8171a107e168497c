#ifndef COMMANDNOTICE_H
#define COMMANDNOTICE_H

#include "NoticeBar.h"
#include "tksv_device.h"

namespace Dashboard
{

class DeviceWatcher;

/**
 * A line below the general window. While a command is in flight, the line shows this and contains a
 * button to cancel the command. If the command has failed, the line shows the reason. Otherwise,
 * the line is empty, but still occupies its space, so that the general window does not move.
 */
class CommandNotice : public NoticeBar
{
    Q_OBJECT
public:
    /// The watcher must outlive the notice.
    explicit CommandNotice(const DeviceWatcher *device, QWidget *parent = nullptr);

public slots:
    /// Updates the line. Must be called after a command was sent or has ended.
    void look();
    /// Removes the failure. Must be called when the device or the page of the failed command is no
    /// longer in use.
    void forget();
    /// Updates the strings after a change of the device or the language.
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
