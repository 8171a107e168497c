#include "ActionCard.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include "look/Controls.h"
#include "look/Look.h"

namespace Dashboard
{

namespace
{

const int RADIUS = 12; // in pixels at 100 % text size
const int LOWEST = 66;
const double PRESSED = 0.6;

} // namespace

ActionCard::ActionCard(QWidget *parent)
    : QAbstractButton(parent), m_icon(new IconDisc(this)), m_name(new ElidedLabel(this)),
      m_line(new ElidedLabel(this)), m_arrow(new IconView(this))
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_arrow->setIcon("chevron", Token::Text2, 18);
    setLabelType(m_name, "strong");
    setLabelType(m_line, "cap");
    QVBoxLayout *texts = new QVBoxLayout;
    setSpacing(texts, 2);
    texts->addStretch();
    texts->addWidget(m_name);
    texts->addWidget(m_line);
    texts->addStretch();
    QHBoxLayout *row = new QHBoxLayout(this);
    setMargins(row, 12, 12, 12, 12);
    setSpacing(row, 12);
    row->addWidget(m_icon);
    row->addLayout(texts, 1);
    row->addWidget(m_arrow);
    for (QWidget *child : findChildren<QWidget *>())
        child->setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(&Look::instance(), &Look::changed, this, [this] { update(); });
}

void ActionCard::setIconName(const char *name)
{
    m_icon->setIcon(name, Tone::Accent);
}

/// Sets the texts of the card. The accessible name and the accessible description contain the
/// complete texts, because the labels may elide them.
void ActionCard::setTexts(const QString &name, const QString &line)
{
    m_name->setText(name);
    m_line->setText(line);
    m_line->setVisible(!line.isEmpty());
    setAccessibleName(name);
    setAccessibleDescription(line);
    setToolTip(m_name->toolTip());
}

QSize ActionCard::sizeHint() const
{
    const QSize size = layout()->sizeHint();
    return QSize(size.width(), qMax(size.height(), px(LOWEST)));
}

void ActionCard::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange) {
        m_arrow->setVisible(isEnabled());
        setLabelType(m_name, isEnabled() ? "strong" : "muted");
    }
    QAbstractButton::changeEvent(event);
}

void ActionCard::paintEvent(QPaintEvent *)
{
    const Look &look = Look::instance();
    const bool isPressable = isEnabled() && (underMouse() || isDown());
    const double ring = hasFocus() ? 2.0 : 1.0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isDown())
        painter.setOpacity(PRESSED);
    painter.setBrush(look.color(isPressable ? Token::Sunken : Token::Surface));
    painter.setPen(QPen(look.color(hasFocus() ? Token::Focus : Token::Border), ring));
    const double radius = look.px(RADIUS);
    painter.drawRoundedRect(QRectF(rect()).adjusted(ring / 2, ring / 2, -ring / 2, -ring / 2),
                            radius, radius);
}

} // namespace Dashboard
