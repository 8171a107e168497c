#include "WindowButtons.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "base/DashboardText.h"
#include "IUSSD.h"
#include "sim/SimWindows.h"

namespace Dashboard
{

namespace
{

struct Window {
    const char *textKey;
    const char *objectName;
    PAID_TYPE type;
    bool inPage;
    SimWindow goesWith;
};

const Window WINDOWS[] = {
    {"WINDOW_GENERAL_PAGE", "Dashboard_GeneralPageButton", PAID_TYPE_GENERAL, true,
     SIM_WINDOW_GENERAL},
    {"WINDOW_GENERAL_FRAME", "Dashboard_GeneralFrameButton", PAID_TYPE_GENERAL, false,
     SIM_WINDOW_GENERAL},
    {"WINDOW_PREPAID", "Dashboard_PrepaidButton", PAID_TYPE_PREPAID, false, SIM_WINDOW_PREPAID},
    {"WINDOW_POSTPAID", "Dashboard_PostpaidButton", PAID_TYPE_POSTPAID, false, SIM_WINDOW_POSTPAID},
    {"WINDOW_USSD_SMS", "Dashboard_UssdSmsButton", PAID_TYPE_USSD_SMS, false, SIM_WINDOW_SERVICES},
};

} // namespace

WindowButtons::WindowButtons(QWidget *parent) : QWidget(parent)
{
    QHBoxLayout *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    for (const Window &window : WINDOWS) {
        QPushButton *button = new QPushButton(this);
        button->setObjectName(QLatin1String(window.objectName));
        button->setCheckable(window.inPage);
        connect(button, SIGNAL(clicked()), this, SLOT(onClicked()));
        row->addWidget(button);
        m_buttons << button;
    }
    row->addStretch();
    retranslate();
    offer(SIM_WINDOW_GENERAL);
}

void WindowButtons::offer(int windows)
{
    for (int i = 0; i < m_buttons.size(); ++i)
        m_buttons.at(i)->setVisible(windows & WINDOWS[i].goesWith);
}

void WindowButtons::retranslate()
{
    for (int i = 0; i < m_buttons.size(); ++i)
        m_buttons.at(i)->setText(dashboardText(WINDOWS[i].textKey));
}

void WindowButtons::setPageShown(bool shown)
{
    for (int i = 0; i < m_buttons.size(); ++i) {
        if (WINDOWS[i].inPage)
            m_buttons.at(i)->setChecked(shown);
    }
}

void WindowButtons::onClicked()
{
    QPushButton *button = qobject_cast<QPushButton *>(sender());
    const int index = m_buttons.indexOf(button);
    if (index < 0)
        return;
    if (WINDOWS[index].inPage)
        emit pageToggled(button->isChecked());
    else
        emit frameRequested(WINDOWS[index].type);
}

} // namespace Dashboard
