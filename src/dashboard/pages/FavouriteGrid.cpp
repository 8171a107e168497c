#include "FavouriteGrid.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

#include "base/DashboardText.h"
#include "base/Isolate.h"
#include "look/Controls.h"
#include "look/Icons.h"
#include "look/Look.h"

namespace Dashboard
{

namespace
{

// In pixels at 100 % text size.
const int HEIGHT = 66;
const int WIDTH = 140;
const int RADIUS = 12;
const int MARGIN = 12;
const int DISC = 40;
const int ICON = 20;
const int NAME_SIZE = 14;
const int CODE_SIZE = 13;

QString shownCode(const NamedCode &code)
{
    QString shown = code.isChain() ? code.keys : code.code;
    return shown.replace(QLatin1String("%s"), QChar(0x2026));
}

} // namespace

FavouriteButton::FavouriteButton(QWidget *parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
    connect(&Look::instance(), &Look::changed, this, [this] {
        updateGeometry();
        update();
    });
}

void FavouriteButton::setCode(const NamedCode &code)
{
    m_code = code;
    m_adds = false;
    setText(code.name);
    setAccessibleName(code.name);
    setAccessibleDescription(shownCode(code));
    setToolTip(code.name);
    update();
}

void FavouriteButton::setAdds(const QString &text)
{
    m_adds = true;
    setText(text);
    setAccessibleName(text);
    setAccessibleDescription(QString());
    setToolTip(QString());
    update();
}

QSize FavouriteButton::sizeHint() const
{
    return QSize(px(WIDTH), px(HEIGHT));
}

QSize FavouriteButton::minimumSizeHint() const
{
    return QSize(px(2 * MARGIN + DISC), px(HEIGHT));
}

bool FavouriteButton::event(QEvent *event)
{
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave)
        update();
    return QAbstractButton::event(event);
}

QFont FavouriteButton::textFont(int size, bool isBold) const
{
    QFont sized = font();
    sized.setPixelSize(px(size));
    sized.setWeight(isBold ? STRONG_WEIGHT : QFont::Normal);
    return sized;
}

void FavouriteButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintCard(&painter);
    if (m_adds)
        paintAdd(&painter);
    else
        paintCode(&painter);
}

void FavouriteButton::paintCard(QPainter *painter)
{
    const Look &look = Look::instance();
    const bool isLit = isDown() || underMouse();
    const double line = hasFocus() ? 2 : 1;
    const QRectF box = QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2);
    QPen pen(look.color(hasFocus() ? Token::Focus : m_adds ? Token::Control : Token::Border), line);
    if (m_adds && !hasFocus())
        pen.setStyle(Qt::DashLine);
    painter->setPen(pen);
    if (m_adds && !isLit)
        painter->setBrush(Qt::NoBrush);
    else
        painter->setBrush(look.color(isLit ? Token::Sunken : Token::Surface));
    painter->drawRoundedRect(box, RADIUS, RADIUS);
}

void FavouriteButton::paintCode(QPainter *painter)
{
    const Look &look = Look::instance();
    const Token ink = isEnabled() ? Token::Text : Token::DisabledText;
    const QRect disc(px(MARGIN), (height() - px(DISC)) / 2, px(DISC), px(DISC));
    const QRect shownDisc = QStyle::visualRect(layoutDirection(), rect(), disc);
    painter->setPen(Qt::NoPen);
    painter->setBrush(look.color(Token::AccentSoft));
    painter->drawEllipse(shownDisc);
    const int inset = (px(DISC) - px(ICON)) / 2;
    Dashboard::icon(m_code.isChain() ? "star" : codeIcon(m_code.kind), Token::AccentText)
        .paint(painter, shownDisc.adjusted(inset, inset, -inset, -inset));
    const QFont nameFont = textFont(NAME_SIZE, true);
    const QFont codeFont = textFont(CODE_SIZE, false);
    const int nameHeight = QFontMetrics(nameFont).height();
    const int codeHeight = QFontMetrics(codeFont).height();
    const int left = disc.right() + px(MARGIN);
    const int top = (height() - nameHeight - codeHeight) / 2;
    const QRect name(left, top, width() - left - px(MARGIN), nameHeight);
    const QRect code(left, top + nameHeight, name.width(), codeHeight);
    painter->setFont(nameFont);
    painter->setPen(look.color(ink));
    painter->drawText(
        QStyle::visualRect(layoutDirection(), rect(), name), Qt::AlignLeading | Qt::AlignVCenter,
        QFontMetrics(nameFont).elidedText(isolatedWords(text()), Qt::ElideRight, name.width()));
    painter->setFont(codeFont);
    painter->setPen(look.color(isEnabled() ? Token::Text3 : Token::DisabledText));
    const QString shown = isolated(
        QFontMetrics(codeFont).elidedText(shownCode(m_code), Qt::ElideRight, code.width()));
    painter->drawText(QStyle::visualRect(layoutDirection(), rect(), code),
                      Qt::AlignLeading | Qt::AlignVCenter, shown);
}

