#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include <QMainWindow>
#include <QTimer>

#include "device/DeviceWatcher.h"
#include "device/NetworkTextWatcher.h"
#include "plugin/PluginFailure.h"
#include "sim/OperatorCodes.h"
#include "sim/SimFollower.h"

class DashboardSettings;
class DeviceHeader;
class DeviceNotice;
class LanguageMenu;
class DeviceMenu;
class NetworkTextPanel;
class NoticeBar;
class OperatorNotice;
class PageArea;
class QAction;
class QLabel;
class QMenu;
class UiPlugin;
class WindowButtons;
struct DeviceChoice;

/**
 * The dashboard's window: the device on top, a button for each window of the plug-in, the page that
 * the general window is embedded in, and below it what source is used.
 */
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    /// `settings` may be null: then nothing is remembered. Both outlive the window, and the plug-in
    /// is shut down before the window goes.
    MainWindow(UiPlugin *plugin, DashboardSettings *settings);
    ~MainWindow() override;

    /// Makes the scenario file the device's network; empty is the default. When it cannot be used,
    /// the user is told and the one before stays. Returns whether it is in use.
    bool useScenario(const QString &file);
    /// Says that this choice is in use.
    void setDevice(const DeviceChoice &choice);
    /// Tells the user why a scenario file cannot be used, in a message box.
    void showScenarioError(const QString &error);
    QWidget *page() const;
    DeviceWatcher &device() { return m_device; }
    DeviceMenu *deviceMenu() const { return m_deviceMenu; }
    OperatorCodes &operatorCodes() { return m_operatorCodes; }
    const SimFollower &sim() const { return m_sim; }

public slots:
    /// Says in the window and on standard error what cannot be kept, or what the computer lacks.
    void showProblem(const QString &text);
    /// Loads the installed plug-in and shows its general window in the page; a failure is shown
    /// there in words, and returned.
    PluginFailure loadPlugin();
    /// Has the plug-in begin anew, with its configuration as it is now.
    PluginFailure restartPlugin();
    void setLanguage(const QString &code);
    void showPage(bool shown);
    /// Opens a window of the plug-in, a PAID_TYPE, in a frame of its own; soon, when that would
    /// break off the question whether the SIM is prepaid.
    void openFrame(int paidType);

signals:
    /// A frame of the plug-in was closed; in it, the user may have saved codes.
    void frameClosed();

protected:
    void closeEvent(QCloseEvent *event) override;

private slots:
    void chooseDevice(const QString &word);
    void openScenario();
    void showDevice();
    void hidePage();
    void offerWindows(int windows);
    void showPaidType();
    void openAwaitedFrame();
    void beginAnew();
    void beginAnewIfDue();
    void showNetworkText(const QString &text, const QDateTime &receivedAt, bool waitsForAnswer);

private:
    bool useDevice(const DeviceChoice &choice);
    void followNetworkTexts();
    void followOperator();
    void followSim();
    void makeMenus();
    void makeCentre();
    void restorePlace();
    PluginFailure startWith(const PluginFailure &failure);
    void retranslate();
    void openFrameNow(int paidType);

    UiPlugin *const m_plugin;
    DashboardSettings *const m_settings;
    DeviceWatcher m_device;
    SimFollower m_sim;
    NetworkTextWatcher m_networkTexts;
    OperatorCodes m_operatorCodes;
    bool m_isBeginningDue = false; // the plug-in has another folder than it has read
    int m_windows = 0;             // offered, a set of SimWindow
    int m_awaitedFrame;
    QTimer m_frameDelay;
    QMenu *m_fileMenu;
    QAction *m_quit;
    LanguageMenu *m_languageMenu;
    DeviceMenu *m_deviceMenu;
    DeviceHeader *m_header;
    DeviceNotice *m_deviceNotice;
    NetworkTextPanel *m_textPanel;
    NoticeBar *m_problems;
    OperatorNotice *m_operatorNotice;
    WindowButtons *m_buttons;
    PageArea *m_page;
    QLabel *m_source;
};

#endif
