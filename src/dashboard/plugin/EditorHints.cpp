#include "EditorHints.h"

#include <QLabel>
#include <QScrollBar>
#include <QTableWidget>

#include "base/DashboardText.h"

namespace Dashboard
{

namespace
{

const char TABLE[] = "USSDUIPlugin_ProfileTable";
const char HINT[] = "Dashboard_EditorHint";
const int NAME = 0;
const int CODE = 1;

bool isEmpty(const QTableWidget *table, int row, int column)
{
    const QTableWidgetItem *item = table->item(row, column);
    return !item || item->text().trimmed().isEmpty();
}

bool isEditable(const QTableWidget *table, int row)
{
    const QTableWidgetItem *item = table->item(row, CODE);
    return !item || (item->flags() & Qt::ItemIsEditable);
}

/// Returns the first row that the user can complete.
int rowToComplete(const QTableWidget *table)
{
    int row = 0;
    while (row < table->rowCount() &&
           !(isEditable(table, row) && (isEmpty(table, row, NAME) || isEmpty(table, row, CODE))))
        ++row;
    return row;
}

// Returns a label for a hint. Mouse events pass through the label to the cell below it, and an open
// cell editor covers the label.
QLabel *makeHint(QTableWidget *table, const char *textKey)
{
    QLabel *hint = new QLabel(dashboardText(textKey), table->viewport());
    hint->setObjectName(QLatin1String(HINT));
    hint->setTextFormat(Qt::PlainText);
    hint->setAttribute(Qt::WA_TransparentForMouseEvents);
    return hint;
}

void placeHint(QLabel *hint, const QTableWidget *table, int row, int column)
{
    hint->setVisible(row < table->rowCount() && isEmpty(table, row, column));
    hint->setGeometry(table->visualRect(table->model()->index(row, column)));
}

} // namespace

void EditorHints::addTo(const QWidget *window)
{
    QTableWidget *table = window->findChild<QTableWidget *>(QLatin1String(TABLE));
    if (table && !table->findChild<EditorHints *>())
        new EditorHints(table);
}

EditorHints::EditorHints(QTableWidget *table)
    : QObject(table), m_table(table), m_name(makeHint(table, "EDITOR_NAME_HINT")),
      m_code(makeHint(table, "EDITOR_CODE_HINT"))
{
    table->setAccessibleDescription(dashboardText("EDITOR_HINT"));
    connect(table->model(), &QAbstractItemModel::dataChanged, this, &EditorHints::place);
    // The connection is queued, so that place() is called after the table has scrolled its cells.
    connect(table->verticalScrollBar(), &QScrollBar::valueChanged, this, &EditorHints::place,
            Qt::QueuedConnection);
    QMetaObject::invokeMethod(this, "place", Qt::QueuedConnection);
}

void EditorHints::place()
{
    const int row = rowToComplete(m_table);
    placeHint(m_name, m_table, row, NAME);
    placeHint(m_code, m_table, row, CODE);
}

QString EditorHints::hintAt(const QTableWidget *table, int row, int column)
{
    const QRect cell = table->visualRect(table->model()->index(row, column));
    for (const QLabel *hint : table->viewport()->findChildren<QLabel *>(QLatin1String(HINT))) {
        if (hint->isVisible() && hint->geometry() == cell)
            return hint->text();
    }
    return QString();
}

} // namespace Dashboard
