#ifndef DEVICEHEADER_H
#define DEVICEHEADER_H

#include <QFrame>

#include "device/DeviceStatus.h"

class QLabel;
class SignalBars;

/** Operator, signal and SIM in one line. */
class DeviceHeader : public QFrame
{
    Q_OBJECT
public:
    explicit DeviceHeader(QWidget *parent = nullptr);

    /// Also after a change of the language.
    void showStatus(const DeviceStatus &status);
    /// What kind of SIM it is, next to the operator; empty shows nothing.
    void showPaidType(const QString &text);

private:
    QLabel *m_operator;
    QLabel *m_paidType;
    SignalBars *m_bars;
    QLabel *m_signal;
    QLabel *m_sim;
};

#endif
