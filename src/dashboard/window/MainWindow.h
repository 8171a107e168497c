#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include <QMainWindow>

#include "AppController.h"

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

    /// Selects the simulated network of the scenario file. An empty name selects the default
    /// network. On failure, shows an error, keeps the previous device and returns false.
    bool useScenario(const QString &file);
    /// Shows that this device is selected. The device must already be in use.
    void setDevice(const DeviceChoice &choice);
    /// Shows a message box with the reason why a scenario file cannot be used.
    void showScenarioError(const QString &error);
    QWidget *page() const;
    AppController &controller() { return m_controller; }
    DeviceWatcher &device() { return m_controller.device(); }
    DeviceMenu *deviceMenu() const { return m_deviceMenu; }
    OperatorCodes &operatorCodes() { return m_controller.operatorCodes(); }
    const SimFollower &sim() const { return m_controller.sim(); }

public slots:
    /// Reports a problem in the window and on standard error, for example that the settings cannot
    /// be written.
    void showProblem(const QString &text);
    /// Loads the installed plug-in and shows its general window in the page. If this fails, shows
    /// the failure in the page and returns it.
    PluginFailure loadPlugin();
    /// Restarts the plug-in, so that it reloads its configuration.
    PluginFailure restartPlugin();
    void setLanguage(const QString &code);
    void showPage(bool shown);
    /// Closes the window and ends the program, even if a frame or a message box is open.
    void quit();
    /// Opens a window of the plug-in (a PAID_TYPE) in a separate frame.
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
    void offerWindows();
    void showPaidType();
    void onPluginStarted(const PluginFailure &failure);
    void onDeviceChosen();
    void showNetworkText(const QString &text, const QDateTime &receivedAt, bool waitsForAnswer);

private:
    bool useDevice(const QString &error);
    void followController();
    void followNetworkTexts();
    void followCommands(const GeneralWindow &general);
    void makeMenus();
    void makeCentre();
    void restorePlace();
    void retranslate();

    LoadedPlugin *const m_plugin;
    DashboardSettings *const m_settings;
    AppController m_controller;
    bool m_isPageOffered = false;
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
