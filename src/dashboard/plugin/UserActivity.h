#ifndef USERACTIVITY_H
#define USERACTIVITY_H

#include <QObject>

namespace Dashboard
{

/**
 * Reports what the user does with the plug-in's windows. The event filter covers the whole
 * application, because the plug-in may create its windows at any time. Must be used on the GUI
 * thread.
 */
class UserActivity : public QObject
{
    Q_OBJECT
public:
    explicit UserActivity(QObject *parent = nullptr);

    /// Returns whether a frame of the plug-in is open, or the command that the user typed is
    /// pending.
    static bool isBusy();
    /// Returns true while a command that the user typed into a general window is pending.
    static bool isCommandPending();

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// Emitted when a frame was closed, or when the command edit accepts input again. The signal is
    /// emitted after the event that caused the change was handled. It may also be emitted if
    /// nothing has changed.
    void frameClosed();
    void commandEnded();
};

} // namespace Dashboard

#endif
