#ifndef SECONDSRING_H
#define SECONDSRING_H

#include <QProgressBar>

namespace Dashboard
{

/**
 * A ring that fills up during the time that the network has to reply. The number in the ring is the
 * number of elapsed seconds.
 */
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
