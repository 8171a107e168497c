#include "OperatorDialog.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/DashboardText.h"

using namespace Provisioning;

namespace Dashboard
{

namespace
{

const int WIDTH = 380;       // in pixels
const int LIST_HEIGHT = 180; // in pixels; a longer list can be scrolled

} // namespace

OperatorDialog::OperatorDialog(const QString &network, const QList<Provider> &candidates,
                               const QString &current, const char *noneKey, QWidget *parent)
    : QDialog(parent), m_network(network), m_candidates(candidates), m_noneKey(noneKey),
      m_question(new QLabel(this)), m_list(new QListWidget(this)), m_ok(new QPushButton(this)),
      m_cancel(new QPushButton(this))
{
    setObjectName(QLatin1String("Dashboard_OperatorDialog"));
    setWindowFlags(windowFlags() & ~Qt::WindowFlags(Qt::WindowContextHelpButtonHint));
    setWindowModality(Qt::WindowModal);
    m_list->setObjectName(QLatin1String("Dashboard_OperatorList"));
    m_ok->setObjectName(QLatin1String("Dashboard_OperatorOk"));
    m_cancel->setObjectName(QLatin1String("Dashboard_OperatorCancel"));
    m_question->setTextFormat(Qt::PlainText);
    m_question->setWordWrap(true);
    m_question->setBuddy(m_list);
    m_ok->setDefault(true);
    m_cancel->setAutoDefault(false);
    for (const Provider &provider : m_candidates)
        m_list->addItem(provider.name());
    m_list->addItem(QString());
    layOut();
    connect(m_ok, SIGNAL(clicked()), this, SLOT(acceptSelected()));
    connect(m_cancel, SIGNAL(clicked()), this, SLOT(reject()));
    connect(m_list, SIGNAL(itemDoubleClicked(QListWidgetItem *)), this, SLOT(acceptSelected()));
    connect(m_list, SIGNAL(itemSelectionChanged()), this, SLOT(onSelectionChanged()));
    retranslate();
    select(current);
}

void OperatorDialog::layOut()
{
    QHBoxLayout *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_ok);
    buttons->addWidget(m_cancel);
    QVBoxLayout *column = new QVBoxLayout(this);
    column->addWidget(m_question);
    column->addWidget(m_list);
    column->addLayout(buttons);
    m_list->setMinimumSize(WIDTH, LIST_HEIGHT);
    setTabOrder(m_list, m_ok);
    setTabOrder(m_ok, m_cancel);
    m_list->setFocus();
}

/// Selects the current operator. If the operator is not in the list, no row is selected, and the OK
/// button is disabled.
void OperatorDialog::select(const QString &current)
{
    for (int i = 0; i < m_candidates.size(); ++i) {
        if (!current.isEmpty() && m_candidates.at(i).name() == current)
            m_list->setCurrentRow(i);
    }
    onSelectionChanged();
}

void OperatorDialog::onSelectionChanged()
{
    m_ok->setEnabled(selectedRow() >= 0);
}

int OperatorDialog::selectedRow() const
{
    const QList<QListWidgetItem *> selected = m_list->selectedItems();
    return selected.isEmpty() ? -1 : m_list->row(selected.first());
}

void OperatorDialog::acceptSelected()
{
    if (selectedRow() >= 0)
        accept();
}

void OperatorDialog::retranslate()
{
    setWindowTitle(dashboardText("CODES_CAPTION"));
    m_question->setText(dashboardText("CODES_QUESTION").arg(m_network));
    m_list->setAccessibleName(dashboardText("CODES_CAPTION"));
    m_list->item(m_candidates.size())->setText(dashboardText(m_noneKey));
    m_ok->setText(dashboardText("CODES_OK"));
    m_cancel->setText(dashboardText("CODES_CANCEL"));
}

bool OperatorDialog::choosesOperator() const
{
    return selectedRow() >= 0 && selectedRow() < m_candidates.size();
}

Provider OperatorDialog::provider() const
{
    return m_candidates.value(selectedRow());
}

} // namespace Dashboard
