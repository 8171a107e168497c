#ifndef COMMONUTILS_H
#define COMMONUTILS_H

#include <QFontMetrics>
#include <QMessageBox>
#include <QString>

#include "QtCompat.h"

class QWidget;

/**
 * Services of the host for its plug-ins. The operations must be called on the GUI thread, unless
 * their comments say otherwise.
 */
class Q_DECL_EXPORT CommonUtils
{
public:
    /// Returns the host's main window, which is the parent of frames, or null when there is none.
    /// The host owns the window.
    static QWidget *GetMainWindow();
    /// Centres `widget`, a top-level window, over the main window, or on the screen when the main
    /// window is null, hidden or minimized. Keeps it inside the available part of the screen. Does
    /// nothing when `widget` is null.
    static void MoveCentre(QWidget *widget);
    /// Returns whether the host runs in its small mode, in which windows have no frames.
    static bool IsMiniMode();
    /// Returns whether the host is shutting down. A call-back from the device SDK checks it,
    /// because it may still run then. May be called on any thread.
    static bool IsShuttingDown();
    /// Returns the absolute path of the folder that contains "plugins/USSDUIPlugin/". The path does
    /// not end in a separator. May be called on any thread.
    static QString GetPluginLibraryPath();

    /// Shows `text` as plain text in a message box and waits for the user, while events are
    /// handled. The button keys are translated in the context "USSDUIPlugin"; an empty second key
    /// shows one button.
    ///
    /// Returns QMessageBox::Ok for the first button. Returns QMessageBox::Cancel for the second
    /// button, for Escape, for the window's close button, and when `parent` is deleted meanwhile.
    static int ShowMessage(QMessageBox::Icon icon, QWidget *parent, const QString &caption,
                           const QString &text, const QString &firstButtonKey,
                           const QString &secondButtonKey = QString());

    /// Elides the text of `widget` to `maxWidth` pixels when the text is at least that wide, and
    /// makes the whole text its tool tip. Otherwise clears the tool tip. `T` needs fontMetrics(),
    /// text(), setText() and setToolTip(). The template is compiled into the plug-in.
    template <typename T>
    static void setElidedTextForWidgetText(T *widget, int maxWidth, Qt::TextElideMode mode)
    {
        logElide(__LINE__, "Enter");
        const QFontMetrics metrics = widget->fontMetrics();
        const QString text = widget->text();
        if (maxWidth <= QtCompat::textWidth(metrics, text)) {
            widget->setText(metrics.elidedText(text, mode, maxWidth));
            widget->setToolTip(text);
        } else {
            widget->setToolTip(QString());
        }
        logElide(__LINE__, "Exit");
    }

private:
    /// Writes a debug line with the local time for the template above.
    static void logElide(int line, const char *what);
};

#endif
