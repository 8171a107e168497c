#ifndef WALKWATCHER_H
#define WALKWATCHER_H

#include <QObject>

#include "CommandMonitor.h"
#include "WalkRecorder.h"

namespace Dashboard
{

/** Records the choices that the user makes in the menus of a code; see Chains::WalkRecorder. */
class WalkWatcher : public QObject
{
    Q_OBJECT
public:
    /// The monitor must outlive the watcher.
    explicit WalkWatcher(CommandMonitor *monitor, QObject *parent = nullptr);

    /// Returns the code and the recorded choices as a chain, or a chain without steps if there is
    /// nothing that can be stored.
    Chains::Chain walk() const { return m_recorder.finished(); }

public slots:
    /// Discards the recorded choices. Must be called when the SIM has changed.
    void forget();

signals:
    void changed();

private:
    void onReply(const QString &code, const Reply &reply);
    void onChanged();

    CommandMonitor *const m_monitor;
    Chains::WalkRecorder m_recorder;
};

} // namespace Dashboard

#endif
