#ifndef USERACTIVITY_H
#define USERACTIVITY_H

#include <QObject>

namespace Dashboard
{

/**
 * Reports what the user does with the plug-in's windows. The event filter covers the whole
 * application because the plug-in creates its windows at any time. GUI thread.
 */
class UserActivity : public QObject
{
    Q_OBJECT
public:
    explicit UserActivity(QObject *parent = nullptr);

    /// Returns whether a frame of the plug-in is open or a command typed by the user is pending.
    static bool isBusy();

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// Emitted when a frame was closed or the command edit accepts input again, after the event
    /// that caused the change was handled. It may also be emitted when nothing has changed.
    void frameClosed();
    void commandEnded();
};

} // namespace Dashboard

#endif
