#include "ShortcutPriority.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace Dashboard
{

ShortcutPriority::ShortcutPriority(const QKeySequence &key, QWidget *window)
    : QObject(window), m_key(key), m_window(window)
{
    QCoreApplication::instance()->installEventFilter(this);
}

/// Discards the ShortcutOverride event, which a field would accept in order to handle the key
/// itself.
bool ShortcutPriority::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride || !watched->isWidgetType() ||
        static_cast<QWidget *>(watched)->window() != m_window)
        return false;
    const QKeyEvent *key = static_cast<QKeyEvent *>(event);
    if (m_key != QKeySequence(key->key() | int(key->modifiers())))
        return false;
    event->ignore();
    return true;
}

} // namespace Dashboard
