#ifndef FIRSTPAINT_H
#define FIRSTPAINT_H

#include <QObject>

class QWidget;

/**
 * Says once that a window has been painted for the first time, so that what takes its time can be
 * done in front of the user. A window that nobody sees is not painted: then it says so after a
 * while. GUI thread.
 */
class FirstPaint : public QObject
{
    Q_OBJECT
public:
    /// The window outlives it. One that is not painted within `longestWait` ms is taken for unseen.
    explicit FirstPaint(QWidget *window, int longestWait = 500);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void painted();

private slots:
    void announce();

private:
    bool m_isAnnounced = false;
};

#endif
