#include "PinDialog.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegExpValidator>

#include "base/DashboardText.h"
#include "device/DeviceWatcher.h"
#include "tksv_device.h"

namespace Dashboard
{

namespace
{

const int SHORTEST = 4; // digits of a PIN (3GPP TS 31.101, 9.4)
const int LONGEST = 8;
const int TEXT_WIDTH = 360; // in pixels

QLabel *makeLabel(const char *name, QWidget *parent)
{
    QLabel *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

/// Overwrites the memory of the string. The string must not be implicitly shared with another
/// QString. Otherwise, only a copy would be overwritten.
void writeOver(QString *secret)
{
    secret->fill(QLatin1Char('0'));
    secret->clear();
}

} // namespace

PinDialog::PinDialog(const DeviceWatcher *device, QWidget *parent)
    : QDialog(parent), m_device(device), m_question(makeLabel("Dashboard_PinQuestion", this)),
      m_label(makeLabel("Dashboard_PinLabel", this)), m_edit(new QLineEdit(this)),
      m_tries(makeLabel("Dashboard_PinTries", this)),
      m_message(makeLabel("Dashboard_PinMessage", this)), m_ok(new QPushButton(this)),
      m_cancel(new QPushButton(this))
{
    setObjectName(QLatin1String("Dashboard_PinDialog"));
    setWindowFlags(windowFlags() & ~Qt::WindowFlags(Qt::WindowContextHelpButtonHint));
    setWindowModality(Qt::WindowModal);
    makeWidgets();
    layOut();
    m_answerLimit.setSingleShot(true);
    connect(&m_answerLimit, SIGNAL(timeout()), this, SLOT(onNoAnswer()));
    connect(m_device, SIGNAL(changed()), this, SLOT(onDeviceChanged()));
    retranslate();
    onEdited();
    m_edit->setFocus();
}

PinDialog::~PinDialog()
{
    QString rest = takePin();
    writeOver(&rest);
}

void PinDialog::makeWidgets()
{
    m_edit->setObjectName(QLatin1String("Dashboard_PinEdit"));
    m_edit->setEchoMode(QLineEdit::Password);
    m_edit->setLayoutDirection(Qt::LeftToRight);
    m_edit->setMaxLength(LONGEST);
    m_edit->setContextMenuPolicy(Qt::NoContextMenu);
    m_edit->setInputMethodHints(m_edit->inputMethodHints() | Qt::ImhDigitsOnly);
    m_edit->setValidator(new QRegExpValidator(
        QRegExp(QString::fromLatin1("[0-9]{%1,%2}").arg(SHORTEST).arg(LONGEST)), m_edit));
    m_label->setBuddy(m_edit);
    m_label->setWordWrap(false);
    m_ok->setObjectName(QLatin1String("Dashboard_PinOk"));
    m_ok->setDefault(true);
    m_cancel->setObjectName(QLatin1String("Dashboard_PinCancel"));
    m_cancel->setAutoDefault(false);
    connect(m_edit, SIGNAL(textChanged(QString)), this, SLOT(onEdited()));
    connect(m_ok, SIGNAL(clicked()), this, SLOT(send()));
    connect(m_cancel, SIGNAL(clicked()), this, SLOT(reject()));
}

void PinDialog::layOut()
{
    QHBoxLayout *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_ok);
    buttons->addWidget(m_cancel);
    QGridLayout *grid = new QGridLayout(this);
    grid->addWidget(m_question, 0, 0, 1, 2);
    grid->addWidget(m_label, 1, 0);
    grid->addWidget(m_edit, 1, 1);
    grid->addWidget(m_tries, 2, 0, 1, 2);
    grid->addWidget(m_message, 3, 0, 1, 2);
    grid->setRowStretch(4, 1);
    grid->addLayout(buttons, 5, 0, 1, 2);
    m_question->setMinimumWidth(TEXT_WIDTH);
    setTabOrder(m_edit, m_ok);
    setTabOrder(m_ok, m_cancel);
}

void PinDialog::retranslate()
{
    setWindowTitle(dashboardText("PIN_CAPTION"));
    m_question->setText(dashboardText("PIN_QUESTION"));
    m_label->setText(dashboardText("PIN_LABEL"));
    m_edit->setAccessibleName(dashboardText("PIN_CAPTION"));
    m_ok->setText(dashboardText("PIN_OK"));
    m_cancel->setText(dashboardText("PIN_CANCEL"));
    showTries();
    say(m_messageKey);
}

void PinDialog::showTries()
{
    m_tries->setText(m_device->status().triesText());
    m_tries->setVisible(!m_tries->text().isEmpty());
}

/// Shows the message whose text key is `key`. A null key clears the message. The dialog keeps its
/// width and increases its height if necessary.
void PinDialog::say(const char *key)
{
    m_messageKey = key;
    const QString text = key ? dashboardText(key) : QString();
    m_message->setText(text);
    m_message->setAccessibleName(text);
    m_message->setVisible(key);
    adjustSize();
}

void PinDialog::onEdited()
{
    m_ok->setEnabled(m_edit->isEnabled() && m_edit->hasAcceptableInput());
}

/// Returns the PIN, clears the field and discards the field's undo history.
QString PinDialog::takePin()
{
    QString pin = m_edit->text();
    m_edit->setText(QString());
    return pin;
}

void PinDialog::send()
{
    if (!m_edit->isEnabled() || !m_edit->hasAcceptableInput())
        return;
    QString pin = takePin();
    QByteArray digits = pin.toLatin1();
    writeOver(&pin);
    const bool isSent = TKSV_Device_SendPin(digits.constData()) == 0;
    digits.fill('0');
    setWaiting(isSent);
    say(isSent ? "PIN_CHECKING" : "PIN_NOT_SENT");
}

void PinDialog::setWaiting(bool waiting)
{
    m_edit->setEnabled(!waiting && m_device->status().waitsForPin());
    if (waiting)
        m_answerLimit.start(ANSWER_LIMIT);
    else
        m_answerLimit.stop();
    onEdited();
    if (m_edit->isEnabled())
        m_edit->setFocus(Qt::OtherFocusReason);
}

/// Reports the result of the PIN check. While the device does not report a problem, the check is
/// still in progress.
void PinDialog::onDeviceChanged()
{
    const DeviceStatus &now = m_device->status();
    if (now.state != TKSV_DEVICE_SIM_LOCKED)
        return accept();
    showTries();
    if (now.problem == TKSV_PROBLEM_NONE)
        return;
    setWaiting(false);
    switch (now.problem) {
    case TKSV_PROBLEM_WRONG_PIN:
        return say("PIN_WRONG");
    case TKSV_PROBLEM_PUK_NEEDED:
        return say("ADVICE_PUK_NEEDED");
    case TKSV_PROBLEM_NOT_PERMITTED:
        return say("ADVICE_NOT_PERMITTED");
    default:
        return say("PIN_NOT_SENT");
    }
}

void PinDialog::onNoAnswer()
{
    setWaiting(false);
    say("PIN_NO_ANSWER");
}

void PinDialog::done(int result)
{
    QString rest = takePin();
    writeOver(&rest);
    m_answerLimit.stop();
    QDialog::done(result);
}

} // namespace Dashboard
