#include "ChainDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/DashboardText.h"
#include "look/Controls.h"
#include "look/Look.h"

namespace Dashboard
{

namespace
{

const int LEAST_WIDTH = 300; // in pixels at 100 % text size
const int LONGEST_NAME = 40; // characters

} // namespace

ChainDialog::ChainDialog(const QString &walk, const std::function<bool(const QString &)> &isFree,
                         QWidget *parent)
    : QDialog(parent), m_isFree(isFree), m_name(new QLineEdit(this)),
      m_problem(makeLabel("small", this)), m_keep(makeButton("primary", this))
{
    setObjectName(QLatin1String("Dashboard_ChainDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(dashboardText("CHAIN_KEEP"));
    QLabel *caption = makeLabel("body", this);
    caption->setText(dashboardText("CHAIN_NAME"));
    caption->setBuddy(m_name);
    m_name->setAccessibleName(caption->text());
    m_name->setMaxLength(LONGEST_NAME);
    QLabel *sent = makeLabel("small", this);
    sent->setText(walk);
    sent->setTextFormat(Qt::PlainText);
    sent->setWordWrap(true);
    if (layoutDirection() == Qt::RightToLeft) // the text itself is shown from left to right
        sent->setAlignment(Qt::AlignRight | Qt::AlignAbsolute);
    connect(m_name, &QLineEdit::textChanged, this, &ChainDialog::look);
    QVBoxLayout *column = new QVBoxLayout(this);
    for (QWidget *widget : {static_cast<QWidget *>(sent), static_cast<QWidget *>(caption),
                            static_cast<QWidget *>(m_name), static_cast<QWidget *>(m_problem)})
        column->addWidget(widget);
    column->addLayout(makeEnds());
    setMinimumWidth(px(LEAST_WIDTH));
    look();
}

QHBoxLayout *ChainDialog::makeEnds()
{
    QPushButton *cancel = makeButton("", this);
    cancel->setText(dashboardText("HOME_CANCEL"));
    m_keep->setText(dashboardText("CHAIN_SAVE"));
    m_keep->setObjectName(QLatin1String("Dashboard_KeepChain"));
    m_keep->setDefault(true);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_keep, &QPushButton::clicked, this, &QDialog::accept);
    QHBoxLayout *ends = new QHBoxLayout;
    setSpacing(ends, 8);
    ends->addStretch(1);
    ends->addWidget(cancel);
    ends->addWidget(m_keep);
    return ends;
}

void ChainDialog::setName(const QString &name)
{
    m_name->setText(name);
    m_name->selectAll();
}

QString ChainDialog::name() const
{
    return m_name->text().simplified();
}

void ChainDialog::look()
{
    const bool isFree = name().isEmpty() || m_isFree(name());
    m_problem->setText(isFree ? QString() : dashboardText("CHAIN_NAME_IN_USE"));
    m_keep->setEnabled(isFree && !name().isEmpty());
}

} // namespace Dashboard
