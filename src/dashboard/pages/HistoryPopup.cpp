#include "HistoryPopup.h"

#include <QCompleter>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLocale>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

#include "base/ClockText.h"
#include "base/DashboardText.h"
#include "base/Isolate.h"
#include "HistoryView.h"
#include "look/Icons.h"
#include "look/Look.h"
#include "plugin/CodeHistory.h"

namespace Dashboard
{

namespace
{

const int CODE_ROLE = Qt::UserRole + 1;  // empty in the row that is shown instead of an empty list
const int CHAIN_ROLE = Qt::UserRole + 2; // the name of a chain; otherwise empty
const int COLUMNS = 3;                   // code, name, time
const int MOST_ROWS = 8;

QString timeText(const QDateTime &utc)
{
    const QDateTime time = utc.toLocalTime();
    const QString clock = clockText(time);
    if (time.date() == QDate::currentDate())
        return dashboardText("HISTORY_TODAY").arg(clock);
    if (time.date() == QDate::currentDate().addDays(-1))
        return dashboardText("HISTORY_YESTERDAY").arg(clock);
    return QLocale().toString(time.date(), QLocale::LongFormat);
}

QString nameOf(const QString &code, const QList<CodeName> &names)
{
    for (const CodeName &named : names) {
        if (named.code == code)
            return named.name;
    }
    return QString();
}

bool startsWith(const QString &code, const QString &name, const QString &start)
{
    return code.startsWith(start) || name.startsWith(start, Qt::CaseInsensitive);
}

bool isMove(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
           key == Qt::Key_PageDown;
}

// In pixels at 100 % text size.
const int LEAST_WIDTH = 340;
const int MARGIN = 8; // between the list and the edges of the window

} // namespace

HistoryPopup::HistoryPopup(CodeHistory *history, const Names &names, const Names &chains,
                           QObject *parent)
    : QObject(parent), m_history(history), m_names(names), m_chains(chains),
      m_model(new QStandardItemModel(0, COLUMNS, this)), m_view(new HistoryView),
      m_completer(new QCompleter(m_model, this))
{
    m_completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_completer->setCompletionRole(CODE_ROLE);
    m_completer->setMaxVisibleItems(MOST_ROWS);
    m_completer->setPopup(m_view); // the completer takes ownership
    m_view->setItemDelegate(
        new QStyledItemDelegate(m_view)); // unlike the default delegate, supports style sheets
    m_view->installEventFilter(
        this); // installed after the completer's filter, so that it runs first
    connect(m_completer, QOverload<const QModelIndex &>::of(&QCompleter::activated), this,
            &HistoryPopup::choose);
    connect(m_view, &HistoryView::deleteRequested, this, [this] {
        m_view->hide();
        m_history->deleteAll();
    });
}

void HistoryPopup::attach(QLineEdit *edit)
{
    if (edit == m_edit)
        return;
    if (m_edit)
        m_edit->disconnect(this);
    m_edit = edit;
    m_completer->setWidget(edit);
    if (!edit)
        return;
    edit->installEventFilter(this);
    connect(edit, &QLineEdit::textEdited, this, &HistoryPopup::onTextEdited);
}

bool HistoryPopup::isOpen() const
{
    return m_view->isVisible();
}

void HistoryPopup::open(const QString &code)
{
    if (!m_edit || !m_edit->isEnabled())
        return;
    m_edit->setFocus(Qt::ShortcutFocusReason);
    fill(QString());
    popUp();
    m_isRowChosen = true;
    m_view->setCurrentIndex(m_view->model()->index(rowOf(code), 0));
}

/// Returns the row of the code, or the first row if the code is not listed.
int HistoryPopup::rowOf(const QString &code) const
{
    int row = m_model->rowCount() - 1;
    while (row > 0 && m_model->index(row, 0).data(CODE_ROLE).toString() != code)
        --row;
    return qMax(row, 0);
}

void HistoryPopup::popUp()
{
    m_isRowChosen = false;
    m_completer->complete();
    place();
    m_view->arrangeColumns();
}

void HistoryPopup::onTextEdited(const QString &text)
{
    const bool isTyped = m_isKeyPressed;
    m_isKeyPressed = false;
    if (!isTyped || !m_isOpenedByTyping || text.isEmpty()) {
        m_view->hide();
        return;
    }
    fill(text);
    if (m_model->rowCount() > 0)
        popUp();
    else
        m_view->hide();
}

/// Places the list. The completer ignores the footer when it computes the height, and takes the
/// width of the field. If the field is too narrow for the names, the list is wider than the field,
/// but not wider than the window.
void HistoryPopup::place()
{
    const QRect field(m_edit->mapToGlobal(QPoint()), m_edit->size());
    const QRect window(m_edit->window()->mapToGlobal(QPoint()), m_edit->window()->size());
    const int margin = px(MARGIN);
    const int width = qMin(qMax(field.width(), px(LEAST_WIDTH)),
                           qMax(field.width(), window.width() - 2 * margin));
    const bool isMirrored = m_edit->layoutDirection() == Qt::RightToLeft;
    const int start = isMirrored ? field.right() + 1 - width : field.left();
    const int last = qMax(window.left() + margin, window.right() + 1 - margin - width);
    QRect place = m_view->geometry();
    if (place.top() < field.top())
        place.setTop(place.top() - m_view->footerHeight());
    else
        place.setBottom(place.bottom() + m_view->footerHeight());
    place.setLeft(width > field.width() ? qBound(window.left() + margin, start, last) : start);
    place.setWidth(width);
    m_view->setGeometry(place);
}

// ---- content -------------------------------------------------------------------------------

/// Lists the codes that start with the string or whose names start with it.
void HistoryPopup::fill(const QString &start)
{
    m_model->removeRows(0, m_model->rowCount());
    const QList<CodeName> names = m_names ? m_names() : QList<CodeName>();
    QStringList listed;
    for (const SentCode &sent : m_history->codes()) {
        const QString name = nameOf(sent.code, names);
        listed << sent.code;
        if (startsWith(sent.code, name, start))
            addRow(sent.code, name, timeText(sent.time))->setIcon(icon("clock", Token::Text2));
    }
    for (const CodeName &named : names) {
        if (!listed.contains(named.code) && startsWith(named.code, named.name, start))
            addRow(named.code, named.name, named.isOwn ? dashboardText("HISTORY_OWN") : QString());
    }
    addChains(start);
    if (m_model->rowCount() == 0 && start.isEmpty()) {
        addRow(QString(), dashboardText("HISTORY_EMPTY"), QString());
        for (int column = 0; column < COLUMNS; ++column)
            m_model->item(0, column)->setEnabled(false);
        m_model->item(0, 0)->setIcon(QIcon());
    }
    showFooter();
}

void HistoryPopup::addChains(const QString &start)
{
    for (const CodeName &chain : m_chains ? m_chains() : QList<CodeName>()) {
        if (!startsWith(chain.code, chain.name, start))
            continue;
        QStandardItem *item = addRow(chain.code, chain.name, QString());
        item->setIcon(icon("star", Token::Text2));
        for (int column = 0; column < COLUMNS; ++column)
            m_model->item(item->row(), column)->setData(chain.name, CHAIN_ROLE);
    }
}

/// Adds a row and returns its first item.
QStandardItem *HistoryPopup::addRow(const QString &code, const QString &name, const QString &note)
{
    QList<QStandardItem *> row;
    for (const QString &text : {isolated(code), name, note}) {
        row << new QStandardItem(text);
        row.last()->setData(code, CODE_ROLE);
    }
    QFont font = row.first()->font();
    font.setBold(true);
    row.first()->setFont(font);
    row.last()->setForeground(Look::instance().color(Token::Text3));
    row.last()->setTextAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    row.first()->setIcon(icon("codes", Token::Text2));
    m_model->appendRow(row);
    return row.first();
}

void HistoryPopup::showFooter()
{
    m_view->showFooter(dashboardText("HISTORY_NOT_KEPT"), dashboardText("HISTORY_DELETE"),
                       !m_history->codes().isEmpty());
}

void HistoryPopup::choose(const QModelIndex &index)
{
    m_isKeyPressed = false;
    const QString code = index.data(CODE_ROLE).toString();
    const QString chain = index.data(CHAIN_ROLE).toString();
    if (!chain.isEmpty())
        emit chainChosen(chain);
    else if (!code.isEmpty())
        emit chosen(code);
}

// ---- keys ----------------------------------------------------------------------------------

bool HistoryPopup::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    QKeyEvent *key = static_cast<QKeyEvent *>(event);
    if (watched == m_view)
        return onPopupKey(key);
    m_isKeyPressed = !key->text().isEmpty();
    return key->modifiers() == Qt::NoModifier && onEditKey(key->key());
}

