#include "AppMenu.h"

#include <QMenuBar>

#include "base/DashboardText.h"
#include "DeviceMenu.h"
#include "IUSSD.h"
#include "LanguageMenu.h"
#include "look/Look.h"
#include "sim/SimWindows.h"

namespace Dashboard
{

namespace
{

const double LARGEST_SCALE =
    1.3; // above this scale, the general window does not fit into its fixed frame size

} // namespace

AppMenu::AppMenu(QWidget *parent)
    : QMenu(parent), m_device(new DeviceMenu(this)), m_language(new LanguageMenu(this)),
      m_file(new QMenu(this))
{
    setObjectName(QLatin1String("Dashboard_AppMenu"));
    m_sim = addAction(QString());
    m_sim->setEnabled(false);
    m_number = add("Dashboard_ActionNumber", &AppMenu::numberRequested);
    m_general = addWindow("Dashboard_ActionGeneral", PAID_TYPE_GENERAL);
    m_prepaid = addWindow("Dashboard_ActionPrepaid", PAID_TYPE_PREPAID);
    m_postpaid = addWindow("Dashboard_ActionPostpaid", PAID_TYPE_POSTPAID);
    m_edit = add("Dashboard_ActionEdit", &AppMenu::editRequested);
    m_edit->setShortcut(QKeySequence(int(Qt::CTRL) + Qt::Key_E));
    m_export = add("Dashboard_ActionExport", &AppMenu::exportRequested);
    addSeparator();
    addMenu(m_device);
    m_operator = add("Dashboard_ActionOperator", &AppMenu::operatorRequested);
    addSeparator();
    addMenu(m_language);
    m_settings = add("Dashboard_ActionSettings", &AppMenu::settingsRequested);
    m_settings->setShortcut(QKeySequence(int(Qt::CTRL) + Qt::Key_Comma));
    m_about = add("Dashboard_ActionAbout", &AppMenu::aboutRequested);
    m_quit = add("Dashboard_ActionQuit", &AppMenu::quitRequested);
    m_quit->setShortcut(QKeySequence(int(Qt::CTRL) + Qt::Key_Q));
    offer(0);
    setSim(QString(), false);
    retranslate();
}

QAction *AppMenu::add(const char *objectName, void (AppMenu::*signal)())
{
    QAction *action = addAction(QString());
    action->setObjectName(QLatin1String(objectName));
    connect(action, &QAction::triggered, this, signal);
    return action;
}

QAction *AppMenu::addWindow(const char *objectName, int paidType)
{
    QAction *action = addAction(QString());
    action->setObjectName(QLatin1String(objectName));
    connect(action, &QAction::triggered, this,
            [this, paidType] { emit windowRequested(paidType); });
    return action;
}

void AppMenu::fill(QMenuBar *bar)
{
    for (QAction *action : actions()) {
        if (!action->menu())
            m_file->addAction(action);
    }
    bar->addMenu(m_file);
    bar->addMenu(m_device);
    bar->addMenu(m_language);
}

void AppMenu::offer(int windows)
{
    m_windows = windows;
    const bool fits = Look::instance().scale() <= LARGEST_SCALE;
    m_general->setVisible((windows & SIM_WINDOW_GENERAL) && fits);
    m_prepaid->setVisible(windows & SIM_WINDOW_PREPAID);
    m_postpaid->setVisible(windows & SIM_WINDOW_POSTPAID);
    m_edit->setEnabled(windows & SIM_WINDOW_GENERAL);
    retranslate();
}

void AppMenu::setSim(const QString &text, bool isEyeShown)
{
    m_sim->setText(text);
    m_sim->setVisible(isEyeShown && !text.isEmpty());
    m_number->setVisible(isEyeShown && !text.isEmpty());
}

void AppMenu::retranslate()
{
    const bool hasBoth = (m_windows & SIM_WINDOW_PREPAID) && (m_windows & SIM_WINDOW_POSTPAID);
    m_file->setTitle(dashboardText("MENU_FILE"));
    m_number->setText(dashboardText("MENU_NUMBER"));
    m_general->setText(dashboardText("MENU_GENERAL"));
    m_prepaid->setText(dashboardText(hasBoth ? "MENU_PREPAID" : "MENU_ACCOUNT"));
    m_postpaid->setText(dashboardText(hasBoth ? "MENU_POSTPAID" : "MENU_ACCOUNT"));
    m_edit->setText(dashboardText("MENU_EDIT_CODES"));
    m_export->setText(dashboardText("MENU_EXPORT"));
    m_operator->setText(dashboardText("CODES_MENU"));
    m_settings->setText(dashboardText("MENU_SETTINGS"));
    m_about->setText(dashboardText("MENU_ABOUT"));
    m_quit->setText(dashboardText("ACTION_QUIT"));
    m_device->retranslate();
    m_language->retranslate();
}

} // namespace Dashboard
