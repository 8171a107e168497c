#include "StateStrip.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>

#include "base/DashboardText.h"
#include "base/Isolate.h"
#include "look/Controls.h"
#include "look/Icons.h"
#include "look/Look.h"
#include "SecondsRing.h"
#include "StateCard.h"

namespace Dashboard
{

namespace
{

const int HEIGHT = 116; // pixels at 100 % text size
const int SPACING = 8;
const int MOST_RECENT = 3;
const int ROOM_FOR_MORE = 64;  // the width of the button that opens the remaining choices
const int CHOICE_PADDING = 40; // the padding on both sides of a choice and the spacing after it

using Kind = CommandState::Kind;

/** Gives the strip the role of a status bar, so that screen readers can read it on request. */
class StripAccessible : public QAccessibleWidget
{
public:
    explicit StripAccessible(QWidget *strip) : QAccessibleWidget(strip, QAccessible::StatusBar) {}
};

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    StateStrip *strip = qobject_cast<StateStrip *>(object);
    return strip ? new StripAccessible(strip) : nullptr;
}

void installAccessible()
{
    static const bool isInstalled = [] {
        QAccessible::installFactory(makeAccessible);
        return true;
    }();
    Q_UNUSED(isInstalled);
}

const char *styleOf(Kind kind)
{
    if (kind == Kind::MenuOpen)
        return "menu";
    return kind == Kind::Failed ? "failed" : "";
}

} // namespace

StateStrip::StateStrip(QWidget *parent)
    : QFrame(parent), m_sign(new QStackedWidget(this)), m_icon(new IconDisc(m_sign)),
      m_ring(new SecondsRing(m_sign)), m_title(new ElidedLabel(this)),
      m_text(new ElidedLabel(this)), m_row(new QWidget(this)), m_rowLayout(new QHBoxLayout(m_row))
{
    installAccessible();
    m_situation.canSend = true;
    setObjectName(QLatin1String("Dashboard_StateStrip"));
    setBox(this, "strip");
    m_title->setObjectName(QLatin1String("Dashboard_StripTitle"));
    m_text->setObjectName(QLatin1String("Dashboard_StripText"));
    setLabelType(m_title, "h3");
    setLabelType(m_text, "small");
    m_ring->setObjectName(QLatin1String("Dashboard_SecondsRing"));
    m_row->setObjectName(QLatin1String("Dashboard_StripRow"));
    makeEndButtons();
    makeRows();
    connect(&Look::instance(), &Look::changed, this, [this] {
        updateHeight();
        m_rowWidth = -1;
        fillRow();
    });
    retranslate();
}

// ---- parts ---------------------------------------------------------------------------------

QPushButton *StateStrip::addEndButton(const char *kind, const char *name)
{
    QPushButton *button = makeButton(kind, this);
    button->setObjectName(QLatin1String(name));
    return button;
}

QPushButton *StateStrip::addIconButton(const char *iconName, const char *name)
{
    QPushButton *button = makeIconButton(iconName, this);
    button->setObjectName(QLatin1String(name));
    return button;
}

void StateStrip::makeEndButtons()
{
    m_history = addEndButton("ghost", "Dashboard_HistoryButton");
    m_copy = addIconButton("copy", "Dashboard_CopyReplyButton");
    m_ownWindow = addIconButton("window", "Dashboard_OwnWindowButton");
    m_cancel = addEndButton("", "Dashboard_CancelCommand");
    m_end = addEndButton("danger", "Dashboard_EndMenu");
    m_dismiss = addEndButton("ghost", "Dashboard_DismissFailure");
    m_more = addIconButton("more", "Dashboard_StripMore");
    setButtonIcon(m_history, "clock", Token::AccentText);
    setButtonIcon(m_cancel, "close", Token::Text);
    setButtonIcon(m_end, "stop", Token::Danger);
    setButtonIcon(m_dismiss, "close", Token::AccentText);
    connect(m_history, &QPushButton::clicked, this, &StateStrip::historyRequested);
    connect(m_copy, &QPushButton::clicked, this, &StateStrip::copyRequested);
    connect(m_ownWindow, &QPushButton::clicked, this, &StateStrip::ownWindowRequested);
    connect(m_more, &QPushButton::clicked, this, &StateStrip::showMore);
    connect(m_cancel, &QPushButton::clicked, this, &StateStrip::cancelled);
    connect(m_end, &QPushButton::clicked, this, &StateStrip::menuEnded);
    connect(m_dismiss, &QPushButton::clicked, this, &StateStrip::dismissed);
    connect(m_dismiss, &QPushButton::clicked, this, &StateStrip::chainDismissed);
}

