#include "StandIns.h"

#include <QVBoxLayout>

#include "AppController.h"
#include "base/DashboardText.h"
#include "CommandNotice.h"
#include "look/Controls.h"
#include "PageArea.h"
#include "plugin/LoadedPlugin.h"
#include "sim/SimWindows.h"

namespace Dashboard
{

PlainPage::PlainPage(const char *objectName, const char *textKey, QWidget *parent)
    : Page(objectName, parent), m_textKey(textKey), m_label(makeLabel("h1", this))
{
    QVBoxLayout *column = new QVBoxLayout(this);
    column->addWidget(m_label);
    column->addStretch();
    setMargins(column, 24, 20, 24, 20);
    retranslate();
}

void PlainPage::retranslate()
{
    m_label->setText(dashboardText(m_textKey));
}

CodesStandIn::CodesStandIn(AppController *controller, QWidget *parent)
    : Page("Dashboard_CodesPage", parent), m_controller(controller),
      m_area(new PageArea(controller->plugin(), this)),
      m_notice(new CommandNotice(&controller->device(), this))
{
    QVBoxLayout *column = new QVBoxLayout(this);
    column->addWidget(m_area, 1);
    column->addWidget(m_notice);
    connect(controller, &AppController::pluginStarted, this, &CodesStandIn::onPluginStarted);
    connect(controller, &AppController::windowsOffered, this, &CodesStandIn::offerWindows);
    connect(controller, &AppController::deviceChosen, m_notice, &CommandNotice::forget);
    connect(controller, &AppController::commandEnded, m_notice, &CommandNotice::look);
    connect(controller, &AppController::frameOpened, this, [this] {
        if (QTextEdit *history = GeneralWindow::framed().history())
            connect(history, &QTextEdit::textChanged, m_notice, &CommandNotice::look,
                    Qt::UniqueConnection);
    });
}

void CodesStandIn::onPluginStarted()
{
    m_isOffered = false;
    m_notice->forget();
}

void CodesStandIn::offerWindows()
{
    const bool isOffered = m_controller->windows() & SIM_WINDOW_GENERAL;
    if (isOffered != m_isOffered)
        showWindow(isOffered);
    m_isOffered = isOffered;
    m_area->showText(m_controller->windows() ? QString() : dashboardText("WINDOWS_NONE"));
}

void CodesStandIn::showWindow(bool shown)
{
    if (shown)
        m_area->showPage();
    else
        m_area->hidePage();
    const GeneralWindow general(m_area->canvas());
    general.hideUnusedPresets();
    if (QTextEdit *history = general.history())
        connect(history, &QTextEdit::textChanged, m_notice, &CommandNotice::look,
                Qt::UniqueConnection);
}

void CodesStandIn::retranslate()
{
    m_notice->update();
    if (m_controller->plugin()->isUsable() && !m_controller->windows())
        m_area->showText(dashboardText("WINDOWS_NONE"));
}

QWidget *CodesStandIn::firstFocus() const
{
    return GeneralWindow(m_area->canvas()).commandEdit();
}

} // namespace Dashboard
