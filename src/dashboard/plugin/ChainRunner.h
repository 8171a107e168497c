#ifndef CHAINRUNNER_H
#define CHAINRUNNER_H

#include <QObject>

#include <optional>

#include "ChainRun.h"
#include "CommandMonitor.h"

namespace Dashboard
{

/** The state of a chain. All texts are in the user's language. */
struct ChainState {
    enum class Kind { None, Running, Stopped };

    Kind kind = Kind::None;
    QString progress; // the name and the current step of a running chain
    QString title;    // the title of the message if the chain has stopped
    QString text;     // the reason why the chain has stopped

    bool hasStopped() const { return kind == Kind::Stopped; }
};

/**
 * Runs a chain through the general window, as a user would. Each step is sent only if the previous
 * reply still offers the same choice. The run ends early if a command fails, if anything else is
 * sent, or if the network sends a message that requires an answer. It also ends if the user types
 * into the code field, cancels the command or ends the menu. If a menu is open at this time, it
 * stays open.
 */
class ChainRunner : public QObject
{
    Q_OBJECT
public:
    /// The monitor must outlive the runner.
    explicit ChainRunner(CommandMonitor *monitor, QObject *parent = nullptr);

    const ChainState &state() const { return m_state; }
    bool isRunning() const { return m_run.has_value(); }
    /// Starts the chain by sending its code. Returns false if the chain is incomplete, another
    /// chain is running, or no code can be sent now.
    bool run(const Chains::Chain &chain);

public slots:
    /// Removes the message about the stopped chain.
    void dismiss();
    void retranslate();

signals:
    void changed();

private:
    void onReply(const QString &code, const Reply &reply);
    void advance();
    bool hasEnded() const;
    bool isOver() const;
    void takeReply();
    bool send(const std::string &text);
    void end();
    void stop(const char *reason);
    QString reasonText() const;
    void setTexts();

    CommandMonitor *const m_monitor;
    std::optional<Chains::ChainRun> m_run;
    std::optional<Reply> m_reply; // the reply to m_sent; absent until it arrives
    QString m_sent;
    unsigned long m_request = 0; // the number of the most recent request; see Session
    Chains::ChainStep m_step;    // the step at which the chain has stopped
    QString m_name;
    std::size_t m_length = 0;       // the result of Chains::Chain::length()
    const char *m_reason = nullptr; // the text key of the reason why the chain has stopped, or null
    ChainState m_state;
};

} // namespace Dashboard

#endif
