#include "MessageDelegate.h"

#include <QApplication>
#include <QLocale>
#include <QPainter>

#include "base/ClockText.h"
#include "base/DashboardText.h"
#include "base/Isolate.h"
#include "look/Controls.h"
#include "look/Icons.h"
#include "look/Look.h"
#include "messages/MessageModel.h"

namespace Dashboard
{

namespace
{

// Sizes in pixels at 100 % text size.
const int DAY_HEIGHT = 28;
const int ROW_HEIGHT = 64;
const int CHIP_HEIGHT = 22;
const int CHIP_GAP = 4;
const int PADDING = 12;
const int DISC = 40;
const int ICON = 20;
const int DOT = 8;
const int RADIUS = 12;

QFont fontOf(int pixels, QFont::Weight weight)
{
    return sized(QApplication::font(), pixels, weight);
}

/// Returns the first line of the text, enclosed in the isolates U+2068 and U+2069 to preserve its
/// direction.
QString firstLine(const QString &text)
{
    return QChar(0x2068) + text.trimmed().section(QLatin1Char('\n'), 0, 0).simplified() +
           QChar(0x2069);
}

/**
 * Paints one row. All rectangles are calculated for a left-to-right layout, and are mirrored for
 * painting if necessary.
 */
class RowPainter
{
public:
    RowPainter(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index)
        : m_painter(painter), m_option(option), m_row(option.rect),
          m_message(index.data(MessageModel::MessageRole).value<Message>()),
          m_day(index.data(MessageModel::DayRole).toString()),
          m_isWaiting(index.data(MessageModel::WaitingRole).toBool())
    {
    }

    void paint()
    {
        paintDay();
        paintGround();
        paintDisc();
        paintHead();
        paintText();
        if (m_isWaiting)
            paintChip();
    }

private:
    static QColor color(Token token) { return Look::instance().color(token); }
    bool isSelected() const { return m_option.state & QStyle::State_Selected; }
    bool hasFocus() const { return m_option.state & QStyle::State_HasFocus; }
    QRect mirrored(const QRect &rect) const
    {
        return QStyle::visualRect(m_option.direction, m_option.rect, rect);
    }
    int textStart() const { return m_row.left() + px(PADDING + DISC + PADDING); }
    int textEnd() const { return m_row.right() - px(PADDING); }

    void drawText(const QRect &rect, const QString &text, const QFont &font, Token token, int align)
    {
        m_painter->setFont(font);
        m_painter->setPen(color(token));
        const QString shown = QFontMetrics(font).elidedText(text, Qt::ElideRight, rect.width());
        m_painter->drawText(mirrored(rect),
                            int(QStyle::visualAlignment(m_option.direction, Qt::Alignment(align))) |
                                Qt::TextSingleLine,
                            shown);
    }

    void paintDay()
    {
        if (m_day.isEmpty())
            return;
        QRect day = m_row;
        day.setHeight(px(DAY_HEIGHT));
        drawText(day, m_day, fontOf(13, STRONG_WEIGHT), Token::Text2,
                 Qt::AlignLeft | Qt::AlignVCenter);
        m_row.setTop(day.bottom() + 1);
    }

    void paintGround()
    {
        const bool isHovered = m_option.state & QStyle::State_MouseOver;
        if (!isSelected() && !isHovered && !hasFocus())
            return;
        const double ring = hasFocus() ? 2.0 : 1.0;
        const double half = ring / 2;
        m_painter->setBrush(color(isSelected() ? Token::AccentSoft
                                  : isHovered  ? Token::Sunken
                                               : Token::Surface));
        m_painter->setPen(isSelected() || hasFocus() ? QPen(color(Token::Accent), ring)
                                                     : QPen(Qt::NoPen));
        m_painter->drawRoundedRect(QRectF(m_row).adjusted(half, half, -half, -half), px(RADIUS),
                                   px(RADIUS));
    }

