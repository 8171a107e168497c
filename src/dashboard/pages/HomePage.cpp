#include "HomePage.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QVBoxLayout>

#include "account/AccountRecorder.h"
#include "account/AccountStore.h"
#include "account/AccountWords.h"
#include "account/Favourites.h"
#include "AccountTile.h"
#include "AppActions.h"
#include "BalanceCard.h"
#include "BalanceChart.h"
#include "base/ClockText.h"
#include "base/DashboardText.h"
#include "base/Isolate.h"
#include "FavouriteDialog.h"
#include "FavouriteGrid.h"
#include "look/Controls.h"
#include "look/Look.h"
#include "PageColumn.h"
#include "plugin/CommandMonitor.h"
#include "StateCard.h"

namespace Dashboard
{

namespace
{

const int MARGIN = 24;      // in pixels at 100 % text size
const int GAP = 16;         // in pixels at 100 % text size
const int SCROLL_BAR = 16;  // in pixels at 100 % text size
const int WIDEST = 1040;    // in pixels at 100 % text size
const double LARGE = 1.5;   // at this scale and above, the favourites have a single column
const int NARROW_COUNT = 4; // the number of favourites in the narrow form

QString shortWhen(const QDateTime &time, const QDateTime &now)
{
    return time.date() == now.date() ? clockText(time) : shortDate(time.date());
}

} // namespace

HomePage::HomePage(const Parts &parts, QWidget *parent)
    : Page("Dashboard_HomePage", parent), m_parts(parts), m_column(new PageColumn(WIDEST, this)),
      m_state(new StateCard(this))
{
    QVBoxLayout *all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(m_column);
    m_column->column()->addWidget(m_state);
    makeAccount();
    makeTiles();
    makeFavourites();
    makeMessage();
    m_column->column()->addStretch(1);
    // Hides the cards until look() has decided which of them to show. The layout of the window
    // would load the fonts of all cards, and each font takes more than one per cent of the start
    // time.
    for (QWidget *part :
         std::initializer_list<QWidget *>{m_state, m_account, m_tiles, m_favourites})
        part->hide();
    connect(m_state, &StateCard::chosen, this,
            [this](Remedy remedy) { m_parts.actions->perform(remedy); });
    connect(m_parts.store, &AccountStore::changed, this, &HomePage::lookSoon);
    if (m_parts.monitor) {
        connect(m_parts.monitor, &CommandMonitor::changed, this, &HomePage::lookSoon);
        connect(m_parts.monitor, &CommandMonitor::ticked, this, &HomePage::lookAtBalance);
    }
    connect(m_parts.favourites, &Favourites::changed, this, &HomePage::lookSoon);
    connect(&Look::instance(), &Look::changed, this, &HomePage::lookSoon);
    setForm(Form::Wide);
}

// ---- construction -------------------------------------------------------------------------------

void HomePage::makeAccount()
{
    m_account = new QWidget(this);
    m_accountRow = new QBoxLayout(QBoxLayout::LeftToRight, m_account);
    m_accountRow->setContentsMargins(0, 0, 0, 0);
    setSpacing(m_accountRow, 16);
    m_balance = new BalanceCard(m_account);
    m_chart = new BalanceChart(m_account);
    m_accountRow->addWidget(m_balance, 5);
    m_accountRow->addWidget(m_chart, 4);
    m_column->column()->addWidget(m_account);
    connect(m_balance, &BalanceCard::topUpRequested, this, &HomePage::topUp);
    connect(m_balance, &BalanceCard::askRequested, this, &HomePage::askAgain);
    connect(m_balance, &BalanceCard::replyRequested, this, &HomePage::showReply);
}

void HomePage::makeTiles()
{
    m_tiles = new QFrame(this);
    m_tileRow = new QBoxLayout(QBoxLayout::LeftToRight, m_tiles);
    m_number = new AccountTile("number", "copy", m_tiles);
    m_validity = new AccountTile("calendar", "refresh", m_tiles);
    m_data = new AccountTile("data", "refresh", m_tiles);
    m_tileLine = makeLine(m_tiles);
    m_number->setObjectName(QLatin1String("Dashboard_NumberTile"));
    m_validity->setObjectName(QLatin1String("Dashboard_ValidityTile"));
    m_data->setObjectName(QLatin1String("Dashboard_DataTile"));
    m_tileRow->addWidget(m_number, 1);
    m_tileRow->addWidget(m_validity, 1);
    m_tileRow->addWidget(m_tileLine);
    m_tileRow->addWidget(m_data, 1);
    m_column->column()->addWidget(m_tiles);
    connect(m_number, &AccountTile::pressed, this, &HomePage::copyNumber);
    connect(m_validity, &AccountTile::pressed, this, [this] { send(validityEntry().code); });
    connect(m_data, &AccountTile::pressed, this, [this] { send(m_codes.data); });
}

void HomePage::makeFavourites()
{
    m_favourites = new QWidget(this);
    QVBoxLayout *column = new QVBoxLayout(m_favourites);
    setMargins(column, 0, 8, 0, 0);
    setSpacing(column, 12);
    QHBoxLayout *head = new QHBoxLayout;
    m_favouritesTitle = makeLabel("h2", m_favourites);
    m_edit = makeButton("ghost", m_favourites);
    m_edit->setObjectName(QLatin1String("Dashboard_EditFavouritesButton"));
    setButtonIcon(m_edit, "edit", Token::AccentText);
    head->addWidget(m_favouritesTitle, 1);
    head->addWidget(m_edit);
    m_grid = new FavouriteGrid(m_favourites);
    column->addLayout(head);
    column->addWidget(m_grid);
    m_column->column()->addWidget(m_favourites);
    connect(m_edit, &QPushButton::clicked, this, &HomePage::editFavourites);
    connect(m_grid, &FavouriteGrid::addRequested, this, &HomePage::editFavourites);
    connect(m_grid, &FavouriteGrid::chosen, this, &HomePage::choose);
}

void HomePage::makeMessage()
{
    m_messageRow = makeCard(this);
    m_messageRow->setObjectName(QLatin1String("Dashboard_HomeMessage"));
    QHBoxLayout *row = new QHBoxLayout(m_messageRow);
    setMargins(row, 12, 10, 16, 10);
    setSpacing(row, 12);
    IconDisc *disc = new IconDisc(m_messageRow);
    disc->setIcon("messages", Tone::Accent);
    ElidedLabel *title = new ElidedLabel(m_messageRow);
    setLabelType(title, "strong");
    m_messageTitle = title;
    m_messageNote = makeLabel("cap", m_messageRow);
    m_messageButton = makeButton("", m_messageRow);
    QVBoxLayout *texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addWidget(m_messageTitle);
    texts->addWidget(m_messageNote);
    row->addWidget(disc);
    row->addLayout(texts, 1);
    row->addWidget(m_messageButton);
    m_column->column()->addWidget(m_messageRow);
    m_messageRow->hide();
    connect(m_messageButton, &QPushButton::clicked, this,
            [this] { emit messageChosen(m_message.id); });
}

// ---- content ------------------------------------------------------------------------------------

void HomePage::setCodes(const AccountCodes &codes)
{
    m_codes = codes;
    lookSoon();
}

void HomePage::setSituation(const Situation &situation)
{
    m_situation = situation;
    lookSoon();
}

void HomePage::setSimText(const QString &text)
{
    m_simText = text;
    lookSoon();
}

void HomePage::setMessage(const HomeMessage &message)
{
    m_message = message;
    m_messageRow->setVisible(message.id != 0 && isNormal());
    static_cast<ElidedLabel *>(m_messageTitle)->setText(isolatedWords(message.title));
    m_messageTitle->setAccessibleName(message.title);
    m_messageNote->setText(message.note);
    m_messageButton->setText(dashboardText(message.waitsForAnswer ? "HOME_ANSWER" : "HOME_READ"));
    m_messageButton->setAccessibleDescription(message.title);
}

void HomePage::retranslate()
{
    m_favouritesTitle->setText(dashboardText("HOME_FAVOURITES"));
    m_edit->setText(dashboardText("HOME_EDIT"));
    m_number->setActionText(dashboardText("HOME_COPY_NUMBER"));
    for (AccountTile *tile : {m_validity, m_data})
        tile->setActionText(dashboardText("HOME_ASK_AGAIN"));
    setMessage(m_message);
    look();
}

void HomePage::setForm(Form form)
{
    m_form = form;
    const bool isNarrow = form == Form::Narrow;
    m_column->setForm(form);
    setMargins(m_tileRow, 0, 0, 0, 0);
    setSpacing(m_tileRow, isNarrow ? 0 : 16);
    setSpacing(m_column->column(), isNarrow ? 12 : 16);
    setBox(m_tiles, isNarrow ? "card" : "");
    setLabelType(m_favouritesTitle, isNarrow ? "h3" : "h2");
    m_balance->setNarrow(isNarrow);
    for (AccountTile *tile : {m_number, m_validity, m_data})
        tile->setNarrow(isNarrow);
    retranslate();
    arrangeCards();
}

/// Returns the width that the widgets require in a single row.
int HomePage::rowWidth(const QList<QWidget *> &widgets)
{
    int width = -px(GAP);
    for (const QWidget *widget : widgets) {
        if (widget->isVisibleTo(widget->parentWidget()))
            width += widget->minimumSizeHint().width() + px(GAP);
    }
    return width;
}

/// Arranges the cards vertically if there is not enough space for them in a row. Does nothing while
/// they are hidden, because measuring them loads fonts that are not needed yet. look() arranges
/// them when it shows them.
void HomePage::arrangeCards()
{
    if (!isVisible() || !isNormal())
        return;
    const int room = width() - px(2 * MARGIN + SCROLL_BAR);
    const bool isNarrow = m_form == Form::Narrow;
    const bool isAccountColumn = isNarrow || rowWidth({m_balance, m_chart}) > room;
    const bool isTileColumn = isNarrow || rowWidth({m_number, m_validity, m_data}) > room;
    m_accountRow->setDirection(isAccountColumn ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_tileRow->setDirection(isTileColumn ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

void HomePage::resizeEvent(QResizeEvent *event)
{
    Page::resizeEvent(event);
    arrangeCards();
}

QWidget *HomePage::firstFocus() const
{
    return isNormal() ? static_cast<QWidget *>(m_balance->askButton()) : m_state->firstButton();
}

/// Updates the page now, because the database is not opened until the page is visible.
void HomePage::showEvent(QShowEvent *event)
{
    Page::showEvent(event);
    look();
}

void HomePage::changeEvent(QEvent *event)
{
    Page::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        lookSoon();
}

/// Schedules a single update, even if several values have changed.
void HomePage::lookSoon()
{
    if (m_isLooking)
        return;
    m_isLooking = true;
    QMetaObject::invokeMethod(this, &HomePage::look, Qt::QueuedConnection);
}

void HomePage::look()
{
    m_isLooking = false;
    if (!isVisible())
        return;
    QWidget *const focus = window()->focusWidget();
    lookAtSituation();
    lookAtFavourites();
    if (isNormal())
        lookAtAccount();
    keepFocus(focus);
}

/// If the update has disabled the widget with the focus, moves the focus to the button that shows
/// the progress. Returns the focus when a later update enables the widget again.
void HomePage::keepFocus(QWidget *focus)
{
    QPushButton *const ask = m_balance->askButton();
    if (focus && isAncestorOf(focus) && focus->isVisible() && !focus->isEnabled()) {
        if (ask->isVisible() && ask->isEnabled())
            ask->setFocus();
        m_disabledFocus = focus;
        m_refuge = window()->focusWidget();
    } else if (m_disabledFocus && m_disabledFocus->isEnabled()) {
        if (m_refuge == window()->focusWidget())
            m_disabledFocus->setFocus();
        m_disabledFocus.clear();
    }
}

void HomePage::lookAtAccount()
{
    lookAtBalance();
    lookAtTiles();
    const bool hasChart = m_form != Form::Narrow && !m_codes.balance.isEmpty();
    m_chart->setVisible(hasChart);
    if (hasChart)
        m_chart->show(m_parts.store->lastDays(), m_parts.store->now().date());
    arrangeCards();
}

/// Returns true if the page shows the account, and false if it shows only the situation of the
/// device.
bool HomePage::isNormal() const
{
    return m_situation.kind == Situation::Kind::Ready ||
           m_situation.kind == Situation::Kind::WaitsForTurn;
}

bool HomePage::canSend() const
{
    return m_situation.canSend && m_parts.monitor && m_parts.monitor->canSend() &&
           m_parts.monitor->state().kind != CommandState::Kind::MenuOpen;
}

/// Returns the number of seconds since this code was sent, or -1 if no reply to it is pending.
int HomePage::askingSeconds(const QString &code) const
{
    if (!m_parts.monitor || code.isEmpty())
        return -1;
    const CommandState &state = m_parts.monitor->state();
    return state.isPending() && state.code == code ? state.seconds : -1;
}

void HomePage::lookAtSituation()
{
    const bool hasAccount = isNormal() && !m_codes.balance.isEmpty();
    m_state->setVisible(!isNormal());
    m_account->setVisible(hasAccount);
    m_messageRow->setVisible(isNormal() && m_message.id != 0);
    if (isNormal())
        return m_tiles->setVisible(true);
    m_tiles->setVisible(false);
    m_state->setSituation(m_situation);
    const AccountEntry last = m_parts.store->newestBalance();
    if (!last.reading.amount)
        return m_state->setLastKnown(QString(), QString());
    const QString when = whenText(last.askedAt, m_parts.store->now());
    m_state->setLastKnown(dashboardText("HOME_LAST_KNOWN").arg(moneyText(*last.reading.amount)),
                          m_simText.isEmpty()
                              ? dashboardText("HOME_LAST_ASKED").arg(when)
                              : dashboardText("HOME_LAST_ASKED_SIM").arg(m_simText, when));
}

void HomePage::lookAtBalance()
{
    if (!isVisible() || !isNormal())
        return;
    BalanceView view;
    view.entry = m_parts.store->newest(m_codes.balance);
    view.now = m_parts.store->now();
    view.validity = validityEntry().reading.date.value_or(QDate());
    view.isOutdated = m_parts.store->isOutdated();
    view.isInvented = m_parts.store->isDemonstration();
    view.isLow = view.entry.reading.amount && m_parts.recorder->isLow(*view.entry.reading.amount);
    view.canAsk = canSend();
    view.canTopUp = m_codes.hasTopUp;
    view.isMenuOpen =
        m_parts.monitor && m_parts.monitor->state().kind == CommandState::Kind::MenuOpen;
    view.askingSeconds = askingSeconds(m_codes.balance);
    m_balance->show(view);
}

/// Returns the most recent entry that contains the validity. Its code is replaced with the code for
/// querying the validity.
AccountEntry HomePage::validityEntry() const
{
    const AccountEntry own = m_parts.store->newest(m_codes.validity);
    const AccountEntry balance = m_parts.store->newest(m_codes.balance);
    AccountEntry entry = own;
    const bool isNewer = own.isNull() || !own.reading.date || balance.askedAt > own.askedAt;
    if (balance.reading.date && isNewer)
        entry = balance;
    entry.code = m_codes.validity.isEmpty() ? m_codes.balance : m_codes.validity;
    return entry;
}

void HomePage::lookAtTiles()
{
    lookAtNumber();
    lookAtValidity();
    lookAtData();
    m_validity->setActionEnabled(canSend() || askingSeconds(validityEntry().code) >= 0);
    m_data->setActionEnabled(canSend() || askingSeconds(m_codes.data) >= 0);
    const bool areBoth = m_form == Form::Narrow && !m_number->isHidden() && !m_data->isHidden();
    m_tileLine->setVisible(areBoth);
    m_tiles->setVisible(!m_number->isHidden() || !m_validity->isHidden() || !m_data->isHidden());
}

void HomePage::lookAtNumber()
{
    const AccountEntry entry = m_parts.store->newest(m_codes.number);
    const QString complete = m_parts.store->number();
    const QDateTime now = m_parts.store->now();
    TileView view;
    view.caption = dashboardText("HOME_NUMBER");
    view.isValueCode = entry.reading.number.has_value();
    view.value = complete.isEmpty() ? isolated(entry.reading.number.value_or(QString()))
                                    : isolated(complete);
    if (!view.isValueCode)
        view.value = entry.isNull() ? dashboardText("HOME_NOT_ASKED") : entry.text.simplified();
    view.note = entry.isNull() ? QString() : whenText(entry.askedAt, now);
    view.shortNote = entry.isNull() ? QString() : shortWhen(entry.askedAt, now);
    m_number->show(view);
    m_number->setActionEnabled(!complete.isEmpty());
    m_number->setVisible(!m_codes.number.isEmpty());
}

void HomePage::lookAtValidity()
{
    const AccountEntry entry = validityEntry();
    const QDate today = m_parts.store->now().date();
    TileView view;
    view.caption = dashboardText("HOME_VALIDITY");
    if (entry.reading.date) {
        view.value = longDate(*entry.reading.date);
        view.note = *entry.reading.date < today ? dashboardText("HOME_HAS_ENDED")
                                                : daysLeftText(*entry.reading.date, today);
    } else {
        view.value = entry.isNull() ? dashboardText("HOME_NOT_ASKED") : entry.text.simplified();
    }
    m_validity->show(view);
    // In the narrow form, the balance card shows the validity instead of this tile.
    m_validity->setVisible(!m_codes.validity.isEmpty() && m_form != Form::Narrow);
}

void HomePage::lookAtData()
{
    const AccountEntry entry = m_parts.store->newest(m_codes.data);
    const QDateTime now = m_parts.store->now();
    TileView view;
    view.caption = dashboardText("HOME_DATA");
    view.value = entry.isNull() ? dashboardText("HOME_NOT_ASKED") : entry.text.simplified();
    const QString when = entry.isNull() ? QString() : whenText(entry.askedAt, now);
    view.note = when;
    view.shortNote = entry.isNull() ? QString() : shortWhen(entry.askedAt, now);
    if (entry.reading.data) {
        const DataVolume &data = *entry.reading.data;
        const QString left = volumeText(data.left);
        const QString total = volumeText(data.total);
        view.value = left;
        if (data.total > 0) {
            view.shortValue = dashboardText("HOME_DATA_OF").arg(left, total);
            view.note = dashboardText("HOME_OF").arg(total) + QString(QChar(0x20)) + QChar(0xb7) +
                        QChar(0x20) + when;
            view.share = double(data.left) / double(data.total);
        }
    }
    m_data->show(view);
    m_data->setVisible(!m_codes.data.isEmpty());
}

int HomePage::favouriteColumns() const
{
    if (Look::instance().scale() >= LARGE)
        return 1;
    return m_form == Form::Narrow ? 2 : 3;
}

int HomePage::favouriteCount() const
{
    return m_form == Form::Narrow ? NARROW_COUNT : Favourites::MOST;
}

void HomePage::lookAtFavourites()
{
    const bool isShown = (isNormal() || m_situation.kind == Situation::Kind::CodesUnknown) &&
                         !(m_codes.all.isEmpty() && m_parts.favourites->chains().isEmpty());
    m_favourites->setVisible(isShown);
    const QList<NamedCode> codes = m_parts.favourites->among(m_codes).mid(0, favouriteCount());
    m_grid->setColumns(favouriteColumns());
    m_grid->show(codes, codes.size() < favouriteCount());
    m_grid->setEnabled(m_situation.canSend);
}

// ---- actions ------------------------------------------------------------------------------------

void HomePage::askAgain()
{
    send(m_codes.balance);
}

void HomePage::send(const QString &code)
{
    if (canSend() && !code.isEmpty())
        m_parts.monitor->send(code);
}

void HomePage::topUp()
{
    m_parts.actions->topUp();
}

void HomePage::showReply()
{
    const AccountEntry entry = m_parts.store->newest(m_codes.balance);
    QMessageBox *box = new QMessageBox(this);
    box->setObjectName(QLatin1String("Dashboard_ReplyBox"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(dashboardText("HOME_REPLY_TO").arg(isolated(entry.code)));
    box->setTextFormat(Qt::PlainText);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->setText(entry.text);
    QPushButton *close = box->addButton(dashboardText("HOME_CLOSE"), QMessageBox::AcceptRole);
    box->setDefaultButton(close);
    box->open();
}

void HomePage::copyNumber()
{
    QApplication::clipboard()->setText(m_parts.store->number());
}

void HomePage::choose(const NamedCode &code)
{
    if (code.isChain())
        return m_parts.actions->runChain(code.name);
    if (!code.takesNumber())
        return m_parts.actions->sendCode(code.code);
    CodeNumberDialog *dialog = new CodeNumberDialog(code, this);
    connect(dialog, &CodeNumberDialog::completed, this,
            [this](const QString &complete) { m_parts.actions->sendCode(complete); });
    dialog->open();
}

void HomePage::editFavourites()
{
    Favourites *favourites = m_parts.favourites;
    FavouriteDialog *dialog = new FavouriteDialog(
        m_codes.all + favourites->chains(), favourites->among(m_codes), Favourites::MOST, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [favourites, dialog] {
        for (const QString &chain : dialog->removed())
            favourites->remove(chain);
        const QMap<QString, QString> renamed = dialog->renamed();
        for (auto name = renamed.begin(); name != renamed.end(); ++name)
            favourites->rename(name.key(), name.value());
        favourites->select(dialog->selected());
    });
    dialog->open();
}

} // namespace Dashboard
