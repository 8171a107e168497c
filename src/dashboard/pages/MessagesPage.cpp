#include "MessagesPage.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "base/DashboardText.h"
#include "look/Controls.h"
#include "look/Icons.h"
#include "look/Look.h"
#include "MessageDelegate.h"
#include "MessageReader.h"
#include "messages/MessageModel.h"
#include "messages/MessageStore.h"
#include "plugin/CommandMonitor.h"

namespace Dashboard
{

namespace
{

const int LIST_WIDTH = 360;    // in pixels at 100 % text size
const int FILTER_PADDING = 14; // as in the style sheet
const int FILTER_BORDERS = 2;

/** A filter for the list, and the text keys of its name with and without the number of messages. */
struct FilterText {
    MessageQuery::Filter filter;
    const char *objectName;
    const char *text;
    const char *textWithCount; // null if the number is not shown
};

const FilterText FILTERS[] = {
    {MessageQuery::Filter::All, "Dashboard_MessagesAll", "MESSAGE_ALL", nullptr},
    {MessageQuery::Filter::Unread, "Dashboard_MessagesUnread", "MESSAGE_UNREAD_NONE",
     "MESSAGE_UNREAD_COUNT"},
    {MessageQuery::Filter::Waiting, "Dashboard_MessagesWaiting", "MESSAGE_WAITING_NONE",
     "MESSAGE_WAITING_COUNT"},
};

/// Returns the width of the filter if it is checked. The style makes the text bold, but computes
/// the width of the button from the normal text.
int checkedWidth(QPushButton *filter)
{
    filter->ensurePolished();
    QFont bold = filter->font();
    bold.setWeight(STRONG_WEIGHT);
    const int text = QFontMetrics(bold).horizontalAdvance(filter->text());
    return text + 2 * px(FILTER_PADDING) + FILTER_BORDERS;
}

} // namespace

MessagesPage::MessagesPage(MessageStore *store, CommandMonitor *monitor, QWidget *parent)
    : Page("Dashboard_MessagesPage", parent), m_store(store), m_monitor(monitor),
      m_model(new MessageModel(store, this)), m_title(makeLabel("h1", this)),
      m_markAll(makeButton("ghost", this)), m_listSide(makeCard(this)),
      m_search(new QLineEdit(m_listSide)), m_list(new QListView(m_listSide)),
      m_empty(makeLabel("muted", m_listSide)), m_reader(new MessageReader(this)),
      m_row(new QHBoxLayout)
{
    m_markAll->setObjectName(QLatin1String("Dashboard_MessagesMarkAll"));
    setButtonIcon(m_markAll, "check", Token::AccentText);
    QHBoxLayout *head = new QHBoxLayout;
    head->addWidget(m_title);
    head->addStretch();
    head->addWidget(m_markAll);
    setSpacing(m_row, 16);
    m_row->addWidget(makeList());
    m_row->addWidget(m_reader, 1);
    QVBoxLayout *column = new QVBoxLayout(this);
    setSpacing(column, 8);
    column->addLayout(head);
    column->addLayout(m_row, 1);
    connectParts();
    setTabOrders();
    connect(&Look::instance(), &Look::changed, this, &MessagesPage::showParts);
    connect(&Look::instance(), &Look::changed, this, &MessagesPage::showCounts);
    retranslate();
    setForm(Form::Wide);
}

QWidget *MessagesPage::makeList()
{
    m_search->setObjectName(QLatin1String("Dashboard_MessagesSearch"));
    m_search->setClearButtonEnabled(true);
    m_searchIcon = m_search->addAction(icon("search", Token::Text2), QLineEdit::LeadingPosition);
    m_list->setObjectName(QLatin1String("Dashboard_MessagesList"));
    m_list->setModel(m_model);
    m_list->setItemDelegate(new MessageDelegate(m_list));
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setMouseTracking(true);
    QPalette palette = m_list->palette();
    palette.setColor(QPalette::Base, Qt::transparent);
    m_list->setPalette(palette);
    m_list->viewport()->setAutoFillBackground(false);
    m_empty->setObjectName(QLatin1String("Dashboard_MessagesEmpty"));
    m_empty->setWordWrap(true);
    m_empty->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    QVBoxLayout *column = new QVBoxLayout(m_listSide);
    setMargins(column, 12, 12, 12, 12);
    setSpacing(column, 10);
    column->addWidget(m_search);
    column->addWidget(makeFilters());
    column->addWidget(m_empty, 1); // stretched, so that the filters do not move
    column->addWidget(m_list, 1);
    return m_listSide;
}

QWidget *MessagesPage::makeFilters()
{
    QWidget *filters = new QWidget(m_listSide);
    QHBoxLayout *row = new QHBoxLayout(filters);
    row->setContentsMargins(0, 0, 0, 0);
    setSpacing(row, 6);
    for (int i = 0; i < 3; ++i) {
        m_filters[i] = makeButton("chip", filters);
        m_filters[i]->setObjectName(QLatin1String(FILTERS[i].objectName));
        m_filters[i]->setCheckable(true);
        m_filters[i]->setAutoExclusive(true);
        row->addWidget(m_filters[i]);
        const MessageQuery::Filter filter = FILTERS[i].filter;
        connect(m_filters[i], &QPushButton::clicked, this, [this, filter] { setFilter(filter); });
    }
    m_filters[0]->setChecked(true);
    row->addStretch();
    return filters;
}

void MessagesPage::setTabOrders()
{
    QWidget *before = m_search;
    for (QWidget *next :
         {static_cast<QWidget *>(m_filters[0]), static_cast<QWidget *>(m_filters[1]),
          static_cast<QWidget *>(m_filters[2]), static_cast<QWidget *>(m_list)}) {
        setTabOrder(before, next);
        before = next;
    }
}

void MessagesPage::connectParts()
{
    connect(m_markAll, &QPushButton::clicked, m_store, &MessageStore::markAllRead);
    connect(m_search, &QLineEdit::textChanged, this, &MessagesPage::search);
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MessagesPage::onChosen);
    connect(m_list, &QListView::clicked, this, &MessagesPage::readChosen);
    connect(m_list, &QListView::activated, this, &MessagesPage::readActivated);
    connect(m_reader, &MessageReader::backRequested, this, &MessagesPage::showList);
    connect(m_reader, &MessageReader::deleteRequested, this, &MessagesPage::removeCurrent);
    connect(m_reader->answerBox(), &AnswerBox::answered, m_monitor, &CommandMonitor::answer);
    connect(m_reader->answerBox(), &AnswerBox::endRequested, m_monitor, &CommandMonitor::endMenu);
    connect(m_monitor, &CommandMonitor::changed, this, &MessagesPage::showAnswers);
    connect(m_model, &MessageModel::rowsInserted, this, &MessagesPage::keepPlace);
    connect(m_store, &MessageStore::reset, this, &MessagesPage::showCounts);
    connect(m_store, &MessageStore::allRead, this, &MessagesPage::showCounts);
    connect(m_store, &MessageStore::added, this, &MessagesPage::showCounts);
    connect(m_store, &MessageStore::changed, this, &MessagesPage::showCounts);
}

