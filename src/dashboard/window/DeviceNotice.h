#ifndef DEVICENOTICE_H
#define DEVICENOTICE_H

#include <QPointer>

#include "NoticeBar.h"

namespace Dashboard
{

class DeviceWatcher;
class PinDialog;

/**
 * Shows the problem of the device and the action that the user can take. Opens the PIN dialog for a
 * locked SIM.
 */
class DeviceNotice : public NoticeBar
{
    Q_OBJECT
public:
    /// The watcher must outlive the notice.
    explicit DeviceNotice(const DeviceWatcher *device, QWidget *parent = nullptr);

public slots:
    /// Updates the notice according to the device's status and the current language.
    void update();
    void askForPin();

private:
    const DeviceWatcher *const m_device;
    QPushButton *m_pinButton;
    QPointer<PinDialog> m_pinDialog;
};

} // namespace Dashboard

#endif
