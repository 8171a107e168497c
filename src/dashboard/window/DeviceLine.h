#ifndef DEVICELINE_H
#define DEVICELINE_H

#include "look/Controls.h"

namespace Dashboard
{

class StatusDot;

/**
 * The button at the bottom of the side bar that shows the state of the device and the name of the
 * modem.
 */
class DeviceLine : public QPushButton
{
    Q_OBJECT
public:
    explicit DeviceLine(QWidget *parent = nullptr);

    void showDevice(Tone tone, const QString &state, const QString &name);
    QString state() const { return m_state->text(); }
    QString name() const { return m_name->text(); }
    QSize sizeHint() const override;

private:
    StatusDot *m_dot;
    ElidedLabel *m_state;
    ElidedLabel *m_name;
};

} // namespace Dashboard

#endif
