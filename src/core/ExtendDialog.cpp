#include "ExtendDialog.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QVBoxLayout>

#include "FrameFit.h"

namespace
{

/**
 * Makes Escape close the frame in the same way as its close button. By default, Escape hides a
 * QDialog without sending a close event, so that dlgCloseEvent() would not be emitted.
 */
class EscapeCloses : public QObject
{
public:
    explicit EscapeCloses(QWidget *frame) : QObject(frame) { frame->installEventFilter(this); }

    bool eventFilter(QObject *frame, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress ||
            static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape)
            return false;
        static_cast<QWidget *>(frame)->close();
        return true;
    }
};

} // namespace

// The last argument, the widget type, is ignored, because this host has only one frame style.
ExtendDialog::ExtendDialog(QWidget *parent, Qt::WindowFlags flags, int) : QDialog(parent, flags)
{
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    new EscapeCloses(this);
    new HostCore::FrameFit(this);
}

ExtendDialog::~ExtendDialog() = default;

void ExtendDialog::AddMainWidget(QWidget *widget)
{
    if (!widget || HostCore::FrameFit::content(this) == widget)
        return;
    HostCore::FrameFit::takeContentOut(this);
    layout()->addWidget(widget);
    widget->show();
}

void ExtendDialog::closeEvent(QCloseEvent *event)
{
    const QPointer<ExtendDialog> self(this);
    emit dlgCloseEvent();
    if (self)
        QDialog::closeEvent(event);
}
