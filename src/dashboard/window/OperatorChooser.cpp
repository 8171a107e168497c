#include "OperatorChooser.h"

#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include "base/DashboardText.h"
#include "CommonUtils.h"
#include "device/Situation.h"
#include "look/Controls.h"
#include "OperatorDialog.h"
#include "sim/OperatorCodes.h"

using namespace Provisioning;

namespace Dashboard
{

OperatorChooser::OperatorChooser(OperatorCodes *codes, QWidget *window)
    : QObject(window), m_codes(codes), m_window(window)
{
    // The connection is queued, because reading the operator database takes some time.
    connect(codes, &OperatorCodes::networkChanged, this, &OperatorChooser::propose,
            Qt::QueuedConnection);
}

void OperatorChooser::propose()
{
    setState(wantedState());
}

OperatorChooser::State OperatorChooser::wantedState()
{
    if (!m_codes->isFree() || m_codes->network().isEmpty() || m_codes->isDecided())
        return Nothing;
    const ProviderChoice choice = m_codes->choice();
    if (choice.state == ProviderChoice::Chosen) {
        m_proposed = choice.candidates.first();
        return OneProposed;
    }
    if (choice.state == ProviderChoice::Ambiguous)
        return SeveralProposed;
    return m_codes->areAbsent() && m_codes->hasDatabase() ? Unknown : Nothing;
}

void OperatorChooser::setState(State state)
{
    m_state = state;
    emit changed();
}

QString OperatorChooser::proposal() const
{
    switch (m_state) {
    case OneProposed:
        return dashboardText("CODES_PROPOSE_ONE").arg(m_proposed.name());
    case SeveralProposed:
        return dashboardText("CODES_PROPOSE_SEVERAL");
    case Unknown:
        return dashboardText("CODES_PROPOSE_NONE");
    case Nothing:
        break;
    }
    return QString();
}

QString OperatorChooser::acceptText() const
{
    return dashboardText(m_state == OneProposed ? "CODES_TAKE" : "CODES_CHOOSE");
}

void OperatorChooser::accept()
{
    if (m_state == OneProposed)
        take(m_proposed);
    else
        choose();
}

void OperatorChooser::decline()
{
    m_codes->decline();
    setState(Nothing);
}

void OperatorChooser::retranslate()
{
    if (m_dialog)
        m_dialog->retranslate();
}

void OperatorChooser::choose()
{
    if (!m_codes->isFree())
        return say("CODES_CHOSEN_OUTSIDE");
    if (m_codes->network().isEmpty())
        return explainMissingNetwork();
    if (!m_codes->hasDatabase())
        return say("CODES_NO_LIST");
    if (m_dialog)
        return m_dialog->raise();
    m_dialog =
        new OperatorDialog(m_codes->network(), m_codes->candidates(), m_codes->operatorInUse(),
                           m_codes->isSimulated() ? "CODES_SHIPPED" : "CODES_NONE", m_window);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_dialog.data(), &QDialog::accepted, this, [this] {
        const bool isOperator = m_dialog->choosesOperator();
        const Provider provider = m_dialog->provider();
        // useChosen() must be called after the dialog has been closed.
        QTimer::singleShot(0, this,
                           [this, isOperator, provider] { useChosen(isOperator, provider); });
    });
    m_dialog->show();
    CommonUtils::MoveCentre(m_dialog);
}

void OperatorChooser::useChosen(bool isOperator, const Provider &provider)
{
    if (isOperator)
        take(provider);
    else
        decline();
}

void OperatorChooser::take(const Provider &provider)
{
    const QString name = provider.name();
    ProvisionOutcome outcome = m_codes->take(provider, false);
    if (outcome.state == ProvisionOutcome::Refused && !outcome.changedFiles.isEmpty()) {
        if (!mayBeSetAside(outcome.changedFiles, name))
            return;
        outcome = m_codes->take(provider, true);
    }
    const bool isTaken =
        outcome.state == ProvisionOutcome::Written || outcome.state == ProvisionOutcome::Current;
    if (!isTaken)
        emit problem(dashboardText("CODES_FAILED").arg(name, outcome.problem));
    setState(wantedState());
}

bool OperatorChooser::mayBeSetAside(const QStringList &files, const QString &operatorName)
{
    const QString question =
        dashboardText("CODES_CHANGED").arg(files.join(QLatin1String("\n")), operatorName);
    return CommonUtils::ShowMessage(QMessageBox::Question, m_window, dashboardText("CODES_CAPTION"),
                                    question, QLatin1String("IDS_YES"),
                                    QLatin1String("IDS_NO")) == QMessageBox::Ok;
}

/// Explains why no operator can be chosen for the current device. The message box has a button that
/// uses the modem instead of a demonstration or opens the Modem menu.
void OperatorChooser::explainMissingNetwork()
{
    const bool isSimulated = m_codes->isSimulated();
    const Remedy remedy = isSimulated ? Remedy::UseMyModem : Remedy::ChooseModem;
    QMessageBox *box =
        new QMessageBox(QMessageBox::Information, dashboardText("CODES_CAPTION"),
                        dashboardText(isSimulated ? "CODES_DEMONSTRATION" : "CODES_NO_SIM"),
                        QMessageBox::NoButton, m_window);
    box->setObjectName(QLatin1String("Dashboard_NoNetworkBox"));
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QPushButton *wayOut = box->addButton(remedyText(remedy), QMessageBox::AcceptRole);
    setButtonKind(wayOut, "primary");
    box->setEscapeButton(box->addButton(dashboardText("SHEET_CLOSE"), QMessageBox::RejectRole));
    // The connection is queued, because the remedy may open a menu, and the message box must be
    // closed first.
    connect(
        wayOut, &QPushButton::clicked, this, [this, remedy] { emit remedyRequested(remedy); },
        Qt::QueuedConnection);
    box->open();
}

void OperatorChooser::say(const char *key)
{
    CommonUtils::ShowMessage(QMessageBox::Information, m_window, dashboardText("CODES_CAPTION"),
                             dashboardText(key), QLatin1String("IDS_OK"));
}

} // namespace Dashboard
