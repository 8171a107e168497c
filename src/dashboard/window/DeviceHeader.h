#ifndef DEVICEHEADER_H
#define DEVICEHEADER_H

#include <QFrame>

#include "device/DeviceStatus.h"

class QLabel;

namespace Dashboard
{

class SignalBars;

/** Shows the operator, the signal strength and the SIM in one line. */
class DeviceHeader : public QFrame
{
    Q_OBJECT
public:
    explicit DeviceHeader(QWidget *parent = nullptr);

    /// Shows the status. Must also be called after a language change.
    void showStatus(const DeviceStatus &status);
    /// Shows the type of contract, `text`, next to the operator. An empty string hides the label.
    void showPaidType(const QString &text);

private:
    QLabel *m_operator;
    QLabel *m_paidType;
    SignalBars *m_bars;
    QLabel *m_signal;
    QLabel *m_sim;
};

} // namespace Dashboard

#endif