bool HistoryPopup::onEditKey(int key)
{
    if (key == Qt::Key_Down && m_edit->text().isEmpty()) {
        open();
        return true;
    }
    if (key == Qt::Key_Escape && !isOpen() && !m_edit->text().isEmpty()) {
        m_edit->selectAll();
        m_edit->del(); // unlike clear(), disables the Send button
        return true;
    }
    return false;
}

/// Moves the current item from the last row to the button of the footer, or back. Returns true if
/// the key has been handled.
bool HistoryPopup::moveToButton(int key)
{
    const int rows = m_model->rowCount();
    const bool isLast = m_view->currentIndex().row() == rows - 1 || m_view->isButtonCurrent();
    if (key == Qt::Key_Down && isLast && !m_view->button()->isHidden()) {
        m_view->setButtonCurrent(true);
        return true;
    }
    const bool wasCurrent = m_view->isButtonCurrent();
    m_view->setButtonCurrent(false);
    if (!wasCurrent || key != Qt::Key_Up)
        return false;
    m_view->setCurrentIndex(m_view->model()->index(rows - 1, 0));
    return true;
}

/// Makes Return send the text that the user has typed, unless the user has selected a row of the
/// list. The current row is not sufficient to determine this, because a list makes its first row
/// current when it receives the focus.
bool HistoryPopup::onPopupKey(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && m_view->isButtonCurrent()) {
        m_view->button()->click();
        return true;
    }
    if (m_isRowChosen && moveToButton(event->key()))
        return true;
    if (isMove(event->key()))
        m_isRowChosen = true;
    if (!isReturn || m_isRowChosen || !m_edit)
        return false;
    m_view->hide();
    QKeyEvent typed(QEvent::KeyPress, event->key(), event->modifiers());
    QCoreApplication::sendEvent(m_edit, &typed);
    return true;
}

} // namespace Dashboard
