#include "FavouriteDialog.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "base/DashboardText.h"
#include "base/Isolate.h"
#include "ChainDialog.h"
#include "look/Controls.h"
#include "look/Look.h"
#include "UssdCode.h"

namespace Dashboard
{

namespace
{

const int CODE = Qt::UserRole;
const int NAME = Qt::UserRole + 1;
const int KEYS = Qt::UserRole + 2; // the code and answers of a chain as text; empty for a code
const int EARLIER_NAME = Qt::UserRole + 3;
const int LEAST_HEIGHT = 340; // height of the dialog in pixels at 100 % text size
const int LEAST_WIDTH = 320;

bool isChecked(const QListWidgetItem *item)
{
    return item->checkState() == Qt::Checked;
}

QString idOf(const NamedCode &code)
{
    return code.isChain() ? code.name + QLatin1Char('\n') : code.code;
}

void setName(QListWidgetItem *item, const QString &name)
{
    const QString keys = item->data(KEYS).toString();
    item->setData(NAME, name);
    item->setText(name + QLatin1String("  ") +
                  isolated(keys.isEmpty() ? item->data(CODE).toString() : keys));
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
      m_down(makeButton("", this)), m_rename(makeButton("", this)), m_remove(makeButton("", this))
{
    setObjectName(QLatin1String("Dashboard_FavouriteDialog"));
    setWindowTitle(dashboardText("HOME_FAVOURITES"));
    m_list->setAccessibleName(windowTitle());
    m_list->setDragDropMode(QAbstractItemView::InternalMove);
    QStringList known;
    for (const NamedCode &code : selected) {
        addCode(code, true);
        known << idOf(code);
    }
    for (const NamedCode &code : all) {
        if (!known.contains(idOf(code)))
            addCode(code, false);
    }
    makeButtons();
    connect(m_list, &QListWidget::itemChanged, this, &FavouriteDialog::look);
    connect(m_list, &QListWidget::currentRowChanged, this, &FavouriteDialog::look);
    resize(px(LEAST_WIDTH), px(LEAST_HEIGHT));
    m_list->setCurrentRow(0);
    look();
}

void FavouriteDialog::makeButtons()
{
    QPushButton *save = makeButton("primary", this);
    QPushButton *cancel = makeButton("", this);
    save->setText(dashboardText("HOME_SAVE"));
    save->setDefault(true);
    cancel->setText(dashboardText("HOME_CANCEL"));
    connect(save, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    QLabel *hint = makeLabel("muted", this);
    hint->setText(dashboardText("HOME_FAVOURITES_HINT").arg(m_most));
    hint->setWordWrap(true);
    QVBoxLayout *column = new QVBoxLayout(this);
    column->addWidget(hint);
    column->addWidget(m_list, 1);
    column->addLayout(makeMoves());
    QHBoxLayout *chains = buttonRow(); // a single row of four buttons would be too wide
    chains->addWidget(m_rename);
    chains->addWidget(m_remove);
    chains->addStretch(1);
    column->addLayout(chains);
    QHBoxLayout *ends = buttonRow();
    ends->addStretch(1);
    ends->addWidget(cancel);
    ends->addWidget(save);
    column->addLayout(ends);
}

QHBoxLayout *FavouriteDialog::makeMoves()
{
    m_up->setText(dashboardText("HOME_MOVE_UP"));
    m_down->setText(dashboardText("HOME_MOVE_DOWN"));
    m_rename->setText(dashboardText("CHAIN_RENAME"));
    m_remove->setText(dashboardText("CHAIN_DELETE"));
    m_rename->setObjectName(QLatin1String("Dashboard_RenameChain"));
    m_remove->setObjectName(QLatin1String("Dashboard_DeleteChain"));
    connect(m_up, &QPushButton::clicked, this, [this] { move(-1); });
    connect(m_down, &QPushButton::clicked, this, [this] { move(1); });
    connect(m_rename, &QPushButton::clicked, this, &FavouriteDialog::renameChain);
    connect(m_remove, &QPushButton::clicked, this, &FavouriteDialog::removeChain);
    QHBoxLayout *moves = buttonRow();
    for (QPushButton *button : {m_up, m_down})
        moves->addWidget(button);
    moves->addStretch(1);
    return moves;
}

void FavouriteDialog::addCode(const NamedCode &code, bool isSelected)
{
    QListWidgetItem *item = new QListWidgetItem(m_list);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
                   Qt::ItemIsDragEnabled);
    item->setData(CODE, code.code);
    item->setData(KEYS, code.keys);
    item->setData(EARLIER_NAME, code.name);
    setName(item, code.name);
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

/// Enables or disables the buttons and check boxes. For example, the first row cannot be moved up,
/// and no further row can be selected if the maximum number of favourites has been reached.
void FavouriteDialog::look()
{
    const int row = m_list->currentRow();
    m_up->setEnabled(row > 0);
    m_down->setEnabled(row >= 0 && row + 1 < m_list->count());
    m_rename->setEnabled(isChain(m_list->currentItem()));
    m_remove->setEnabled(isChain(m_list->currentItem()));
    const bool isFull = selected().size() >= m_most;
    const QSignalBlocker blocker(m_list);
    for (int i = 0; i < m_list->count(); ++i) {
        QListWidgetItem *item = m_list->item(i);
        const bool mayChange = isChecked(item) || !isFull;
        item->setFlags(mayChange ? item->flags() | Qt::ItemIsUserCheckable
                                 : item->flags() & ~Qt::ItemIsUserCheckable);
    }
}

QList<NamedCode> FavouriteDialog::selected() const
{
    QList<NamedCode> codes;
    for (int i = 0; i < m_list->count(); ++i) {
        const QListWidgetItem *item = m_list->item(i);
        if (!isChecked(item))
            continue;
        NamedCode code;
        code.name = item->data(NAME).toString();
        code.code = item->data(CODE).toString();
        code.keys = item->data(KEYS).toString();
        codes << code;
    }
    return codes;
}

// ---- chains --------------------------------------------------------------------------------

bool FavouriteDialog::isChain(const QListWidgetItem *item) const
{
    return item && !item->data(KEYS).toString().isEmpty();
}

bool FavouriteDialog::isNameFree(const QString &name) const
{
    for (int i = 0; i < m_list->count(); ++i) {
        const QListWidgetItem *item = m_list->item(i);
        const bool isSame = item->data(NAME).toString().compare(name, Qt::CaseInsensitive) == 0;
        if (item != m_list->currentItem() && isSame)
            return false;
    }
    return true;
}

void FavouriteDialog::renameChain()
{
    QListWidgetItem *item = m_list->currentItem();
    if (!isChain(item))
        return;
    ChainDialog *dialog = new ChainDialog(
        isolated(item->data(KEYS).toString()),
        [this](const QString &name) { return isNameFree(name); }, this);
    dialog->setWindowTitle(dashboardText("CHAIN_RENAME"));
    dialog->setName(item->data(NAME).toString());
    connect(dialog, &QDialog::accepted, this, [item, dialog] { setName(item, dialog->name()); });
    dialog->open();
}

void FavouriteDialog::removeChain()
{
    if (!isChain(m_list->currentItem()))
        return;
    m_removed << m_list->currentItem()->data(EARLIER_NAME).toString();
    delete m_list->takeItem(m_list->currentRow());
    look();
}

QMap<QString, QString> FavouriteDialog::renamed() const
{
    QMap<QString, QString> names;
    for (int i = 0; i < m_list->count(); ++i) {
        const QListWidgetItem *item = m_list->item(i);
        const QString earlier = item->data(EARLIER_NAME).toString();
        if (isChain(item) && item->data(NAME).toString() != earlier)
            names.insert(earlier, item->data(NAME).toString());
    }
    return names;
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
