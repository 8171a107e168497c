#ifndef STATUSDOT_H
#define STATUSDOT_H

#include <QWidget>

#include "look/Controls.h"

namespace Dashboard
{

/**
 * A dot in the colour of a tone. Because colours alone are not accessible, a text next to the dot
 * must provide the same information.
 */
class StatusDot : public QWidget
{
    Q_OBJECT
public:
    explicit StatusDot(QWidget *parent = nullptr);

    void setTone(Tone tone);
    Tone tone() const { return m_tone; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Tone m_tone = Tone::Ok;
};

} // namespace Dashboard

#endif
