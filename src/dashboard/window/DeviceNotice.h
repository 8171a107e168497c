#ifndef DEVICENOTICE_H
#define DEVICENOTICE_H

#include <QPointer>

#include "NoticeBar.h"

class DeviceWatcher;
class PinDialog;

/** Says what is wrong with the device and what to do about it, and takes the PIN of a locked SIM.
 */
class DeviceNotice : public NoticeBar
{
    Q_OBJECT
public:
    /// The watcher outlives the notice.
    explicit DeviceNotice(const DeviceWatcher *device, QWidget *parent = nullptr);

public slots:
    /// Reads device and texts again.
    void update();
    void askForPin();

private:
    const DeviceWatcher *const m_device;
    QPushButton *m_pinButton;
    QPointer<PinDialog> m_pinDialog;
};

#endif