void StateStrip::makeRows()
{
    m_sign->addWidget(m_icon);
    m_sign->addWidget(m_ring);
    m_sign->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    QVBoxLayout *words = new QVBoxLayout;
    words->setSpacing(0);
    words->addWidget(m_title);
    words->addWidget(m_text);
    QHBoxLayout *top = new QHBoxLayout;
    setSpacing(top, 12);
    top->addWidget(m_sign);
    top->addLayout(words, 1);
    for (QPushButton *button : {m_history, m_copy, m_ownWindow, m_cancel, m_end, m_dismiss, m_more})
        top->addWidget(button);
    m_rowLayout->setContentsMargins(0, 0, 0, 0);
    setSpacing(m_rowLayout, SPACING);
    QVBoxLayout *column = new QVBoxLayout(this);
    column->setSpacing(0);
    column->addLayout(top);
    column->addStretch(1); // the first row has a maximum height, so it would be centred
    column->addWidget(m_row);
    setForm(m_form);
}

/// Sets the height of the strip, which depends only on the font. The heights of the rows are also
/// fixed, so that their content does not move the widgets below the strip.
void StateStrip::updateHeight()
{
    setFixedHeight(px(HEIGHT));
    m_row->setFixedHeight(px(36));
    m_sign->setFixedSize(m_ring->sizeHint());
}

void StateStrip::setForm(Form form)
{
    m_form = form;
    if (form == Form::Narrow)
        setMargins(layout(), 12, 14, 12, 14);
    else
        setMargins(layout(), 24, 14, 20, 14);
    updateHeight();
    update();
}

// ---- content -------------------------------------------------------------------------------

void StateStrip::setCommand(const CommandState &state)
{
    m_state = state;
    update();
}

void StateStrip::setChain(const ChainState &chain)
{
    m_chain = chain;
    update();
}

void StateStrip::setKeepOffered(bool isOffered)
{
    if (isOffered == m_isKeepOffered)
        return;
    m_isKeepOffered = isOffered;
    update();
}

void StateStrip::setSituation(const Situation &situation)
{
    m_situation = situation;
    update();
}

void StateStrip::setRecent(const QList<CodeName> &codes)
{
    m_recent = codes;
    update();
}

void StateStrip::setOwnWindowOffered(bool isOffered)
{
    m_isOwnWindowOffered = isOffered;
    update();
}

void StateStrip::setReplyThere(bool isThere)
{
    m_copy->setEnabled(isThere);
}

void StateStrip::setModes(bool canAllowOlder, bool canRestore)
{
    if (canAllowOlder == m_canAllowOlder && canRestore == m_canRestoreModes)
        return;
    m_canAllowOlder = canAllowOlder;
    m_canRestoreModes = canRestore;
    update();
}

bool StateStrip::isBlocked() const
{
    return !m_situation.canSend && !m_state.isPending();
}

/// Returns true if the strip shows why a chain has stopped. If a menu is open, its choices are also
/// shown.
bool StateStrip::showsStoppedChain() const
{
    return !isBlocked() && m_chain.hasStopped() &&
           (m_state.kind == Kind::Ready || m_state.kind == Kind::MenuOpen);
}

QString StateStrip::title() const
{
    return m_title->QLabel::text();
}

