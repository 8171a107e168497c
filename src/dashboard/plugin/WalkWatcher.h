#ifndef WALKWATCHER_H
#define WALKWATCHER_H

#include <QObject>

#include "CommandMonitor.h"
#include "WalkRecorder.h"

namespace Dashboard
{

/** Records the walk that the user takes through the menus of a code, see Chains::WalkRecorder. */
class WalkWatcher : public QObject
{
    Q_OBJECT
public:
    /// The monitor must outlive the watcher.
    explicit WalkWatcher(CommandMonitor *monitor, QObject *parent = nullptr);

    /// Returns the walk that can be kept; a chain without steps means that there is none.
    Chains::Chain walk() const { return m_recorder.finished(); }

public slots:
    /// Forgets the walk. Must be called when another SIM is in use.
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
