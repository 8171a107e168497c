#include "StateCard.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "look/Controls.h"
#include "look/Look.h"

namespace Dashboard
{

namespace
{

const int CARD_WIDTH = 560; // in pixels at 100 % text size
const int TEXT_WIDTH = 400;

/// Returns true if the main button is highlighted for this remedy. Remedies that only explain
/// something or offer an alternative are not highlighted.
bool isDecisive(Remedy remedy)
{
    switch (remedy) {
    case Remedy::EnterPin:
    case Remedy::Enable:
    case Remedy::LookAgain:
    case Remedy::ChooseOperator:
    case Remedy::UseMyModem:
        return true;
    default:
        return false;
    }
}

const char *kindOf(Remedy remedy, bool isMain)
{
    if (remedy == Remedy::WhatIsPuk)
        return "ghost";
    if (remedy == Remedy::EndForeignSession)
        return "danger";
    return isMain && isDecisive(remedy) ? "primary" : "";
}

Token iconToken(const char *kind)
{
    switch (*kind) {
    case 'p':
        return Token::OnAccent;
    case 'g':
        return Token::AccentText;
    case 'd':
        return Token::Danger;
    default:
        return Token::Text2;
    }
}

/// Returns a layout that centres the widget and respects its maximum width.
QHBoxLayout *centred(QWidget *widget)
{
    QHBoxLayout *row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(widget, 1000);
    row->addStretch(1);
    return row;
}

QLabel *makeWrapped(const char *type, const char *name, QWidget *parent)
{
    QLabel *label = makeLabel(type, parent);
    label->setObjectName(QLatin1String(name));
    label->setWordWrap(true);
    return label;
}

} // namespace

void setRemedyButton(QPushButton *button, Remedy remedy, bool isMain)
{
    button->setObjectName(QString::fromLatin1("Dashboard_Remedy_%1").arg(int(remedy)));
    const char *kind = kindOf(remedy, isMain);
    setButtonKind(button, kind);
    button->setText(remedyText(remedy));
    if (const char *name = remedyIcon(remedy))
        setButtonIcon(button, name, iconToken(kind));
    else
        button->setIcon(QIcon());
}

// ---- buttons ------------------------------------------------------------------------------------

RemedyButtons::RemedyButtons(Qt::Alignment alignment, QWidget *parent)
    : QWidget(parent), m_alignment(alignment),
      m_layout(new QBoxLayout(QBoxLayout::LeftToRight, this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    setSpacing(m_layout, 8);
}

void RemedyButtons::setRemedies(const QList<Remedy> &remedies)
{
    if (remedies != m_remedies) {
        m_remedies = remedies;
        makeButtons();
    }
    for (int i = 0; i < m_buttons.size(); ++i)
        setRemedyButton(m_buttons.at(i), m_remedies.at(i), i == 0);
    setShown(this, !m_remedies.isEmpty());
    updateGeometry();
    arrange();
}

/// Creates a button for each remedy. The previous buttons are deleted later, because the click on
/// one of them may still be in progress.
void RemedyButtons::makeButtons()
{
    for (QPushButton *button : m_buttons) {
        button->hide();
        button->deleteLater();
    }
    m_buttons.clear();
    for (const Remedy remedy : m_remedies) {
        QPushButton *button = makeButton("", this);
        connect(button, &QPushButton::clicked, this, [this, remedy] { emit chosen(remedy); });
        m_layout->addWidget(button);
        m_buttons << button;
    }
}

int RemedyButtons::rowWidth() const
{
    int width = -m_layout->spacing();
    for (const QPushButton *button : m_buttons)
        width += button->sizeHint().width() + m_layout->spacing();
    return width;
}

/// Aligns the buttons without stretching them. In a stretched button with a style sheet, icon and
/// text would be at opposite ends in a right-to-left layout.
void RemedyButtons::arrange()
{
    const bool isRow = rowWidth() <= width();
    m_layout->setDirection(isRow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_layout->setAlignment(isRow ? m_alignment : Qt::Alignment());
    for (QPushButton *button : m_buttons)
        m_layout->setAlignment(button, isRow ? Qt::Alignment() : m_alignment);
}

void RemedyButtons::resizeEvent(QResizeEvent *event)
{
    arrange();
    QWidget::resizeEvent(event);
}

/// Returns the width of the widest button, so that a row of buttons does not widen its parents.
QSize RemedyButtons::minimumSizeHint() const
{
    int width = 0;
    for (const QPushButton *button : m_buttons)
        width = qMax(width, button->minimumSizeHint().width());
    return QSize(width, m_layout->minimumSize().height());
}

// ---- cards --------------------------------------------------------------------------------------

StateCard::StateCard(QWidget *parent)
    : QWidget(parent), m_card(Dashboard::makeCard(this)), m_icon(new IconDisc(m_card)),
      m_title(makeWrapped("h2", "Dashboard_StateTitle", m_card)),
      m_text(makeWrapped("muted", "Dashboard_StateText", m_card)),
      m_remedies(new RemedyButtons(Qt::AlignHCenter, m_card)),
      m_lastKnown(Dashboard::makeCard(this)),
      m_lastTitle(makeWrapped("strong", "Dashboard_LastKnownTitle", m_lastKnown)),
      m_lastText(makeWrapped("small", "Dashboard_LastKnownText", m_lastKnown))
{
    setObjectName(QLatin1String("Dashboard_StateCard"));
    makeCard();
    makeLastKnown();
    QVBoxLayout *column = new QVBoxLayout(this);
    setMargins(column, 0, 16, 0, 0);
    setSpacing(column, 16);
    column->addLayout(centred(m_card));
    column->addLayout(centred(m_lastKnown));
    column->addStretch();
    connect(m_remedies, &RemedyButtons::chosen, this, &StateCard::chosen);
    connect(&Look::instance(), &Look::changed, this, &StateCard::limitWidths);
    limitWidths();
    setLastKnown(QString(), QString());
}

void StateCard::makeCard()
{
    m_title->setAlignment(Qt::AlignCenter);
    m_text->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    QVBoxLayout *column = new QVBoxLayout(m_card);
    setMargins(column, 24, 28, 24, 28);
    setSpacing(column, 8);
    column->addWidget(m_icon, 0, Qt::AlignHCenter);
    column->addSpacing(px(8));
    column->addWidget(m_title);
    column->addLayout(centred(m_text));
    column->addSpacing(px(8));
    column->addWidget(m_remedies);
}

void StateCard::makeLastKnown()
{
    IconDisc *icon = new IconDisc(m_lastKnown);
    icon->setIcon("clock", Tone::Neutral);
    QVBoxLayout *texts = new QVBoxLayout;
    setSpacing(texts, 4);
    texts->addWidget(m_lastTitle);
    texts->addWidget(m_lastText);
    QHBoxLayout *row = new QHBoxLayout(m_lastKnown);
    setMargins(row, 16, 12, 16, 12);
    setSpacing(row, 12);
    row->addWidget(icon, 0, Qt::AlignTop);
    row->addLayout(texts, 1);
}

void StateCard::limitWidths()
{
    const Look &look = Look::instance();
    m_card->setMaximumWidth(look.px(CARD_WIDTH));
    m_lastKnown->setMaximumWidth(look.px(CARD_WIDTH));
    m_text->setMaximumWidth(look.px(TEXT_WIDTH));
}

void StateCard::setSituation(const Situation &situation)
{
    const bool isNew = m_title->text() != situation.title || m_text->text() != situation.text;
    m_icon->setIcon(situation.icon, situation.tone);
    m_title->setText(situation.title);
    m_text->setText(situation.text);
    m_remedies->setRemedies(situation.remedies);
    m_card->setAccessibleName(situation.title);
    m_card->setAccessibleDescription(situation.text);
    if (!isNew || !isVisible())
        return;
    QAccessibleEvent event(m_card, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void StateCard::setLastKnown(const QString &title, const QString &text)
{
    m_lastTitle->setText(title);
    m_lastText->setText(text);
    m_lastText->setVisible(!text.isEmpty());
    m_lastKnown->setVisible(!title.isEmpty());
}

QPushButton *StateCard::firstButton() const
{
    return m_remedies->firstButton();
}

} // namespace Dashboard
