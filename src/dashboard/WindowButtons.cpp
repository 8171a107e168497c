#include "WindowButtons.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "DashboardText.h"
#include "IUSSD.h"

namespace
{

struct Window {
    const char *textKey;
    const char *objectName;
    PAID_TYPE type;
    bool inPage;
    bool isReady; // those that are not have no button to be seen
};

const Window WINDOWS[] = {
    {"WINDOW_GENERAL_PAGE", "Dashboard_GeneralPageButton", PAID_TYPE_GENERAL, true, true},
    {"WINDOW_GENERAL_FRAME", "Dashboard_GeneralFrameButton", PAID_TYPE_GENERAL, false, true},
    {"WINDOW_PREPAID", "Dashboard_PrepaidButton", PAID_TYPE_PREPAID, false, false},
    {"WINDOW_POSTPAID", "Dashboard_PostpaidButton", PAID_TYPE_POSTPAID, false, false},
    {"WINDOW_USSD_SMS", "Dashboard_UssdSmsButton", PAID_TYPE_USSD_SMS, false, false},
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
        button->setVisible(window.isReady);
        connect(button, SIGNAL(clicked()), this, SLOT(onClicked()));
        row->addWidget(button);
        m_buttons << button;
    }
    row->addStretch();
    retranslate();
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
