#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include <QMainWindow>

#include "AppController.h"
#include "Banners.h"
#include "pages/AppActions.h"
#include "pages/Page.h"
#include "RegionCycle.h"

class QGridLayout;
class QShortcut;
class QStackedWidget;

namespace Dashboard
{

class AppMenu;
class CodesPage;
class CodesSetup;
class DeviceMenu;
class FirstRunPage;
class Header;
class HomeSetup;
class MessageParts;
class MessagesPage;
class Navigation;
class OperatorChooser;
class ProfileKeeper;
class RemedyRunner;
class Scrim;
class ServicesPage;
class SettingsPage;
struct Situation;

/**
 * The main window of the dashboard with header, navigation, banner and pages. The form of the
 * window depends on its width in em. All forms use the same widgets.
 */
class MainWindow : public QMainWindow, public AppActions
{
    Q_OBJECT
public:
    /// Both arguments must outlive the window. The plug-in must be shut down before the window is
    /// deleted. If `settings` is null, the settings are not stored.
    MainWindow(LoadedPlugin *plugin, DashboardSettings *settings);
    ~MainWindow() override;

    /// Selects the simulated network of the scenario file, or the default network if `file` is
    /// empty. On failure, shows an error, keeps the previous device and returns false.
    bool useScenario(const QString &file);
    /// Shows that this device is selected. Must be called only if the device is already in use.
    void setDevice(const DeviceChoice &choice);
    /// Shows a message box with the reason why a scenario file cannot be used.
    void showScenarioError(const QString &error);
    /// Sets the object whose offers to restore codes are shown in a banner. `profiles` must outlive
    /// the window.
    void setProfiles(ProfileKeeper *profiles);

    /// Returns the parent of the plug-in's embedded general window.
    QWidget *page();
    AppController &controller() { return m_controller; }
    DeviceWatcher &device() { return m_controller.device(); }
    DeviceMenu *deviceMenu() const;
    AppMenu *appMenu() const { return m_menu; }
    OperatorCodes &operatorCodes() { return m_controller.operatorCodes(); }
    const SimFollower &sim() const { return m_controller.sim(); }
    Form form() const { return m_form; }
    PageId currentPage() const;
    /// Returns the page, and constructs it if it is needed for the first time.
    Page *pageOf(PageId page);
    bool isFirstRun() const;

    void showPage(PageId page) override;
    void sendCode(const QString &code) override;
    void runChain(const QString &name) override;
    void typeCode(const QString &code) override;
    void topUp() override;
    void openAccountWindow() override;
    void openServicesWindow(int row) override;
    void editCodes() override;
    void perform(Remedy remedy) override;

public slots:
    /// Reports a problem in the window and on standard error, for example that the settings cannot
    /// be written.
    void showProblem(const QString &text);
    PluginFailure loadPlugin();
    /// Restarts the plug-in, so that it reloads its configuration.
    PluginFailure restartPlugin();
    void setLanguage(const QString &code);
    /// Closes the window and quits the program, even if a window of the plug-in or a message box is
    /// open.
    void quit();
    /// Raises and activates the window.
    void raiseAgain();
    /// Opens a window of the plug-in (a PAID_TYPE) in a separate frame.
    void openFrame(int paidType);
    /// Opens the menu below its button.
    void showMenu();

signals:
    /// Emitted when a window of the plug-in that has its own frame has been closed. The user may
    /// have saved codes in this window.
    void frameClosed();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makePages();
    Page *makePage(PageId page);
    Page *makeCodes();
    void makeCodesForDevice();
    Page *makeServices();
    Page *makeMessages();
    Page *makeSettings();
    void makeFirstRun();
    void addPage(Page *page);
    QList<Page *> madePages() const;
    CodesSetup &codes();
    CodesPage *codesPage();
    MessagesPage *messagesPage();
    void followSettings();
    void makeCentre();
    void makeMenu();
    void makeShortcuts();
    void makeCodesKeys();
    void find();
    void makeRegions();
    void addShortcut(const QKeySequence &key, const std::function<void()> &action);
    void followController();
    void followMessages();
    void showNewestMessage();
    void followBanners();
    void followRemedies();
    void restorePlace();
    void updateForm();
    void applyForm();
    void placeParts();
    void onFrame(QWidget *frame, bool isShown);

    bool useDevice(const QString &error);
    QString choiceText() const;
    Banner savedBanner() const;
    void showSavedCodes();
    void chooseDevice(const QString &word);
    void openScenario();
    void onBannerAction(Banners::Kind kind);
    void onBannerClosed(Banners::Kind kind);
    void showDevice();
    void showOnPages(const Situation &situation);
    void showServices();
    void openMessage(qint64 id);
    void showHeader(const Situation &situation);
    void showDeviceLine(const Situation &situation);
    void showBanners();
    void showFirstRun();
    void deleteAll();
    void showAbout();
    void showModemMenu();
    void openTopUpWindow();
    void focusPage();
    void retranslate();
    Situation situation() const;

    LoadedPlugin *const m_plugin;
    DashboardSettings *const m_settings;
    AppController m_controller;
    Form m_form = Form::Wide;
    RegionCycle m_regions;
    OperatorChooser *m_chooser;
    RemedyRunner *m_remedies;
    MessageParts *m_messages;
    ProfileKeeper *m_profiles = nullptr;
    QString m_problem;
    QStringList m_saved; // the names of new codes without a button
    AppMenu *m_menu;
    QWidget *m_root;
    QGridLayout *m_grid;
    Navigation *m_navigation;
    Header *m_header;
    Banners *m_banners;
    QStackedWidget *m_stack;
    HomeSetup *m_home = nullptr;
    CodesSetup *m_codes = nullptr;
    QList<QShortcut *> m_codesKeys;                // deleted when the page Codes is constructed
    Page *m_pages[int(PageId::Settings) + 1] = {}; // null until the page is first needed
    ServicesPage *m_servicesPage = nullptr;
    SettingsPage *m_settingsPage = nullptr;
    FirstRunPage *m_firstRun = nullptr;
    Scrim *m_scrim;
};

} // namespace Dashboard

#endif
