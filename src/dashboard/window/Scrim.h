#ifndef SCRIM_H
#define SCRIM_H

#include <QTimer>
#include <QWidget>

namespace Dashboard
{

/** Dims its parent while a modal window is open. */
class Scrim : public QWidget
{
    Q_OBJECT
public:
    explicit Scrim(QWidget *parent);

    void setShown(bool shown);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void step();

    QTimer m_fade;
    int m_steps = 0; // the number of completed steps of the fade
};

} // namespace Dashboard

#endif
