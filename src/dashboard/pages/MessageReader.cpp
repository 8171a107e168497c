#include "MessageReader.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

#include "base/ClockText.h"
#include "base/DashboardText.h"
#include "base/Isolate.h"
#include "look/Controls.h"
#include "look/Look.h"

namespace Dashboard
{

namespace
{

const int GAP = 8;              // in pixels at 100 % text size
const int LONGEST_ANSWER = 182; // the limit of the plug-in's command field

QLabel *makeText(const char *type, const char *name, QWidget *parent)
{
    QLabel *label = makeLabel(type, parent);
    label->setObjectName(QLatin1String(name));
    label->setWordWrap(true);
    return label;
}

} // namespace

// ---- choices ------------------------------------------------------------------------------------

ChoiceButtons::ChoiceButtons(QWidget *parent) : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void ChoiceButtons::setChoices(const QList<MenuChoice> &choices)
{
    if (choices == m_choices)
        return;
    m_choices = choices;
    for (QPushButton *button : m_buttons) {
        button->hide();
        button->deleteLater();
    }
    m_buttons.clear();
    for (const MenuChoice &choice : choices) {
        QPushButton *button = makeButton("choice", this);
        button->setText(choice.buttonText());
        button->setAccessibleName(choice.key + QLatin1String(", ") + choice.text);
        button->setToolTip(choice.text);
        const QString key = choice.key;
        connect(button, &QPushButton::clicked, this, [this, key] { emit chosen(key); });
        button->show();
        m_buttons << button;
    }
    setVisible(!choices.isEmpty());
    updateGeometry();
    place(width(), true);
}

/// Returns the height that the rows of buttons require if they have this width. If `isMoving` is
/// true, also moves the buttons. Buttons that are wider than a row are reduced to the width of the
/// row.
int ChoiceButtons::place(int width, bool isMoving) const
{
    const int gap = px(GAP);
    QPoint next(0, 0);
    int bottom = 0;
    for (QPushButton *button : m_buttons) {
        const QSize size = button->sizeHint().boundedTo(QSize(qMax(1, width), QWIDGETSIZE_MAX));
        if (next.x() > 0 && next.x() + size.width() > width)
            next = QPoint(0, bottom + gap);
        if (isMoving)
            button->setGeometry(QStyle::visualRect(layoutDirection(), rect(), QRect(next, size)));
        bottom = qMax(bottom, next.y() + size.height());
        next.rx() += size.width() + gap;
    }
    return bottom;
}

int ChoiceButtons::heightForWidth(int width) const
{
    return place(width, false);
}

QSize ChoiceButtons::sizeHint() const
{
    const int width = px(280);
    return QSize(width, heightForWidth(width));
}

QSize ChoiceButtons::minimumSizeHint() const
{
    return QSize(px(120), heightForWidth(qMax(width(), 1)));
}

void ChoiceButtons::resizeEvent(QResizeEvent *event)
{
    place(width(), true);
    QWidget::resizeEvent(event);
}

void ChoiceButtons::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange || event->type() == QEvent::StyleChange)
        place(width(), true);
    QWidget::changeEvent(event);
}

// ---- the answer ---------------------------------------------------------------------------------

