#ifndef USERACTIVITY_H
#define USERACTIVITY_H

#include <QObject>

namespace Dashboard
{

/**
 * Reports the user's activity in the plug-in's windows. The event filter is installed on the
 * application, because the plug-in may create its windows at any time. All functions must be called
 * from the GUI thread.
 */
class UserActivity : public QObject
{
    Q_OBJECT
public:
    explicit UserActivity(QObject *parent = nullptr);

    /// Returns true if a window of the plug-in is open in a separate frame, or if a command typed
    /// by the user is pending.
    static bool isBusy();
    /// Returns true while a command that the user typed into a general window is pending.
    static bool isCommandPending();

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// The signals are emitted when a frame has been closed or when the command field accepts input
    /// again, after the event that caused the change has been handled. They may also be emitted if
    /// nothing has changed.
    void frameClosed();
    void commandEnded();
};

} // namespace Dashboard

#endif
