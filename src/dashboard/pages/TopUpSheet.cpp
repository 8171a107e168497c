#include "TopUpSheet.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "base/DashboardText.h"
#include "look/Controls.h"
#include "plugin/GeneralWindow.h"

namespace Dashboard
{

namespace
{

const char NUMBER_EDIT[] = "USSDUIPlugin_AdvancedDialog_PaymentEdit";
const char NUMBER_LABEL[] = "USSDUIPlugin_AdvancedDialog_InfoNumLabel";

} // namespace

TopUpSheet::TopUpSheet(const QWidget *general, QWidget *parent)
    : QDialog(parent), m_general(general), m_number(new QLineEdit(this)),
      m_column(new QVBoxLayout(this))
{
    setObjectName(QLatin1String("Dashboard_TopUpSheet"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(dashboardText("SHEET_TOP_UP"));
    setMargins(m_column, 16, 16, 16, 16);
    QLabel *label = makeLabel("body", this);
    if (const QLabel *caption = general->findChild<QLabel *>(QLatin1String(NUMBER_LABEL)))
        label->setText(caption->text());
    label->setWordWrap(true);
    label->setBuddy(m_number);
    m_number->setAccessibleName(label->text());
    m_number->setLayoutDirection(Qt::LeftToRight);
    m_number->setMaxLength(20);
    m_number->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QLatin1String("[0-9]*")), m_number));
    m_column->addWidget(label);
    m_column->addWidget(m_number);
    connect(m_number, &QLineEdit::textChanged, this, &TopUpSheet::updateActions);
}

void TopUpSheet::addPreset(const QString &name, QPushButton *preset)
{
    QPushButton *action = makeButton(m_actions.isEmpty() ? "primary" : "", this);
    action->setText(QString(name).replace(QLatin1Char('&'), QLatin1String("&&")));
    const QPointer<QPushButton> pressed(preset);
    connect(action, &QPushButton::clicked, this, [this, pressed] { press(pressed); });
    m_actions << action;
    m_column->addWidget(action);
    updateActions();
}

void TopUpSheet::updateActions()
{
    for (QPushButton *action : m_actions)
        action->setEnabled(!m_number->text().isEmpty());
}

void TopUpSheet::press(QPushButton *preset)
{
    QLineEdit *number = m_general->findChild<QLineEdit *>(QLatin1String(NUMBER_EDIT));
    if (number && preset) {
        typeInto(number, m_number->text());
        preset->click();
    }
    accept();
}

} // namespace Dashboard