QString StateStrip::text() const
{
    return m_text->QLabel::text();
}

void StateStrip::retranslate()
{
    m_history->setAccessibleName(dashboardText("STRIP_HISTORY"));
    setIconButtonText(m_ownWindow, dashboardText("STRIP_OWN_WINDOW"));
    setIconButtonText(m_copy, dashboardText("STRIP_COPY"));
    setIconButtonText(m_more, dashboardText("STRIP_MORE"));
    m_cancel->setText(dashboardText("STRIP_CANCEL"));
    m_dismiss->setAccessibleName(dashboardText("STRIP_DISMISS"));
    m_rowWidth = -1;
    update();
}

void StateStrip::update()
{
    const bool isNarrow = m_form == Form::Narrow;
    if (isBlocked())
        showWords(m_situation.title, m_situation.text);
    else if (showsStoppedChain())
        showWords(m_chain.title, m_chain.text);
    else if (m_state.kind == Kind::MenuOpen && isNarrow)
        showWords(dashboardText("STRIP_MENU_NARROW"),
                  m_state.choices.isEmpty() ? m_state.text
                                            : dashboardText("STRIP_MENU_CHOOSE_NARROW"));
    else if (m_state.kind == Kind::Ready && isNarrow)
        showWords(m_state.title, QString()); // in most languages, there is room for only one word
    else
        showWords(m_state.title, m_state.text);
    updateIcon();
    updateEndButtons();
    m_rowWidth = -1;
    fillRow();
    announce();
}

void StateStrip::showWords(const QString &title, const QString &text)
{
    m_title->setText(title);
    m_text->setText(text);
    m_text->setVisible(!text.isEmpty());
    const bool isFailure = !isBlocked() && m_state.kind == Kind::Failed;
    setLabelType(m_title, isFailure ? "danger" : "h3");
    setStyleProperty(this, "state", QLatin1String(isBlocked() ? "" : styleOf(m_state.kind)));
}

void StateStrip::updateIcon()
{
    m_sign->setCurrentWidget(m_state.kind == Kind::Waiting ? static_cast<QWidget *>(m_ring)
                                                           : m_icon);
    m_ring->setValue(m_state.seconds);
    m_ring->setAccessibleName(m_state.text);
    if (isBlocked())
        m_icon->setIcon(m_situation.icon ? m_situation.icon : "modem", m_situation.tone);
    else if (showsStoppedChain())
        m_icon->setIcon("warning", Tone::Warn);
    else if (m_state.kind == Kind::MenuOpen)
        m_icon->setIcon("list", Tone::Accent);
    else if (m_state.kind == Kind::Failed)
        m_icon->setIcon("warning", Tone::Danger);
    else if (m_state.kind == Kind::Queued)
        m_icon->setIcon("clock", Tone::Neutral);
    else if (m_state.kind == Kind::Cancelled)
        m_icon->setIcon("stop", Tone::Neutral);
    else
        m_icon->setIcon("check", Tone::Ok);
}

void StateStrip::updateEndButtons()
{
    const bool isBlockedNow = isBlocked();
    const bool isStopped = showsStoppedChain() && m_state.kind == Kind::Ready;
    const bool isRest =
        (m_state.kind == Kind::Ready || m_state.kind == Kind::MenuEnded) && !isStopped;
    const bool isOver = m_state.kind == Kind::Failed || m_state.kind == Kind::Cancelled;
    m_history->setVisible(!isBlockedNow && isRest);
    m_ownWindow->setVisible(!isBlockedNow && isRest && m_isOwnWindowOffered &&
                            m_form != Form::Narrow);
    m_cancel->setVisible(m_state.mayBeCancelled);
    m_end->setVisible(!isBlockedNow && m_state.kind == Kind::MenuOpen);
    m_dismiss->setVisible(!isBlockedNow && (isOver || isStopped));
    const bool isNarrow = m_form == Form::Narrow;
    // The explanation of a failure needs the room; the menu contains the same action.
    m_copy->setVisible(!isBlockedNow && !isNarrow && !isOver && !m_state.isPending());
    m_more->setVisible(!isBlockedNow && (isRest || (!isNarrow && !m_state.isPending())));
    // In the narrow form, the buttons show only their icons, because the title needs the space.
    for (QPushButton *button : {m_history, m_dismiss}) {
        button->setText(isNarrow ? QString() : button->accessibleName());
        button->setToolTip(isNarrow ? button->accessibleName() : QString());
    }
    m_end->setText(dashboardText(isNarrow ? "STRIP_END" : "STRIP_END_MENU"));
    m_dismiss->setIcon(isNarrow ? icon("close", Token::AccentText) : QIcon());
    m_end->setIcon(isNarrow ? QIcon() : icon("stop", Token::Danger));
}

