#include "AccountTile.h"

#include <QGridLayout>
#include <QPainter>
#include <QStyle>

#include "look/Controls.h"
#include "look/Look.h"

namespace Dashboard
{

namespace
{

const int BAR_HEIGHT = 6; // in pixels at 100 % text size
const int BAR_END = 10;   // the button of a tile is closer to the border than the bar
const int ICON_SIZE = 18;
const int WIDE_HEIGHT = 100;
const int ICON_ROW = 30;
const int VALUE_ROW = 28;

} // namespace

ShareBar::ShareBar(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(&Look::instance(), &Look::changed, this, [this] {
        updateGeometry();
        update();
    });
}

void ShareBar::setShare(double share)
{
    m_share = qBound(0.0, share, 1.0);
    update();
}

QSize ShareBar::sizeHint() const
{
    const int height = px(BAR_HEIGHT);
    return QSize(8 * height, height);
}

void ShareBar::paintEvent(QPaintEvent *)
{
    const Look &look = Look::instance();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double radius = height() / 2.0;
    const QRect whole = rect().adjusted(0, 0, -px(BAR_END), 0);
    painter.setBrush(look.color(Token::Sunken));
    painter.drawRoundedRect(QRectF(QStyle::visualRect(layoutDirection(), rect(), whole)), radius,
                            radius);
    QRect filled = whole;
    filled.setWidth(qRound(whole.width() * m_share));
    painter.setBrush(look.color(Token::Accent));
    if (m_share > 0)
        painter.drawRoundedRect(QRectF(QStyle::visualRect(layoutDirection(), rect(), filled)),
                                radius, radius);
}

AccountTile::AccountTile(const char *icon, const char *action, QWidget *parent)
    : QFrame(parent), m_grid(new QGridLayout(this)), m_icon(new IconView(this)),
      m_disc(new IconDisc(this)), m_caption(makeLabel("small", this)),
      m_value(new ElidedLabel(this)), m_note(makeLabel("cap", this)),
      m_action(makeIconButton(action, this)), m_bar(new ShareBar(this))
{
    m_icon->setIcon(icon, Token::Text2, ICON_SIZE);
    m_disc->setIcon(icon, Tone::Neutral);
    m_value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    connect(m_action, &QPushButton::clicked, this, &AccountTile::pressed);
    connect(&Look::instance(), &Look::changed, this, &AccountTile::arrange);
    arrange();
}

void AccountTile::setNarrow(bool isNarrow)
{
    if (isNarrow == m_isNarrow)
        return;
    m_isNarrow = isNarrow;
    arrange();
    show(m_view);
}

void AccountTile::arrange()
{
    for (QWidget *widget : findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        m_grid->removeWidget(widget);
    for (int i = 0; i < m_grid->columnCount(); ++i)
        m_grid->setColumnStretch(i, 0);
    for (int i = 0; i < m_grid->rowCount(); ++i)
        m_grid->setRowStretch(i, 0);
    setBox(this, m_isNarrow ? "" : "card");
    setShown(m_icon, !m_isNarrow);
    setShown(m_disc, m_isNarrow);
    setShown(m_action, !m_isNarrow);
    setLabelType(m_value, m_isNarrow ? "strong" : "value");
    if (m_isNarrow)
        arrangeNarrow();
    else
        arrangeWide();
}

void AccountTile::arrangeWide()
{
    setMargins(m_grid, 16, 0, 6, 12);
    setMinimumHeight(px(WIDE_HEIGHT));
    m_grid->setHorizontalSpacing(px(8));
    m_grid->setVerticalSpacing(0);
    m_grid->addWidget(m_icon, 0, 0, Qt::AlignVCenter);
    m_grid->addWidget(m_caption, 0, 1);
    // The button is higher than the first row, so that the rows are close together.
    m_grid->addWidget(m_action, 0, 2, 2, 1, Qt::AlignTop);
    m_grid->addWidget(m_value, 1, 0, 1, 3);
    m_action->raise();
    m_grid->addWidget(m_note, 2, 0, 1, 3);
    m_grid->setRowMinimumHeight(0, px(ICON_ROW));
    m_grid->setRowMinimumHeight(1, px(VALUE_ROW));
    m_grid->setRowMinimumHeight(3, px(8));
    m_grid->addWidget(m_bar, 4, 0, 1, 3);
    m_grid->setColumnStretch(1, 1);
    m_grid->setRowStretch(5, 1);
}

void AccountTile::arrangeNarrow()
{
    setMargins(m_grid, 12, 9, 14, 9);
    setMinimumHeight(0);
    m_grid->addWidget(m_disc, 0, 0, 2, 1, Qt::AlignVCenter);
    m_grid->addWidget(m_caption, 0, 1, 1, 2);
    m_grid->addWidget(m_value, 1, 1);
    m_grid->addWidget(m_note, 1, 2, Qt::AlignBottom);
    m_grid->setHorizontalSpacing(px(12));
    m_grid->setVerticalSpacing(0);
    for (int row : {0, 1, 3})
        m_grid->setRowMinimumHeight(row, 0);
    m_grid->setColumnStretch(1, 1);
}

void AccountTile::show(const TileView &view)
{
    m_view = view;
    m_caption->setText(view.caption);
    m_value->setText(m_isNarrow && !view.shortValue.isEmpty() ? view.shortValue : view.value);
    m_value->setAlignment(view.isValueCode && layoutDirection() == Qt::RightToLeft
                              ? Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter
                              : Qt::AlignLeading | Qt::AlignVCenter);
    m_note->setText(m_isNarrow ? view.shortNote : view.note);
    m_bar->setVisible(!m_isNarrow && view.share >= 0);
    m_bar->setShare(view.share);
    QStringList words = {view.caption, view.value, view.note};
    words.removeAll(QString());
    setAccessibleName(words.join(QLatin1String(", ")));
}

void AccountTile::setActionText(const QString &text)
{
    setIconButtonText(m_action, text);
}

void AccountTile::setActionEnabled(bool isEnabled)
{
    m_action->setEnabled(isEnabled);
}

} // namespace Dashboard