// ---- the list -----------------------------------------------------------------------------------

void MessagesPage::setFilter(MessageQuery::Filter filter)
{
    MessageQuery query = m_model->query();
    query.filter = filter;
    m_model->setQuery(query);
    showCounts();
}

void MessagesPage::search()
{
    MessageQuery query = m_model->query();
    query.words = m_search->text().simplified();
    m_model->setQuery(query);
    setStyleProperty(m_search, "empty",
                     QLatin1String(m_search->text().isEmpty() ? "true" : "false"));
    showCounts();
}

/// Adjusts the scroll bar when a message is inserted above the visible rows, so that these rows do
/// not move.
void MessagesPage::keepPlace()
{
    QScrollBar *bar = m_list->verticalScrollBar();
    const int before = bar->value();
    const int heightBefore = bar->maximum();
    if (before == 0)
        return;
    m_list->doItemsLayout();
    bar->setValue(before + bar->maximum() - heightBefore);
}

void MessagesPage::showCounts()
{
    const int counts[] = {0, m_store->unreadCount(), m_store->waiting() != 0 ? 1 : 0};
    for (int i = 0; i < 3; ++i) {
        const char *key = counts[i] > 0 ? FILTERS[i].textWithCount : FILTERS[i].text;
        const QString text = dashboardText(key);
        m_filters[i]->setText(counts[i] > 0 ? text.arg(counts[i]) : text);
        m_filters[i]->setMinimumWidth(checkedWidth(m_filters[i]));
    }
    m_markAll->setEnabled(counts[1] > 0);
    const bool isEmpty = m_model->rowCount() == 0;
    const bool isSearch = !(m_model->query() == MessageQuery());
    m_empty->setText(isSearch ? dashboardText("MESSAGE_NONE_FOUND")
                              : dashboardText("MESSAGE_EMPTY") + QLatin1Char('\n') +
                                    dashboardText("MESSAGE_EMPTY_TEXT"));
    m_empty->setVisible(isEmpty);
    m_list->setVisible(!isEmpty);
    showAnswers();
}

