#ifndef FRAMEFIT_H
#define FRAMEFIT_H

#include <QObject>

class QDialog;

namespace HostCore
{

/**
 * Keeps a frame inside the screen. If a frame would be larger than the screen, for example because
 * of a large font, FrameFit reduces the frame to the size of the screen. It moves the content of
 * the frame into a scroll area.
 */
class FrameFit : public QObject
{
public:
    explicit FrameFit(QDialog *frame);

    /// Returns the content of the frame, even if it is inside a scroll area. Returns null if the
    /// frame has no content.
    static QWidget *content(const QDialog *frame);
    /// Removes the content from the layout of the frame, makes it a direct child of the frame and
    /// hides it.
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
