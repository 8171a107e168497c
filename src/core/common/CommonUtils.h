#ifndef COMMONUTILS_H
#define COMMONUTILS_H

#include <QFontMetrics>
#include <QMessageBox>
#include <QString>

#include "QtCompat.h"

class QWidget;

/** What every plug-in asks of the host. GUI thread, unless said otherwise. */
class Q_DECL_EXPORT CommonUtils
{
public:
    /// The host's main window: the parent of frames. Null when it has none.
    static QWidget *GetMainWindow();
    /// Centres a top-level window over the main window, or on the screen.
    static void MoveCentre(QWidget *widget);
    /// Whether the host shows itself small, without window frames.
    static bool IsMiniMode();
    /// Whether the host is on its way out. Any thread.
    static bool IsShuttingDown();
    /// The folder that holds "plugins/USSDUIPlugin/", without a separator at its end. Any thread.
    static QString GetPluginLibraryPath();

    /// Shows `text` as plain text and waits for the user. The button texts are keys, translated
    /// with the context "USSDUIPlugin". QMessageBox::Ok for the first button; QMessageBox::Cancel
    /// for the second, for Escape, for the window's close button, and when `parent` dies meanwhile.
    static int ShowMessage(QMessageBox::Icon icon, QWidget *parent, const QString &caption,
                           const QString &text, const QString &firstButtonKey,
                           const QString &secondButtonKey = QString());

    /// Cuts the text of `widget` to `maxWidth` pixels when it is at least as wide; the whole text
    /// then becomes its tool tip. Otherwise the tool tip is emptied. Compiled by the plug-in.
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
    static void logElide(int line, const char *what);
};

#endif
