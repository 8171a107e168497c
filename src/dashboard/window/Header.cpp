#include "Header.h"

#include <QGridLayout>

#include "base/DashboardText.h"
#include "base/Isolate.h"
#include "device/DeviceStatus.h"
#include "look/Look.h"
#include "SignalBars.h"
#include "StatusDot.h"

namespace Dashboard
{

namespace
{

const int HEIGHT = 56; // in pixels at 100 % text size
const int NARROW_HEIGHT = 60;
const int SHOWN_DIGITS = 4;
const int NUMBER_TIME = 10000; // ms

// The columns of the layout. In the narrow form, the SimIcon, Sim and Eye columns are empty.
enum Column { Operator, Kind, Bars, Signal, Gap, SimIcon, Sim, Eye, Bell, Menu };

template <typename T>
T *named(T *widget, const char *name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

} // namespace

Header::Header(QWidget *parent)
    : QFrame(parent), m_grid(new QGridLayout(this)),
      m_operator(named(new ElidedLabel(this), "Dashboard_Operator")),
      m_chip(named(new Chip(this), "Dashboard_PaidType")),
      m_kind(named(makeLabel("cap", this), "Dashboard_PaidTypeWord")), m_bars(new SignalBars(this)),
      m_signal(named(makeLabel("small", this), "Dashboard_Signal")), m_simIcon(new IconView(this)),
      m_sim(named(makeLabel("small", this), "Dashboard_Sim")),
      m_eye(named(makeIconButton("eye", this), "Dashboard_ShowNumber")),
      m_bell(named(makeIconButton("bell", this), "Dashboard_Bell")),
      m_menu(named(makeIconButton("more", this), "Dashboard_Menu")), m_dot(new StatusDot(m_menu))
{
    setObjectName(QLatin1String("Dashboard_Header"));
    setBox(this, "top");
    makeWidgets();
    layOut();
    connect(&Look::instance(), &Look::changed, this, &Header::layOut);
    retranslate();
}

void Header::makeWidgets()
{
    m_simIcon->setIcon("sim", Token::Text2, 16);
    m_numberTimer.setParent(this);
    m_numberTimer.setObjectName(QLatin1String("Dashboard_NumberTimer"));
    m_numberTimer.setSingleShot(true);
    m_numberTimer.setInterval(NUMBER_TIME);
    connect(&m_numberTimer, &QTimer::timeout, this, &Header::showSim);
    connect(m_eye, &QPushButton::clicked, this, &Header::toggleNumber);
    connect(m_bell, &QPushButton::clicked, this, &Header::messagesRequested);
    connect(m_menu, &QPushButton::clicked, this, &Header::menuRequested);
    setTabOrder(m_eye, m_bell);
    setTabOrder(m_bell, m_menu);
}

void Header::layOut()
{
    const bool isNarrow = m_form == Form::Narrow;
    for (QWidget *widget : findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        m_grid->removeWidget(widget);
    setLabelType(m_operator, isNarrow ? "h3" : "h2");
    setFixedHeight(px(isNarrow ? NARROW_HEIGHT : HEIGHT));
    if (isNarrow)
        placeNarrow();
    else
        placeWide();
    for (QWidget *button : {m_bell, m_menu})
        m_grid->addWidget(button, 0, button == m_bell ? Bell : Menu, isNarrow ? 2 : 1, 1);
    m_grid->setColumnStretch(Gap, 1);
    placeDot();
    showContent(m_content);
}

void Header::placeWide()
{
    setMargins(m_grid, 24, 0, 14, 0);
    setSpacing(m_grid, 10);
    m_grid->addWidget(m_operator, 0, Operator);
    m_grid->addWidget(m_chip, 0, Kind);
    m_grid->addWidget(m_bars, 0, Bars);
    m_grid->addWidget(m_signal, 0, Signal);
    m_grid->addWidget(m_simIcon, 0, SimIcon);
    m_grid->addWidget(m_sim, 0, Sim);
    m_grid->addWidget(m_eye, 0, Eye);
}

void Header::placeNarrow()
{
    setMargins(m_grid, 16, 8, 8, 8);
    setSpacing(m_grid, 8);
    m_grid->addWidget(m_operator, 0, Operator, 1, Gap - Operator + 1);
    m_grid->addWidget(m_kind, 1, Operator);
    m_grid->addWidget(m_bars, 1, Kind, Qt::AlignBottom);
}

void Header::placeDot()
{
    const int side = m_menu->width();
    const int size = m_dot->sizeHint().width();
    m_dot->setGeometry(side - 2 * size, size, size, size);
    m_dot->setVisible(m_form != Form::Wide && m_content.tone != Tone::Ok);
}

void Header::showContent(const HeaderContent &content)
{
    if (content.simNumber != m_content.simNumber)
        m_numberTimer.stop();
    m_content = content;
    const bool isNarrow = m_form == Form::Narrow;
    m_operator->setText(content.title);
    const bool isOperator =
        content.signalPercent >= 0; // otherwise, the title is the situation of the device
    m_operator->setAccessibleName(isOperator ? dashboardText("HEADER_OPERATOR").arg(content.title)
                                             : content.title);
    m_chip->setText(content.chip);
    m_chip->setTone(content.isDemonstration ? Tone::Warn : Tone::Accent);
    m_chip->setVisible(!isNarrow && !content.chip.isEmpty());
    m_kind->setText(content.chip);
    m_kind->setVisible(isNarrow && !content.chip.isEmpty());
    m_bars->setPercent(content.signalPercent);
    m_signal->setText(m_bars->word());
    m_signal->setToolTip(m_bars->toolTip());
    m_signal->setVisible(m_form == Form::Wide && content.signalPercent >= 0);
    m_dot->setTone(content.tone);
    placeDot();
    showSim();
}

QString Header::simText() const
{
    const QString &number = m_content.simNumber;
    if (number.isEmpty())
        return QString();
    if (!m_hidesNumber || m_numberTimer.isActive())
        return dashboardText("HEADER_SIM").arg(isolated(number));
    return dashboardText("HEADER_SIM_ENDING").arg(isolated(number.right(SHOWN_DIGITS)));
}

// Returns false if the SIM would reduce the space for the operator's name.
bool Header::hasRoomForSim() const
{
    if (m_form == Form::Narrow)
        return false;
    if (!isVisible())
        return true; // computing the sizes would apply the style too early
    const QMargins margins = m_grid->contentsMargins();
    int wanted = margins.left() + margins.right();
    for (const QWidget *part : {static_cast<QWidget *>(m_operator), static_cast<QWidget *>(m_chip),
                                static_cast<QWidget *>(m_bars), static_cast<QWidget *>(m_signal),
                                static_cast<QWidget *>(m_simIcon), static_cast<QWidget *>(m_sim),
                                static_cast<QWidget *>(m_eye), static_cast<QWidget *>(m_bell),
                                static_cast<QWidget *>(m_menu)}) {
        const bool isOfSim = part == m_simIcon || part == m_sim || (part == m_eye && m_hidesNumber);
        if (isOfSim || !part->isHidden())
            wanted += part->sizeHint().width() + m_grid->horizontalSpacing();
    }
    return wanted <= width();
}

void Header::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    showSim();
}

void Header::showSim()
{
    m_sim->setText(simText());
    const bool isShown = !m_content.simNumber.isEmpty() && hasRoomForSim();
    m_sim->setVisible(isShown);
    m_simIcon->setVisible(isShown);
    m_eye->setVisible(isShown && m_hidesNumber);
    const bool isRevealed = m_numberTimer.isActive();
    setIconButtonText(m_eye,
                      dashboardText(isRevealed ? "HEADER_HIDE_NUMBER" : "HEADER_SHOW_NUMBER"));
}

void Header::toggleNumber()
{
    if (m_numberTimer.isActive())
        m_numberTimer.stop();
    else if (m_hidesNumber && !m_content.simNumber.isEmpty())
        m_numberTimer.start();
    showSim();
}

void Header::setForm(Form form)
{
    if (form == m_form)
        return;
    m_form = form;
    layOut();
}

void Header::setHidesNumber(bool hides)
{
    m_hidesNumber = hides;
    m_numberTimer.stop();
    showSim();
}

void Header::setUnread(int count)
{
    m_unread = count;
    retranslate();
}

void Header::retranslate()
{
    const QString messages = dashboardText("NAV_MESSAGES");
    setIconButtonText(m_bell, m_unread > 0
                                  ? dashboardText("HEADER_UNREAD").arg(messages).arg(m_unread)
                                  : messages);
    setIconButtonText(m_menu, dashboardText("HEADER_MENU"));
    showContent(m_content);
}

} // namespace Dashboard
