#include "RemedyRunner.h"

#include <QMessageBox>
#include <QPushButton>

#include "AppController.h"
#include "base/DashboardText.h"
#include "CommonUtils.h"
#include "device/DashboardSettings.h"
#include "InstructionDialog.h"
#include "look/Controls.h"
#include "PinDialog.h"
#include "tksv_device.h"

namespace Dashboard
{

RemedyRunner::RemedyRunner(AppController *controller, QWidget *window)
    : QObject(window), m_controller(controller), m_window(window)
{
}

void RemedyRunner::perform(Remedy remedy)
{
    switch (remedy) {
    case Remedy::EnterPin:
        return askForPin();
    case Remedy::Enable:
        TKSV_Device_Enable();
        return;
    case Remedy::LookAgain:
        TKSV_Device_LookAgain();
        return;
    case Remedy::ChooseModem:
        emit modemMenuRequested();
        return;
    case Remedy::HowToAllow:
    case Remedy::HowToStart:
    case Remedy::WhatIsPuk:
        return explain(remedy);
    case Remedy::TryDemonstration:
        return tryDemonstration();
    case Remedy::UseMyModem:
        return useMyModem();
    case Remedy::EndForeignSession:
        return askToEndForeignSession();
    case Remedy::ChooseOperator:
        emit operatorRequested();
        return;
    case Remedy::TypeCode:
        emit typingRequested();
        return;
    case Remedy::None:
        return;
    }
}

void RemedyRunner::retranslate()
{
    if (m_pinDialog)
        m_pinDialog->retranslate();
}

void RemedyRunner::askForPin()
{
    if (!m_pinDialog) {
        m_pinDialog = new PinDialog(&m_controller->device(), m_window);
        m_pinDialog->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_pinDialog->show();
    CommonUtils::MoveCentre(m_pinDialog);
}

/// Starts the demonstration without storing this choice, so that the dashboard uses the modem again
/// at the next start.
void RemedyRunner::tryDemonstration()
{
    const QString error = m_controller->useDevice(DeviceChoice::simulated(QString()));
    if (!error.isEmpty())
        emit deviceFailed(error);
}

/// Uses the modem that the user has selected, or the automatic choice if no modem has been
/// selected. If the environment makes the automatic choice a simulated network, uses the first
/// modem.
void RemedyRunner::useMyModem()
{
    const DashboardSettings *settings = m_controller->settings();
    const DeviceChoice stored = settings ? settings->device() : DeviceChoice();
    const bool isModem = stored.kind == DeviceChoice::Modem;
    const DeviceChoice wanted = isModem ? stored : DeviceChoice::automatic();
    QString error = m_controller->chooseDevice(wanted);
    if (error.isEmpty() && m_controller->device().status().isSimulated)
        error = m_controller->useDevice(DeviceChoice::modem(QString()));
    if (!error.isEmpty())
        emit deviceFailed(error);
}

/// Requests confirmation before it ends the session of the other program, because that program may
/// be making a purchase.
void RemedyRunner::askToEndForeignSession()
{
    if (m_question)
        return m_question->raise();
    m_question =
        new QMessageBox(QMessageBox::Warning, dashboardText("DEVICE_FOREIGN"),
                        dashboardText("REMEDY_END_QUESTION"), QMessageBox::NoButton, m_window);
    m_question->setObjectName(QLatin1String("Dashboard_EndSessionQuestion"));
    m_question->setAttribute(Qt::WA_DeleteOnClose);
    m_question->setTextFormat(Qt::PlainText);
    QPushButton *end =
        m_question->addButton(dashboardText("REMEDY_END_SESSION"), QMessageBox::AcceptRole);
    setButtonKind(end, "danger");
    QPushButton *cancel =
        m_question->addButton(dashboardText("REMEDY_CANCEL"), QMessageBox::RejectRole);
    m_question->setDefaultButton(cancel);
    m_question->setEscapeButton(cancel);
    connect(end, &QPushButton::clicked, this, [] { TKSV_Device_EndForeignSession(); });
    m_question->open();
}

void RemedyRunner::explain(Remedy remedy)
{
    const DeviceStatus &status = m_controller->device().status();
    const Situation situation = situationOf(status, true, QString());
    InstructionDialog *dialog =
        new InstructionDialog(instructionFor(remedy, situation.kind), m_window);
    dialog->show();
    CommonUtils::MoveCentre(dialog);
}

} // namespace Dashboard
