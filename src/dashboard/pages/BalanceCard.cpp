#include "BalanceCard.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "account/AccountWords.h"
#include "base/DashboardText.h"
#include "base/Isolate.h"
#include "look/Controls.h"
#include "look/Icons.h"
#include "look/Look.h"

namespace Dashboard
{

namespace
{

const int OLD_DAYS = 7;      // the card shows the age of a balance that is at least this old
const int WIDE_HEIGHT = 196; // in pixels at 100 % text size
const int REPLY_LINES = 3;   // the maximum for a reply that does not contain a balance

QString firstLines(const QString &text)
{
    QStringList lines;
    for (const QString &line : text.split(QLatin1Char('\n'))) {
        if (!line.trimmed().isEmpty() && lines.size() < REPLY_LINES)
            lines << line.trimmed();
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace

BalanceCard::BalanceCard(QWidget *parent)
    : QFrame(parent), m_layout(new QVBoxLayout(this)), m_title(makeLabel("heroStrong", this)),
      m_asked(makeLabel("hero", this)), m_chips(new QWidget(this)),
      m_chipRow(new QBoxLayout(QBoxLayout::LeftToRight, m_chips)), m_age(new Chip(m_chips)),
      m_low(new Chip(m_chips)), m_outdated(new Chip(m_chips)), m_amount(makeLabel("display", this)),
      m_unit(makeLabel("displayUnit", this)), m_reply(makeLabel("heroReply", this)),
      m_validity(makeLabel("hero", this)), m_buttons(new QWidget(this)),
      m_buttonRow(new QBoxLayout(QBoxLayout::LeftToRight, m_buttons)),
      m_validityRow(new QHBoxLayout), m_topUp(makeButton("hero", this)),
      m_ask(makeButton("heroOutline", this)), m_show(makeButton("heroOutline", this))
{
    setObjectName(QLatin1String("Dashboard_BalanceCard"));
    setBox(this, "hero");
    m_topUp->setObjectName(QLatin1String("Dashboard_TopUpButton"));
    m_ask->setObjectName(QLatin1String("Dashboard_AskButton"));
    m_show->setObjectName(QLatin1String("Dashboard_ShowReplyButton"));
    m_amount->setObjectName(QLatin1String("Dashboard_BalanceAmount"));
    m_reply->setObjectName(QLatin1String("Dashboard_BalanceReply"));
    makeChips();
    m_layout->addLayout(makeHead());
    m_layout->addLayout(makeAmount());
    m_layout->addWidget(m_reply);
    m_layout->addLayout(makeValidity());
    m_layout->addWidget(m_chips);
    m_layout->addStretch(1);
    m_layout->addWidget(makeButtons());
    for (QLabel *label : {m_reply, m_validity})
        label->setWordWrap(true);
    setSpacing(m_layout, 4);
    setNarrow(false);
    connect(&Look::instance(), &Look::changed, this, &BalanceCard::limitHeight);
}

void BalanceCard::limitHeight()
{
    setMinimumHeight(m_isNarrow ? 0 : px(WIDE_HEIGHT));
}

QLayout *BalanceCard::makeHead()
{
    m_head = new QBoxLayout(QBoxLayout::LeftToRight);
    setSpacing(m_head, 8);
    m_asked->setWordWrap(true);
    m_head->addWidget(m_title);
    m_head->addWidget(m_asked, 1);
    return m_head;
}

QLayout *BalanceCard::makeAmount()
{
    QHBoxLayout *row = new QHBoxLayout;
    setSpacing(row, 8);
    row->addWidget(m_amount, 0, Qt::AlignBottom);
    // Moves the text with the smaller font up, so that it has the same baseline as the larger font.
    QVBoxLayout *unit = new QVBoxLayout;
    setMargins(unit, 0, 0, 0, 5);
    unit->addStretch(1);
    unit->addWidget(m_unit);
    row->addLayout(unit);
    row->addStretch(1);
    return row;
}

void BalanceCard::makeChips()
{
    setMargins(m_chipRow, 0, 4, 0, 4);
    setSpacing(m_chipRow, 8);
    m_age->setTone(Tone::Neutral);
    m_low->setTone(Tone::Warn);
    m_outdated->setTone(Tone::Warn);
    m_outdated->setObjectName(QLatin1String("Dashboard_BalanceOutdated"));
    m_chipRow->addWidget(m_low, 0, Qt::AlignLeading);
    m_chipRow->addWidget(m_outdated, 0, Qt::AlignLeading);
    m_chipRow->addWidget(m_age, 0, Qt::AlignLeading);
    m_chipRow->addStretch(1);
}

QLayout *BalanceCard::makeValidity()
{
    setSpacing(m_validityRow, 8);
    m_validityRow->addWidget(m_validity, 1);
    return m_validityRow;
}

QWidget *BalanceCard::makeButtons()
{
    setMargins(m_buttonRow, 0, 8, 0, 0); // the text above the buttons may have two lines
    setSpacing(m_buttonRow, 8);
    setButtonIcon(m_topUp, "topup", Token::HeroA);
    setButtonIcon(m_ask, "refresh", Token::OnHero);
    setButtonIcon(m_show, "list", Token::OnHero);
    for (QPushButton *button : {m_topUp, m_ask, m_show})
        m_buttonRow->addWidget(button);
    m_buttonRow->addStretch(1);
    m_buttons->setMinimumWidth(
        1); // otherwise, the minimum would be the width of all buttons; see arrangeButtons()
    connect(m_topUp, &QPushButton::clicked, this, &BalanceCard::topUpRequested);
    connect(m_ask, &QPushButton::clicked, this, &BalanceCard::askRequested);
    connect(m_show, &QPushButton::clicked, this, &BalanceCard::replyRequested);
    return m_buttons;
}

/// Moves the time below the title if there is no space for both in a single row.
void BalanceCard::arrangeHead()
{
    if (!isVisible())
        return; // the card is resized when it is shown
    const QMargins margins = m_layout->contentsMargins();
    const int room = width() - margins.left() - margins.right();
    const int wanted = m_title->sizeHint().width() + m_head->spacing() +
                       m_asked->fontMetrics().horizontalAdvance(m_asked->text());
    const bool isRow = wanted <= room;
    m_head->setDirection(isRow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_asked->setAlignment((isRow ? Qt::AlignTrailing : Qt::AlignLeading) | Qt::AlignVCenter);
}

/// Returns the width that all buttons require in a single row.
int BalanceCard::rowWidth() const
{
    int width = 0;
    for (QPushButton *button : {m_topUp, m_ask, m_show}) {
        if (!button->isHidden() && (!m_isNarrow || button != m_show))
            width += button->sizeHint().width() + m_buttonRow->spacing();
    }
    return width - m_buttonRow->spacing();
}

/// Shows or hides the icons of the "top up" and "ask again" buttons, which are only decoration.
void BalanceCard::showIcons(bool areShown)
{
    if (areShown == !m_ask->icon().isNull())
        return;
    m_topUp->setIcon(areShown ? icon("topup", Token::HeroA) : QIcon());
    m_ask->setIcon(areShown ? icon("refresh", Token::OnHero) : QIcon());
}

/// If there is not enough space, hides the text of the last button, and then the icons of the
/// others. If this is not sufficient, arranges the buttons vertically.
void BalanceCard::arrangeButtons()
{
    if (!isVisible())
        return; // the card is resized when it is shown
    const QMargins margins = m_layout->contentsMargins();
    const int room = width() - margins.left() - margins.right();
    const QString text = dashboardText("HOME_SHOW_REPLY");
    m_show->setText(m_isNarrow ? QString() : text);
    showIcons(true);
    if (rowWidth() > room)
        m_show->setText(QString());
    showIcons(rowWidth() <= room);
    const bool isRow = rowWidth() <= room;
    if (!isRow && !m_isNarrow)
        m_show->setText(text);
    if (!isRow)
        showIcons(true);
    m_show->setToolTip(m_show->text().isEmpty() ? text : QString());
    m_buttonRow->setDirection(isRow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    // In a column, the buttons are not stretched, because in a right-to-left window, the style does
    // not centre the icon of a wider button.
    for (QPushButton *button : {m_topUp, m_ask, m_show})
        m_buttonRow->setAlignment(button, isRow ? Qt::Alignment() : Qt::AlignLeading);
}

void BalanceCard::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    arrangeHead();
    arrangeButtons();
}

void BalanceCard::setNarrow(bool isNarrow)
{
    m_isNarrow = isNarrow;
    if (isNarrow)
        setMargins(m_layout, 20, 14, 20, 16);
    else
        setMargins(m_layout, 24, 20, 24, 20);
    m_chipRow->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    limitHeight();
    // In the narrow form, there is no space for a third button in the row.
    if (isNarrow)
        m_validityRow->addWidget(m_show);
    else
        m_buttonRow->insertWidget(2, m_show);
    showButtons();
}

void BalanceCard::show(const BalanceView &view)
{
    m_view = view;
    m_title->setText(dashboardText(view.isInvented ? "HOME_BALANCE_INVENTED" : "HOME_BALANCE"));
    showAmount();
    showAge();
    showButtons();
    describe();
}

void BalanceCard::showAmount()
{
    const std::optional<Money> &amount = m_view.entry.reading.amount;
    const bool isUnread = !m_view.entry.isNull() && !amount;
    m_amount->setVisible(!isUnread);
    m_unit->setVisible(bool(amount));
    m_reply->setVisible(isUnread);
    setLabelType(m_amount, amount ? "display" : "heroReply");
    m_amount->setText(amount ? isolated(amountText(*amount)) : dashboardText("HOME_NOT_ASKED"));
    m_unit->setText(amount ? isolated(amount->currency) : QString());
    m_reply->setText(isUnread ? firstLines(m_view.entry.text) : QString());
    const bool isKnown = m_view.validity.isValid();
    m_validity->setVisible(isKnown);
    m_validity->setText(isKnown ? validityText(m_view.validity, m_view.now.date()) : QString());
}

void BalanceCard::showAge()
{
    const bool isAsked = !m_view.entry.isNull();
    const qint64 days = isAsked ? m_view.entry.askedAt.date().daysTo(m_view.now.date()) : 0;
    m_asked->setText(
        isAsked ? dashboardText("HOME_ASKED").arg(whenText(m_view.entry.askedAt, m_view.now))
                : QString());
    m_age->setText(dashboardText("HOME_DAYS_OLD").arg(days));
    m_age->setVisible(days >= OLD_DAYS);
    m_low->setText(dashboardText("HOME_LOW"));
    m_low->setVisible(m_view.isLow);
    m_outdated->setText(dashboardText("HOME_OUTDATED"));
    m_outdated->setVisible(isAsked && m_view.isOutdated);
    m_chips->setVisible(m_view.isLow || days >= OLD_DAYS || m_outdated->isVisibleTo(m_chips));
    arrangeHead();
}

void BalanceCard::showButtons()
{
    const bool isAsking = m_view.askingSeconds >= 0;
    const bool isAsked = !m_view.entry.isNull();
    m_topUp->setText(dashboardText("HOME_TOP_UP"));
    m_topUp->setVisible(m_view.canTopUp);
    m_topUp->setEnabled(!isAsking);
    m_ask->setText(isAsking ? dashboardText("HOME_ASKING").arg(m_view.askingSeconds)
                            : dashboardText(isAsked ? "HOME_ASK_AGAIN" : "HOME_ASK_NOW"));
    // While the reply is pending, the button stays enabled, because a disabled button would lose
    // the focus. HomePage ignores the button during this time.
    m_ask->setEnabled(m_view.canAsk || isAsking);
    m_ask->setToolTip(m_view.isMenuOpen ? dashboardText("HOME_END_MENU_FIRST") : QString());
    m_show->setVisible(isAsked);
    m_show->setAccessibleName(dashboardText("HOME_SHOW_REPLY"));
    arrangeButtons();
}

/// Sets the accessible name to a sentence such as "Balance 12.50 EUR, valid until 31 December 2027,
/// asked today at 14:32".
void BalanceCard::describe()
{
    QStringList parts;
    const std::optional<Money> &amount = m_view.entry.reading.amount;
    const QString value = amount                ? moneyText(*amount)
                          : m_reply->isHidden() ? m_amount->text()
                                                : m_reply->text();
    parts << m_title->text() + QLatin1Char(' ') + value;
    for (QLabel *label : {m_validity, m_asked}) {
        if (!label->text().isEmpty())
            parts << label->text();
    }
    if (m_view.isLow)
        parts << m_low->text();
    if (m_outdated->isVisibleTo(m_chips))
        parts << m_outdated->text();
    setAccessibleName(parts.join(QLatin1String(", ")));
    // Only the description contains the elapsed seconds. The name does not change every second, so
    // that screen readers do not read it again.
    setAccessibleDescription(m_view.askingSeconds >= 0 ? m_ask->text() : QString());
}

} // namespace Dashboard
