#ifndef COMMONUTILS_H
#define COMMONUTILS_H

#include <QFontMetrics>
#include <QMessageBox>
#include <QString>

#include "QtCompat.h"

class QWidget;

/**
 * Services of the host for its plug-ins. The functions must be called on the GUI thread, unless
 * their comments allow any thread.
 */
class Q_DECL_EXPORT CommonUtils
{
public:
    /// Returns the host's main window, which is the parent of frames. Returns null if there is
    /// none. The host owns the window.
    static QWidget *GetMainWindow();
    /// Centres `widget`, a top-level window, over the main window, or on the screen if the main
    /// window is null, hidden or minimized. Keeps `widget` inside the available area of the screen.
    /// Does nothing if `widget` is null.
    static void MoveCentre(QWidget *widget);
    /// Returns whether the host runs in its small mode, in which windows have no frames.
    static bool IsMiniMode();
    /// Returns whether the host is shutting down. A call-back of the device SDK checks this,
    /// because it may still run at that time. May be called on any thread.
    static bool IsShuttingDown();
    /// Returns the absolute path of the folder that contains "plugins/USSDUIPlugin/". The path does
    /// not end in a separator. May be called on any thread.
    static QString GetPluginLibraryPath();

    /// Shows `text` as plain text in a message box and waits for the user's choice, while events
    /// are processed. The button keys are translated in the context "USSDUIPlugin". If the second
    /// key is empty, the box has one button.
    ///
    /// Returns QMessageBox::Ok for the first button. Returns QMessageBox::Cancel for the second
    /// button, for Escape, for the window's close button, and if `parent` is deleted meanwhile.
    static int ShowMessage(QMessageBox::Icon icon, QWidget *parent, const QString &caption,
                           const QString &text, const QString &firstButtonKey,
                           const QString &secondButtonKey = QString());

    /// Elides the text of `widget` to `maxWidth` pixels and sets the whole text as its tool tip, if
    /// the text is at least that wide. Otherwise clears the tool tip. `T` must have fontMetrics(),
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
    /// Writes a debug line with the local time. Used by the template above.
    static void logElide(int line, const char *what);
};

#endif
