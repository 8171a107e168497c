#ifndef SIGNALBARS_H
#define SIGNALBARS_H

#include <QWidget>

namespace Dashboard
{

/** Shows the signal strength as five bars. */
class SignalBars : public QWidget
{
    Q_OBJECT
public:
    explicit SignalBars(QWidget *parent = nullptr);

    /// Sets the signal strength, 0 to 100. If the value is negative, the signal strength is
    /// unknown, and the bars are empty.
    void setPercent(int percent);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_percent = -1;
};

} // namespace Dashboard

#endif
