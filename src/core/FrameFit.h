#ifndef FRAMEFIT_H
#define FRAMEFIT_H

#include <QObject>

class QDialog;

namespace HostCore
{

/**
 * Keeps a frame inside the screen. If a frame becomes larger than the screen, for example because
 * of a large font, its content moves into a scroll area, and the frame takes the size of the
 * screen.
 */
class FrameFit : public QObject
{
public:
    explicit FrameFit(QDialog *frame);

    /// Returns the content of the frame, also if it is in a scroll area. May be null.
    static QWidget *content(const QDialog *frame);
    /// Removes the content from the layout of the frame and hides it. The content becomes or stays
    /// a child of the frame.
    static void takeContentOut(QDialog *frame);

    bool eventFilter(QObject *frame, QEvent *event) override;

private:
    void fit();
    void moveIntoScrollArea();

    QDialog *m_frame;
    bool m_isFitting;
};

} // namespace HostCore

#endif
