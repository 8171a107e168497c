#ifndef SHORTCUTPRIORITY_H
#define SHORTCUTPRIORITY_H

#include <QKeySequence>
#include <QObject>

class QWidget;

namespace Dashboard
{

/**
 * Gives a shortcut of a window precedence over the editing keys of its fields. On X11, for example,
 * a line edit uses Ctrl+E to move the cursor to the end.
 */
class ShortcutPriority : public QObject
{
public:
    ShortcutPriority(const QKeySequence &key, QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const QKeySequence m_key;
    const QWidget *const m_window;
};

} // namespace Dashboard

#endif
