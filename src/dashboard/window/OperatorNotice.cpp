#include "OperatorNotice.h"

#include <QPushButton>

#include "base/DashboardText.h"
#include "CommonUtils.h"
#include "OperatorDialog.h"
#include "sim/OperatorCodes.h"

using namespace Provisioning;

namespace Dashboard
{

OperatorNotice::OperatorNotice(OperatorCodes *codes, QWidget *parent)
    : NoticeBar("Dashboard_OperatorNotice", parent), m_codes(codes),
      m_takeButton(addButton("Dashboard_OperatorTake")),
      m_declineButton(addButton("Dashboard_OperatorNo"))
{
    connect(m_takeButton, SIGNAL(clicked()), this, SLOT(onTake()));
    connect(m_declineButton, SIGNAL(clicked()), this, SLOT(onNo()));
    // The connection is queued, because reading the database takes some time.
    connect(codes, SIGNAL(networkChanged()), this, SLOT(propose()), Qt::QueuedConnection);
}

void OperatorNotice::propose()
{
    setState(Nothing);
    if (!m_codes->isFree() || m_codes->network().isEmpty() || m_codes->isDecided())
        return;
    const ProviderChoice choice = m_codes->choice();
    if (choice.state == ProviderChoice::Chosen) {
        m_proposed = choice.candidates.first();
        setState(OneProposed, m_proposed.name());
    } else if (choice.state == ProviderChoice::Ambiguous) {
        setState(SeveralProposed);
    } else if (m_codes->areAbsent() && m_codes->hasDatabase()) {
        setState(Unknown);
    }
}

void OperatorNotice::setState(State state, const QString &subject, const QString &problem)
{
    m_state = state;
    m_subject = subject;
    m_problem = problem;
    retranslate();
}

QString OperatorNotice::stateText() const
{
    switch (m_state) {
    case OneProposed:
        return dashboardText("CODES_PROPOSE_ONE").arg(m_subject);
    case SeveralProposed:
        return dashboardText("CODES_PROPOSE_SEVERAL");
    case Unknown:
        return dashboardText("CODES_PROPOSE_NONE");
    case Done:
        if (m_subject.isEmpty())
            return dashboardText(m_codes->areSample() ? "CODES_SHIPPED_IN_USE"
                                                      : "CODES_NONE_IN_USE");
        return dashboardText("CODES_IN_USE").arg(m_subject);
    case Failed:
        return dashboardText("CODES_FAILED").arg(m_subject, m_problem);
    case Nothing:
        break;
    }
    return QString();
}

bool OperatorNotice::isProposal() const
{
    return m_state == OneProposed || m_state == SeveralProposed || m_state == Unknown;
}

void OperatorNotice::retranslate()
{
    const bool proposes = isProposal();
    const char *take = m_state == OneProposed ? "CODES_TAKE" : "CODES_CHOOSE";
    setButtonText(m_takeButton, proposes ? dashboardText(take) : QString());
    setButtonText(m_declineButton, dashboardText(proposes ? "CODES_NOT_NOW" : "CODES_CLOSE"));
    setText(stateText());
    if (m_dialog)
        m_dialog->retranslate();
}

void OperatorNotice::onTake()
{
    if (m_state == OneProposed)
        take(m_proposed);
    else
        choose();
}

void OperatorNotice::onNo()
{
    if (isProposal())
        m_codes->decline();
    setState(Nothing);
}

void OperatorNotice::choose()
{
    if (!m_codes->isFree())
        return say("CODES_CHOSEN_OUTSIDE");
    if (m_codes->network().isEmpty())
        return say("CODES_NO_SIM");
    if (!m_codes->hasDatabase())
        return say("CODES_NO_LIST");
    if (m_dialog)
        return m_dialog->raise();
    m_dialog =
        new OperatorDialog(m_codes->network(), m_codes->candidates(), m_codes->operatorInUse(),
                           m_codes->isSimulated() ? "CODES_SHIPPED" : "CODES_NONE", window());
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_dialog, SIGNAL(accepted()), this, SLOT(onChosen()));
    m_dialog->show();
    CommonUtils::MoveCentre(m_dialog);
}

void OperatorNotice::onChosen()
{
    m_isOperatorChosen = m_dialog->choosesOperator();
    m_chosen = m_dialog->provider();
    QMetaObject::invokeMethod(this, "useChosen",
                              Qt::QueuedConnection); // called after the dialog has been closed
}

void OperatorNotice::useChosen()
{
    if (m_isOperatorChosen)
        return take(m_chosen);
    m_codes->decline();
    setState(Done);
}

void OperatorNotice::take(const Provider &provider)
{
    const QString name = provider.name();
    ProvisionOutcome outcome = m_codes->take(provider, false);
    if (outcome.state == ProvisionOutcome::Refused && !outcome.changedFiles.isEmpty()) {
        if (!mayBeSetAside(outcome.changedFiles, name))
            return setState(Nothing);
        outcome = m_codes->take(provider, true);
    }
    const bool isTaken =
        outcome.state == ProvisionOutcome::Written || outcome.state == ProvisionOutcome::Current;
    setState(isTaken ? Done : Failed, name, outcome.problem);
}

bool OperatorNotice::mayBeSetAside(const QStringList &files, const QString &operatorName)
{
    const QString question =
        dashboardText("CODES_CHANGED").arg(files.join(QLatin1String("\n")), operatorName);
    return CommonUtils::ShowMessage(QMessageBox::Question, window(), dashboardText("CODES_CAPTION"),
                                    question, QLatin1String("IDS_YES"),
                                    QLatin1String("IDS_NO")) == QMessageBox::Ok;
}

void OperatorNotice::say(const char *key)
{
    CommonUtils::ShowMessage(QMessageBox::Information, window(), dashboardText("CODES_CAPTION"),
                             dashboardText(key), QLatin1String("IDS_OK"));
}

} // namespace Dashboard