void MessagesPage::showEvent(QShowEvent *event)
{
    if (m_model->rowCount() == 0)
        m_model->reload();
    showCounts();
    Page::showEvent(event);
}

// ---- reading ------------------------------------------------------------------------------------

/// Returns the selected row. It may differ from the current row, because the list view makes its
/// first row current when it receives the focus.
QModelIndex MessagesPage::chosen() const
{
    return m_list->selectionModel()->selectedIndexes().value(0);
}

/// Shows the selected message. In the narrow form, selecting a row with the arrow keys does not
/// open the message.
void MessagesPage::onChosen()
{
    if (m_form == Form::Narrow)
        showAnswers();
    else
        readChosen();
}

/// Shows the selected message and marks it as read.
void MessagesPage::readChosen()
{
    const Message message = m_model->message(chosen());
    if (message.isNull())
        return showAnswers();
    m_isReading = true;
    m_store->markRead(message.id);
    showAnswers();
    showParts();
}

/// When the list receives the focus, its first row becomes current but is not selected. Therefore,
/// selects the row before reading its message.
void MessagesPage::readActivated(const QModelIndex &index)
{
    m_list->setCurrentIndex(index);
    m_list->selectionModel()->select(index, QItemSelectionModel::ClearAndSelect);
    readChosen();
    if (m_form == Form::Narrow)
        m_reader->focusBack();
}

/// Updates the message and its answers, or shows a hint if the message no longer exists.
void MessagesPage::showAnswers()
{
    const Message message = m_model->message(chosen());
    const bool isWaiting = !message.isNull() && message.id == m_store->waiting();
    const QDate day = message.receivedAt.date();
    m_reader->setMessage(message, isWaiting, dayText(day, QDate::currentDate()));
    const CommandState &state = m_monitor->state();
    m_reader->answerBox()->setChoices(isWaiting ? state.choices : QList<MenuChoice>());
    m_reader->answerBox()->setUsable(isWaiting && state.kind == CommandState::Kind::MenuOpen);
    if (message.isNull())
        showList();
}

void MessagesPage::showList()
{
    m_isReading = false;
    showParts();
    if (m_form == Form::Narrow && isVisible())
        m_list->setFocus();
}

void MessagesPage::open(qint64 id)
{
    m_search->clear();
    m_filters[0]->setChecked(true);
    setFilter(MessageQuery::Filter::All);
    if (m_model->rowCount() == 0)
        m_model->reload();
    const QModelIndex index = m_model->indexOf(id);
    if (!index.isValid())
        return;
    m_list->setCurrentIndex(index);
    m_list->scrollTo(index);
    readChosen();
}

void MessagesPage::removeCurrent()
{
    m_store->remove(m_reader->message().id);
}

// ---- form and language --------------------------------------------------------------------------

void MessagesPage::setForm(Form form)
{
    m_form = form;
    const bool isNarrow = form == Form::Narrow;
    if (isNarrow)
        setMargins(layout(), 8, 12, 8, 12);
    else
        setMargins(layout(), 24, 16, 24, 20);
    showParts();
}

void MessagesPage::showParts()
{
    const bool isNarrow = m_form == Form::Narrow;
    m_title->setVisible(!isNarrow);
    m_markAll->setVisible(!isNarrow || !m_isReading);
    m_listSide->setVisible(!isNarrow || !m_isReading);
    m_reader->setVisible(!isNarrow || m_isReading);
    m_reader->setNarrow(isNarrow);
    const int width = px(LIST_WIDTH);
    m_listSide->setMinimumWidth(0);
    m_listSide->setMaximumWidth(isNarrow ? QWIDGETSIZE_MAX : width);
    m_row->setStretch(0, isNarrow ? 1 : 3);
    m_row->setStretch(1, isNarrow ? 1 : 4);
}

void MessagesPage::retranslate()
{
    m_title->setText(dashboardText("MESSAGE_TITLE"));
    m_markAll->setText(dashboardText("MESSAGE_MARK_ALL"));
    m_search->setPlaceholderText(dashboardText("MESSAGE_SEARCH"));
    m_search->setAccessibleName(dashboardText("MESSAGE_SEARCH"));
    m_searchIcon->setText(dashboardText("MESSAGE_SEARCH"));
    m_list->setAccessibleName(dashboardText("MESSAGE_LIST"));
    m_reader->retranslate();
    search();
    m_list->viewport()->update();
}

QWidget *MessagesPage::firstFocus() const
{
    if (m_form == Form::Narrow && m_isReading)
        return m_reader;
    return m_model->rowCount() > 0 ? static_cast<QWidget *>(m_list) : m_search;
}

void MessagesPage::focusSearch()
{
    showList();
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

} // namespace Dashboard
