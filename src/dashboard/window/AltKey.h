#ifndef ALTKEY_H
#define ALTKEY_H

#include <QObject>

class QWidget;

namespace Dashboard
{

/**
 * Emits a signal when the user presses and releases Alt without pressing any other key while the
 * window is active.
 */
class AltKey : public QObject
{
    Q_OBJECT
public:
    explicit AltKey(QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void pressedAlone();

private:
    QWidget *const m_window;
    bool m_isAlone = false;
};

} // namespace Dashboard

#endif
