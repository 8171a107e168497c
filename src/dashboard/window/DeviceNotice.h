#ifndef DEVICENOTICE_H
#define DEVICENOTICE_H

#include <QPointer>

#include "NoticeBar.h"

namespace Dashboard
{

class DeviceWatcher;
class PinDialog;

/**
 * A line that shows the problem of the device, with a button for the action that the user can take.
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

private slots:
    void endForeignSession();

private:
    void showButton(QPushButton *button, bool isShown, const char *textKey);

    const DeviceWatcher *const m_device;
    QPushButton *m_pinButton;
    QPushButton *m_enableButton;
    QPushButton *m_lookButton;
    QPushButton *m_endButton;
    QPointer<PinDialog> m_pinDialog;
};

} // namespace Dashboard

#endif
