#ifndef IUIPLUGIN_H
#define IUIPLUGIN_H

#include <QRect>
#include <QtPlugin>

#include "IBasePlugin.h"

class QWidget;

/**
 * A plug-in with windows. The order of the operations is part of the binary contract. All calls
 * come on the GUI thread.
 */
class IUIPlugin : public IBasePlugin
{
public:
    ~IUIPlugin() override {}

    /// Shows the plug-in's page as a child of the host's `parent`, at `rect` in its coordinates.
    virtual int ShowWindow(QWidget *parent, QRect &rect) = 0;
    /// Shows the page in a window of its own that blocks its parent; returns at once.
    /// 1 when it was shown, 0 when not.
    virtual int DoModal() = 0;
    /// Hides the page that ShowWindow() showed.
    virtual void Hide() = 0;
    /// Moves and sizes the page that ShowWindow() showed.
    virtual void FitSize(QRect &rect) = 0;
    virtual bool IsReady() = 0;
    /// Whether the plug-in can take this language. The change itself comes by INotify.
    virtual bool ChangeLang(const QString &lang) = 0;
};

Q_DECLARE_INTERFACE(IUIPlugin, "com.zelvor.portalcompass.plugin.IUIPlugin")

#endif
