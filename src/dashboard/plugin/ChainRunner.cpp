#include "ChainRunner.h"

#include "base/DashboardText.h"
#include "base/Isolate.h"

namespace Dashboard
{

using Verdict = Chains::ChainStep::Verdict;

ChainRunner::ChainRunner(CommandMonitor *monitor, QObject *parent)
    : QObject(parent), m_monitor(monitor)
{
    connect(monitor, &CommandMonitor::replied, this, &ChainRunner::onReply);
    connect(monitor, &CommandMonitor::changed, this, &ChainRunner::advance);
}

bool ChainRunner::run(const Chains::Chain &chain)
{
    if (isRunning() || !Chains::isComplete(chain) || !m_monitor->canSend())
        return false;
    m_run.emplace(chain);
    m_name = QString::fromStdString(chain.name);
    m_length = chain.length();
    m_step = Chains::ChainStep();
    m_reason = nullptr;
    if (!send(chain.code)) {
        end();
        return false;
    }
    return true;
}

void ChainRunner::dismiss()
{
    if (isRunning() || !m_state.hasStopped())
        return;
    m_reason = nullptr;
    setTexts();
}

/// Sends the string. Returns false if the window does not accept it.
bool ChainRunner::send(const std::string &text)
{
    m_reply.reset();
    m_sent = QString::fromStdString(text);
    m_request = readSession().requests + 1;
    if (!m_monitor->send(m_sent))
        return false;
    setTexts();
    return true;
}

// ---- replies -------------------------------------------------------------------------------

/// Queues the handling of the reply, because the window accepts the next step only after it has
/// handled the reply itself.
void ChainRunner::onReply(const QString &code, const Reply &reply)
{
    if (!isRunning())
        return;
    if (code.isEmpty() && reply.asksForAnswer) {
        m_step.number = qMin(m_run->stepsSent() + 2, m_length);
        return stop("CHAIN_ASKED");
    }
    if (code != m_sent)
        return;
    m_reply = reply;
    QMetaObject::invokeMethod(this, &ChainRunner::advance, Qt::QueuedConnection);
}

void ChainRunner::advance()
{
    if (!isRunning()) {
        // Shows the message about a stopped chain until the next command or the end of the menu.
        if (m_state.hasStopped() && (isOver() || readSession().requests != m_request))
            dismiss();
        return;
    }
    if (m_monitor->state().isPending() && readSession().requests <= m_request)
        return;
    if (hasEnded())
        end();
    else if (m_reply)
        takeReply();
}

/// Returns true if the run cannot continue and no message is required, because the monitor already
/// shows the reason or the user has caused it.
bool ChainRunner::hasEnded() const
{
    using Kind = CommandState::Kind;
    const Session session = readSession();
    const bool isForgotten = m_monitor->state().kind == Kind::Ready && !m_reply &&
                             session.requests == m_request && !session.isInFlight();
    return session.requests > m_request || isOver() || isForgotten;
}

/// Returns true if the most recent command has failed, or if the user has cancelled it or ended the
/// menu.
bool ChainRunner::isOver() const
{
    using Kind = CommandState::Kind;
    const Kind kind = m_monitor->state().kind;
    return kind == Kind::Failed || kind == Kind::Cancelled || kind == Kind::MenuEnded;
}

void ChainRunner::takeReply()
{
    const bool isMenu = m_reply->asksForAnswer && readSession().waitsForAnswer();
    m_step = m_run->takeReply(m_reply->text.toStdString(), isMenu);
    if (m_step.verdict == Verdict::Done)
        return end();
    if (m_step.verdict == Verdict::NoMenu)
        return stop("CHAIN_NO_MENU");
    if (m_step.verdict == Verdict::Changed)
        return stop(m_step.offered.empty() ? "CHAIN_CHANGED" : "CHAIN_REPLACED");
    if (m_monitor->hasTypedText())
        return stop("CHAIN_TYPED");
    if (!send(m_step.key))
        stop("CHAIN_NOT_SENT");
}

void ChainRunner::end()
{
    m_run.reset();
    m_reply.reset();
    setTexts();
}

void ChainRunner::stop(const char *reason)
{
    m_reason = reason;
    m_request = readSession().requests;
    end();
}

// ---- texts ---------------------------------------------------------------------------------

void ChainRunner::retranslate()
{
    setTexts();
}

/// Returns the reason why the chain has stopped, in the user's language.
QString ChainRunner::reasonText() const
{
    QString text = dashboardText(m_reason);
    const QString expected = isolatedWords(QString::fromStdString(m_step.expected));
    const QString key = isolated(QString::fromStdString(m_step.key));
    if (m_step.verdict != Verdict::Changed || !text.contains(QLatin1String("%1")))
        return text;
    if (m_step.offered.empty())
        return text.arg(expected, key);
    return text.arg(expected, key, isolatedWords(QString::fromStdString(m_step.offered)));
}

void ChainRunner::setTexts()
{
    m_state = ChainState();
    if (isRunning()) {
        m_state.kind = ChainState::Kind::Running;
        m_state.progress = dashboardText("CHAIN_PROGRESS")
                               .arg(isolatedWords(m_name))
                               .arg(m_run->stepsSent() + 1)
                               .arg(m_length);
    } else if (m_reason) {
        m_state.kind = ChainState::Kind::Stopped;
        m_state.title = dashboardText("CHAIN_STOPPED_AT")
                            .arg(isolatedWords(m_name))
                            .arg(m_step.number)
                            .arg(m_length);
        m_state.text = reasonText();
    }
    emit changed();
}

} // namespace Dashboard
