#ifndef TOURGUIDE_H
#define TOURGUIDE_H

#include <QMessageBox>
#include <QObject>
#include <QPointer>

#include <functional>

#include "TourAlbum.h"

namespace Dashboard
{

class MainWindow;
class PrivatePluginFolder;

/**
 * A change to a file: the first occurrence of `before` after the first occurrence of `anchor` is
 * replaced with `after`.
 */
struct TourChange {
    const char *anchor;
    const char *before;
    const char *after;
};

/**
 * Provides the functions that all parts of the tour use. They set up the dashboard, the plug-in and
 * the network, and add pictures to the album. They process events while they wait. All functions
 * must be called from the GUI thread.
 */
class TourGuide : public QObject
{
    Q_OBJECT
public:
    /// The time limit for a reply during the tour, in milliseconds.
    static const int REPLY_LIMIT = 500;

    /// `window` must be visible, with its plug-in loaded from `library`. All arguments must outlive
    /// the guide.
    TourGuide(MainWindow *window, PrivatePluginFolder *library, TourAlbum *album);

    MainWindow *window() const { return m_window; }
    PrivatePluginFolder *library() const { return m_library; }

    /// Selects the simulated network of the tour, with these changes to its scenario file.
    bool useNetwork(const TourChange *changes, int count);
    bool useNetwork() { return useNetwork(nullptr, 0); }
    /// Restarts the plug-in with the installed configuration and these changes to its files.
    bool usePlugin(const TourChange *changes, int count);
    bool usePlugin() { return usePlugin(nullptr, 0); }

    /// Sets the widget for the following pictures. `place` is a part of the file names of the
    /// pictures.
    void visit(QWidget *shown, const char *place);
    QWidget *shown() const { return m_shown; }
    /// Opens a window of the plug-in (a PAID_TYPE), and visits the frame that contains a widget
    /// with this name. Returns the widget. If there is no such widget, prints an error and returns
    /// null.
    QWidget *open(int paidType, const char *widgetName, const char *place);
    /// Closes the visited widget.
    void close();

    bool take(const TourStop &stop);
    /// Takes a picture of the visited widget with the menu or dialog that is open over it.
    bool takeWith(QWidget *over, const TourStop &stop);
    /// When the next message box opens over the visited widget, takes a picture and clicks the
    /// first button of the message box.
    void expectBox(const TourStop &stop);
    /// Returns true if the expected message box was shown and its picture was taken.
    bool sawBox() const { return m_boxStop.name && m_boxTaken; }

    /// Waits until the condition is true. If it does not become true in time, prints an error and
    /// returns false.
    bool waitFor(const std::function<bool()> &condition);
    /// Returns true if the dashboard shows the type of contract. Until then, the dashboard may use
    /// the network.
    bool isPaidTypeShown() const;
    /// Prints that the plug-in does not show the expected contents. Returns false.
    bool failHere() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Processes all pending events, so that widgets are laid out and painted.
    static void settle();

private slots:
    void onBox();
    void onDeviceLost();

private:
    MainWindow *const m_window;
    PrivatePluginFolder *const m_library;
    TourAlbum *const m_album;
    QPointer<QWidget> m_shown;
    const char *m_place = "";
    TourStop m_boxStop = {nullptr, nullptr};
    QPointer<QMessageBox> m_box;
    bool m_boxTaken = false;
    bool m_deviceLost = false;
};

} // namespace Dashboard

#endif
