#include "Scrim.h"

#include <QEvent>
#include <QPainter>

#include "look/Look.h"

namespace Dashboard
{

namespace
{

const double OPACITY = 0.49;
const int FADE_TIME = 120; // ms
const int STEPS = 6;

} // namespace

Scrim::Scrim(QWidget *parent) : QWidget(parent)
{
    setObjectName(QLatin1String("Dashboard_Scrim"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    parent->installEventFilter(this);
    m_fade.setParent(this);
    m_fade.setInterval(FADE_TIME / STEPS);
    connect(&m_fade, &QTimer::timeout, this, &Scrim::step);
    hide();
}

void Scrim::setShown(bool shown)
{
    if (shown == isVisible())
        return;
    m_fade.stop();
    if (!shown) {
        hide();
        return;
    }
    m_steps = Look::instance().reducesMotion() ? STEPS : 0;
    if (m_steps < STEPS)
        m_fade.start();
    setGeometry(parentWidget()->rect());
    raise();
    show();
}

void Scrim::step()
{
    if (++m_steps >= STEPS)
        m_fade.stop();
    update();
}

bool Scrim::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return false;
}

void Scrim::paintEvent(QPaintEvent *)
{
    QColor color = Look::instance().color(Token::Scrim);
    color.setAlphaF(OPACITY * m_steps / STEPS);
    QPainter(this).fillRect(rect(), color);
}

} // namespace Dashboard