/// Shows the menu with the actions for the transcript.
void StateStrip::showMore()
{
    QMenu *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QLatin1String("Dashboard_StripMenu"));
    menu->addAction(dashboardText("STRIP_COPY"), this, &StateStrip::copyRequested)
        ->setEnabled(m_copy->isEnabled());
    menu->addAction(dashboardText("STRIP_FIND"), this, &StateStrip::findRequested);
    menu->addAction(dashboardText("STRIP_SAVE"), this, &StateStrip::saveRequested);
    menu->ensurePolished(); // the style sheet changes the size of the menu
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const int start = isMirrored ? 0 : m_more->width() - menu->sizeHint().width();
    menu->popup(m_more->mapToGlobal(QPoint(start, m_more->height())));
}

void StateStrip::setSeconds(int seconds)
{
    m_state.seconds = seconds;
    m_state.text = dashboardText("STRIP_SECONDS").arg(seconds).arg(REPLY_SECONDS);
    m_text->setText(m_state.text);
    m_ring->setValue(seconds);
    m_ring->setAccessibleName(m_state.text);
    announceSeconds(seconds);
}

// ---- for screen readers --------------------------------------------------------------------

void StateStrip::announce()
{
    const QString words = title() + QString::fromUtf8(" · ") + text();
    const bool isCounting = !isBlocked() && m_state.kind == Kind::Waiting;
    const QString news = isCounting ? title() : words;
    setAccessibleName(title());
    setAccessibleDescription(text());
    if (news == m_announced)
        return;
    m_announced = news;
    alert(words);
}

void StateStrip::alert(const QString &words)
{
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
    emit announced(words);
}

void StateStrip::announceSeconds(int seconds)
{
    if (seconds != 10 && seconds != 20 && seconds != 25)
        return;
    setAccessibleDescription(m_state.text);
    alert(m_state.text);
}

// ---- the second row ------------------------------------------------------------------------

void StateStrip::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    fillRow();
}

void StateStrip::clearRow()
{
    while (QLayoutItem *item = m_rowLayout->takeAt(0)) {
        if (item->widget()) {
            item->widget()->hide();
            item->widget()->deleteLater();
        }
        delete item;
    }
}

/// Creates the content of the second row again if its width or its content has changed.
void StateStrip::fillRow()
{
    const int width = contentsRect().width() - layout()->contentsMargins().left() -
                      layout()->contentsMargins().right();
    if (width == m_rowWidth)
        return;
    m_rowWidth = width;
    clearRow();
    if (isBlocked())
        addRemedies();
    else if (m_state.kind == Kind::Waiting)
        addNote(m_chain.progress.isEmpty() ? dashboardText("STRIP_WAITING_TEXT")
                                           : m_chain.progress);
    else if (m_state.kind == Kind::MenuOpen) {
        addReason();
        addChoices();
    } else if (m_state.kind == Kind::Failed || m_state.kind == Kind::Cancelled)
        addFailureButtons();
    else if (m_state.kind != Kind::Queued) {
        addReason();
        addKeep();
        addRecent();
    }
    orderTabStops();
    m_rowLayout->addStretch(1);
}

