#ifndef TOURGUIDE_H
#define TOURGUIDE_H

#include <QMessageBox>
#include <QObject>
#include <QPointer>

#include <functional>

#include "TourAlbum.h"

class MainWindow;
class PrivateLibrary;

/** A text of a file that is to be another one: the first `before` behind the first `anchor`. */
struct TourChange {
    const char *anchor;
    const char *before;
    const char *after;
};

/**
 * What the parts of the tour have in common: the dashboard, the plug-in and the network to walk
 * through, and the album to put the pictures into. GUI thread; handles events while it waits.
 */
class TourGuide : public QObject
{
    Q_OBJECT
public:
    /// How long the plug-in is to wait for a reply during a tour, in milliseconds.
    static const int REPLY_LIMIT = 500;

    /// The window is shown and has its plug-in, which uses the library; all outlive the guide.
    TourGuide(MainWindow *window, PrivateLibrary *library, TourAlbum *album);

    MainWindow *window() const { return m_window; }
    PrivateLibrary *library() const { return m_library; }

    /// The tour's network as it comes, apart from these changes.
    bool useNetwork(const TourChange *changes, int count);
    bool useNetwork() { return useNetwork(nullptr, 0); }
    /// Has the plug-in begin anew with its configuration as it comes, apart from these changes.
    bool usePlugin(const TourChange *changes, int count);
    bool usePlugin() { return usePlugin(nullptr, 0); }

    /// What the pictures that follow show, and how the place is called in their names.
    void visit(QWidget *shown, const char *place);
    QWidget *shown() const { return m_shown; }
    /// Opens a window of the plug-in, a PAID_TYPE, and visits the frame that holds a widget of this
    /// name. The widget; null, with a word on standard error, when there is none.
    QWidget *open(int paidType, const char *widgetName, const char *place);
    /// Closes what is visited.
    void close();

    bool take(const TourStop &stop);
    /// The same with a menu or a dialog that is open over what is visited.
    bool takeWith(QWidget *over, const TourStop &stop);
    /// The next message box is photographed over what is visited, and its first button is pressed.
    void expectBox(const TourStop &stop);
    /// Whether that has happened.
    bool sawBox() const { return m_boxStop.name && m_boxTaken; }

    /// False, with a word on standard error, when the condition does not come true in time.
    bool waitFor(const std::function<bool()> &condition);
    /// Whether the dashboard shows what kind the SIM is; until then it may use the network.
    bool isPaidTypeShown() const;
    /// Says that the plug-in does not show what it should, and returns false.
    bool failHere() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Handles all that was asked for, so that it is laid out and painted.
    static void settle();

private slots:
    void onBox();
    void onDeviceLost();

private:
    MainWindow *const m_window;
    PrivateLibrary *const m_library;
    TourAlbum *const m_album;
    QPointer<QWidget> m_shown;
    const char *m_place = "";
    TourStop m_boxStop = {nullptr, nullptr};
    QPointer<QMessageBox> m_box;
    bool m_boxTaken = false;
    bool m_deviceLost = false;
};

#endif
