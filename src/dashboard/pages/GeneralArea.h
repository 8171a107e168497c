#ifndef GENERALAREA_H
#define GENERALAREA_H

#include <QPointer>
#include <QScrollArea>

#include "plugin/GeneralWindow.h"

class QLabel;

namespace Dashboard
{

class LoadedPlugin;

/**
 * Contains the plug-in's embedded general window, with its wide margins clipped. If the area is
 * smaller than the minimum size of the clipped window, it can be scrolled.
 *
 * A compact area hides the preset buttons, which send configured codes, and the field for their
 * numbers. The buttons stay enabled, so that the dashboard can click them.
 */
class GeneralArea : public QScrollArea
{
    Q_OBJECT
public:
    /// `plugin` must outlive the area and must be shut down before the area is deleted.
    explicit GeneralArea(LoadedPlugin *plugin, QWidget *parent = nullptr);

    void showWindow();
    void hideWindow();
    /// Shows a message as plain text instead of the window. An empty string removes the message.
    void showText(const QString &text);
    /// Enables or disables the complete window without changing the states of its widgets, which
    /// the plug-in controls.
    void setWindowEnabled(bool isEnabled);
    void setCompact(bool isCompact);
    /// Returns the general window. isComplete() returns false for the result until the window has
    /// been shown.
    GeneralWindow general() const { return GeneralWindow(m_canvas); }
    /// Returns the parent of the plug-in's window.
    QWidget *canvas() const { return m_canvas; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *window() const;
    QMargins clipped() const;
    QMargins compactMargins() const;
    void makeRoom();
    void showField();
    void fit();
    void watchPresets();
    void hidePresets();
    void showPresets();

    LoadedPlugin *const m_plugin;
    QWidget *m_canvas;
    QLabel *m_text;
    bool m_isShown = false;
    bool m_isEnabled = true;
    bool m_isCompact = false;
    QList<QPointer<QWidget>> m_hidden; // the widgets that the compact area has hidden
};

} // namespace Dashboard

#endif
