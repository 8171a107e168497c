#include "FavouriteDialog.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "base/DashboardText.h"
#include "base/Isolate.h"
#include "look/Controls.h"
#include "look/Look.h"
#include "UssdCode.h"

namespace Dashboard
{

namespace
{

const int CODE = Qt::UserRole;
const int LEAST_HEIGHT = 340; // the minimum height of the dialog in pixels at 100 % text size
const int LEAST_WIDTH = 320;

bool isChecked(const QListWidgetItem *item)
{
    return item->checkState() == Qt::Checked;
}

QHBoxLayout *buttonRow()
{
    QHBoxLayout *row = new QHBoxLayout;
    setSpacing(row, 8);
    return row;
}

} // namespace

FavouriteDialog::FavouriteDialog(const QList<NamedCode> &all, const QList<NamedCode> &selected,
                                 int most, QWidget *parent)
    : QDialog(parent), m_most(most), m_list(new QListWidget(this)), m_up(makeButton("", this)),
      m_down(makeButton("", this))
{
    setObjectName(QLatin1String("Dashboard_FavouriteDialog"));
    setWindowTitle(dashboardText("HOME_FAVOURITES"));
    m_list->setAccessibleName(windowTitle());
    m_list->setDragDropMode(QAbstractItemView::InternalMove);
    QStringList known;
    for (const NamedCode &code : selected) {
        addCode(code, true);
        known << code.code;
    }
    for (const NamedCode &code : all) {
        if (!known.contains(code.code))
            addCode(code, false);
    }
    m_up->setText(dashboardText("HOME_MOVE_UP"));
    m_down->setText(dashboardText("HOME_MOVE_DOWN"));
    connect(m_up, &QPushButton::clicked, this, [this] { move(-1); });
    connect(m_down, &QPushButton::clicked, this, [this] { move(1); });
    connect(m_list, &QListWidget::itemChanged, this, &FavouriteDialog::look);
    connect(m_list, &QListWidget::currentRowChanged, this, &FavouriteDialog::look);
    QPushButton *save = makeButton("primary", this);
    QPushButton *cancel = makeButton("", this);
    save->setText(dashboardText("HOME_SAVE"));
    save->setDefault(true);
    cancel->setText(dashboardText("HOME_CANCEL"));
    connect(save, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    QLabel *hint = makeLabel("muted", this);
    hint->setText(dashboardText("HOME_FAVOURITES_HINT").arg(most));
    hint->setWordWrap(true);
    QVBoxLayout *column = new QVBoxLayout(this);
    column->addWidget(hint);
    column->addWidget(m_list, 1);
    QHBoxLayout *moves = buttonRow();
    moves->addWidget(m_up);
    moves->addWidget(m_down);
    moves->addStretch(1);
    column->addLayout(moves);
    QHBoxLayout *ends = buttonRow();
    ends->addStretch(1);
    ends->addWidget(cancel);
    ends->addWidget(save);
    column->addLayout(ends);
    resize(px(LEAST_WIDTH), px(LEAST_HEIGHT));
    m_list->setCurrentRow(0);
    look();
}

void FavouriteDialog::addCode(const NamedCode &code, bool isSelected)
{
    QListWidgetItem *item =
        new QListWidgetItem(code.name + QLatin1String("  ") + isolated(code.code), m_list);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
                   Qt::ItemIsDragEnabled);
    item->setData(CODE, code.code);
    item->setCheckState(isSelected ? Qt::Checked : Qt::Unchecked);
}

void FavouriteDialog::move(int rows)
{
    const int row = m_list->currentRow();
    const int target = row + rows;
    if (row < 0 || target < 0 || target >= m_list->count())
        return;
    m_list->insertItem(target, m_list->takeItem(row));
    m_list->setCurrentRow(target);
}

/// Disables the buttons and check boxes that cannot be used, for example because the first code
/// cannot be moved up or the maximum number of favourites is selected.
void FavouriteDialog::look()
{
    const int row = m_list->currentRow();
    m_up->setEnabled(row > 0);
    m_down->setEnabled(row >= 0 && row + 1 < m_list->count());
    const bool isFull = codes().size() >= m_most;
    const QSignalBlocker blocker(m_list);
    for (int i = 0; i < m_list->count(); ++i) {
        QListWidgetItem *item = m_list->item(i);
        const bool mayChange = isChecked(item) || !isFull;
        item->setFlags(mayChange ? item->flags() | Qt::ItemIsUserCheckable
                                 : item->flags() & ~Qt::ItemIsUserCheckable);
    }
}

QStringList FavouriteDialog::codes() const
{
    QStringList codes;
    for (int i = 0; i < m_list->count(); ++i) {
        if (isChecked(m_list->item(i)))
            codes << m_list->item(i)->data(CODE).toString();
    }
    return codes;
}

CodeNumberDialog::CodeNumberDialog(const NamedCode &code, QWidget *parent) : QDialog(parent)
{
    setObjectName(QLatin1String("Dashboard_CodeNumberDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(code.name);
    QLabel *caption = makeLabel("body", this);
    caption->setText(dashboardText("HOME_NUMBER_FOR").arg(code.name));
    QLineEdit *number = new QLineEdit(this);
    number->setAccessibleName(caption->text());
    number->setMaxLength(Formats::longestInput(code.code));
    number->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QLatin1String("[0-9*+]*")), number));
    QPushButton *send = makeButton("primary", this);
    QPushButton *cancel = makeButton("", this);
    send->setText(dashboardText("HOME_SEND"));
    send->setEnabled(false);
    send->setDefault(true);
    cancel->setText(dashboardText("HOME_CANCEL"));
    connect(number, &QLineEdit::textChanged, send,
            [send](const QString &text) { send->setEnabled(!text.isEmpty()); });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(send, &QPushButton::clicked, this, [this, number, code] {
        QString complete = code.code;
        accept();
        emit completed(complete.replace(Formats::INPUT_PLACEHOLDER, number->text()));
    });
    QVBoxLayout *column = new QVBoxLayout(this);
    column->addWidget(caption);
    column->addWidget(number);
    QHBoxLayout *ends = buttonRow();
    ends->addStretch(1);
    ends->addWidget(cancel);
    ends->addWidget(send);
    column->addLayout(ends);
    setMinimumWidth(px(LEAST_WIDTH));
}

} // namespace Dashboard