void FavouriteButton::paintAdd(QPainter *painter)
{
    const QFont sized = textFont(NAME_SIZE, true);
    const int words = QFontMetrics(sized).horizontalAdvance(text());
    const int left = (width() - words - px(ICON) - px(8)) / 2;
    const QRect plus(left, (height() - px(ICON)) / 2, px(ICON), px(ICON));
    Dashboard::icon("plus", Token::AccentText)
        .paint(painter, QStyle::visualRect(layoutDirection(), rect(), plus));
    const QRect word(plus.right() + px(8), 0, words + 1, height());
    painter->setFont(sized);
    painter->setPen(Look::instance().color(Token::AccentText));
    painter->drawText(QStyle::visualRect(layoutDirection(), rect(), word), Qt::AlignCenter, text());
}

// ---- the grid -----------------------------------------------------------------------------------

FavouriteGrid::FavouriteGrid(QWidget *parent) : QWidget(parent), m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    setObjectName(QLatin1String("Dashboard_FavouriteGrid"));
}

void FavouriteGrid::show(const QList<NamedCode> &codes, bool mayAdd)
{
    const int count = codes.size() + (mayAdd ? 1 : 0);
    while (m_buttons.size() > count)
        delete m_buttons.takeLast();
    while (m_buttons.size() < count) {
        m_buttons << new FavouriteButton(this);
        m_buttons.last()->installEventFilter(this);
    }
    for (int i = 0; i < count; ++i) {
        FavouriteButton *button = m_buttons.at(i);
        button->disconnect(this);
        if (i < codes.size()) {
            const NamedCode &code = codes.at(i);
            button->setCode(code);
            connect(button, &QAbstractButton::clicked, this, [this, code] { emit chosen(code); });
        } else {
            button->setAdds(dashboardText("HOME_ADD_FAVOURITE"));
            connect(button, &QAbstractButton::clicked, this, &FavouriteGrid::addRequested);
        }
    }
    arrange();
}

void FavouriteGrid::setColumns(int columns)
{
    m_columns = columns;
    arrange();
}

void FavouriteGrid::arrange()
{
    m_grid->setSpacing(px(m_columns == 2 ? 8 : 12));
    for (FavouriteButton *button : m_buttons)
        m_grid->removeWidget(button);
    for (int i = 0; i < m_grid->columnCount(); ++i)
        m_grid->setColumnStretch(i, i < m_columns ? 1 : 0);
    for (int i = 0; i < m_columns; ++i)
        m_grid->setColumnStretch(i, 1);
    // The Tab key reaches only the first card; the arrow keys reach the others.
    for (int i = 0; i < m_buttons.size(); ++i) {
        m_grid->addWidget(m_buttons.at(i), i / m_columns, i % m_columns);
        m_buttons.at(i)->setFocusPolicy(i == 0 ? Qt::StrongFocus : Qt::ClickFocus);
        m_buttons.at(i)->show();
    }
}

bool FavouriteGrid::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    QKeyEvent *key = static_cast<QKeyEvent *>(event);
    FavouriteButton *button = static_cast<FavouriteButton *>(watched);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
        button->click();
        return true;
    }
    return moveFocus(button, key->key()) || QWidget::eventFilter(watched, event);
}

/// Moves the focus in the direction of the arrow key. Returns false if the key is not an arrow key.
bool FavouriteGrid::moveFocus(FavouriteButton *from, int key)
{
    const int forward = layoutDirection() == Qt::RightToLeft ? -1 : 1;
    int step = 0;
    if (key == Qt::Key_Right || key == Qt::Key_Left)
        step = key == Qt::Key_Right ? forward : -forward;
    else if (key == Qt::Key_Down || key == Qt::Key_Up)
        step = key == Qt::Key_Down ? m_columns : -m_columns;
    else
        return false;
    const int index = m_buttons.indexOf(from) + step;
    if (index >= 0 && index < m_buttons.size())
        m_buttons.at(index)->setFocus(Qt::TabFocusReason);
    return true;
}

} // namespace Dashboard
