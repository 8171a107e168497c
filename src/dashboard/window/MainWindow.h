#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include <QMainWindow>
#include <QTimer>

#include "device/DeviceWatcher.h"
#include "device/NetworkTextWatcher.h"
#include "plugin/PluginFailure.h"
#include "sim/OperatorCodes.h"
#include "sim/SimFollower.h"

class QAction;
class QLabel;
class QMenu;

namespace Dashboard
{

class CommandNotice;
class DashboardSettings;
class DeviceHeader;
class DeviceNotice;
class LanguageMenu;
class DeviceMenu;
class GeneralWindow;
class NetworkTextPanel;
class NoticeBar;
class OperatorNotice;
class PageArea;
class LoadedPlugin;
class WindowButtons;
struct DeviceChoice;

/**
 * The main window of the dashboard. It shows the device's status, a button for each window of the
 * plug-in, the page with the embedded general window, and the device name in the status bar.
 */
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    /// Both arguments must outlive the window. The plug-in must be shut down before the window is
    /// deleted. If `settings` is null, the settings are not stored.
    MainWindow(LoadedPlugin *plugin, DashboardSettings *settings);
    ~MainWindow() override;

    /// Selects the simulated network of the scenario file. An empty name selects the default. On
    /// failure, shows an error, keeps the previous device and returns false.
    bool useScenario(const QString &file);
    /// Shows the choice, which must already be in effect.
    void setDevice(const DeviceChoice &choice);
    /// Shows a message box with the reason why a scenario file cannot be used.
    void showScenarioError(const QString &error);
    QWidget *page() const;
    DeviceWatcher &device() { return m_device; }
    DeviceMenu *deviceMenu() const { return m_deviceMenu; }
    OperatorCodes &operatorCodes() { return m_operatorCodes; }
    const SimFollower &sim() const { return m_sim; }

public slots:
    /// Shows a problem, for example settings that cannot be written, in the window and on standard
    /// error.
    void showProblem(const QString &text);
    /// Loads the installed plug-in and shows its general window in the page. A failure is returned
    /// and also shown in the page.
    PluginFailure loadPlugin();
    /// Restarts the plug-in, so that it reloads its configuration.
    PluginFailure restartPlugin();
    void setLanguage(const QString &code);
    void showPage(bool shown);
    /// Closes the window, even if a frame or a message box is open, and ends the program.
    void quit();
    /// Opens a window of the plug-in (a PAID_TYPE) in a separate frame. Waits a short time if
    /// opening the frame would cancel the prepaid/postpaid query.
    void openFrame(int paidType);

signals:
    /// Emitted when a frame of the plug-in was closed. The user may have saved codes in the frame.
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
    void rememberDetection(bool isOn);
    void showFirstOwnCodes();
    void showNetworkText(const QString &text, const QDateTime &receivedAt, bool waitsForAnswer);

private:
    bool useDevice(const DeviceChoice &choice);
    void followNetworkTexts();
    void followOperator();
    void followCommands(const GeneralWindow &general);
    bool mayDetectPaidType() const;
    void followSim();
    void makeMenus();
    void makeCentre();
    void restorePlace();
    PluginFailure startWith(const PluginFailure &failure);
    void retranslate();
    void openFrameNow(int paidType);

    LoadedPlugin *const m_plugin;
    DashboardSettings *const m_settings;
    DeviceWatcher m_device;
    SimFollower m_sim;
    NetworkTextWatcher m_networkTexts;
    OperatorCodes m_operatorCodes;
    bool m_isDetectionOn = false; // the user or the integrator allows the prepaid/postpaid query
    bool m_isRestartDue = false;  // the plug-in's folder has changed since it was read
    QDateTime m_ownCodesTime;     // of the file with the user's codes that the plug-in has read
    int m_windows = 0;            // the windows on offer, a set of SimWindow
    int m_awaitedFrame;
    QTimer m_frameDelay;
    QMenu *m_fileMenu;
    QAction *m_quit;
    LanguageMenu *m_languageMenu;
    DeviceMenu *m_deviceMenu;
    DeviceHeader *m_header;
    DeviceNotice *m_deviceNotice;
    NetworkTextPanel *m_textPanel;
    NoticeBar *m_demonstration;
    NoticeBar *m_problems;
    OperatorNotice *m_operatorNotice;
    WindowButtons *m_buttons;
    PageArea *m_page;
    CommandNotice *m_commandNotice;
    QLabel *m_source;
};

} // namespace Dashboard

#endif
