#ifndef PAGEAREA_H
#define PAGEAREA_H

#include <QScrollArea>

class QLabel;

namespace Dashboard
{

class LoadedPlugin;

/**
 * Contains the plug-in's embedded general window. The window fills the area and is resized with the
 * area. If the area is smaller than the window's minimum size, the area can be scrolled.
 */
class PageArea : public QScrollArea
{
    Q_OBJECT
public:
    /// `plugin` must outlive the area and must be shut down before the area is deleted.
    explicit PageArea(LoadedPlugin *plugin, QWidget *parent = nullptr);

    void showPage();
    void hidePage();
    /// Shows a message as plain text instead of the page. An empty string leaves the area empty.
    void showText(const QString &text);
    /// Returns the parent of the plug-in's window.
    QWidget *canvas() const { return m_canvas; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *page() const;
    void makeRoom();
    void fitPage();

    LoadedPlugin *const m_plugin;
    QWidget *m_canvas;
    QLabel *m_text;
    bool m_isShown = false;
};

} // namespace Dashboard

#endif
