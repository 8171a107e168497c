#ifndef FIRSTPAINT_H
#define FIRSTPAINT_H

#include <QObject>

class QWidget;

namespace Dashboard
{

/**
 * Emits a signal when a window has been painted for the first time, so that slow operations can be
 * postponed until the window is visible. If the window is not painted, for example because it is
 * hidden, the signal is emitted after a time limit. All functions must be called from the GUI
 * thread.
 */
class FirstPaint : public QObject
{
    Q_OBJECT
public:
    /// The window must outlive this object. `longestWait` is the time limit in milliseconds.
    explicit FirstPaint(QWidget *window, int longestWait = 500);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void painted();

private slots:
    void announce();

private:
    bool m_isAnnounced = false;
};

} // namespace Dashboard

#endif