    void paintDisc()
    {
        const QRect disc = mirrored(
            QRect(m_row.left() + px(PADDING), m_row.top() + px(PADDING), px(DISC), px(DISC)));
        const Token ground = isSelected()  ? Token::Surface
                             : m_isWaiting ? Token::AccentSoft
                                           : Token::Sunken;
        m_painter->setPen(Qt::NoPen);
        m_painter->setBrush(color(ground));
        m_painter->drawEllipse(disc);
        QRect symbol(0, 0, px(ICON), px(ICON));
        symbol.moveCenter(disc.center());
        icon(m_isWaiting ? "list" : "messages", m_isWaiting ? Token::AccentText : Token::Text2)
            .paint(m_painter, symbol);
    }

    /// Paints the sender, the time and, if the message is unread, a dot.
    void paintHead()
    {
        const QFont timeFont = fontOf(12, QFont::Normal);
        const QString time = clockText(m_message.receivedAt);
        const int top = m_row.top() + px(PADDING) - px(2);
        const int height = px(20);
        int end = textEnd();
        if (m_message.isUnread) {
            const QRect dot(end - px(DOT) + 1, top + (height - px(DOT)) / 2, px(DOT), px(DOT));
            m_painter->setPen(Qt::NoPen);
            m_painter->setBrush(color(Token::Accent));
            m_painter->drawEllipse(mirrored(dot));
            end -= px(DOT + 8);
        }
        const int width = QFontMetrics(timeFont).horizontalAdvance(time) + 1;
        drawText(QRect(end - width, top, width, height), time, timeFont, Token::Text2,
                 Qt::AlignRight | Qt::AlignVCenter);
        const QRect sender(textStart(), top, end - width - px(8) - textStart(), height);
        drawText(sender, isolatedWords(m_message.sender), fontOf(14, STRONG_WEIGHT), Token::Text,
                 Qt::AlignLeft | Qt::AlignVCenter);
    }

    void paintText()
    {
        const QRect line(textStart(), m_row.top() + px(PADDING + 20), textEnd() - textStart(),
                         px(20));
        const QString text = m_message.text.isEmpty() ? dashboardText("MESSAGE_UNKNOWN_TEXT")
                                                      : firstLine(m_message.text);
        drawText(line, text, fontOf(13, QFont::Normal), Token::Text2,
                 Qt::AlignLeft | Qt::AlignVCenter);
    }

    void paintChip()
    {
        const QFont font = fontOf(12, STRONG_WEIGHT);
        const QString text = dashboardText("MESSAGE_WAITS");
        const int width =
            qMin(QFontMetrics(font).horizontalAdvance(text) + px(20), textEnd() - textStart());
        const QRect chip(textStart(), m_row.top() + px(PADDING + 42), width, px(CHIP_HEIGHT));
        m_painter->setPen(Qt::NoPen);
        m_painter->setBrush(color(isSelected() ? Token::Surface : Token::AccentSoft));
        m_painter->drawRoundedRect(mirrored(chip), chip.height() / 2.0, chip.height() / 2.0);
        drawText(chip.adjusted(px(8), 0, -px(8), 0), text, font, Token::AccentText,
                 Qt::AlignCenter);
    }

    QPainter *m_painter;
    const QStyleOptionViewItem &m_option;
    QRect m_row; // the row without the day above it
    const Message m_message;
    const QString m_day;
    const bool m_isWaiting;
};

} // namespace

MessageDelegate::MessageDelegate(QObject *parent) : QStyledItemDelegate(parent) {}

void MessageDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    RowPainter(painter, option, index).paint();
    painter->restore();
}

QSize MessageDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const
{
    const Look &look = Look::instance();
    int height = look.px(ROW_HEIGHT);
    if (!index.data(MessageModel::DayRole).toString().isEmpty())
        height += look.px(DAY_HEIGHT);
    if (index.data(MessageModel::WaitingRole).toBool())
        height += look.px(CHIP_HEIGHT + CHIP_GAP);
    return QSize(look.px(200), height);
}

} // namespace Dashboard
