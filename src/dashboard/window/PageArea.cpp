#include "PageArea.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "IUIPlugin.h"
#include "plugin/LoadedPlugin.h"

namespace Dashboard
{

PageArea::PageArea(LoadedPlugin *plugin, QWidget *parent)
    : QScrollArea(parent), m_plugin(plugin), m_canvas(new QWidget), m_text(new QLabel(m_canvas))
{
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setAlignment(Qt::AlignCenter);
    m_text->hide();
    m_canvas->installEventFilter(this);
    setWidget(m_canvas);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
}

void PageArea::showPage()
{
    if (!m_plugin->isUsable())
        return;
    showText(QString());
    QRect rect = m_canvas->rect();
    m_plugin->plugin()->ShowWindow(m_canvas, rect);
    m_isShown = true;
    makeRoom();
}

void PageArea::hidePage()
{
    m_isShown = false;
    if (m_plugin->isUsable())
        m_plugin->plugin()->Hide();
}

void PageArea::showText(const QString &text)
{
    m_text->setText(text);
    m_text->setVisible(!text.isEmpty());
}

bool PageArea::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_canvas)
        return QScrollArea::eventFilter(watched, event);
    if (event->type() == QEvent::Resize) {
        m_text->setGeometry(m_canvas->rect());
        fitPage();
    } else if (event->type() == QEvent::LayoutRequest) {
        makeRoom();
    }
    return false;
}

/// Returns the plug-in's window, which is the only child of the canvas that was not created by this
/// class.
QWidget *PageArea::page() const
{
    for (QObject *child : m_canvas->children()) {
        QWidget *widget = qobject_cast<QWidget *>(child);
        if (widget && widget != m_text)
            return widget;
    }
    return nullptr;
}

void PageArea::makeRoom()
{
    if (const QWidget *widget = page())
        m_canvas->setMinimumSize(widget->minimumSizeHint());
}

void PageArea::fitPage()
{
    if (!m_isShown || !m_plugin->isUsable())
        return;
    QRect rect = m_canvas->rect();
    m_plugin->plugin()->FitSize(rect);
}

} // namespace Dashboard
