#ifndef APPCONTROLLER_H
#define APPCONTROLLER_H

#include <QDateTime>
#include <QObject>
#include <QTimer>

#include <functional>
#include <optional>

#include "device/DeviceChoice.h"
#include "device/DeviceWatcher.h"
#include "device/ModeChoice.h"
#include "device/NetworkTextWatcher.h"
#include "plugin/CommandMonitor.h"
#include "plugin/GeneralWindow.h"
#include "plugin/PluginFailure.h"
#include "sim/OperatorCodes.h"
#include "sim/SimFollower.h"

namespace Dashboard
{

class DashboardSettings;
class LoadedPlugin;

/**
 * Controls everything in the dashboard that is not a widget: selecting the device, loading and
 * restarting the plug-in, the operator's codes, and the language. All functions must be called from
 * the GUI thread.
 */
class AppController : public QObject
{
    Q_OBJECT
public:
    /// Both arguments must outlive the controller. If `settings` is null, nothing is stored.
    AppController(LoadedPlugin *plugin, DashboardSettings *settings, QObject *parent = nullptr);

    LoadedPlugin *plugin() const { return m_plugin; }
    /// Returns the settings, or null if settings are not stored.
    DashboardSettings *settings() const { return m_settings; }
    DeviceWatcher &device() { return m_device; }
    const DeviceWatcher &device() const { return m_device; }
    NetworkTextWatcher &networkTexts() { return m_networkTexts; }
    OperatorCodes &operatorCodes() { return m_operatorCodes; }
    const OperatorCodes &operatorCodes() const { return m_operatorCodes; }
    const SimFollower &sim() const { return m_sim; }
    CommandMonitor &monitor() { return m_monitor; }
    ModeChoice &modes() { return m_modes; }

    /// Sets the function that returns the embedded general window, which may be incomplete.
    void setPageWindow(const std::function<GeneralWindow()> &window) { m_pageWindow = window; }
    GeneralWindow pageWindow() const;

    const DeviceChoice &choice() const { return m_choice; }
    /// Makes the SDK use the device and returns an empty string. If the device cannot be used,
    /// keeps the previous device and returns the error.
    QString useDevice(const DeviceChoice &choice);
    /// Like useDevice(), but also stores the choice in the settings.
    QString chooseDevice(const DeviceChoice &choice);
    /// Records that this device is already in use.
    void setDevice(const DeviceChoice &choice);

    /// Returns the windows that are offered for the SIM, as a combination of SimWindow flags.
    int windows() const { return m_windows; }
    /// Returns the result of the last attempt to start the plug-in, or nothing before the first.
    const std::optional<PluginFailure> &started() const { return m_started; }
    bool isDetectionOn() const { return m_isDetectionOn; }
    /// Enables or disables the prepaid/postpaid query and stores the decision in the settings.
    void setDetection(bool isOn);
    /// Selects the language and stores it in the settings. Returns false and emits problem() if the
    /// language cannot be used.
    bool setLanguage(const QString &code);

    /// Starts reporting network-initiated messages, including those that have already arrived.
    void start();

public slots:
    /// Loads the installed plug-in.
    PluginFailure loadPlugin();
    /// Restarts the plug-in, so that it reloads its configuration.
    PluginFailure restartPlugin();
    /// Restarts the plug-in as soon as the user is not busy.
    void beginAnew();
    /// Restarts the plug-in so that it reads the user's own codes again. Returns false without a
    /// restart if a window of the plug-in is open, a command is in flight, or the command field
    /// contains a code that has not been sent. Does not repeat the prepaid/postpaid query.
    bool renewOwnCodes();
    /// Opens a window of the plug-in (a PAID_TYPE) in a separate frame. If this would cancel the
    /// prepaid/postpaid query, the frame opens when the query has ended, but after 5 seconds at the
    /// latest.
    void openFrame(int paidType);

signals:
    void deviceChosen();
    /// Emitted when the plug-in has been loaded or restarted, or when this has failed.
    void pluginStarted(const PluginFailure &failure);
    /// Emitted when the windows to offer may have changed.
    void windowsOffered();
    void paidTypeChanged();
    void frameOpened();
    /// Emitted when a window of the plug-in that has its own frame has been closed. The user may
    /// have saved codes in this window.
    void frameClosed();
    void commandEnded();
    /// Emitted when a network-initiated message has arrived.
    void textReceived(const QString &text, const QDateTime &receivedAt, bool waitsForAnswer);
    void languageChanged();
    /// Emitted with an error message in the user's language.
    void problem(const QString &text);

private slots:
    void beginAnewIfDue();

private:
    void followSim();
    void followOperator();
    bool mayDetectPaidType() const;
    PluginFailure startWith(const PluginFailure &failure, void (SimFollower::*start)());
    void offerWindows(int windows);
    void onPaidTypeChanged();
    void onText(const QString &text, const QDateTime &receivedAt, bool waitsForAnswer);
    void openAwaitedFrame();
    void openFrameNow(int paidType);

    LoadedPlugin *const m_plugin;
    DashboardSettings *const m_settings;
    DeviceWatcher m_device;
    ModeChoice m_modes;
    SimFollower m_sim;
    NetworkTextWatcher m_networkTexts;
    OperatorCodes m_operatorCodes;
    std::function<GeneralWindow()> m_pageWindow;
    CommandMonitor m_monitor;
    DeviceChoice m_choice;
    bool m_isDetectionOn = false; // true if the prepaid/postpaid query is enabled
    bool m_isRestartDue = false;  // true if the plug-in must read its folder again
    std::optional<PluginFailure> m_started;
    int m_windows = 0; // a combination of SimWindow flags
    int m_awaitedFrame;
    QTimer m_frameDelay;
};

} // namespace Dashboard

#endif
