#include "DeviceLine.h"

#include <QGridLayout>

#include "look/Look.h"
#include "StatusDot.h"

namespace Dashboard
{

namespace
{

const int HEIGHT = 48; // in pixels at 100 % text size

ElidedLabel *makeLine(const char *type, const char *name, QWidget *parent)
{
    ElidedLabel *label = new ElidedLabel(parent);
    setLabelType(label, type);
    label->setObjectName(QLatin1String(name));
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    return label;
}

} // namespace

DeviceLine::DeviceLine(QWidget *parent)
    : QPushButton(parent), m_dot(new StatusDot(this)),
      m_state(makeLine("small", "Dashboard_DeviceState", this)),
      m_name(makeLine("cap", "Dashboard_DeviceName", this))
{
    setObjectName(QLatin1String("Dashboard_DeviceLine"));
    setAutoDefault(false);
    setButtonKind(this, "nav");
    QGridLayout *grid = new QGridLayout(this);
    grid->setSpacing(0);
    setMargins(grid, 8, 4, 8, 4);
    setSpacing(grid, 0);
    grid->addWidget(m_dot, 0, 0, 2, 1);
    grid->addWidget(m_state, 0, 2);
    grid->addWidget(m_name, 1, 2);
    grid->setColumnMinimumWidth(1, px(10));
    grid->setColumnStretch(2, 1);
}

void DeviceLine::showDevice(Tone tone, const QString &state, const QString &name)
{
    m_dot->setTone(tone);
    m_state->setText(state);
    m_name->setText(name);
    m_name->setVisible(!name.isEmpty());
    setAccessibleName(name.isEmpty() ? state : state + QLatin1String(", ") + name);
}

QSize DeviceLine::sizeHint() const
{
    return QSize(QPushButton::sizeHint().width(), px(HEIGHT));
}

} // namespace Dashboard
