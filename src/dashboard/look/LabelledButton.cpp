#include <QStyleOptionButton>
#include <QStylePainter>

#include "Controls.h"
#include "Icons.h"
#include "Look.h"

namespace Dashboard
{

namespace
{

// In pixels at 100 % text size.
const int MARGIN = 12;
const int GAP = 14;
const int GAP_BELOW = 4;
const int ICON_SIZE = 20;
const int HEIGHT = 44;
const int HEIGHT_BELOW = 56;
const int TEXT_SIZE = 14;
const int SECOND_SIZE = 13;
const int WORD_SIZE = 12; // font size of the text below an icon
const int BADGE_SIZE = 11;
const int BADGE_HEIGHT = 18;

int widthOf(const QFont &font, const QString &text)
{
    return QFontMetrics(font).size(Qt::TextShowMnemonic, text).width();
}

} // namespace

LabelledButton::LabelledButton(const char *kind, QWidget *parent) : QPushButton(parent)
{
    setAutoDefault(false);
    setButtonKind(this, kind);
    connect(&Look::instance(), &Look::changed, this, [this] {
        updateGeometry();
        update();
    });
}

void LabelledButton::setIcon(const char *name, Token token, Token whenOn)
{
    m_iconName = name;
    m_token = token;
    m_whenOn = whenOn;
    update();
}

void LabelledButton::setText(const QString &text)
{
    QPushButton::setText(text);
    setToolTip(m_arrangement == IconOnly ? text : QString());
}

void LabelledButton::setSecondLine(const QString &text)
{
    m_second = text;
    setAccessibleDescription(text);
    setStyleProperty(this, "lines", text.isEmpty() ? QLatin1String("1") : QLatin1String("2"));
    updateGeometry();
    update();
}

void LabelledButton::setBadge(const QString &text)
{
    m_badge = text;
    updateGeometry();
    update();
}

void LabelledButton::setArrangement(Arrangement arrangement)
{
    m_arrangement = arrangement;
    setText(text());
    updateGeometry();
    update();
}

QSize LabelledButton::sizeHint() const
{
    const int words = qMax(widthOf(textFont(), text()), widthOf(secondFont(), m_second));
    if (m_arrangement == IconOnly)
        return QSize(px(HEIGHT), px(HEIGHT));
    if (m_arrangement == Below)
        return QSize(qMax(words, iconSize()) + 2 * px(GAP_BELOW), px(HEIGHT_BELOW));
    const int icon = m_iconName ? iconSize() + gap() : 0;
    const int badge = m_badge.isEmpty() ? 0 : badgeWidth() + gap();
    return QSize(2 * margin() + icon + words + badge,
                 qMax(px(HEIGHT), textHeight() + 2 * px(GAP_BELOW)));
}

// The minimum width does not depend on the text, because the text can be elided.
QSize LabelledButton::minimumSizeHint() const
{
    return QSize(px(HEIGHT), sizeHint().height());
}

void LabelledButton::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    option.icon = QIcon();
    QStylePainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawControl(QStyle::CE_PushButton, option);
    if (m_arrangement == Beside)
        paintBeside(&painter);
    else
        paintBelow(&painter);
}

QFont LabelledButton::textFont() const
{
    const int size = m_arrangement == Below ? WORD_SIZE : TEXT_SIZE;
    const bool isStrong = isChecked() || !m_second.isEmpty();
    return sized(font(), size, isStrong ? STRONG_WEIGHT : QFont::Normal);
}

QFont LabelledButton::secondFont() const
{
    return sized(font(), SECOND_SIZE, QFont::Normal);
}

QFont LabelledButton::badgeFont() const
{
    return sized(font(), BADGE_SIZE, QFont::Bold);
}

int LabelledButton::textHeight() const
{
    const int second = m_second.isEmpty() ? 0 : QFontMetrics(secondFont()).height();
    return QFontMetrics(textFont()).height() + second;
}

int LabelledButton::badgeWidth() const
{
    return qMax(px(BADGE_HEIGHT), widthOf(badgeFont(), m_badge) + px(BADGE_SIZE));
}