AnswerBox::AnswerBox(QWidget *parent)
    : QWidget(parent), m_choices(new ChoiceButtons(this)), m_field(new QLineEdit(this)),
      m_send(makeButton("primary", this)), m_costs(makeText("cap", "Dashboard_AnswerCosts", this)),
      m_end(makeButton("danger", this))
{
    m_field->setObjectName(QLatin1String("Dashboard_AnswerField"));
    m_field->setMaxLength(LONGEST_ANSWER);
    m_send->setObjectName(QLatin1String("Dashboard_AnswerSend"));
    setButtonIcon(m_send, "send", Token::OnAccent);
    m_end->setObjectName(QLatin1String("Dashboard_AnswerEnd"));
    setButtonIcon(m_end, "stop", Token::Danger);
    QHBoxLayout *row = new QHBoxLayout;
    setSpacing(row, GAP);
    row->addWidget(m_field, 1);
    row->addWidget(m_send);
    QVBoxLayout *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    setSpacing(column, 12);
    column->addWidget(m_choices);
    column->addLayout(row);
    column->addWidget(m_costs);
    column->addWidget(m_end, 0, Qt::AlignLeft);
    connect(m_choices, &ChoiceButtons::chosen, this, &AnswerBox::answered);
    connect(m_field, &QLineEdit::textChanged, this, &AnswerBox::onEdited);
    connect(m_field, &QLineEdit::returnPressed, this, &AnswerBox::send);
    connect(m_send, &QPushButton::clicked, this, &AnswerBox::send);
    connect(m_end, &QPushButton::clicked, this, &AnswerBox::endRequested);
    m_choices->hide();
    retranslate();
    onEdited();
}

void AnswerBox::setChoices(const QList<MenuChoice> &choices)
{
    m_hasChoices = !choices.isEmpty();
    m_choices->setChoices(choices);
    retranslate();
}

void AnswerBox::setUsable(bool isUsable)
{
    setEnabled(isUsable);
    onEdited();
}

void AnswerBox::setNarrow(bool isNarrow)
{
    m_isNarrow = isNarrow;
    retranslate();
}

void AnswerBox::clear()
{
    m_field->clear();
}

void AnswerBox::retranslate()
{
    const QString hint = dashboardText(m_hasChoices ? "MESSAGE_ANSWER" : "MESSAGE_ANSWER_ONLY");
    m_field->setPlaceholderText(hint);
    m_field->setAccessibleName(hint);
    m_send->setText(dashboardText("MESSAGE_SEND"));
    m_costs->setText(dashboardText("MESSAGE_COSTS"));
    m_end->setText(dashboardText(m_isNarrow ? "STRIP_END_MENU" : "MESSAGE_END"));
    m_end->setAccessibleName(dashboardText("MESSAGE_END"));
}

void AnswerBox::onEdited()
{
    const bool isEmpty = m_field->text().isEmpty();
    m_send->setEnabled(isEnabled() && !isEmpty);
    setStyleProperty(m_field, "empty", QLatin1String(isEmpty ? "true" : "false"));
}

void AnswerBox::send()
{
    const QString text = m_field->text();
    if (!text.isEmpty())
        emit answered(text);
}

// ---- the message --------------------------------------------------------------------------------

