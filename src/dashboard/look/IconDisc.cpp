#include <QHBoxLayout>
#include <QPainter>

#include "Controls.h"
#include "Icons.h"
#include "Look.h"

namespace Dashboard
{

namespace
{

const int DIAMETER = 40; // in pixels at 100 % text size
const int ICON_SIZE = 20;

const char *boxOf(Tone tone)
{
    switch (tone) {
    case Tone::Ok:
        return "iconDisc_ok";
    case Tone::Warn:
        return "iconDisc_warn";
    case Tone::Danger:
        return "iconDisc_danger";
    case Tone::Neutral:
        return "iconDisc_neutral";
    case Tone::Accent:
        break;
    }
    return "iconDisc";
}

} // namespace

IconView::IconView(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(&Look::instance(), &Look::changed, this, [this] {
        updateGeometry();
        update();
    });
}

void IconView::setIcon(const char *name, Token token, int size)
{
    m_name = name;
    m_token = token;
    m_size = size;
    updateGeometry();
    update();
}

QSize IconView::sizeHint() const
{
    const int side = px(m_size);
    return QSize(side, side);
}

void IconView::paintEvent(QPaintEvent *)
{
    if (!m_name)
        return;
    const QSize size = sizeHint();
    const QRect square(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size);
    QPainter painter(this);
    icon(m_name, m_token)
        .paint(&painter, square, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

IconDisc::IconDisc(QWidget *parent) : QFrame(parent), m_icon(new IconView(this))
{
    QHBoxLayout *centre = new QHBoxLayout(this);
    centre->setContentsMargins(0, 0, 0, 0);
    centre->addWidget(m_icon, 0, Qt::AlignCenter);
    setBox(this, boxOf(Tone::Accent));
    connect(&Look::instance(), &Look::changed, this, &IconDisc::resizeToFont);
    resizeToFont();
}

void IconDisc::setIcon(const char *name, Tone tone)
{
    m_icon->setIcon(name, toneToken(tone), ICON_SIZE);
    setBox(this, boxOf(tone));
}

void IconDisc::resizeToFont()
{
    const int side = px(DIAMETER);
    setFixedSize(side, side);
}

} // namespace Dashboard
