#include "InstructionDialog.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>

#include "base/DashboardText.h"
#include "device/Situation.h"
#include "look/Controls.h"
#include "look/Look.h"

namespace Dashboard
{

namespace
{

const int WIDTH = 520; // in pixels at 100 % text size

QLabel *makeText(const char *type, const char *name, const QString &text, QWidget *parent)
{
    QLabel *label = makeLabel(type, parent);
    label->setObjectName(QLatin1String(name));
    label->setWordWrap(true);
    label->setText(text);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

/// Returns the width of the dialog, which is smaller on a small screen.
int widthOn(const QScreen *screen)
{
    const int wanted = px(WIDTH);
    return screen ? qMin(wanted, screen->availableGeometry().width() - 16) : wanted;
}

} // namespace

InstructionDialog::InstructionDialog(const Instruction &instruction, QWidget *parent)
    : QDialog(parent),
      m_title(makeText("h2", "Dashboard_InstructionTitle", instruction.title, this)),
      m_text(makeText("body", "Dashboard_InstructionText", instruction.text, this)),
      m_command(makeText("body", "Dashboard_InstructionCommand", instruction.command, this)),
      m_copy(makeButton("", this)), m_close(makeButton("primary", this))
{
    setObjectName(QLatin1String("Dashboard_InstructionDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(instruction.title);
    m_command->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_command->setAlignment(Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignTop);
    m_command->setLayoutDirection(Qt::LeftToRight);
    m_command->setAccessibleName(instruction.command);
    m_copy->setObjectName(QLatin1String("Dashboard_InstructionCopy"));
    m_copy->setText(dashboardText("REMEDY_COPY"));
    setButtonIcon(m_copy, "copy", Token::Text2);
    m_close->setObjectName(QLatin1String("Dashboard_InstructionClose"));
    m_close->setText(dashboardText("REMEDY_CLOSE"));
    m_close->setDefault(true);
    connect(m_copy, &QPushButton::clicked, this, &InstructionDialog::copy);
    connect(m_close, &QPushButton::clicked, this, &InstructionDialog::accept);
    layOut(!instruction.command.isEmpty());
    m_close->setFocus();
}

void InstructionDialog::layOut(bool hasCommand)
{
    QFrame *box = makeCard(this);
    QVBoxLayout *inBox = new QVBoxLayout(box);
    setMargins(inBox, 16, 12, 16, 12);
    inBox->addWidget(m_command);
    box->setVisible(hasCommand);
    m_copy->setVisible(hasCommand);
    QHBoxLayout *buttons = new QHBoxLayout;
    setSpacing(buttons, 8);
    buttons->addStretch();
    buttons->addWidget(m_copy);
    buttons->addWidget(m_close);
    QVBoxLayout *column = new QVBoxLayout(this);
    setMargins(column, 20, 20, 20, 20);
    setSpacing(column, 16);
    column->addWidget(m_title);
    column->addWidget(m_text);
    column->addWidget(box);
    column->addStretch();
    column->addLayout(buttons);
    setMinimumWidth(widthOn(QGuiApplication::primaryScreen()));
}

void InstructionDialog::copy()
{
    QGuiApplication::clipboard()->setText(m_command->text());
    m_copy->setText(dashboardText("REMEDY_COPIED"));
}

} // namespace Dashboard
