#include "CodesSetup.h"

#include "account/AccountCodes.h"
#include "AppController.h"
#include "base/DashboardText.h"
#include "device/DashboardSettings.h"
#include "IUSSD.h"
#include "pages/AppActions.h"
#include "pages/CodesPage.h"
#include "plugin/CodeForms.h"
#include "plugin/LoadedPlugin.h"
#include "plugin/ServiceList.h"
#include "PluginFolderChoice.h"
#include "sim/SimWindows.h"

namespace Dashboard
{

namespace
{

const char NUMBER[] = "%s"; // the placeholder for a number in a code

QString historyFile(const AppController *controller)
{
    return controller->settings() ? CodeHistory::fileOfUser() : QString();
}

QStringList templatesInUse()
{
    QStringList codes = readTemplates(CodeFiles::inUse());
    for (const Service &service : readServices(HostCore::PluginFolderChoice::current())) {
        if (service.isByCode)
            codes << service.code;
    }
    return codes;
}

/// Returns the code with an ellipsis instead of the placeholder for a number.
QString shownCode(QString code)
{
    return code.replace(QLatin1String(NUMBER), QString(HIDDEN_DIGITS));
}

QList<NamedCode> codesInUse()
{
    return readAccountCodes(CodeFiles::inUse(), PaidType::Unknown).all;
}

} // namespace

CodesSetup::CodesSetup(AppController *controller, AppActions *actions, Favourites *favourites,
                       QWidget *pages, QObject *parent)
    : QObject(parent), m_controller(controller), m_actions(actions),
      m_history(historyFile(controller)), m_chains(&controller->monitor()),
      m_walks(&controller->monitor()),
      m_page(new CodesPage({controller->plugin(), &controller->monitor(), &m_history,
                            [this] { return names(); }, &controller->modes(), &m_chains, &m_walks,
                            favourites},
                           pages))
{
    followChains();
    connect(controller, &AppController::pluginStarted, this, &CodesSetup::onPluginStarted);
    connect(controller, &AppController::windowsOffered, this, &CodesSetup::offerWindow);
    connect(controller, &AppController::frameClosed, this, &CodesSetup::onFrameClosed);
    connect(controller, &AppController::commandEnded, this, &CodesSetup::makePresets);
    connect(controller, &AppController::paidTypeChanged, this, &CodesSetup::makePresets,
            Qt::QueuedConnection);
    connect(&m_history, &CodeHistory::notWritten, controller, [controller](const QString &error) {
        emit controller->problem(dashboardText("HISTORY_NOT_WRITTEN").arg(error));
    });
    connect(m_page, &CodesPage::wanted, this, [actions] { actions->showPage(PageId::Codes); });
    connect(m_page, &CodesPage::ownWindowRequested, controller,
            [controller] { controller->openFrame(PAID_TYPE_GENERAL); });
    connect(m_page, &CodesPage::remedyChosen, this,
            [actions](Remedy remedy) { actions->perform(remedy); });
    connect(&controller->device(), &DeviceWatcher::changed, this, &CodesSetup::followDevice);
    followDevice();
    followSettings();
}

/// Keeps the codes of demonstrations separate from those of a SIM.
void CodesSetup::followDevice()
{
    m_history.setInvented(m_controller->device().status().isSimulated);
}

/// Connects the objects for chains. Recorded menu choices are discarded when the SIM may have
/// changed, because they belong to a single SIM.
void CodesSetup::followChains()
{
    connect(m_controller, &AppController::deviceChosen, &m_walks, &WalkWatcher::forget);
    connect(m_controller, &AppController::pluginStarted, &m_walks, &WalkWatcher::forget);
    connect(&m_controller->device(), &DeviceWatcher::lost, &m_walks, &WalkWatcher::forget);
    connect(&m_controller->operatorCodes(), &OperatorCodes::networkChanged, &m_walks,
            &WalkWatcher::forget);
    connect(m_controller, &AppController::languageChanged, &m_chains, &ChainRunner::retranslate);
}

/// Returns the named codes, with an ellipsis instead of the placeholder for a number.
QList<CodeName> CodesSetup::names() const
{
    QList<CodeName> names;
    for (const NamedCode &named : codesInUse()) {
        names << CodeName{shownCode(named.code), named.name, named.isOwn};
    }
    return names;
}

/// Looks for codes that the user has saved in the profile editor. Keeps the codes from earlier
/// calls, because the editor may have been opened from another frame that was still open.
void CodesSetup::onFrameClosed()
{
    const QStringList known = m_known;
    readCodes();
    for (const QString &code : m_known) {
        if (!known.contains(code))
            m_new << code;
    }
    makePresets();
}

/// If there is room for more buttons, restarts the plug-in so that it creates a button for each new
/// code. Postpones the restart until the user is idle and has sent or deleted the typed code.
void CodesSetup::makePresets()
{
    if (m_new.isEmpty())
        return;
    if (m_page->canMakePresets() && !m_controller->renewOwnCodes()) {
        if (const QLineEdit *field = m_page->general().commandEdit())
            connect(field, &QLineEdit::textChanged, this, &CodesSetup::makePresets,
                    Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
        return;
    }
    m_saved += m_new;
    m_new.clear();
    reportSaved();
}

void CodesSetup::showNewCodes()
{
    m_actions->showPage(PageId::Codes);
    m_page->openHistoryAt(m_reported);
}

void CodesSetup::reportSaved()
{
    QStringList names;
    for (const NamedCode &named : codesInUse()) {
        if (!m_saved.contains(named.code) || m_page->hasPreset(named.name))
            continue;
        if (names.isEmpty())
            m_reported = shownCode(named.code);
        names << named.name;
    }
    m_saved.clear();
    if (!names.isEmpty())
        emit savedWithoutButton(names);
}

void CodesSetup::readCodes()
{
    m_known.clear();
    for (const NamedCode &named : codesInUse()) {
        if (named.isOwn)
            m_known << named.code;
    }
    const QStringList templates = templatesInUse();
    m_controller->monitor().setTemplates(templates);
    m_history.setTemplates(templates);
    m_page->refreshNames();
}

void CodesSetup::followSettings()
{
    const DashboardSettings *settings = m_controller->settings();
    m_history.setKept(!settings || settings->keepsHistory());
}

void CodesSetup::deleteAll()
{
    m_history.deleteAll();
    m_controller->monitor().forgetRecent();
}

void CodesSetup::onPluginStarted(const PluginFailure &failure)
{
    m_isOffered = false;
    m_saved += m_new;
    m_new.clear();
    if (!m_controller->plugin()->isUsable())
        m_page->showText(failure.text());
    readCodes();
}

void CodesSetup::catchUp()
{
    if (!m_controller->started())
        return;
    onPluginStarted(*m_controller->started());
    if (m_controller->plugin()->isUsable())
        offerWindow();
}

void CodesSetup::offerWindow()
{
    const bool isOffered = m_controller->windows() & SIM_WINDOW_GENERAL;
    if (isOffered != m_isOffered)
        m_page->showWindow(isOffered);
    m_isOffered = isOffered;
    retranslate();
    readCodes();
    reportSaved();
}

void CodesSetup::retranslate()
{
    if (m_controller->plugin()->isUsable())
        m_page->showText(m_controller->windows() ? QString() : dashboardText("WINDOWS_NONE"));
}

} // namespace Dashboard
