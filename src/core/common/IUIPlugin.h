#ifndef IUIPLUGIN_H
#define IUIPLUGIN_H

#include <QRect>
#include <QtPlugin>

#include "IBasePlugin.h"

class QWidget;

/**
 * A plug-in with windows. The page is the window that a host can embed in its own window.
 *
 * The order of the functions is part of the binary interface. The host calls all functions from its
 * GUI thread.
 */
class IUIPlugin : public IBasePlugin
{
public:
    ~IUIPlugin() override {}

    /// Shows the page as a child of `parent`, a widget of the host. `rect` specifies the position
    /// and size of the page in pixels, in the coordinates of `parent`. Always returns 0.
    virtual int ShowWindow(QWidget *parent, QRect &rect) = 0;
    /// Shows the page in a separate frame that is modal to the host's main window. Returns without
    /// waiting for the user. Returns 1 if the frame was shown, otherwise 0.
    virtual int DoModal() = 0;
    /// Hides the page that ShowWindow() has shown.
    virtual void Hide() = 0;
    /// Moves and resizes the page that ShowWindow() has shown. `rect` has the same meaning as in
    /// ShowWindow().
    virtual void FitSize(QRect &rect) = 0;
    /// Returns true if the host should show the page in its user interface at start-up.
    virtual bool IsReady() = 0;
    /// Returns true if the plug-in supports the language `lang`, an ISO 639-1 code. The function
    /// does not change the language. The plug-in updates its strings when it receives
    /// PluginContract::EVENT_LANGUAGE_CHANGED.
    virtual bool ChangeLang(const QString &lang) = 0;
};

Q_DECLARE_INTERFACE(IUIPlugin, "com.zelvor.portalcompass.plugin.IUIPlugin")

#endif
