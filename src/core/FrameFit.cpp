#include "FrameFit.h"

#include <QDialog>
#include <QEvent>
#include <QLayout>
#include <QScrollArea>

#include "CommonUtils.h"
#include "QtCompat.h"

namespace HostCore
{

namespace
{

const QSize DECORATION(8, 40); // the size of the window manager's frame and title bar, in pixels

QScrollArea *scrollAreaOf(const QDialog *frame)
{
    QLayoutItem *item = frame->layout()->itemAt(0);
    return item ? qobject_cast<QScrollArea *>(item->widget()) : nullptr;
}

bool isFixed(const QWidget *widget)
{
    return widget->minimumSize() == widget->maximumSize();
}

} // namespace

FrameFit::FrameFit(QDialog *frame) : QObject(frame), m_frame(frame), m_isFitting(false)
{
    frame->installEventFilter(this);
}

QWidget *FrameFit::content(const QDialog *frame)
{
    if (const QScrollArea *area = scrollAreaOf(frame))
        return area->widget();
    QLayoutItem *item = frame->layout()->itemAt(0);
    return item ? item->widget() : nullptr;
}

void FrameFit::takeContentOut(QDialog *frame)
{
    QScrollArea *area = scrollAreaOf(frame);
    QWidget *old = area ? area->takeWidget() : content(frame);
    while (QLayoutItem *item = frame->layout()->takeAt(0))
        delete item;
    delete area;
    if (!old)
        return;
    old->setParent(frame);
    old->hide();
}

bool FrameFit::eventFilter(QObject *, QEvent *event)
{
    const bool isOpening = event->type() == QEvent::Show;
    const bool isResized = event->type() == QEvent::Resize && m_frame->isVisible();
    if (!m_isFitting && !event->spontaneous() && (isOpening || isResized)) {
        m_isFitting = true;
        fit();
        m_isFitting = false;
    }
    return false;
}

void FrameFit::fit()
{
    const QSize wanted = m_frame->size();
    const QSize most = QtCompat::availableGeometry(m_frame).size() - DECORATION;
    const QSize size = wanted.boundedTo(most);
    if (!content(m_frame) || (size == wanted && !scrollAreaOf(m_frame)))
        return;
    const bool wasFixed = isFixed(m_frame);
    moveIntoScrollArea();
    // Without a minimum size, the scroll area would shrink the content instead of scrolling it.
    if (!isFixed(content(m_frame)))
        content(m_frame)->setMinimumSize(wanted);
    if (size == wanted)
        return;
    m_frame->setMinimumSize(0, 0);
    if (wasFixed)
        m_frame->setFixedSize(size);
    else
        m_frame->resize(size);
    CommonUtils::MoveCentre(m_frame);
}

void FrameFit::moveIntoScrollArea()
{
    if (scrollAreaOf(m_frame))
        return;
    QWidget *content = FrameFit::content(m_frame);
    m_frame->layout()->removeWidget(content);
    QScrollArea *area = new QScrollArea(m_frame);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(content);
    m_frame->layout()->addWidget(area);
    area->show();
    content->show();
}

} // namespace HostCore