/// Inserts the new buttons into the tab order after those of the first row. Otherwise, they would
/// be at the end of the tab order of the window.
void StateStrip::orderTabStops()
{
    QWidget *before = m_more;
    for (int i = 0; i < m_rowLayout->count(); ++i) {
        QWidget *button = m_rowLayout->itemAt(i)->widget();
        setTabOrder(before, button);
        before = button;
    }
}

void StateStrip::addNote(const QString &text)
{
    ElidedLabel *note = new ElidedLabel(m_row);
    setLabelType(note, "small");
    note->setText(text);
    m_rowLayout->addWidget(note, 1000);
}

QPushButton *StateStrip::addButton(const char *kind, const QString &text)
{
    QPushButton *button = makeButton(kind, m_row);
    button->setText(text);
    button->ensurePolished();
    m_rowLayout->addWidget(button);
    return button;
}

/// Returns the remaining width of the row. It is negative if the buttons do not fit.
int StateStrip::roomLeft() const
{
    int used = 0;
    for (int i = 0; i < m_rowLayout->count(); ++i)
        used += m_rowLayout->itemAt(i)->widget()->sizeHint().width() + m_rowLayout->spacing();
    return m_rowWidth - used;
}

void StateStrip::addChoices()
{
    QList<MenuChoice> rest = m_state.choices;
    if (rest.isEmpty())
        return addNote(m_state.menuText.simplified());
    const int roomForMore = px(ROOM_FOR_MORE);
    const int room = roomLeft() - px(ROOM_FOR_MORE + CHOICE_PADDING);
    while (!rest.isEmpty()) {
        addChoice(rest.first(), room);
        const bool isLast = rest.size() == 1;
        if (roomLeft() < (isLast ? -m_rowLayout->spacing() : roomForMore))
            break;
        rest.removeFirst();
    }
    if (rest.isEmpty())
        return;
    QWidget *tooWide = m_rowLayout->itemAt(m_rowLayout->count() - 1)->widget();
    m_rowLayout->removeWidget(tooWide);
    delete tooWide;
    addMore(rest);
}

/// Adds a button for the choice. Elides its text if it is wider than `room` pixels.
void StateStrip::addChoice(const MenuChoice &choice, int room)
{
    QPushButton *button = addButton("choice", choice.buttonText());
    button->setText(button->fontMetrics().elidedText(button->text(), Qt::ElideRight, room));
    button->setToolTip(choice.text);
    button->setObjectName(QLatin1String("Dashboard_Choice"));
    button->setAccessibleName(dashboardText("CHOICE_NAME").arg(choice.key, choice.text));
    const QString key = choice.key;
    connect(button, &QPushButton::clicked, this, [this, key] { emit answered(key); });
}

void StateStrip::addMore(const QList<MenuChoice> &rest)
{
    QPushButton *more = addButton("choice", dashboardText("CHOICE_MORE").arg(rest.size()));
    more->setObjectName(QLatin1String("Dashboard_MoreChoices"));
    more->setAccessibleName(dashboardText("CHOICE_MORE_NAME").arg(rest.size()));
    QMenu *menu = new QMenu(more);
    for (const MenuChoice &choice : rest) {
        const QString key = choice.key;
        menu->addAction(choice.buttonText(), this, [this, key] { emit answered(key); });
    }
    connect(more, &QPushButton::clicked, menu,
            [more, menu] { menu->popup(more->mapToGlobal(QPoint(0, more->height()))); });
}

/// If the failure occurs only on 4G, adds the button that allows the modem to use 2G and 3G.
void StateStrip::addAllowOlder()
{
    if (m_state.failure != TKSV_FAILURE_NOT_ON_4G || !m_canAllowOlder)
        return;
    QPushButton *allow = addButton("primary", dashboardText("STRIP_ALLOW_OLDER"));
    allow->setObjectName(QLatin1String("Dashboard_AllowOlder"));
    connect(allow, &QPushButton::clicked, this, &StateStrip::olderModesRequested);
}

