#ifndef USERACTIVITY_H
#define USERACTIVITY_H

#include <QObject>

/**
 * Tells what the user does with the plug-in's windows. Watches the whole application, as the
 * plug-in makes its windows when it likes. GUI thread.
 */
class UserActivity : public QObject
{
    Q_OBJECT
public:
    explicit UserActivity(QObject *parent = nullptr);

    /// Whether a frame of the plug-in is open, or a command typed by the user is underway.
    static bool isBusy();

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// A frame was closed, or the command edit takes input again. Comes after the event that it
    /// tells of was handled; nothing else need have changed.
    void frameClosed();
    void commandEnded();
};

#endif
