#ifndef PAGEAREA_H
#define PAGEAREA_H

#include <QScrollArea>

class QLabel;
class UiPlugin;

/**
 * The place that the plug-in's general window is embedded in. The window fills it and follows its
 * size; when there is less room than the window needs, it can be scrolled.
 */
class PageArea : public QScrollArea
{
    Q_OBJECT
public:
    /// `plugin` outlives the area, and is shut down before the area goes.
    explicit PageArea(UiPlugin *plugin, QWidget *parent = nullptr);

    void showPage();
    void hidePage();
    /// Shows a plain text in place of the page; an empty one shows nothing.
    void showText(const QString &text);
    /// The widget that the plug-in's window is a child of.
    QWidget *canvas() const { return m_canvas; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *page() const;
    void makeRoom();
    void fitPage();

    UiPlugin *const m_plugin;
    QWidget *m_canvas;
    QLabel *m_text;
    bool m_isShown = false;
};

#endif
