#include "HomeSetup.h"

#include <QFileDialog>
#include <QMessageBox>

#include "account/AccountExport.h"
#include "account/DemonstrationAccount.h"
#include "account/SimKey.h"
#include "AppController.h"
#include "base/DashboardText.h"
#include "base/Isolate.h"
#include "device/DashboardSettings.h"
#include "pages/HomePage.h"
#include "sim/SimWindows.h"

namespace Dashboard
{

namespace
{

const int SHOWN_DIGITS = 4;
const char DEMONSTRATION[] = "demonstration";

/// Returns the type of contract of the account window that is offered, or Unknown unless exactly
/// one is offered.
PaidType paidTypeOf(int windows)
{
    const int account = windows & (SIM_WINDOW_PREPAID | SIM_WINDOW_POSTPAID);
    if (account == SIM_WINDOW_PREPAID)
        return PaidType::Prepaid;
    return account == SIM_WINDOW_POSTPAID ? PaidType::Postpaid : PaidType::Unknown;
}

HomePage::Parts partsOf(AppController *controller, AppActions *actions)
{
    HomePage::Parts parts;
    parts.monitor = &controller->monitor();
    parts.actions = actions;
    return parts;
}

HomePage *makePage(HomePage::Parts parts, AccountStore *store, AccountRecorder *recorder,
                   Favourites *favourites, QWidget *parent)
{
    parts.store = store;
    parts.recorder = recorder;
    parts.favourites = favourites;
    return new HomePage(parts, parent);
}

/// Returns the file name. Returns an empty string if the controller does not have settings, because
/// nothing is stored in this case.
QString fileIfStored(const AppController *controller, const QString &file)
{
    return controller->settings() ? file : QString();
}

} // namespace

HomeSetup::HomeSetup(AppController *controller, AppActions *actions, QWidget *pages,
                     QObject *parent)
    : QObject(parent), m_controller(controller),
      m_store(fileIfStored(controller, AccountStore::userFile())), m_recorder(&m_store),
      m_favourites(fileIfStored(controller, Favourites::userFile())),
      m_daily(&controller->monitor(), &controller->device(), controller->settings()),
      m_page(makePage(partsOf(controller, actions), &m_store, &m_recorder, &m_favourites, pages))
{
    connect(&controller->monitor(), &CommandMonitor::replied, &m_recorder,
            &AccountRecorder::record);
    connect(&controller->monitor(), &CommandMonitor::leftOpen, &m_recorder,
            &AccountRecorder::recordUnanswered);
    connect(&controller->device(), SIGNAL(changed()), this, SLOT(followSim()));
    connect(controller, &AppController::pluginStarted, this, &HomeSetup::readCodes);
    connect(controller, &AppController::windowsOffered, this, &HomeSetup::readCodes);
    connect(controller, &AppController::frameClosed, this, &HomeSetup::readCodes);
    connect(controller, &AppController::languageChanged, this, &HomeSetup::readCodes);
    connect(&m_favourites, &Favourites::problem, controller, &AppController::problem);
    connect(&m_store, &AccountStore::problem, controller, &AppController::problem);
    m_daily.setRule([this] { return mayAskDaily(); });
    followSim();
}

void HomeSetup::setSituation(const Situation &situation)
{
    m_page->setSituation(situation);
}

void HomeSetup::followSim()
{
    const DeviceStatus &status = m_controller->device().status();
    const DashboardSettings *settings = m_controller->settings();
    const bool isStored = settings && settings->keepsHistory();
    m_recorder.setLowBalance(settings ? settings->lowBalance() : QString());
    m_favourites.setNetwork(status.isSimulated ? QLatin1String(Chains::DEMONSTRATION_NETWORK)
                                               : m_controller->operatorCodes().network());
    m_page->setSimText(
        status.imsi.isEmpty()
            ? QString()
            : dashboardText("HEADER_SIM_ENDING").arg(isolated(status.imsi.right(SHOWN_DIGITS))));
    if (status.isSimulated)
        m_store.setSim(QLatin1String(DEMONSTRATION), AccountStore::Keeping::Demonstration);
    else if (isStored)
        m_store.setSim(simKey(status.imsi), AccountStore::Keeping::InFile);
    else
        m_store.setSim(status.imsi, AccountStore::Keeping::InMemory);
    inventAccount(&m_store, m_recorder.codes());
    QMetaObject::invokeMethod(&m_daily, "look", Qt::QueuedConnection);
}

void HomeSetup::readCodes()
{
    const AccountCodes codes =
        readAccountCodes(CodeFiles::inUse(), paidTypeOf(m_controller->windows()));
    m_recorder.setCodes(codes);
    m_daily.setCode(codes.balance);
    m_recorder.setPatterns(ReplyPatterns::inUse());
    m_page->setCodes(codes);
    followSim();
}

/// Returns true if the balance code belongs to the SIM's operator and the command field is empty.
bool HomeSetup::mayAskDaily() const
{
    const QLineEdit *field = m_controller->pageWindow().commandEdit();
    const bool isOfOperator = m_controller->device().status().isSimulated ||
                              m_controller->operatorCodes().areOfOperator();
    return isOfOperator && field && field->text().isEmpty();
}

void HomeSetup::renewSimKey()
{
    followSim();
    m_daily.forget();
}

void HomeSetup::deleteAll()
{
    m_store.removeAll();
    m_favourites.removeAll();
    readCodes();
}

void HomeSetup::exportAccount()
{
    const QString file =
        QFileDialog::getSaveFileName(m_page, dashboardText("ACCOUNT_EXPORT"),
                                     QLatin1String("account.csv"), QLatin1String("*.csv *.json"));
    if (!file.isEmpty())
        saveTo(file);
}

void HomeSetup::saveTo(const QString &file)
{
    const QString problem = exportAccountTo(file, AccountStore::userFile());
    if (!problem.isEmpty())
        QMessageBox::warning(m_page, dashboardText("ACCOUNT_EXPORT"), problem);
}

} // namespace Dashboard
