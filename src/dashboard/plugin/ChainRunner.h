#ifndef CHAINRUNNER_H
#define CHAINRUNNER_H

#include <QObject>

#include <optional>

#include "ChainRun.h"
#include "CommandMonitor.h"

namespace Dashboard
{

/** What goes on with a chain, in the user's language. */
struct ChainState {
    enum class Kind { None, Running, Stopped };

    Kind kind = Kind::None;
    QString progress; // while the chain is running: its name and the step
    QString title;    // of a chain that has stopped
    QString text;     // why the chain has stopped

    bool hasStopped() const { return kind == Kind::Stopped; }
};

/**
 * Runs a chain through the general window, as a user would. Each step is sent only if the reply
 * before it still offers the same choice. The run ends without a further step if the user or
 * another window sends anything else, types into the code field, cancels or ends the menu, if the
 * network asks something of its own accord, or if a command fails. An open menu stays open for the
 * user.
 */
class ChainRunner : public QObject
{
    Q_OBJECT
public:
    /// The monitor must outlive the runner.
    explicit ChainRunner(CommandMonitor *monitor, QObject *parent = nullptr);

    const ChainState &state() const { return m_state; }
    bool isRunning() const { return m_run.has_value(); }
    /// Sends the code of the chain. Returns false if no code can be sent now.
    bool run(const Chains::Chain &chain);

public slots:
    /// Removes the message that the chain has stopped.
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
    std::optional<Reply> m_reply; // to the string sent last
    QString m_sent;
    unsigned long m_request = 0; // the number of the request, see Session
    Chains::ChainStep m_step;    // of a chain that has stopped
    QString m_name;
    std::size_t m_length = 0;       // see Chains::Chain::length()
    const char *m_reason = nullptr; // the key of the message of a chain that has stopped
    ChainState m_state;
};

} // namespace Dashboard

#endif