QColor LabelledButton::textColor() const
{
    const Look &look = Look::instance();
    if (!isEnabled())
        return look.color(Token::DisabledText);
    return look.color(isChecked() ? m_whenOn : m_second.isEmpty() ? m_token : Token::Text);
}

int LabelledButton::margin() const
{
    return px(MARGIN);
}

int LabelledButton::gap() const
{
    return px(GAP);
}

int LabelledButton::iconSize() const
{
    return px(ICON_SIZE);
}

QRect LabelledButton::mirrored(const QRect &rect) const
{
    return QStyle::visualRect(layoutDirection(), this->rect(), rect);
}

void LabelledButton::paintBeside(QPainter *painter)
{
    int start = margin();
    int end = width() - margin();
    if (m_iconName) {
        paintIcon(painter, QRect(start, (height() - iconSize()) / 2, iconSize(), iconSize()));
        start += iconSize() + gap();
    }
    if (!m_badge.isEmpty()) {
        end -= badgeWidth();
        paintBadge(painter,
                   QRect(end, (height() - px(BADGE_HEIGHT)) / 2, badgeWidth(), px(BADGE_HEIGHT)));
        end -= gap() / 2;
    }
    paintLines(painter, QRect(start, (height() - textHeight()) / 2, end - start, textHeight()));
}

void LabelledButton::paintBelow(QPainter *painter)
{
    const bool hasWord = m_arrangement == Below;
    const int word = hasWord ? px(GAP_BELOW) + textHeight() : 0;
    const int top = (height() - iconSize() - word) / 2;
    const QRect icon((width() - iconSize()) / 2, top, iconSize(), iconSize());
    paintIcon(painter, icon);
    if (hasWord) {
        painter->setFont(textFont());
        painter->setPen(textColor());
        const QRect line(0, icon.bottom() + 1 + px(GAP_BELOW), width(), textHeight());
        painter->drawText(line, Qt::AlignCenter | Qt::TextHideMnemonic,
                          painter->fontMetrics().elidedText(text(), Qt::ElideRight, width(),
                                                            Qt::TextShowMnemonic));
    }
    if (!m_badge.isEmpty())
        paintBadge(painter, QRect(icon.center().x() + px(GAP_BELOW), icon.top() - px(GAP_BELOW),
                                  badgeWidth(), px(BADGE_HEIGHT)));
}

void LabelledButton::paintIcon(QPainter *painter, const QRect &rect)
{
    if (!m_iconName)
        return;
    Dashboard::icon(m_iconName, m_token, m_whenOn)
        .paint(painter, mirrored(rect), Qt::AlignCenter,
               isEnabled() ? QIcon::Normal : QIcon::Disabled, isChecked() ? QIcon::On : QIcon::Off);
}

void LabelledButton::paintLines(QPainter *painter, const QRect &rect)
{
    const int flags =
        int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter));
    QRect line(rect.topLeft(), QSize(rect.width(), QFontMetrics(textFont()).height()));
    painter->setFont(textFont());
    painter->setPen(textColor());
    painter->drawText(mirrored(line), flags | Qt::TextShowMnemonic,
                      painter->fontMetrics().elidedText(text(), Qt::ElideRight, line.width(),
                                                        Qt::TextShowMnemonic));
    line.setTop(line.bottom() + 1);
    line.setBottom(rect.bottom());
    painter->setFont(secondFont());
    if (isEnabled())
        painter->setPen(Look::instance().color(Token::Text3));
    painter->drawText(mirrored(line), flags,
                      painter->fontMetrics().elidedText(m_second, Qt::ElideRight, line.width()));
}

void LabelledButton::paintBadge(QPainter *painter, const QRect &rect)
{
    const QRect shown = mirrored(rect);
    painter->setPen(Qt::NoPen);
    painter->setBrush(Look::instance().color(Token::Accent));
    painter->drawRoundedRect(shown, shown.height() / 2.0, shown.height() / 2.0);
    painter->setPen(Look::instance().color(Token::OnAccent));
    painter->setFont(badgeFont());
    painter->drawText(shown, Qt::AlignCenter, m_badge);
}

} // namespace Dashboard