MessageReader::MessageReader(QWidget *parent)
    : QFrame(parent), m_back(makeButton("ghost", this)), m_icon(new IconDisc(this)),
      m_sender(makeText("h3", "Dashboard_MessageSender", this)),
      m_when(makeText("cap", "Dashboard_MessageWhen", this)), m_copy(makeIconButton("copy", this)),
      m_delete(makeIconButton("trash", this)), m_line(makeLine(this)), m_content(new QWidget(this)),
      m_text(makeText("body", "Dashboard_MessageText", m_content)), m_chip(new Chip(m_content)),
      m_answers(new AnswerBox(m_content)), m_hint(makeText("muted", "Dashboard_MessageHint", this))
{
    setObjectName(QLatin1String("Dashboard_MessageReader"));
    setBox(this, "card");
    m_back->setObjectName(QLatin1String("Dashboard_MessageBack"));
    m_copy->setObjectName(QLatin1String("Dashboard_MessageCopy"));
    m_delete->setObjectName(QLatin1String("Dashboard_MessageDelete"));
    m_chip->setObjectName(QLatin1String("Dashboard_MessageChip"));
    m_chip->setTone(Tone::Accent);
    setButtonIcon(m_back, "chevronL", Token::AccentText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QVBoxLayout *content = new QVBoxLayout(m_content);
    content->setContentsMargins(0, 0, 0, 0);
    setSpacing(content, 12);
    m_text->setFocusPolicy(Qt::ClickFocus); // the Tab key stops at the scroll area instead
    content->addWidget(m_text);
    content->addSpacing(px(8));
    content->addWidget(m_chip, 0, Qt::AlignLeft);
    content->addWidget(m_answers);
    content->addStretch();
    QScrollArea *scroll = new QScrollArea(this);
    scroll->setObjectName(QLatin1String("Dashboard_MessageScroll"));
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidgetResizable(true);
    scroll->setWidget(m_content);
    setBox(scroll, "plain");
    setBox(scroll->viewport(), "plain");
    setBox(m_content, "plain");
    QVBoxLayout *column = new QVBoxLayout(this);
    setMargins(column, 20, 16, 20, 16);
    setSpacing(column, 12);
    column->addWidget(m_back, 0, Qt::AlignLeft);
    column->addWidget(makeHead());
    column->addWidget(m_line);
    column->addWidget(m_hint);
    column->addWidget(scroll, 1);
    connect(m_back, &QPushButton::clicked, this, &MessageReader::backRequested);
    connect(m_copy, &QPushButton::clicked, this, &MessageReader::copy);
    connect(m_delete, &QPushButton::clicked, this, &MessageReader::deleteRequested);
    setNarrow(false);
    setMessage(Message(), false, QString());
}

QWidget *MessageReader::makeHead()
{
    QWidget *head = new QWidget(this);
    head->setObjectName(QLatin1String("Dashboard_MessageHead"));
    QVBoxLayout *texts = new QVBoxLayout;
    setSpacing(texts, 2);
    texts->addWidget(m_sender);
    texts->addWidget(m_when);
    QHBoxLayout *row = new QHBoxLayout(head);
    row->setContentsMargins(0, 0, 0, 0);
    setSpacing(row, 12);
    row->addWidget(m_icon);
    row->addLayout(texts, 1);
    row->addWidget(m_copy);
    row->addWidget(m_delete);
    return head;
}

void MessageReader::setMessage(const Message &message, bool isWaiting, const QString &day)
{
    if (message.id != m_message.id)
        m_answers->clear();
    m_message = message;
    m_day = day;
    m_icon->setIcon(isWaiting ? "list" : "messages", isWaiting ? Tone::Accent : Tone::Neutral);
    m_chip->setVisible(isWaiting);
    m_answers->setVisible(isWaiting);
    for (QWidget *part : {m_icon->parentWidget(), m_line, m_content})
        part->setVisible(!message.isNull());
    m_hint->setVisible(message.isNull());
    retranslate();
}

void MessageReader::setNarrow(bool isNarrow)
{
    m_back->setVisible(isNarrow);
    m_answers->setNarrow(isNarrow);
}

void MessageReader::focusBack()
{
    m_back->setFocus(Qt::OtherFocusReason);
}

void MessageReader::retranslate()
{
    const QString time = clockText(m_message.receivedAt);
    m_back->setText(dashboardText("MESSAGE_BACK"));
    const bool isMirrored = layoutDirection() == Qt::RightToLeft; // even for Latin names
    m_sender->setAlignment((isMirrored ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute |
                           Qt::AlignVCenter);
    m_sender->setText(m_message.sender);
    m_when->setText(dashboardText("MESSAGE_WHEN").arg(m_day, time));
    m_text->setText(m_message.text.isEmpty() ? dashboardText("MESSAGE_UNKNOWN_TEXT")
                                             : m_message.text);
    m_text->setAccessibleName(dashboardText("MESSAGE_TEXT"));
    m_text->setAccessibleDescription(m_text->text());
    m_chip->setText(dashboardText("MESSAGE_WAITS"));
    m_hint->setText(dashboardText("MESSAGE_CHOOSE"));
    setIconButtonText(m_copy, dashboardText("MESSAGE_COPY"));
    setIconButtonText(m_delete, dashboardText("MESSAGE_DELETE"));
    m_answers->retranslate();
}

void MessageReader::copy()
{
    QGuiApplication::clipboard()->setText(m_message.text);
}

} // namespace Dashboard