/// Adds the button that restores the setting that the modem had before 2G and 3G were allowed.
void StateStrip::addOnly4G()
{
    if (!m_canRestoreModes)
        return;
    QPushButton *only = addButton("", dashboardText("STRIP_ONLY_4G"));
    only->setObjectName(QLatin1String("Dashboard_Only4G"));
    connect(only, &QPushButton::clicked, this, &StateStrip::formerModesRequested);
}

/// Adds the button that shows the complete reason why the chain has stopped, because the strip may
/// elide it.
void StateStrip::addReason()
{
    if (!showsStoppedChain())
        return;
    QPushButton *reason = makeIconButton("info", m_row);
    reason->setObjectName(QLatin1String("Dashboard_WhyStopped"));
    setIconButtonText(reason, dashboardText("STRIP_WHAT_HAPPENED"));
    connect(reason, &QPushButton::clicked, this, &StateStrip::detailsRequested);
    m_rowLayout->addWidget(reason);
}

/// Adds the button that stores the user's menu choices as a chain. The button precedes those for
/// the most recently sent codes.
void StateStrip::addKeep()
{
    if (!m_isKeepOffered)
        return;
    QPushButton *keep = addButton("", dashboardText("CHAIN_KEEP"));
    keep->setObjectName(QLatin1String("Dashboard_KeepWalk"));
    setButtonIcon(keep, "star", Token::AccentText);
    connect(keep, &QPushButton::clicked, this, &StateStrip::keepRequested);
}

void StateStrip::addRecent()
{
    addOnly4G();
    for (int i = 0; i < m_recent.size() && i < MOST_RECENT; ++i) {
        const CodeName code = m_recent.at(i);
        const QString name = QString(code.name).replace(QLatin1Char('&'), QLatin1String("&&"));
        QPushButton *chip =
            addButton("chip", (isolated(code.code) + QLatin1String("  ") + name).trimmed());
        chip->setObjectName(QLatin1String("Dashboard_RecentCode"));
        connect(chip, &QPushButton::clicked, this, [this, code] { emit codeChosen(code.code); });
        if (roomLeft() >= -m_rowLayout->spacing())
            continue;
        m_rowLayout->removeWidget(chip);
        delete chip;
        return;
    }
}

/// Adds the buttons for a failed command. In the narrow form, the strip may elide the text about
/// the failure. Therefore, the code can be sent again only from the dialog, which shows the
/// complete text.
void StateStrip::addFailureButtons()
{
    addAllowOlder();
    if (m_state.mayBeSentAgain && m_form != Form::Narrow) {
        QPushButton *again = addButton("", dashboardText("STRIP_SEND_AGAIN"));
        again->setObjectName(QLatin1String("Dashboard_SendAgain"));
        setButtonIcon(again, "refresh", Token::Text);
        connect(again, &QPushButton::clicked, this, &StateStrip::sentAgain);
    }
    addOnly4G();
    QPushButton *details = addButton("ghost", dashboardText("STRIP_WHAT_HAPPENED"));
    details->setObjectName(QLatin1String("Dashboard_WhatHappened"));
    setButtonIcon(details, "info", Token::AccentText);
    connect(details, &QPushButton::clicked, this, &StateStrip::detailsRequested);
    if (roomLeft() < -m_rowLayout->spacing()) {
        setIconButtonText(details, details->text());
        details->setText(QString());
    }
}

void StateStrip::addRemedies()
{
    for (const Remedy remedy : m_situation.remedies) {
        QPushButton *button = addButton("", QString());
        setRemedyButton(button, remedy, remedy == m_situation.remedies.first());
        button->ensurePolished();
        connect(button, &QPushButton::clicked, this, [this, remedy] { emit remedyChosen(remedy); });
        if (roomLeft() >= -m_rowLayout->spacing() || m_rowLayout->count() == 1)
            continue;
        m_rowLayout->removeWidget(button);
        delete button;
        return;
    }
}

} // namespace Dashboard
