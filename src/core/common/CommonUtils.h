#ifndef COMMONUTILS_H
#define COMMONUTILS_H

#include <QFontMetrics>
#include <QMessageBox>
#include <QString>

#include "QtCompat.h"

class QWidget;

/**
 * Services that the host provides to its plug-ins. Unless documented otherwise, the functions must
 * be called from the GUI thread.
 */
class Q_DECL_EXPORT CommonUtils
{
public:
    /// Returns the host's main window, which is the parent of all frames. Returns null if there is
    /// no main window. The host owns the window.
    static QWidget *GetMainWindow();
    /// Centres `widget`, a top-level window, over the main window. If the main window is null,
    /// hidden or minimized, centres `widget` on the screen. Keeps `widget` inside the available
    /// area of the screen. Does nothing if `widget` is null.
    static void MoveCentre(QWidget *widget);
    /// Returns true if the host runs in its small mode, in which windows have no frames.
    static bool IsMiniMode();
    /// Returns true if the host is shutting down. Call-backs of the device SDK must check this,
    /// because the SDK may still call them during the shutdown. May be called from any thread.
    static bool IsShuttingDown();
    /// Returns the absolute path of the folder that contains "plugins/USSDUIPlugin/". The path does
    /// not end with a separator. May be called from any thread.
    static QString GetPluginLibraryPath();

    /// Shows `text` as plain text in a message box and waits for the user's choice in a local event
    /// loop. The button keys are translated in the context "USSDUIPlugin". If the second key is
    /// empty, the message box has only one button.
    ///
    /// Returns QMessageBox::Ok if the user presses the first button. Returns QMessageBox::Cancel if
    /// the user presses the second button or Escape or closes the window, or if `parent` is
    /// deleted.
    static int ShowMessage(QMessageBox::Icon icon, QWidget *parent, const QString &caption,
                           const QString &text, const QString &firstButtonKey,
                           const QString &secondButtonKey = QString());

    /// If the text of `widget` is at least `maxWidth` pixels wide, elides it to this width and sets
    /// the full text as the tool tip. Otherwise, clears the tool tip. `T` must provide
    /// fontMetrics(), text(), setText() and setToolTip(). Because this is a template, its code is
    /// compiled into the plug-in.
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
    /// Logs a debug message with the local time. Called only by setElidedTextForWidgetText().
    static void logElide(int line, const char *what);
};

#endif
