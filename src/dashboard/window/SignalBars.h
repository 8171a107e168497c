#ifndef SIGNALBARS_H
#define SIGNALBARS_H

#include <QWidget>

/** Signal strength as five bars. */
class SignalBars : public QWidget
{
    Q_OBJECT
public:
    explicit SignalBars(QWidget *parent = nullptr);

    /// 0 to 100; anything below is unknown and shows empty bars.
    void setPercent(int percent);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_percent = -1;
};

#endif
