#ifndef SECONDSRING_H
#define SECONDSRING_H

#include <QProgressBar>

namespace Dashboard
{

/** A ring that fills while the network has time to reply. The number in it counts the seconds. */
class SecondsRing : public QProgressBar
{
    Q_OBJECT
public:
    explicit SecondsRing(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace Dashboard

#endif
