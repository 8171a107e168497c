#include "PinDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "base/DashboardText.h"
#include "device/DeviceWatcher.h"
#include "look/Controls.h"
#include "look/Look.h"
#include "tksv_device.h"

namespace Dashboard
{

namespace
{

const int SHORTEST = 4; // the minimum number of digits of a PIN (3GPP TS 31.101, 9.4)
const int LONGEST = 8;
const int FIELD_WIDTH = 200; // in pixels at 100 % text size
const int TEXT_WIDTH = 340;

QLabel *makeText(const char *type, const char *name, QWidget *parent)
{
    QLabel *label = makeLabel(type, parent);
    label->setObjectName(QLatin1String(name));
    label->setWordWrap(true);
    return label;
}

/// Overwrites the memory of the string. The string must not be implicitly shared with another
/// QString, because only a copy would then be overwritten.
void writeOver(QString *secret)
{
    secret->fill(QLatin1Char('0'));
    secret->clear();
}

} // namespace

PinDialog::PinDialog(const DeviceWatcher *device, QWidget *parent)
    : QDialog(parent), m_device(device), m_label(makeText("h3", "Dashboard_PinLabel", this)),
      m_question(makeText("small", "Dashboard_PinQuestion", this)), m_edit(new QLineEdit(this)),
      m_eye(makeIconButton("eye", this)), m_chip(new Chip(this)),
      m_tries(makeText("small", "Dashboard_PinTries", this)),
      m_message(makeText("body", "Dashboard_PinMessage", this)), m_ok(makeButton("primary", this)),
      m_cancel(makeButton("", this))
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
    const QString pattern = QString::fromLatin1("[0-9]{%1,%2}").arg(SHORTEST).arg(LONGEST);
    m_edit->setValidator(new QRegularExpressionValidator(QRegularExpression(pattern), m_edit));
    m_edit->setFixedWidth(px(FIELD_WIDTH));
    m_label->setBuddy(m_edit);
    m_eye->setObjectName(QLatin1String("Dashboard_PinEye"));
    m_eye->setCheckable(true);
    connect(m_eye, &QPushButton::toggled, this, &PinDialog::showPin);
    m_chip->setObjectName(QLatin1String("Dashboard_PinTriesChip"));
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
    IconDisc *icon = new IconDisc(this);
    icon->setIcon("lock", Tone::Accent);
    QVBoxLayout *texts = new QVBoxLayout;
    setSpacing(texts, 4);
    texts->addWidget(m_label);
    texts->addWidget(m_question);
    QHBoxLayout *head = new QHBoxLayout;
    setSpacing(head, 12);
    head->addWidget(icon, 0, Qt::AlignTop);
    head->addLayout(texts, 1);
    QHBoxLayout *field = new QHBoxLayout;
    setSpacing(field, 4);
    field->addWidget(m_edit);
    field->addWidget(m_eye);
    field->addStretch();
    QHBoxLayout *buttons = new QHBoxLayout;
    setSpacing(buttons, 8);
    buttons->addStretch();
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_ok);
    QVBoxLayout *column = new QVBoxLayout(this);
    setMargins(column, 20, 18, 20, 18);
    setSpacing(column, 12);
    column->addLayout(head);
    column->addLayout(field);
    column->addWidget(m_chip, 0, Qt::AlignLeft);
    column->addWidget(m_message);
    column->addWidget(m_tries);
    column->addStretch();
    column->addLayout(buttons);
    m_question->setMinimumWidth(px(TEXT_WIDTH));
    setTabOrder(m_edit, m_ok);
    setTabOrder(m_ok, m_cancel);
    setTabOrder(m_cancel, m_eye);
}

void PinDialog::retranslate()
{
    setWindowTitle(dashboardText("PIN_CAPTION"));
    m_label->setText(dashboardText("PIN_CAPTION"));
    m_question->setText(dashboardText("PIN_QUESTION"));
    setIconButtonText(m_eye, dashboardText("PIN_SHOW"));
    m_edit->setAccessibleName(dashboardText("PIN_CAPTION"));
    m_ok->setText(dashboardText("PIN_OK"));
    m_cancel->setText(dashboardText("PIN_CANCEL"));
    showTries();
    say(m_messageKey);
}

/// Shows the number of remaining attempts, with a warning before the last one.
void PinDialog::showTries()
{
    const int tries = m_device->status().pinRetries;
    const bool isLast = tries == 1;
    const char *key = isLast ? "PIN_ONE_TRY_SHORT" : "PIN_TRIES_SHORT";
    const QString text = dashboardText(key);
    m_chip->setText(isLast ? text : text.arg(tries));
    m_chip->setTone(isLast ? Tone::Danger : Tone::Neutral);
    m_chip->setVisible(tries > 0);
    m_tries->setText(isLast ? m_device->status().triesText() : QString());
    m_tries->setVisible(isLast);
}

void PinDialog::showPin(bool isShown)
{
    m_edit->setEchoMode(isShown ? QLineEdit::Normal : QLineEdit::Password);
}

/// Shows the message whose text key is `key`. A null key clears the message. The dialog keeps its
/// width and increases its height if necessary.
void PinDialog::say(const char *key)
{
    m_messageKey = key;
    const QString text = key ? dashboardText(key) : QString();
    const bool isError = key && qstrcmp(key, "PIN_CHECKING") != 0;
    setLabelType(m_message, isError ? "danger" : "body");
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
    m_eye->setChecked(false);
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
        return say("DEVICE_PUK_TEXT");
    case TKSV_PROBLEM_NOT_PERMITTED:
        return say("DEVICE_NOT_PERMITTED_TEXT");
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
